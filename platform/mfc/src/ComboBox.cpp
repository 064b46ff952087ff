#include "afxwin.h"

#include <vector>

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

BOOL CComboBox::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_COMBOBOX, nullptr, dwStyle, rect, pParentWnd, nID);
}

int CComboBox::GetCount() const {
    return static_cast<int>(SendMessage(CB_GETCOUNT));
}

int CComboBox::GetCurSel() const {
    return static_cast<int>(SendMessage(CB_GETCURSEL));
}

int CComboBox::SetCurSel(int nSelect) {
    return static_cast<int>(SendMessage(CB_SETCURSEL, static_cast<WPARAM>(nSelect)));
}

int CComboBox::GetTopIndex() const {
    return static_cast<int>(SendMessage(CB_GETTOPINDEX));
}

int CComboBox::SetTopIndex(int nIndex) {
    return static_cast<int>(SendMessage(CB_SETTOPINDEX, static_cast<WPARAM>(nIndex)));
}

DWORD_PTR CComboBox::GetItemData(int nIndex) const {
    return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, static_cast<WPARAM>(nIndex)));
}

int CComboBox::SetItemData(int nIndex, DWORD_PTR dwItemData) {
    return static_cast<int>(SendMessage(CB_SETITEMDATA, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(dwItemData)));
}

void* CComboBox::GetItemDataPtr(int nIndex) const {
    return reinterpret_cast<void*>(GetItemData(nIndex));
}

int CComboBox::SetItemDataPtr(int nIndex, void* pData) {
    return SetItemData(nIndex, reinterpret_cast<DWORD_PTR>(pData));
}

int CComboBox::GetItemHeight(int nIndex) const {
    return static_cast<int>(SendMessage(CB_GETITEMHEIGHT, static_cast<WPARAM>(nIndex)));
}

int CComboBox::SetItemHeight(int nIndex, UINT cyItemHeight) {
    return static_cast<int>(
        SendMessage(CB_SETITEMHEIGHT, static_cast<WPARAM>(nIndex), static_cast<LPARAM>(cyItemHeight)));
}

int CComboBox::GetDroppedWidth() const {
    return static_cast<int>(SendMessage(CB_GETDROPPEDWIDTH));
}

int CComboBox::SetDroppedWidth(UINT nWidth) {
    return static_cast<int>(SendMessage(CB_SETDROPPEDWIDTH, nWidth));
}

int CComboBox::AddString(LPCTSTR lpszString) {
    return static_cast<int>(SendMessage(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::InsertString(int nIndex, LPCTSTR lpszString) {
    return static_cast<int>(
        SendMessage(CB_INSERTSTRING, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::DeleteString(UINT nIndex) {
    return static_cast<int>(SendMessage(CB_DELETESTRING, nIndex));
}

void CComboBox::ResetContent() {
    SendMessage(CB_RESETCONTENT);
}

int CComboBox::FindString(int nStartAfter, LPCTSTR lpszString) const {
    return static_cast<int>(
        SendMessage(CB_FINDSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::FindStringExact(int nIndexStart, LPCTSTR lpszFind) const {
    return static_cast<int>(
        SendMessage(CB_FINDSTRINGEXACT, static_cast<WPARAM>(nIndexStart), reinterpret_cast<LPARAM>(lpszFind)));
}

int CComboBox::SelectString(int nStartAfter, LPCTSTR lpszString) {
    return static_cast<int>(
        SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(nStartAfter), reinterpret_cast<LPARAM>(lpszString)));
}

int CComboBox::GetLBText(int nIndex, LPTSTR lpszText) const {
    return static_cast<int>(SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszText)));
}

void CComboBox::GetLBText(int nIndex, CString& rString) const {
    const int length = GetLBTextLen(nIndex);
    if (length == CB_ERR) {
        rString.Empty();
        return;
    }
    std::vector<TCHAR> text(static_cast<std::size_t>(length) + 1);
    GetLBText(nIndex, text.data());
    rString = text.data();
}

int CComboBox::GetLBTextLen(int nIndex) const {
    return static_cast<int>(SendMessage(CB_GETLBTEXTLEN, static_cast<WPARAM>(nIndex)));
}

DWORD CComboBox::GetEditSel() const {
    return static_cast<DWORD>(SendMessage(CB_GETEDITSEL));
}

BOOL CComboBox::SetEditSel(int nStartChar, int nEndChar) {
    return static_cast<BOOL>(SendMessage(CB_SETEDITSEL, 0, MAKELPARAM(nStartChar, nEndChar)));
}

BOOL CComboBox::LimitText(int nMaxChars) {
    return static_cast<BOOL>(SendMessage(CB_LIMITTEXT, static_cast<WPARAM>(nMaxChars)));
}

void CComboBox::Clear() {
    SendMessage(WM_CLEAR);
}

void CComboBox::Copy() {
    SendMessage(WM_COPY);
}

void CComboBox::Cut() {
    SendMessage(WM_CUT);
}

void CComboBox::Paste() {
    SendMessage(WM_PASTE);
}

void CComboBox::ShowDropDown(BOOL bShowIt) {
    SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(bShowIt));
}

BOOL CComboBox::GetDroppedState() const {
    return SendMessage(CB_GETDROPPEDSTATE) != 0;
}

void CComboBox::GetDroppedControlRect(LPRECT lprect) const {
    SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(lprect));
}

int CComboBox::SetExtendedUI(BOOL bExtended) {
    return static_cast<int>(SendMessage(CB_SETEXTENDEDUI, static_cast<WPARAM>(bExtended)));
}

BOOL CComboBox::GetExtendedUI() const {
    return SendMessage(CB_GETEXTENDEDUI) != 0;
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO pcbi) const {
    pcbi->cbSize = sizeof(*pcbi);
    return ::GetComboBoxInfo(m_hWnd, pcbi);
}

void CComboBox::DrawItem(LPDRAWITEMSTRUCT) {}

void CComboBox::MeasureItem(LPMEASUREITEMSTRUCT) {}

int CComboBox::CompareItem(LPCOMPAREITEMSTRUCT) {
    return 0;
}

void CComboBox::DeleteItem(LPDELETEITEMSTRUCT) {}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
    switch (message) {
    case WM_DRAWITEM:
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *pResult = CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        return CWnd::OnChildNotify(message, wParam, lParam, pResult);
    }
}
