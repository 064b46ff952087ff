#pragma once

#include <windows.h>

namespace VectorCanvas {

/// The device of a window, null for the screen, until it is let go. The window may end meanwhile.
class WindowDevice {
public:
    explicit WindowDevice(HWND window) : m_window(window), m_device(::GetDC(window)) {}
    ~WindowDevice() { ::ReleaseDC(m_window, m_device); }
    WindowDevice(const WindowDevice&) = delete;
    WindowDevice& operator=(const WindowDevice&) = delete;

    operator HDC() const { return m_device; }

private:
    HWND m_window;
    HDC m_device;
};

} // namespace VectorCanvas
