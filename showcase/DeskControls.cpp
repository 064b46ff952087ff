#include "DeskControls.h"

#include "DeskColors.h"
#include "DeskShapes.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr int MarkSize = 14;
constexpr int MarkGap = 7;
constexpr int ComboPadding = 6;
constexpr int ChevronRoom = 24;

/// Whether the system's own control would draw itself anew, past WM_PAINT, after this message.
bool changesLooks(UINT message) {
    switch (message) {
    case BM_SETCHECK:
    case BM_SETSTATE:
    case CB_SETCURSEL:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE:
    case WM_SETTEXT:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_KEYDOWN:
    case WM_UPDATEUISTATE:
    case WM_CAPTURECHANGED:
    case WM_COMMAND:
        return true;
    default:
        return false;
    }
}

CString textOf(const CWnd& control) {
    CString text;
    control.GetWindowText(text);
    return text;
}

} // namespace

// Push button

BEGIN_MESSAGE_MAP(DeskButton, CXTPButton)
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
END_MESSAGE_MAP()

BOOL DeskButton::createIn(CWnd* parent, int id, const wchar_t* text, DeskFonts& fonts) {
    m_fonts = &fonts;
    if (!Create(text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 10, 10), parent, static_cast<UINT>(id)))
        return FALSE;
    SetFont(&fonts.text());
    return TRUE;
}

void DeskButton::adopt(HWND button, DeskFonts& fonts) {
    m_fonts = &fonts;
    SubclassWindow(button);
    SetFont(&fonts.text());
}

void DeskButton::OnMouseMove(UINT flags, CPoint point) {
    m_isHot = true;
    CXTPButton::OnMouseMove(flags, point);
}

void DeskButton::OnMouseLeave() {
    m_isHot = false;
    CXTPButton::OnMouseLeave();
}

void DeskButton::OnDraw(CDC* dc) {
    const CXTPClientRect client(this);
    const bool isPressed = (GetState() & BST_PUSHED) != 0;
    const bool hasFocus = GetFocus() == this;
    dc->FillSolidRect(&client, Colors::strip());
    COLORREF fill = m_isDefault ? Colors::blend(Colors::strip(), Colors::accent(), 0.35) : Colors::input();
    if (m_isHot || isPressed)
        fill = Colors::blend(fill, Colors::accent(), isPressed ? 0.5 : 0.25);
    fillRound(*dc, client, scaled(5), fill, hasFocus ? Colors::accent() : Colors::inputFrame());
    if (hasFocus) {
        CRect inner = client;
        inner.DeflateRect(1, 1);
        fillRound(*dc, inner, scaled(4), fill, Colors::accent());
    }
    const ScopedSelection font(*dc, m_fonts->text());
    dc->SetBkMode(TRANSPARENT);
    dc->SetTextColor(IsWindowEnabled() ? Colors::text() : Colors::mutedText());
    CRect area = client;
    dc->DrawText(textOf(*this), &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

// Radio button and check box

BEGIN_MESSAGE_MAP(DeskChoice, CButton)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

BOOL DeskChoice::createIn(CWnd* parent, int id, const wchar_t* text, Kind kind, DWORD style, DeskFonts& fonts) {
    m_fonts = &fonts;
    m_kind = kind;
    const DWORD type = kind == Kind::Radio ? BS_AUTORADIOBUTTON : BS_AUTOCHECKBOX;
    if (!Create(text, WS_CHILD | WS_VISIBLE | WS_TABSTOP | type | style, CRect(0, 0, 10, 10), parent,
                static_cast<UINT>(id)))
        return FALSE;
    SetFont(&fonts.text());
    return TRUE;
}

int DeskChoice::neededWidth() const {
    return scaled(MarkSize) + 2 * scaled(MarkGap) + m_fonts->widthOf(textOf(*this).GetString());
}

LRESULT DeskChoice::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CButton::WindowProc(message, wParam, lParam);
    if (changesLooks(message) && m_hWnd)
        Invalidate(FALSE);
    return result;
}

BOOL DeskChoice::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void DeskChoice::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC buffer(paint);
    draw(buffer);
}

void DeskChoice::draw(CDC& dc) {
    CXTPClientRect client(this);
    dc.FillSolidRect(&client, Colors::strip());
    CRect mark(0, 0, scaled(MarkSize), scaled(MarkSize));
    mark.OffsetRect(1, (client.Height() - mark.Height()) / 2);
    drawMark(dc, mark);
    const ScopedSelection font(dc, m_fonts->text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(IsWindowEnabled() ? Colors::text() : Colors::mutedText());
    CRect area = client;
    area.left = mark.right + scaled(MarkGap);
    dc.DrawText(textOf(*this), &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS);
}

void DeskChoice::drawMark(CDC& dc, const CRect& area) {
    const bool isEnabled = IsWindowEnabled() != FALSE;
    const COLORREF sign = isEnabled ? Colors::accent() : Colors::mutedText();
    const COLORREF frame = GetFocus() == this ? Colors::accent() : Colors::inputFrame();
    fillRound(dc, area, m_kind == Kind::Radio ? area.Height() : scaled(3), Colors::input(), frame);
    if (!isChosen())
        return;
    if (m_kind == Kind::Check) {
        drawCheckMark(dc, area.CenterPoint(), sign);
    } else {
        CRect dot = area;
        dot.DeflateRect(scaled(4), scaled(4));
        fillRound(dc, dot, dot.Height(), sign, sign);
    }
}

// Drop-down list

BEGIN_MESSAGE_MAP(DeskCombo, CComboBox)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

BOOL DeskCombo::createIn(CWnd* parent, int id, DeskFonts& fonts) {
    m_fonts = &fonts;
    constexpr DWORD Style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS;
    if (!Create(Style, CRect(0, 0, 10, scaled(200)), parent, static_cast<UINT>(id)))
        return FALSE;
    SetFont(&fonts.text());
    SetItemHeight(-1, static_cast<UINT>(fonts.lineHeight() + scaled(4)));
    SetItemHeight(0, static_cast<UINT>(fonts.lineHeight() + scaled(6)));
    m_list.adopt(*this);
    return TRUE;
}

LRESULT DeskCombo::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = CComboBox::WindowProc(message, wParam, lParam);
    if (changesLooks(message) && m_hWnd)
        Invalidate(FALSE);
    return result;
}

BOOL DeskCombo::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void DeskCombo::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC buffer(paint);
    draw(buffer);
}

void DeskCombo::draw(CDC& dc) {
    const CXTPClientRect client(this);
    dc.FillSolidRect(&client, Colors::strip());
    fillRound(dc, client, scaled(4), Colors::input(), GetFocus() == this ? Colors::accent() : Colors::inputFrame());
    CRect area = client;
    area.DeflateRect(scaled(ComboPadding), 0);
    area.right = client.right - scaled(ChevronRoom);
    drawChevron(dc, CPoint(client.right - scaled(ChevronRoom) / 2, client.top + client.Height() / 2), true,
                Colors::text());
    const ScopedSelection font(dc, m_fonts->text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::text());
    dc.DrawText(textOf(*this), &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

void DeskCombo::DrawItem(LPDRAWITEMSTRUCT item) {
    if (item->itemID == static_cast<UINT>(-1) || (item->itemState & ODS_COMBOBOXEDIT) != 0)
        return;
    CDC& dc = *CDC::FromHandle(item->hDC);
    CRect area(item->rcItem);
    area.right -= m_list.barWidth();
    dc.FillSolidRect(&area, (item->itemState & ODS_SELECTED) != 0 ? Colors::selectedRow() : Colors::input());
    CString text;
    GetLBText(static_cast<int>(item->itemID), text);
    const ScopedSelection font(dc, m_fonts->text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::text());
    area.DeflateRect(scaled(ComboPadding), 0);
    dc.DrawText(text, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
}

} // namespace Desk
