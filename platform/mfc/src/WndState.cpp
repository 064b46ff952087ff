#include "afxwin.h"

namespace {

BOOL modifyStyle(HWND window, int which, DWORD remove, DWORD add, UINT flags) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window, which));
    const DWORD wanted = (style & ~remove) | add;
    if (style == wanted) {
        return FALSE;
    }
    ::SetWindowLongPtrW(window, which, static_cast<LONG_PTR>(wanted));
    if (flags != 0) {
        ::SetWindowPos(window, nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | flags);
    }
    return TRUE;
}

} // namespace

void CWnd::SetWindowText(LPCTSTR lpszString) {
    ::SetWindowTextW(m_hWnd, lpszString);
}

int CWnd::GetWindowText(LPTSTR lpszStringBuf, int nMaxCount) const {
    return ::GetWindowTextW(m_hWnd, lpszStringBuf, nMaxCount);
}

void CWnd::GetWindowText(CString& rString) const {
    const int length = ::GetWindowTextLengthW(m_hWnd);
    const int copied = ::GetWindowTextW(m_hWnd, rString.GetBuffer(length), length + 1);
    rString.ReleaseBuffer(copied);
}

int CWnd::GetWindowTextLength() const {
    return ::GetWindowTextLengthW(m_hWnd);
}

void CWnd::SetFont(CFont* pFont, BOOL bRedraw) {
    const HGDIOBJ font = pFont != nullptr ? pFont->GetSafeHandle() : nullptr;
    ::SendMessageW(m_hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(font), bRedraw);
}

CFont* CWnd::GetFont() const {
    return CFont::FromHandle(reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
}

int CWnd::GetDlgCtrlID() const {
    return ::GetDlgCtrlID(m_hWnd);
}

int CWnd::SetDlgCtrlID(int nID) {
    return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, nID));
}

DWORD CWnd::GetStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE));
}

DWORD CWnd::GetExStyle() const {
    return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE));
}

BOOL CWnd::ModifyStyle(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modifyStyle(m_hWnd, GWL_STYLE, dwRemove, dwAdd, nFlags);
}

BOOL CWnd::ModifyStyleEx(DWORD dwRemove, DWORD dwAdd, UINT nFlags) {
    return modifyStyle(m_hWnd, GWL_EXSTYLE, dwRemove, dwAdd, nFlags);
}

HICON CWnd::SetIcon(HICON hIcon, BOOL bBigIcon) {
    return reinterpret_cast<HICON>(
        SendMessage(WM_SETICON, bBigIcon ? ICON_BIG : ICON_SMALL, reinterpret_cast<LPARAM>(hIcon)));
}

HICON CWnd::GetIcon(BOOL bBigIcon) const {
    return reinterpret_cast<HICON>(SendMessage(WM_GETICON, bBigIcon ? ICON_BIG : ICON_SMALL));
}

BOOL CWnd::ShowWindow(int nCmdShow) {
    return ::ShowWindow(m_hWnd, nCmdShow);
}

BOOL CWnd::IsWindowVisible() const {
    return ::IsWindowVisible(m_hWnd);
}

BOOL CWnd::EnableWindow(BOOL bEnable) {
    return ::EnableWindow(m_hWnd, bEnable);
}

BOOL CWnd::IsWindowEnabled() const {
    return ::IsWindowEnabled(m_hWnd);
}

BOOL CWnd::IsIconic() const {
    return ::IsIconic(m_hWnd);
}

BOOL CWnd::IsZoomed() const {
    return ::IsZoomed(m_hWnd);
}

CWnd* CWnd::SetFocus() {
    return m_hWnd != nullptr ? FromHandle(::SetFocus(m_hWnd)) : nullptr;
}

CWnd* CWnd::GetFocus() {
    return FromHandle(::GetFocus());
}

CWnd* CWnd::SetCapture() {
    return m_hWnd != nullptr ? FromHandle(::SetCapture(m_hWnd)) : nullptr;
}

CWnd* CWnd::GetCapture() {
    return FromHandle(::GetCapture());
}

CWnd* CWnd::SetActiveWindow() {
    return m_hWnd != nullptr ? FromHandle(::SetActiveWindow(m_hWnd)) : nullptr;
}

CWnd* CWnd::GetActiveWindow() {
    return FromHandle(::GetActiveWindow());
}

BOOL CWnd::SetForegroundWindow() {
    return ::SetForegroundWindow(m_hWnd);
}

CWnd* CWnd::GetForegroundWindow() {
    return FromHandle(::GetForegroundWindow());
}

UINT_PTR CWnd::SetTimer(UINT_PTR nIDEvent, UINT nElapse, TIMERPROC lpfnTimer) {
    return m_hWnd != nullptr ? ::SetTimer(m_hWnd, nIDEvent, nElapse, lpfnTimer) : 0;
}

BOOL CWnd::KillTimer(UINT_PTR nIDEvent) {
    return m_hWnd != nullptr && ::KillTimer(m_hWnd, nIDEvent);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) const {
    return ::SendMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return m_hWnd != nullptr && ::PostMessageW(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::SendNotifyMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendNotifyMessageW(m_hWnd, message, wParam, lParam);
}

int CWnd::MessageBox(LPCTSTR lpszText, LPCTSTR lpszCaption, UINT nType) {
    return ::MessageBoxW(m_hWnd, lpszText, lpszCaption != nullptr ? lpszCaption : AfxGetAppName(), nType);
}
