#include "FindBox.h"

#include "DeskColors.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr UINT LongestPhrase = 200;
const std::wstring Hint = L"Szukaj symbolu, nazwy, sektora";

} // namespace

BEGIN_MESSAGE_MAP(FindBox, CEdit)
    ON_WM_PAINT()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

BOOL FindBox::createIn(CWnd* parent, int id, DeskFonts& fonts) {
    m_fonts = &fonts;
    if (!Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, CRect(0, 0, 10, 10), parent,
                static_cast<UINT>(id)))
        return FALSE;
    SetFont(&fonts.text());
    SetMargins(0, 0);
    SetLimitText(LongestPhrase);
    return TRUE;
}

std::wstring FindBox::text() const {
    CString text;
    GetWindowText(text);
    return std::wstring(text.GetString());
}

void FindBox::edit() {
    SetFocus();
    SetSel(0, -1);
}

void FindBox::editFrom(wchar_t firstLetter) {
    const wchar_t text[] = {firstLetter, L'\0'};
    SetFocus();
    SetSel(0, -1);
    ReplaceSel(text, TRUE);
}

void FindBox::empty() {
    if (GetWindowTextLength() > 0) {
        SetSel(0, -1);
        ReplaceSel(L"");
    }
}

void FindBox::OnPaint() {
    Default();
    if (GetWindowTextLength() > 0)
        return;
    CClientDC dc(this);
    CRect client;
    GetClientRect(&client);
    const ScopedSelection font(dc, m_fonts->text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::mutedText());
    // The caret of the empty box blinks at the left edge.
    client.left += 2;
    dc.DrawText(Hint.c_str(), -1, &client, DT_LEFT | DT_TOP | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void FindBox::OnSetFocus(CWnd* oldWindow) {
    CEdit::OnSetFocus(oldWindow);
    Invalidate();
}

void FindBox::OnKillFocus(CWnd* newWindow) {
    CEdit::OnKillFocus(newWindow);
    Invalidate();
}

HBRUSH FindBox::CtlColor(CDC* dc, UINT) {
    if (m_backgroundColor != Colors::input()) {
        m_backgroundColor = Colors::input();
        m_background.DeleteObject();
        m_background.CreateSolidBrush(m_backgroundColor);
    }
    dc->SetTextColor(Colors::text());
    dc->SetBkColor(m_backgroundColor);
    return m_background;
}

} // namespace Desk
