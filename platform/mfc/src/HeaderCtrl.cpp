#include "afxcmn.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CreateEx(0, dwStyle, rect, pParentWnd, nID);
}

BOOL CHeaderCtrl::CreateEx(DWORD dwExStyle, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_LISTVIEW_CLASSES};
    if (!InitCommonControlsEx(&classes)) {
        return FALSE;
    }
    return CWnd::CreateEx(dwExStyle, WC_HEADER, nullptr, dwStyle | WS_CHILD, rect, pParentWnd, nID);
}

int CHeaderCtrl::GetItemCount() const {
    return static_cast<int>(SendMessage(HDM_GETITEMCOUNT));
}

BOOL CHeaderCtrl::GetItem(int nPos, HDITEM* pHeaderItem) const {
    return SendMessage(HDM_GETITEM, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(pHeaderItem)) != 0;
}

BOOL CHeaderCtrl::SetItem(int nPos, HDITEM* pHeaderItem) {
    return SendMessage(HDM_SETITEM, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(pHeaderItem)) != 0;
}

int CHeaderCtrl::InsertItem(int nPos, HDITEM* phdi) {
    return static_cast<int>(SendMessage(HDM_INSERTITEM, static_cast<WPARAM>(nPos), reinterpret_cast<LPARAM>(phdi)));
}

BOOL CHeaderCtrl::DeleteItem(int nPos) {
    return SendMessage(HDM_DELETEITEM, static_cast<WPARAM>(nPos)) != 0;
}

BOOL CHeaderCtrl::Layout(HDLAYOUT* pHeaderLayout) {
    return SendMessage(HDM_LAYOUT, 0, reinterpret_cast<LPARAM>(pHeaderLayout)) != 0;
}

BOOL CHeaderCtrl::GetItemRect(int nIndex, LPRECT lpRect) const {
    return SendMessage(HDM_GETITEMRECT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpRect)) != 0;
}

int CHeaderCtrl::HitTest(LPHDHITTESTINFO phdhti) {
    return static_cast<int>(SendMessage(HDM_HITTEST, 0, reinterpret_cast<LPARAM>(phdhti)));
}

int CHeaderCtrl::OrderToIndex(int nOrder) const {
    return static_cast<int>(SendMessage(HDM_ORDERTOINDEX, static_cast<WPARAM>(nOrder)));
}

BOOL CHeaderCtrl::GetOrderArray(LPINT piArray, int iCount) {
    const int count = iCount == -1 ? GetItemCount() : iCount;
    return SendMessage(HDM_GETORDERARRAY, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(piArray)) != 0;
}

BOOL CHeaderCtrl::SetOrderArray(int iCount, LPINT piArray) {
    return SendMessage(HDM_SETORDERARRAY, static_cast<WPARAM>(iCount), reinterpret_cast<LPARAM>(piArray)) != 0;
}

int CHeaderCtrl::SetHotDivider(int nIndex) {
    return static_cast<int>(SendMessage(HDM_SETHOTDIVIDER, FALSE, nIndex));
}

int CHeaderCtrl::SetHotDivider(CPoint pt) {
    return static_cast<int>(SendMessage(HDM_SETHOTDIVIDER, TRUE, MAKELPARAM(pt.x, pt.y)));
}

int CHeaderCtrl::GetBitmapMargin() const {
    return static_cast<int>(SendMessage(HDM_GETBITMAPMARGIN));
}

int CHeaderCtrl::SetBitmapMargin(int nWidth) {
    return static_cast<int>(SendMessage(HDM_SETBITMAPMARGIN, static_cast<WPARAM>(nWidth)));
}

void CHeaderCtrl::DrawItem(LPDRAWITEMSTRUCT) {}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    if (message != WM_DRAWITEM) {
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
