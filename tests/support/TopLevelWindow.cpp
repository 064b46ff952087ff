#include "support/TopLevelWindow.h"

#include "support/Pump.h"

#include <stdexcept>

namespace support {
namespace {

LPCWSTR hostWindowClass() {
    static const ATOM registered = [] {
        WNDCLASSEXW description{};
        description.cbSize = sizeof description;
        description.style = CS_DBLCLKS;
        description.lpfnWndProc = ::DefWindowProcW;
        description.hInstance = ::GetModuleHandleW(nullptr);
        description.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
        description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
        description.lpszClassName = L"OrtinTestHost";
        return ::RegisterClassExW(&description);
    }();
    return MAKEINTATOM(registered);
}

} // namespace

ScopedTopLevelWindow::ScopedTopLevelWindow(CSize client, DWORD style) {
    const DWORD whole = WS_POPUP | WS_CLIPCHILDREN | style;
    RECT frame{0, 0, client.cx, client.cy};
    ::AdjustWindowRectEx(&frame, whole, FALSE, 0);
    if (!CreateEx(0, hostWindowClass(), L"host", whole, 100, 100, frame.right - frame.left, frame.bottom - frame.top,
                  nullptr, nullptr)) {
        throw std::runtime_error("the host window cannot be made");
    }
    ShowWindow(SW_SHOWNOACTIVATE);
    pumpUntilIdle();
}

ScopedTopLevelWindow::~ScopedTopLevelWindow() {
    onMessage = nullptr;
    DestroyWindow();
}

void ScopedTopLevelWindow::activate() {
    ::SetForegroundWindow(m_hWnd);
    ::SetActiveWindow(m_hWnd);
    pumpUntil([this] { return ::GetForegroundWindow() == m_hWnd; });
}

LRESULT ScopedTopLevelWindow::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (onMessage) {
        if (const auto answer = onMessage(message, wParam, lParam)) {
            return *answer;
        }
    }
    return CWnd::WindowProc(message, wParam, lParam);
}

} // namespace support
