#include "afxwin.h"
#include "afxwin_app.h"
#include "afxwin_ctl.h"

// What every window answers by itself: the questions of controls go to the control first.
BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
    ON_WM_CTLCOLOR()
    ON_WM_DRAWITEM()
    ON_WM_MEASUREITEM()
    ON_WM_COMPAREITEM()
    ON_WM_DELETEITEM()
    ON_WM_PARENTNOTIFY()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

CWnd* AfxWndOf(WPARAM handle) {
    return CWnd::FromHandle(reinterpret_cast<HWND>(handle));
}

CDC* AfxDeviceOf(WPARAM handle) {
    return CDC::FromHandle(reinterpret_cast<HDC>(handle));
}

CMenu* AfxMenuOf(WPARAM handle) {
    return CMenu::FromHandle(reinterpret_cast<HMENU>(handle));
}

CScrollBar* AfxScrollBarOf(LPARAM handle) {
    // A temporary object is only a CWnd; CScrollBar adds neither data nor virtual operations that could tell.
    return static_cast<CScrollBar*>(CWnd::FromHandle(reinterpret_cast<HWND>(handle)));
}

int CWnd::OnCreate(LPCREATESTRUCT) {
    return static_cast<int>(Default());
}
BOOL CWnd::OnNcCreate(LPCREATESTRUCT) {
    return static_cast<BOOL>(Default());
}
void CWnd::OnClose() {
    Default();
}
void CWnd::OnDestroy() {
    Default();
}
BOOL CWnd::OnQueryEndSession() {
    return static_cast<BOOL>(Default());
}
void CWnd::OnEndSession(BOOL) {
    Default();
}

void CWnd::OnNcDestroy() {
    leaveThread();
    Default();
    UnsubclassWindow();
    PostNcDestroy();
}

void CWnd::OnPaint() {
    Default();
}
void CWnd::OnNcPaint() {
    Default();
}
BOOL CWnd::OnEraseBkgnd(CDC*) {
    return static_cast<BOOL>(Default());
}

HBRUSH CWnd::OnCtlColor(CDC*, CWnd* pWnd, UINT) {
    LRESULT brush = 0;
    if (pWnd != nullptr && pWnd->SendChildNotifyLastMsg(&brush)) {
        return reinterpret_cast<HBRUSH>(brush);
    }
    return reinterpret_cast<HBRUSH>(Default());
}

void CWnd::OnSysColorChange() {
    Default();
}
LRESULT CWnd::OnThemeChanged() {
    return Default();
}
void CWnd::OnSettingChange(UINT, LPCTSTR) {
    Default();
}

void CWnd::OnSize(UINT, int, int) {
    Default();
}
void CWnd::OnSizing(UINT, LPRECT) {
    Default();
}
void CWnd::OnMove(int, int) {
    Default();
}
void CWnd::OnMoving(UINT, LPRECT) {
    Default();
}
void CWnd::OnGetMinMaxInfo(MINMAXINFO*) {
    Default();
}
void CWnd::OnWindowPosChanging(WINDOWPOS*) {
    Default();
}
void CWnd::OnWindowPosChanged(WINDOWPOS*) {
    Default();
}
void CWnd::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) {
    Default();
}
LRESULT CWnd::OnNcHitTest(CPoint) {
    return Default();
}
void CWnd::OnShowWindow(BOOL, UINT) {
    Default();
}
void CWnd::OnStyleChanged(int, LPSTYLESTRUCT) {
    Default();
}

void CWnd::OnEnable(BOOL) {
    Default();
}
void CWnd::OnActivate(UINT, CWnd*, BOOL) {
    Default();
}
void CWnd::OnActivateApp(BOOL, DWORD) {
    Default();
}
BOOL CWnd::OnNcActivate(BOOL) {
    return static_cast<BOOL>(Default());
}
int CWnd::OnMouseActivate(CWnd*, UINT, UINT) {
    return static_cast<int>(Default());
}
void CWnd::OnSetFocus(CWnd*) {
    Default();
}
void CWnd::OnKillFocus(CWnd*) {
    Default();
}
void CWnd::OnCaptureChanged(CWnd*) {
    Default();
}
void CWnd::OnCancelMode() {
    Default();
}
void CWnd::OnTimer(UINT_PTR) {
    Default();
}

void CWnd::OnHScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg()) {
        Default();
    }
}

void CWnd::OnVScroll(UINT, UINT, CScrollBar* pScrollBar) {
    if (pScrollBar == nullptr || !pScrollBar->SendChildNotifyLastMsg()) {
        Default();
    }
}

void CWnd::OnMouseMove(UINT, CPoint) {
    Default();
}
void CWnd::OnMouseHover(UINT, CPoint) {
    Default();
}
void CWnd::OnMouseLeave() {
    Default();
}
BOOL CWnd::OnMouseWheel(UINT, short, CPoint) {
    return static_cast<BOOL>(Default());
}
void CWnd::OnMouseHWheel(UINT, short, CPoint) {
    Default();
}
void CWnd::OnLButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnLButtonDblClk(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnRButtonDblClk(UINT, CPoint) {
    Default();
}
void CWnd::OnMButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnMButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnMButtonDblClk(UINT, CPoint) {
    Default();
}
void CWnd::OnNcMouseMove(UINT, CPoint) {
    Default();
}
void CWnd::OnNcLButtonDown(UINT, CPoint) {
    Default();
}
void CWnd::OnNcLButtonUp(UINT, CPoint) {
    Default();
}
void CWnd::OnNcLButtonDblClk(UINT, CPoint) {
    Default();
}
BOOL CWnd::OnSetCursor(CWnd*, UINT, UINT) {
    return static_cast<BOOL>(Default());
}
void CWnd::OnContextMenu(CWnd*, CPoint) {
    Default();
}

void CWnd::OnKeyDown(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnKeyUp(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnChar(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnSysKeyDown(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnSysKeyUp(UINT, UINT, UINT) {
    Default();
}
void CWnd::OnSysChar(UINT, UINT, UINT) {
    Default();
}
UINT CWnd::OnGetDlgCode() {
    return static_cast<UINT>(Default());
}

void CWnd::OnSysCommand(UINT, LPARAM) {
    Default();
}
void CWnd::OnInitMenuPopup(CMenu*, UINT, BOOL) {
    Default();
}
void CWnd::OnMenuSelect(UINT, UINT, HMENU) {
    Default();
}

void CWnd::OnDrawItem(int, LPDRAWITEMSTRUCT lpDrawItemStruct) {
    if (lpDrawItemStruct->CtlType == ODT_MENU || !ReflectLastMsg(lpDrawItemStruct->hwndItem)) {
        Default();
    }
}

void CWnd::OnMeasureItem(int, LPMEASUREITEMSTRUCT lpMeasureItemStruct) {
    // The message comes while the control is being made and names it by its identifier alone.
    HWND control = lpMeasureItemStruct->CtlType != ODT_MENU
                       ? ::GetDlgItem(m_hWnd, static_cast<int>(lpMeasureItemStruct->CtlID))
                       : nullptr;
    if (!ReflectLastMsg(control)) {
        Default();
    }
}

int CWnd::OnCompareItem(int, LPCOMPAREITEMSTRUCT lpCompareItemStruct) {
    LRESULT order = 0;
    if (ReflectLastMsg(lpCompareItemStruct->hwndItem, &order)) {
        return static_cast<int>(order);
    }
    return static_cast<int>(Default());
}

void CWnd::OnDeleteItem(int, LPDELETEITEMSTRUCT lpDeleteItemStruct) {
    if (!ReflectLastMsg(lpDeleteItemStruct->hwndItem)) {
        Default();
    }
}

void CWnd::OnParentNotify(UINT message, LPARAM lParam) {
    if ((LOWORD(message) != WM_CREATE && LOWORD(message) != WM_DESTROY) ||
        !ReflectLastMsg(reinterpret_cast<HWND>(lParam))) {
        Default();
    }
}
