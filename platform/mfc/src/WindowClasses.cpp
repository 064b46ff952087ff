#include "afxwin_app.h"

#include <cstdio>
#include <mutex>
#include <set>
#include <string>

namespace {

/// Names that callers hold on to.
LPCTSTR keptName(const wchar_t* name) {
    static std::mutex mutex;
    static std::set<std::wstring> names;
    const std::lock_guard lock(mutex);
    return names.emplace(name).first->c_str();
}

} // namespace

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon) {
    HINSTANCE instance = AfxGetInstanceHandle();
    wchar_t name[128];
    std::swprintf(name, ARRAYSIZE(name), L"Afx:%p:%x:%p:%p:%p", static_cast<void*>(instance), nClassStyle,
                  static_cast<void*>(hCursor), static_cast<void*>(hbrBackground), static_cast<void*>(hIcon));
    WNDCLASS windowClass{};
    windowClass.style = nClassStyle;
    windowClass.lpfnWndProc = &::DefWindowProcW;
    windowClass.hInstance = instance;
    windowClass.hCursor = hCursor;
    windowClass.hbrBackground = hbrBackground;
    windowClass.hIcon = hIcon;
    windowClass.lpszClassName = name;
    if (!AfxRegisterClass(&windowClass)) {
        AfxThrowResourceException();
    }
    return keptName(name);
}

BOOL AfxRegisterClass(WNDCLASS* lpWndClass) {
    WNDCLASS known{};
    if (GetClassInfoW(lpWndClass->hInstance, lpWndClass->lpszClassName, &known)) {
        return TRUE;
    }
    // Another thread may have been faster.
    return RegisterClassW(lpWndClass) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}
