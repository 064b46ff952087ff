#include "support/Application.h"

#include <algorithm>
#include <stdexcept>

#include <commctrl.h>

#include <objidl.h>

#include <gdiplus.h>

namespace support {

Application::Application() {
    ::SetProcessDPIAware();
    const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    if (!AfxWinInit(::GetModuleHandleW(nullptr), nullptr, ::GetCommandLineW(), SW_SHOWNOACTIVATE) ||
        !m_framework.InitApplication()) {
        throw std::runtime_error("the application cannot be started");
    }
    const Gdiplus::GdiplusStartupInput input;
    if (Gdiplus::GdiplusStartup(&m_gdiPlus, &input, nullptr) != Gdiplus::Ok) {
        throw std::runtime_error("GDI+ cannot be started");
    }
}

Application::~Application() {
    Gdiplus::GdiplusShutdown(m_gdiPlus);
}

} // namespace support
