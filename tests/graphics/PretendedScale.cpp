#include "PretendedScale.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <optional>

#include <afxwin.h>

#include "support/ImportPatch.h"

namespace {

std::optional<int> wantedDpi() {
    const char* text = std::getenv("ORTIN_TEST_DPI");
    return text != nullptr ? std::optional(std::atoi(text)) : std::nullopt;
}

int WINAPI capsOfWantedDpi(HDC dc, int index) {
    return index == LOGPIXELSX ? *wantedDpi() : ::GetDeviceCaps(dc, index);
}

/// Before main, as the library asks only once.
class PretendedDpi {
public:
    PretendedDpi() {
        if (wantedDpi()) {
            m_patch.emplace(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "GetDeviceCaps", &capsOfWantedDpi);
        }
    }

private:
    std::optional<support::ImportPatch> m_patch;
};

const PretendedDpi pretendedDpi;

} // namespace

double pretendedScale() {
    static const double scale = [] {
        if (const auto wanted = wantedDpi()) {
            return std::max(*wanted, 96) / 96.0;
        }
        const HDC screen = ::GetDC(nullptr);
        const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
        ::ReleaseDC(nullptr, screen);
        return std::max(dpi, 96) / 96.0;
    }();
    return scale;
}

long scaled(int height) {
    return std::lround(pretendedScale() * height);
}

long unscaled(int height) {
    return std::lround(height / pretendedScale());
}
