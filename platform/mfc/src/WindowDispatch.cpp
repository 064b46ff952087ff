#include "WindowDispatch.h"

#include "WindowExceptions.h"
#include "afxwin_app.h"

namespace {

/// Makes a message the current one of its thread, and the one before current again.
class CurrentMessage {
public:
    CurrentMessage(ThreadState& state, HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
        : m_state(state),
          m_outer(state.lastSentMessage) {
        state.lastSentMessage = MSG{handle, message, wParam, lParam, 0, {0, 0}};
    }
    CurrentMessage(const CurrentMessage&) = delete;
    CurrentMessage& operator=(const CurrentMessage&) = delete;
    ~CurrentMessage() { m_state.lastSentMessage = m_outer; }

private:
    ThreadState& m_state;
    MSG m_outer;
};

/// A dialog that neither moved nor showed itself while it was initialised is put over its owner.
class AutoCenter {
public:
    explicit AutoCenter(HWND dialog) : m_dialog(dialog), m_style(styleOf(dialog)) { GetWindowRect(dialog, &m_before); }

    bool wanted() const {
        const DWORD style = styleOf(m_dialog);
        RECT now{};
        return (m_style & WS_VISIBLE) == 0 && (style & (WS_VISIBLE | WS_CHILD)) == 0 && GetWindowRect(m_dialog, &now) &&
               EqualRect(&m_before, &now);
    }

private:
    static DWORD styleOf(HWND window) { return static_cast<DWORD>(GetWindowLongPtrW(window, GWL_STYLE)); }

    HWND m_dialog;
    DWORD m_style;
    RECT m_before{};
};

} // namespace

bool WindowDispatch::create(CWnd& window, const std::function<HWND()>& createWindow) {
    hookCreation(&window);
    // Without the hook the window would live without its object.
    HWND made = ThreadState::current().creationHook != nullptr ? createWindow() : nullptr;
    if (!unhookCreation()) {
        // Somebody else's hook that does not pass the creation on lets a window through that has no object.
        if (made != nullptr) {
            ::DestroyWindow(made);
        }
        window.PostNcDestroy();
        return false;
    }
    // A window that was refused by its own WM_CREATE has ended in OnNcDestroy: the object may be gone by now.
    return made != nullptr;
}

void WindowDispatch::hookCreation(CWnd* window) {
    ThreadState& state = ThreadState::current();
    state.creatingWindow = window;
    state.creationHook = SetWindowsHookExW(WH_CBT, &WindowDispatch::creationHook, nullptr, GetCurrentThreadId());
}

bool WindowDispatch::unhookCreation() {
    ThreadState& state = ThreadState::current();
    if (state.creationHook != nullptr) {
        UnhookWindowsHookEx(state.creationHook);
        state.creationHook = nullptr;
    }
    const bool attached = state.creatingWindow == nullptr;
    state.creatingWindow = nullptr;
    return attached;
}

LRESULT CALLBACK WindowDispatch::creationHook(int code, WPARAM wParam, LPARAM lParam) {
    ThreadState& state = ThreadState::current();
    HHOOK hook = state.creationHook;
    if (code == HCBT_CREATEWND && state.creatingWindow != nullptr) {
        const auto handle = reinterpret_cast<HWND>(wParam);
        wchar_t className[8] = {};
        GetClassNameW(handle, className, ARRAYSIZE(className));
        // The input method's helper window may come first; it isn't the one that was asked for.
        if (lstrcmpiW(className, L"ime") != 0) {
            CWnd& window = *state.creatingWindow;
            state.creatingWindow = nullptr;
            state.creationHook = nullptr;
            const bool attached = attachGuarded(window, handle, reinterpret_cast<const CBT_CREATEWND*>(lParam)->lpcs);
            const bool refusedByOthers = CallNextHookEx(hook, code, wParam, lParam) != 0;
            UnhookWindowsHookEx(hook);
            constexpr LRESULT goOn = 0;
            constexpr LRESULT refuse = 1;
            if (attached && !refusedByOthers) {
                return goOn;
            }
            // The window that is refused here ends without a message.
            window.UnsubclassWindow();
            state.creatingWindow = &window;
            return refuse;
        }
    }
    return CallNextHookEx(hook, code, wParam, lParam);
}

bool WindowDispatch::attachGuarded(CWnd& window, HWND handle, const CREATESTRUCT* creation) {
    try {
        attach(window, handle);
        return true;
    } catch (...) {
        // To those who are told it is the creation that failed.
        answerToException({handle, WM_CREATE, 0, reinterpret_cast<LPARAM>(creation), 0, {}});
        return false;
    }
}

void WindowDispatch::attach(CWnd& window, HWND handle) {
    window.Attach(handle);
    try {
        window.PreSubclassWindow();
    } catch (...) {
        window.Detach();
        throw;
    }
    const auto original =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    window.m_pfnSuper = original != &AfxWndProc ? original : nullptr;
}

LRESULT WindowDispatch::call(CWnd* window, HWND handle, UINT message, WPARAM wParam, LPARAM lParam) {
    const CurrentMessage current(ThreadState::current(), handle, message, wParam, lParam);
    const MSG msg{handle, message, wParam, lParam, 0, {0, 0}};
    if (message == WM_INITDIALOG) {
        const AutoCenter center(handle);
        const LRESULT result = callGuarded(window, msg);
        if (WindowMap::ofThread().fromHandlePermanent(handle) == window && center.wanted()) {
            centerGuarded(*window, msg);
        }
        return result;
    }
    const LRESULT result = callGuarded(window, msg);
    if (message == WM_NCDESTROY) {
        // A handler that did not call its base leaves the object tied to a handle that is about to be reused.
        if (CWnd* left = WindowMap::ofThread().fromHandlePermanent(handle)) {
            left->leaveThread();
            left->Detach();
        }
    }
    return result;
}

void WindowDispatch::centerGuarded(CWnd& window, const MSG& message) {
    try {
        if (window.CheckAutoCenter()) {
            window.CenterWindow();
        }
    } catch (...) {
        answerToException(message);
    }
}

LRESULT WindowDispatch::callGuarded(CWnd* window, const MSG& message) {
    try {
        return window->WindowProc(message.message, message.wParam, message.lParam);
    } catch (...) {
        return answerToException(message);
    }
}

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT nMsg, WPARAM wParam, LPARAM lParam) {
    CWnd* window = WindowMap::ofThread().fromHandlePermanent(hWnd);
    if (window == nullptr) {
        return ::DefWindowProcW(hWnd, nMsg, wParam, lParam);
    }
    return WindowDispatch::call(window, hWnd, nMsg, wParam, lParam);
}
