#pragma once

#include "HandleMap.h"
#include "afxwin_wnd.h"

#include <functional>

struct WindowMapTraits {
    using Object = CWnd;
    using Handle = HWND;
    static std::unique_ptr<CWnd> make(HWND) { return std::make_unique<CWnd>(); }
    static HWND handleOf(const CWnd& window) { return window.m_hWnd; }
    static void setHandle(CWnd& window, HWND handle) noexcept { window.m_hWnd = handle; }
};

using WindowMap = HandleMap<WindowMapTraits>;

/// The road from the system's call to the object, and how a window that is being made finds its object.
class WindowDispatch {
public:
    /// Runs what creates one window with the system. The object is attached to the window before its first message.
    /// False if there is no such window, then the object is as before and has had its PostNcDestroy.
    static bool create(CWnd& window, const std::function<HWND()>& createWindow);
    /// Ties object and window and puts the framework's procedure before the window's own. What PreSubclassWindow
    /// throws comes out, and leaves them untied.
    static void attach(CWnd& window, HWND handle);

    /// Calls the object's window procedure as the innermost message of the thread. Lets no exception out.
    static LRESULT call(CWnd* window, HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

private:
    static void hookCreation(CWnd* window);
    /// False if the object has met no window.
    static bool unhookCreation();
    static LRESULT CALLBACK creationHook(int code, WPARAM wParam, LPARAM lParam);
    static bool attachGuarded(CWnd& window, HWND handle, const CREATESTRUCT* creation);
    static LRESULT callGuarded(CWnd* window, const MSG& message);
    static void centerGuarded(CWnd& window, const MSG& message);
};
