#include "afxwin.h"

namespace {

HWND parentOrOwner(HWND window) {
    const auto style = static_cast<DWORD>(::GetWindowLongPtrW(window, GWL_STYLE));
    return (style & WS_CHILD) != 0 ? ::GetParent(window) : ::GetWindow(window, GW_OWNER);
}

CWnd* objectOf(HWND window, BOOL onlyPermanent) {
    return onlyPermanent ? CWnd::FromHandlePermanent(window) : CWnd::FromHandle(window);
}

/// Children of the level first, then what lies deeper.
CWnd* descendant(HWND window, int id, BOOL onlyPermanent) {
    if (HWND item = ::GetDlgItem(window, id)) {
        if (CWnd* found = objectOf(item, onlyPermanent)) {
            return found;
        }
    }
    for (HWND child = ::GetTopWindow(window); child != nullptr; child = ::GetWindow(child, GW_HWNDNEXT)) {
        if (CWnd* found = descendant(child, id, onlyPermanent)) {
            return found;
        }
    }
    return nullptr;
}

} // namespace

CWnd* CWnd::GetParent() const {
    return FromHandle(::GetParent(m_hWnd));
}

CWnd* CWnd::SetParent(CWnd* pWndNewParent) {
    return FromHandle(::SetParent(m_hWnd, pWndNewParent != nullptr ? pWndNewParent->m_hWnd : nullptr));
}

CWnd* CWnd::GetAncestor(UINT gaFlags) const {
    return FromHandle(::GetAncestor(m_hWnd, gaFlags));
}

CWnd* CWnd::GetOwner() const {
    return m_hWndOwner != nullptr ? FromHandle(m_hWndOwner) : GetParent();
}

void CWnd::SetOwner(CWnd* pOwnerWnd) {
    m_hWndOwner = pOwnerWnd != nullptr ? pOwnerWnd->m_hWnd : nullptr;
}

CWnd* CWnd::GetTopLevelParent() const {
    HWND top = m_hWnd;
    while (HWND above = top != nullptr ? parentOrOwner(top) : nullptr) {
        top = above;
    }
    return FromHandle(top);
}

CWnd* CWnd::GetLastActivePopup() const {
    return FromHandle(::GetLastActivePopup(m_hWnd));
}

BOOL CWnd::IsChild(const CWnd* pWnd) const {
    return pWnd != nullptr && ::IsChild(m_hWnd, pWnd->m_hWnd);
}

CWnd* CWnd::GetWindow(UINT nCmd) const {
    return FromHandle(::GetWindow(m_hWnd, nCmd));
}

CWnd* CWnd::GetTopWindow() const {
    return m_hWnd != nullptr ? FromHandle(::GetTopWindow(m_hWnd)) : nullptr;
}

CWnd* CWnd::GetDesktopWindow() {
    return FromHandle(::GetDesktopWindow());
}

CWnd* CWnd::FindWindow(LPCTSTR lpszClassName, LPCTSTR lpszWindowName) {
    return FromHandle(::FindWindowW(lpszClassName, lpszWindowName));
}

CWnd* CWnd::WindowFromPoint(POINT point) {
    return FromHandle(::WindowFromPoint(point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point) const {
    return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
}

CWnd* CWnd::ChildWindowFromPoint(POINT point, UINT nFlags) const {
    return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, nFlags));
}

CWnd* CWnd::GetDescendantWindow(int nID, BOOL bOnlyPerm) const {
    return descendant(m_hWnd, nID, bOnlyPerm);
}

CWnd* CWnd::GetDlgItem(int nID) const {
    return FromHandle(::GetDlgItem(m_hWnd, nID));
}

void CWnd::GetDlgItem(int nID, HWND* phWnd) const {
    *phWnd = ::GetDlgItem(m_hWnd, nID);
}

int CWnd::GetDlgItemText(int nID, LPTSTR lpStr, int nMaxCount) const {
    return static_cast<int>(::GetDlgItemTextW(m_hWnd, nID, lpStr, nMaxCount));
}

int CWnd::GetDlgItemText(int nID, CString& rString) const {
    rString.Empty();
    if (HWND item = ::GetDlgItem(m_hWnd, nID)) {
        FromHandle(item)->GetWindowText(rString);
    }
    return rString.GetLength();
}

void CWnd::SetDlgItemText(int nID, LPCTSTR lpszString) {
    ::SetDlgItemTextW(m_hWnd, nID, lpszString);
}

UINT CWnd::GetDlgItemInt(int nID, BOOL* lpTrans, BOOL bSigned) const {
    return ::GetDlgItemInt(m_hWnd, nID, lpTrans, bSigned);
}

void CWnd::SetDlgItemInt(int nID, UINT nValue, BOOL bSigned) {
    ::SetDlgItemInt(m_hWnd, nID, nValue, bSigned);
}

void CWnd::CheckDlgButton(int nIDButton, UINT nCheck) {
    ::CheckDlgButton(m_hWnd, nIDButton, nCheck);
}

UINT CWnd::IsDlgButtonChecked(int nIDButton) const {
    return ::IsDlgButtonChecked(m_hWnd, nIDButton);
}

LRESULT CWnd::SendDlgItemMessage(int nID, UINT message, WPARAM wParam, LPARAM lParam) {
    return ::SendDlgItemMessageW(m_hWnd, nID, message, wParam, lParam);
}

CWnd* CWnd::GetNextDlgTabItem(CWnd* pWndCtl, BOOL bPrevious) const {
    HWND from = pWndCtl != nullptr ? pWndCtl->m_hWnd : nullptr;
    return FromHandle(::GetNextDlgTabItem(m_hWnd, from, bPrevious));
}

BOOL CWnd::IsDialogMessage(LPMSG lpMsg) {
    return ::IsDialogMessageW(m_hWnd, lpMsg);
}

CMenu* CWnd::GetMenu() const {
    return CMenu::FromHandle(::GetMenu(m_hWnd));
}

BOOL CWnd::SetMenu(CMenu* pMenu) {
    return ::SetMenu(m_hWnd, pMenu != nullptr ? pMenu->GetSafeHmenu() : nullptr);
}

CMenu* CWnd::GetSystemMenu(BOOL bRevert) const {
    return CMenu::FromHandle(::GetSystemMenu(m_hWnd, bRevert));
}

void CWnd::DrawMenuBar() {
    ::DrawMenuBar(m_hWnd);
}
