#include "DeskDialog.h"

#include <OrtinControls/SystemColors.h>
#include <dwmapi.h>

#include "DeskColors.h"
#include "DeskShapes.h"

namespace Desk {

namespace {

constexpr int RowHeight = 26;
constexpr int FieldPadding = 6;

} // namespace

void setDarkTitleBar(HWND window, bool dark) {
    constexpr DWORD UseImmersiveDarkMode = 20;
    const BOOL value = dark ? TRUE : FALSE;
    ::DwmSetWindowAttribute(window, UseImmersiveDarkMode, &value, sizeof(value));
}

BEGIN_MESSAGE_MAP(DeskDialog, CDialog)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_CTLCOLOR()
END_MESSAGE_MAP()

DeskDialog::DeskDialog(DeskFonts& fonts, const wchar_t* title, DWORD style) : m_fonts(fonts), m_title(title) {
    m_template.header.style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_CLIPCHILDREN | DS_MODALFRAME | style;
}

INT_PTR DeskDialog::run(CWnd& owner) {
    InitModalIndirect(&m_template.header, &owner);
    return DoModal();
}

BOOL DeskDialog::open(CWnd& owner) {
    return CreateIndirect(&m_template.header, &owner);
}

BOOL DeskDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    SetWindowText(m_title);
    setDarkTitleBar(m_hWnd, SystemColors::GetCurrentDomainColor() == EThemeColor::BlackTheme);
    m_background.CreateSolidBrush(Colors::strip());
    m_input.CreateSolidBrush(Colors::input());
    createControls();
    m_isReady = true;
    const CSize size = firstSize();
    CRect rect(0, 0, size.cx, size.cy);
    CalcWindowRect(&rect, GetStyle(), GetExStyle());
    SetWindowPos(nullptr, 0, 0, rect.Width(), rect.Height(), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    CenterWindow();
    // The system looked for a first control before there was one.
    if (CWnd* first = GetNextDlgTabItem(nullptr))
        first->SetFocus();
    return FALSE;
}

int DeskDialog::rowHeight() const {
    return scaled(RowHeight);
}

BOOL DeskDialog::PreTranslateMessage(MSG* message) {
    // To the system a button that draws itself is none that Enter could press.
    if (message->message == WM_KEYDOWN && message->wParam == VK_RETURN)
        if (auto* button = dynamic_cast<DeskButton*>(GetFocus()); button && IsChild(button)) {
            SendMessage(WM_COMMAND, MAKEWPARAM(button->GetDlgCtrlID(), BN_CLICKED),
                        reinterpret_cast<LPARAM>(button->m_hWnd));
            return TRUE;
        }
    return CDialog::PreTranslateMessage(message);
}

// Controls

void DeskDialog::makeLabel(CStatic& label, const wchar_t* text) {
    label.Create(text, WS_CHILD | WS_VISIBLE | SS_LEFT | SS_CENTERIMAGE, CRect(0, 0, 10, 10), this);
    label.SetFont(&m_fonts.text());
}

void DeskDialog::makeField(CEdit& field, int id) {
    constexpr UINT MostLetters = 12;
    field.Create(WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_AUTOHSCROLL, CRect(0, 0, 10, 10), this, static_cast<UINT>(id));
    field.SetFont(&m_fonts.text());
    field.SetLimitText(MostLetters);
}

void DeskDialog::placeField(CEdit& field, CRect frame) {
    frame.DeflateRect(scaled(FieldPadding), (frame.Height() - m_fonts.lineHeight()) / 2);
    field.MoveWindow(&frame);
}

void DeskDialog::drawField(CDC& dc, CEdit& field) {
    CRect frame;
    field.GetWindowRect(&frame);
    ScreenToClient(&frame);
    frame.InflateRect(scaled(FieldPadding), (rowHeight() - frame.Height()) / 2);
    fillRound(dc, frame, scaled(4), Colors::input(), GetFocus() == &field ? Colors::accent() : Colors::inputFrame());
}

// Messages

void DeskDialog::OnSize(UINT type, int cx, int cy) {
    CDialog::OnSize(type, cx, cy);
    if (m_isReady && type != SIZE_MINIMIZED) {
        placeControls(CSize(cx, cy));
        Invalidate();
    }
}

void DeskDialog::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC buffer(paint);
    const CXTPClientRect client(this);
    buffer.FillSolidRect(&client, Colors::strip());
    drawBackground(buffer);
}

BOOL DeskDialog::OnEraseBkgnd(CDC*) {
    return TRUE;
}

HBRUSH DeskDialog::OnCtlColor(CDC* dc, CWnd* control, UINT kind) {
    const HBRUSH theirs = CDialog::OnCtlColor(dc, control, kind);
    switch (kind) {
    case CTLCOLOR_EDIT:
    case CTLCOLOR_LISTBOX:
        dc->SetTextColor(Colors::text());
        dc->SetBkColor(Colors::input());
        return m_input;
    case CTLCOLOR_STATIC:
    case CTLCOLOR_DLG:
        dc->SetTextColor(control && !control->IsWindowEnabled() ? Colors::mutedText() : Colors::text());
        dc->SetBkColor(Colors::strip());
        return m_background;
    default:
        return theirs;
    }
}

} // namespace Desk
