#include "support/Capture.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include <objidl.h>

#include <gdiplus.h>

namespace support {
namespace {

/// A context of a window or of the screen, given back at the end.
class WindowDevice {
public:
    WindowDevice(HWND window, HDC device) : m_window(window), m_device(device) {
        if (device == nullptr) {
            throw std::runtime_error("there is no such window to look at");
        }
    }
    ~WindowDevice() { ::ReleaseDC(m_window, m_device); }
    WindowDevice(const WindowDevice&) = delete;
    WindowDevice& operator=(const WindowDevice&) = delete;

    operator HDC() const { return m_device; }

private:
    HWND m_window;
    HDC m_device;
};

BITMAPINFO trueColour(int width, int height) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // rows from the top
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

/// Section pixels are 0x??RRGGBB, colours of GDI 0x00BBGGRR.
constexpr DWORD swapRedAndBlue(DWORD value) {
    return (value & 0x00FF00) | ((value & 0xFF) << 16) | ((value >> 16) & 0xFF);
}

std::string describe(const RECT& area) {
    std::ostringstream text;
    text << "(" << area.left << ", " << area.top << ")-(" << area.right << ", " << area.bottom << ")";
    return text.str();
}

std::string pictureName() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = info ? std::string(info->test_suite_name()) + "." + info->name() : "picture";
    std::replace(name.begin(), name.end(), '/', '_');
    return name;
}

} // namespace

std::filesystem::path picturesFolder() {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(::GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    return std::filesystem::path(program).parent_path() / "pictures";
}

Pixels::Pixels(int width, int height)
    : m_width(std::max(width, 0)),
      m_height(std::max(height, 0)),
      m_colours(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(m_height)) {}

Pixels Pixels::ofDevice(HDC device, const RECT& area) {
    MemoryDevice copy(area.right - area.left, area.bottom - area.top);
    ::BitBlt(copy.dc(), 0, 0, area.right - area.left, area.bottom - area.top, device, area.left, area.top, SRCCOPY);
    return copy.pixels();
}

Pixels Pixels::ofClient(HWND window) {
    RECT client{};
    ::GetClientRect(window, &client);
    return ofDevice(WindowDevice(window, ::GetDC(window)), client);
}

Pixels Pixels::ofWindow(HWND window) {
    RECT frame{};
    ::GetWindowRect(window, &frame);
    ::OffsetRect(&frame, -frame.left, -frame.top);
    return ofDevice(WindowDevice(window, ::GetWindowDC(window)), frame);
}

Pixels Pixels::ofScreen(const RECT& area) {
    return ofDevice(WindowDevice(nullptr, ::GetDC(nullptr)), area);
}

COLORREF Pixels::at(int x, int y) const {
    if (x < 0 || y < 0 || x >= m_width || y >= m_height) {
        return CLR_INVALID;
    }
    return m_colours[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)];
}

void Pixels::set(int x, int y, COLORREF colour) {
    if (at(x, y) != CLR_INVALID) {
        m_colours[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + static_cast<std::size_t>(x)] =
            colour;
    }
}

RECT Pixels::clipped(const RECT& area) const {
    const RECT whole = bounds();
    RECT result{};
    ::IntersectRect(&result, &area, &whole);
    return result;
}

Pixels Pixels::part(const RECT& area) const {
    const RECT inside = clipped(area);
    Pixels result(inside.right - inside.left, inside.bottom - inside.top);
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x) {
            result.set(x - inside.left, y - inside.top, at(x, y));
        }
    }
    return result;
}

std::size_t Pixels::count(COLORREF colour, const RECT& area) const {
    const RECT inside = clipped(area);
    std::size_t found = 0;
    for (int y = inside.top; y < inside.bottom; ++y) {
        for (int x = inside.left; x < inside.right; ++x) {
            found += at(x, y) == colour ? 1U : 0U;
        }
    }
    return found;
}

double Pixels::shareBrighterThan(BYTE green) const {
    const auto bright = std::count_if(m_colours.begin(), m_colours.end(),
                                      [green](COLORREF colour) { return GetGValue(colour) > green; });
    return static_cast<double>(bright) / static_cast<double>(m_colours.size());
}

std::optional<COLORREF> Pixels::onlyColour(const RECT& area) const {
    const RECT inside = clipped(area);
    if (::IsRectEmpty(&inside)) {
        return std::nullopt;
    }
    const COLORREF colour = at(inside.left, inside.top);
    const auto pixels = (inside.right - inside.left) * (inside.bottom - inside.top);
    return count(colour, inside) == static_cast<std::size_t>(pixels) ? std::optional(colour) : std::nullopt;
}

std::optional<RECT> Pixels::boundsOf(COLORREF colour) const {
    std::optional<RECT> found;
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            if (at(x, y) == colour) {
                const RECT pixel{x, y, x + 1, y + 1};
                RECT joined = pixel;
                if (found) {
                    ::UnionRect(&joined, &*found, &pixel);
                }
                found = joined;
            }
        }
    }
    return found;
}

void Pixels::savePng(const std::filesystem::path& file) const {
    constexpr CLSID pngEncoder{0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    std::vector<DWORD> section(m_colours.size());
    std::transform(m_colours.begin(), m_colours.end(), section.begin(), swapRedAndBlue);
    std::filesystem::create_directories(file.parent_path());
    Gdiplus::Bitmap bitmap(m_width, m_height, m_width * 4, PixelFormat32bppRGB,
                           reinterpret_cast<BYTE*>(section.data()));
    if (bitmap.Save(file.c_str(), &pngEncoder, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("cannot write the picture " + file.string());
    }
}

std::optional<Difference> difference(const Pixels& actual, const Pixels& expected) {
    std::optional<Difference> result;
    for (int y = 0; y < std::min(actual.height(), expected.height()); ++y) {
        for (int x = 0; x < std::min(actual.width(), expected.width()); ++x) {
            if (actual.at(x, y) == expected.at(x, y)) {
                continue;
            }
            const RECT pixel{x, y, x + 1, y + 1};
            if (!result) {
                result = Difference{pixel, 1, {x, y}};
                continue;
            }
            const RECT before = result->bounds;
            ::UnionRect(&result->bounds, &before, &pixel);
            ++result->count;
        }
    }
    return result;
}

testing::AssertionResult samePixels(const Pixels& actual, const Pixels& expected) {
    if (actual == expected) {
        return testing::AssertionSuccess();
    }
    auto failure = testing::AssertionFailure();
    if (actual.width() != expected.width() || actual.height() != expected.height()) {
        failure << actual.width() << " x " << actual.height() << " pixels instead of " << expected.width() << " x "
                << expected.height() << "; ";
    }
    if (const auto found = difference(actual, expected)) {
        failure << found->count << " pixels differ within " << describe(found->bounds) << ", first at ("
                << found->first.x << ", " << found->first.y
                << "): " << describe(actual.at(found->first.x, found->first.y)) << " instead of "
                << describe(expected.at(found->first.x, found->first.y)) << "; ";
    }
    const auto stem = picturesFolder() / pictureName();
    actual.savePng(stem.string() + "-actual.png");
    expected.savePng(stem.string() + "-expected.png");
    return failure << "see " << stem.string() << "-actual.png and -expected.png";
}

std::string describe(COLORREF colour) {
    constexpr const char* digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const int channel : {GetRValue(colour), GetGValue(colour), GetBValue(colour)}) {
        text += digits[channel / 16];
        text += digits[channel % 16];
    }
    return text;
}

MemoryDevice::MemoryDevice(int width, int height, COLORREF background)
    : m_width(std::max(width, 0)),
      m_height(std::max(height, 0)),
      m_dc(::CreateCompatibleDC(nullptr)) {
    const BITMAPINFO info = trueColour(std::max(m_width, 1), std::max(m_height, 1));
    m_bitmap = ::CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &m_bits, nullptr, 0);
    if (m_bitmap == nullptr) {
        ::DeleteDC(m_dc);
        throw std::runtime_error("there is no memory for a picture");
    }
    m_previous = ::SelectObject(m_dc, m_bitmap);
    const RECT whole{0, 0, m_width, m_height};
    ::SetBkColor(m_dc, background);
    ::ExtTextOutW(m_dc, 0, 0, ETO_OPAQUE, &whole, L"", 0, nullptr);
    ::SetBkColor(m_dc, RGB(255, 255, 255));
}

MemoryDevice::~MemoryDevice() {
    ::SelectObject(m_dc, m_previous);
    ::DeleteObject(m_bitmap);
    ::DeleteDC(m_dc);
}

Pixels MemoryDevice::pixels() const {
    ::GdiFlush();
    Pixels result(m_width, m_height);
    const auto* pixel = static_cast<const DWORD*>(m_bits);
    for (int y = 0; y < m_height; ++y) {
        for (int x = 0; x < m_width; ++x) {
            result.set(x, y, swapRedAndBlue(*pixel++));
        }
    }
    return result;
}

} // namespace support
