#include "afxwin.h"

IMPLEMENT_DYNAMIC(CEdit, CWnd)

namespace {

/// A place in the text from half of a double word, where 0xFFFF stands for -1.
int placeOf(WORD half) {
    return half == 0xFFFF ? -1 : half;
}

} // namespace

BOOL CEdit::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID) {
    return CWnd::Create(WC_EDIT, nullptr, dwStyle, rect, pParentWnd, nID);
}

DWORD CEdit::GetSel() const {
    return static_cast<DWORD>(SendMessage(EM_GETSEL));
}

void CEdit::GetSel(int& nStartChar, int& nEndChar) const {
    DWORD start = 0;
    DWORD end = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    nStartChar = static_cast<int>(start);
    nEndChar = static_cast<int>(end);
}

void CEdit::SetSel(DWORD dwSelection, BOOL bNoScroll) {
    SetSel(placeOf(LOWORD(dwSelection)), placeOf(HIWORD(dwSelection)), bNoScroll);
}

void CEdit::SetSel(int nStartChar, int nEndChar, BOOL bNoScroll) {
    SendMessage(EM_SETSEL, static_cast<WPARAM>(nStartChar), nEndChar);
    if (!bNoScroll) {
        SendMessage(EM_SCROLLCARET);
    }
}

void CEdit::ReplaceSel(LPCTSTR lpszNewText, BOOL bCanUndo) {
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(bCanUndo), reinterpret_cast<LPARAM>(lpszNewText));
}

BOOL CEdit::GetModify() const {
    return SendMessage(EM_GETMODIFY) != 0;
}

void CEdit::SetModify(BOOL bModified) {
    SendMessage(EM_SETMODIFY, static_cast<WPARAM>(bModified));
}

BOOL CEdit::SetReadOnly(BOOL bReadOnly) {
    return SendMessage(EM_SETREADONLY, static_cast<WPARAM>(bReadOnly)) != 0;
}

void CEdit::SetLimitText(UINT nMax) {
    SendMessage(EM_SETLIMITTEXT, nMax);
}

void CEdit::LimitText(int nChars) {
    SendMessage(EM_LIMITTEXT, static_cast<WPARAM>(nChars));
}

UINT CEdit::GetLimitText() const {
    return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT));
}

TCHAR CEdit::GetPasswordChar() const {
    return static_cast<TCHAR>(SendMessage(EM_GETPASSWORDCHAR));
}

void CEdit::SetPasswordChar(TCHAR ch) {
    SendMessage(EM_SETPASSWORDCHAR, ch);
}

DWORD CEdit::GetMargins() const {
    return static_cast<DWORD>(SendMessage(EM_GETMARGINS));
}

void CEdit::SetMargins(UINT nLeft, UINT nRight) {
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(nLeft, nRight));
}

void CEdit::GetRect(LPRECT lpRect) const {
    SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRect(LPCRECT lpRect) {
    SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(lpRect));
}

void CEdit::SetRectNP(LPCRECT lpRect) {
    SendMessage(EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(lpRect));
}

int CEdit::GetLineCount() const {
    return static_cast<int>(SendMessage(EM_GETLINECOUNT));
}

int CEdit::GetLine(int nIndex, LPTSTR lpszBuffer, int nMaxLength) const {
    // The message takes the room from the buffer's first word.
    lpszBuffer[0] = static_cast<TCHAR>(nMaxLength);
    return static_cast<int>(SendMessage(EM_GETLINE, static_cast<WPARAM>(nIndex), reinterpret_cast<LPARAM>(lpszBuffer)));
}

int CEdit::GetFirstVisibleLine() const {
    return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE));
}

int CEdit::LineFromChar(int nIndex) const {
    return static_cast<int>(SendMessage(EM_LINEFROMCHAR, static_cast<WPARAM>(nIndex)));
}

int CEdit::LineIndex(int nLine) const {
    return static_cast<int>(SendMessage(EM_LINEINDEX, static_cast<WPARAM>(nLine)));
}

int CEdit::LineLength(int nLine) const {
    return static_cast<int>(SendMessage(EM_LINELENGTH, static_cast<WPARAM>(nLine)));
}

void CEdit::LineScroll(int nLines, int nChars) {
    SendMessage(EM_LINESCROLL, static_cast<WPARAM>(nChars), nLines);
}

int CEdit::CharFromPos(CPoint pt) const {
    return static_cast<int>(SendMessage(EM_CHARFROMPOS, 0, MAKELPARAM(pt.x, pt.y)));
}

CPoint CEdit::PosFromChar(UINT nChar) const {
    return AfxPointOf(SendMessage(EM_POSFROMCHAR, nChar));
}

BOOL CEdit::CanUndo() const {
    return SendMessage(EM_CANUNDO) != 0;
}

BOOL CEdit::Undo() {
    return SendMessage(EM_UNDO) != 0;
}

void CEdit::EmptyUndoBuffer() {
    SendMessage(EM_EMPTYUNDOBUFFER);
}

void CEdit::Clear() {
    SendMessage(WM_CLEAR);
}

void CEdit::Copy() {
    SendMessage(WM_COPY);
}

void CEdit::Cut() {
    SendMessage(WM_CUT);
}

void CEdit::Paste() {
    SendMessage(WM_PASTE);
}
