#pragma once

#include "HandleMap.h"
#include "afxwin_wnd.h"

struct WindowMapTraits {
    using Object = CWnd;
    using Handle = HWND;
    static std::unique_ptr<CWnd> makeTemporary(HWND handle);
    static void release(CWnd& window) noexcept;
};

using WindowMap = HandleMap<WindowMapTraits>;

/// The road from the system's call to the object, and how a window that is being made finds its object.
class WindowDispatch {
public:
    /// The next window that this thread creates is attached to the object, before its first message.
    static void hookCreation(CWnd* window);
    /// False if no window came to be.
    static bool unhookCreation();
    /// Ties object and window and puts the framework's procedure before the window's own.
    static void attach(CWnd& window, HWND handle);

    /// Calls the object's window procedure as the innermost message of the thread. Lets no exception out.
    static LRESULT call(CWnd* window, HWND handle, UINT message, WPARAM wParam, LPARAM lParam);

private:
    static LRESULT CALLBACK creationHook(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT callGuarded(CWnd* window, const MSG& message);
};
