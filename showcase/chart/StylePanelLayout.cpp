// The half of the style panel that is about places, painting, focus and keys.
#include "StylePanel.h"

#include <OrtinFoundation/Keyboard.h>
#include <XTToolkitPro.h>

#include <algorithm>

#include "DeskColors.h"
#include "DeskShapes.h"
#include "ScopedSelection.h"
#include "core/PolishFormat.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int Margin = 12;
constexpr int Gap = 6;
constexpr int TitleHeight = 24;
constexpr int LabelHeight = 22;
constexpr int LabelWidth = 78;
constexpr int OtherWidth = 52;
constexpr int OtherHeight = 20;
constexpr int Chip = 12;
constexpr int ListHeight = 200;
constexpr int WheelStep = 40;

constexpr wchar_t NothingShown[] = L"Wskaż obiekt na wykresie, aby zmienić jego styl.";

} // namespace

// Places

void StylePanel::arrange() {
    m_lines.clear();
    m_scroll.extent = m_isShowing ? scaled(Gap) + scaled(TitleHeight) : 0;
    addLine(m_aspects.line, L"Linia", m_colors[0].palette, ColorField::Line);
    addLine(m_aspects.fill, L"Wypełnienie", m_colors[1].palette, ColorField::Fill);
    addLine(m_aspects.font, L"Tekst", m_colors[2].palette, ColorField::Text);
    addLine(m_aspects.width, L"Grubość", m_width);
    addLine(m_aspects.dash, L"Kreski", m_dash);
    addLine(m_aspects.font, L"Krój", m_face);
    addLine(m_aspects.font, L"Rozmiar", m_size);
    addLine(m_aspects.opacity, L"Krycie", m_opacity);
    m_scroll.page = CXTPClientRect(this).Height();
    scrollTo(m_scroll.position);
}

void StylePanel::addLine(bool isShown, const wchar_t* label, CWnd& field, std::optional<ColorField> color) {
    if (!isShown) {
        if (GetFocus() == &field)
            GetParent()->SetFocus();
        field.ShowWindow(SW_HIDE);
        if (color)
            m_colors[static_cast<std::size_t>(*color)].other.ShowWindow(SW_HIDE);
        return;
    }
    m_lines.push_back({label, m_scroll.extent, &field, color});
    m_scroll.extent += CellRow::height() + scaled(Gap) + (color ? scaled(LabelHeight) : 0);
}

void StylePanel::scrollTo(int position) {
    m_scroll.position = std::clamp(position, 0, m_scroll.greatestPosition());
    const CXTPClientRect client(this);
    const bool scrolls = m_scroll.greatestPosition() > 0;
    const int barLeft = scrolls ? client.right - DeskScrollBar::width() : client.right;
    m_scrollBar.setState(m_scroll);
    m_scrollBar.MoveWindow(barLeft, 0, DeskScrollBar::width(), client.Height());
    m_scrollBar.ShowWindow(scrolls ? SW_SHOWNA : SW_HIDE);
    for (const Line& line : m_lines)
        placeLine(line, barLeft - scaled(Margin));
    Invalidate(FALSE);
}

void StylePanel::placeLine(const Line& line, int right) {
    const int top = line.top - m_scroll.position;
    const int left = scaled(Margin) + (line.color ? 0 : scaled(LabelWidth));
    const int fieldTop = top + (line.color ? scaled(LabelHeight) : 0);
    const int height = line.field == &m_face ? scaled(ListHeight) : CellRow::height();
    line.field->MoveWindow(left, fieldTop, std::max(right - left, 0), height);
    line.field->ShowWindow(SW_SHOWNA);
    if (line.color) {
        DeskButton& other = m_colors[static_cast<std::size_t>(*line.color)].other;
        other.MoveWindow(right - scaled(OtherWidth), top, scaled(OtherWidth), scaled(OtherHeight));
        other.ShowWindow(SW_SHOWNA);
    }
}

void StylePanel::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    if (m_scrollBar.GetSafeHwnd())
        arrange();
}

// Focus and keys

BOOL StylePanel::PreTranslateMessage(MSG* message) {
    const bool isDropped = m_face.GetDroppedState();
    if (message->message == WM_MOUSEWHEEL) {
        if (isDropped)
            return FALSE;
        OnMouseWheel(LOWORD(message->wParam), static_cast<short>(HIWORD(message->wParam)), message->pt);
        return TRUE;
    }
    if (message->message != WM_KEYDOWN || OrtinTools::Keyboard::IsCtrlPressed())
        return CWnd::PreTranslateMessage(message);
    switch (message->wParam) {
    case VK_TAB:
        focusNext(OrtinTools::Keyboard::IsShiftPressed());
        return TRUE;
    case VK_ESCAPE:
        if (isDropped)
            break;
        GetParent()->SetFocus();
        return TRUE;
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_SPACE:
    case VK_RETURN:
        break;
    default:
        return CWnd::PreTranslateMessage(message);
    }
    // They are the control's that has the focus, whatever else they mean to the windows above.
    ::TranslateMessage(message);
    ::DispatchMessageW(message);
    return TRUE;
}

void StylePanel::focusNext(bool backwards) {
    if (CWnd* next = GetNextDlgTabItem(GetFocus(), backwards))
        next->SetFocus();
    showFocus();
}

void StylePanel::showFocus() {
    const CWnd* const focus = GetFocus();
    for (const Line& line : m_lines) {
        const bool hasFocus =
            focus == line.field || (line.color && focus == &m_colors[static_cast<std::size_t>(*line.color)].other);
        if (!hasFocus)
            continue;
        const int bottom = line.top + CellRow::height() + scaled(Gap) + (line.color ? scaled(LabelHeight) : 0);
        if (line.top < m_scroll.position)
            scrollTo(line.top);
        else if (bottom > m_scroll.position + m_scroll.page)
            scrollTo(bottom - m_scroll.page);
    }
}

void StylePanel::OnSetFocus(CWnd*) {
    focusNext(false);
}

BOOL StylePanel::OnMouseWheel(UINT, short delta, CPoint) {
    scrollTo(m_scroll.position - delta * scaled(WheelStep) / WHEEL_DELTA);
    return TRUE;
}

// Painting

void StylePanel::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    const CXTPClientRect client(this);
    dc.FillSolidRect(&client, Colors::strip());
    const CRect edge(client.left, client.top, client.left + 1, client.bottom);
    dc.FillSolidRect(&edge, Colors::line());
    dc.SetBkMode(TRANSPARENT);
    CRect area = client;
    area.DeflateRect(scaled(Margin), scaled(Gap));
    if (!m_isShowing) {
        const ScopedSelection font(dc, m_fonts.text());
        dc.SetTextColor(Colors::mutedText());
        dc.DrawText(NothingShown, -1, &area, DT_LEFT | DT_WORDBREAK | DT_NOPREFIX);
        return;
    }
    area.OffsetRect(0, -m_scroll.position);
    area.bottom = area.top + scaled(TitleHeight);
    {
        const ScopedSelection font(dc, m_fonts.bold());
        dc.SetTextColor(Colors::stripText());
        dc.DrawText(m_title.c_str(), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    const ScopedSelection font(dc, m_fonts.text());
    for (const Line& line : m_lines)
        drawLine(dc, line);
}

void StylePanel::drawLine(CDC& dc, const Line& line) {
    std::wstring label = line.label;
    if (line.field == &m_opacity)
        label += L" " + formatNumber(m_style.opacity * 100, 0) + L"%";
    CRect area(0, 0, scaled(LabelWidth), line.color ? scaled(OtherHeight) : CellRow::height());
    area.OffsetRect(scaled(Margin), line.top - m_scroll.position);
    dc.SetTextColor(Colors::stripText());
    dc.DrawText(label.c_str(), -1, &area, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    if (!line.color)
        return;
    CRect chip(0, 0, scaled(Chip), scaled(Chip));
    chip.OffsetRect(area.left + m_fonts.widthOf(label) + scaled(Gap), area.top + (area.Height() - scaled(Chip)) / 2);
    fillRound(dc, chip, scaled(4), colorOf(*line.color), Colors::inputFrame());
}

BOOL StylePanel::OnEraseBkgnd(CDC*) {
    return TRUE;
}

} // namespace Desk
