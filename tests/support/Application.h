#pragma once

#include <afxwin.h>

#include <windows.h>

namespace support {

/// What a host's program owns for the length of its run: the application object, GDI+, the common controls, and its
/// word that it knows about DPI. One a process, in main(). Throws std::runtime_error when the machine does not give
/// them.
class Application {
public:
    Application();
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

private:
    CWinApp m_framework;
    ULONG_PTR m_gdiPlus = 0;
};

} // namespace support
