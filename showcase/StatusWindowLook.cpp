#include "StatusWindowLook.h"

#include <OrtinControls/SystemColors.h>
#include <commctrl.h>

#include "DeskColors.h"
#include "DeskDialog.h"

namespace Desk {

namespace {

/// The window's items for the document and the page.
constexpr int DocumentItem = 201;
constexpr int PageItem = 204;

HWND etchedLineOf(HWND window) {
    HWND child = nullptr;
    while ((child = ::FindWindowExW(window, child, L"Static", nullptr)) != nullptr)
        if ((::GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK) == SS_ETCHEDHORZ)
            break;
    return child;
}

} // namespace

StatusWindowLook* StatusWindowLook::S_current = nullptr;

StatusWindowLook::StatusWindowLook(DeskFonts& fonts) : m_fonts(fonts) {
    m_background.CreateSolidBrush(Colors::strip());
    S_current = this;
    m_hook = ::SetWindowsHookExW(WH_CALLWNDPROC, &StatusWindowLook::watch, nullptr, ::GetCurrentThreadId());
}

StatusWindowLook::~StatusWindowLook() {
    ::UnhookWindowsHookEx(m_hook);
    S_current = nullptr;
}

/// The window is dressed when it is about to show: its controls are there then, and nothing has been seen of it.
LRESULT CALLBACK StatusWindowLook::watch(int code, WPARAM wParam, LPARAM lParam) {
    const auto* sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && sent->message == WM_SHOWWINDOW && sent->wParam && ::GetDlgItem(sent->hwnd, DocumentItem) &&
        ::GetDlgItem(sent->hwnd, PageItem))
        S_current->dress(sent->hwnd);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void StatusWindowLook::dress(HWND window) {
    if (m_cancel.m_hWnd)
        return;
    setDarkTitleBar(window, SystemColors::GetCurrentDomainColor() == EThemeColor::BlackTheme);
    m_cancel.adopt(::GetDlgItem(window, IDCANCEL), m_fonts);
    ::ShowWindow(etchedLineOf(window), SW_HIDE); // its two colours are the system's
    ::SetWindowSubclass(window, &StatusWindowLook::answer, 0, reinterpret_cast<DWORD_PTR>(this));
}

LRESULT CALLBACK StatusWindowLook::answer(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR look) {
    if (message == WM_CTLCOLORDLG || message == WM_CTLCOLORSTATIC)
        return reinterpret_cast<LRESULT>(
            reinterpret_cast<StatusWindowLook*>(look)->background(reinterpret_cast<HDC>(wParam)));
    return ::DefSubclassProc(window, message, wParam, lParam);
}

HBRUSH StatusWindowLook::background(HDC dc) {
    ::SetTextColor(dc, Colors::text());
    ::SetBkColor(dc, Colors::strip());
    return m_background;
}

} // namespace Desk
