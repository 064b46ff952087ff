#include "TopStrip.h"

#include <XTToolkitPro.h>

#include <algorithm>

#include "DeskColors.h"
#include "DeskShapes.h"
#include "ScopedSelection.h"
#include "core/Commands.h"
#include "core/PolishFormat.h"

namespace Desk {

namespace {

constexpr int StripHeight = 40;
constexpr int ItemHeight = 26;
constexpr int Margin = 10;
constexpr int Gap = 6;
constexpr int FindBoxWidth = 300;
constexpr int LeastFindBoxWidth = 150;
constexpr int FindButtonWidth = 26;
constexpr int LensRoom = 26;
constexpr int KnobTrackWidth = 28;
constexpr int KnobTrackHeight = 14;
constexpr int KnobInset = 2;
constexpr int SwitchPadding = 7;
constexpr int FindBoxId = 1;

struct SwitchText {
    const wchar_t* title;
    Command command;
};

constexpr std::array<SwitchText, StripSwitchCount> SwitchTexts{
    SwitchText{L"Autoprzewijanie", Command::SwitchAutoscroll},
    SwitchText{L"Stałe kolumny", Command::SwitchLockedColumns},
    SwitchText{L"Czarny motyw", Command::SwitchTheme},
};
/// The widest count that keeps its place free.
constexpr wchar_t WidestCount[] = L"9999 z 9999";

void drawLens(CDC& dc, CPoint centre) {
    const int radius = scaled(4);
    CPen pen(PS_SOLID, std::max(1, scaled(3) / 2), Colors::mutedText());
    const ScopedSelection selectedPen(dc, pen);
    const ScopedSelection selectedBrush(dc, ::GetStockObject(NULL_BRUSH));
    dc.Ellipse(centre.x - radius - 1, centre.y - radius - 1, centre.x + radius, centre.y + radius);
    dc.MoveTo(centre.x + radius - 2, centre.y + radius - 2);
    dc.LineTo(centre.x + 2 * radius - 1, centre.y + 2 * radius - 1);
}

} // namespace

BEGIN_MESSAGE_MAP(TopStrip, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_EN_CHANGE(FindBoxId, &TopStrip::OnPhraseChanged)
    ON_EN_SETFOCUS(FindBoxId, &TopStrip::OnFindFocusChanged)
    ON_EN_KILLFOCUS(FindBoxId, &TopStrip::OnFindFocusChanged)
END_MESSAGE_MAP()

TopStrip::TopStrip(DeskFonts& fonts, StripEvents& events) : m_fonts(fonts), m_events(events) {}

BOOL TopStrip::createIn(CWnd* parent, int id) {
    return CWnd::Create(AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW)), L"",
                        WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, CRect(0, 0, 10, height()), parent,
                        static_cast<UINT>(id)) &&
           m_findBox.createIn(this, FindBoxId, m_fonts);
}

int TopStrip::height() {
    return scaled(StripHeight);
}

int TopStrip::leastWidth() const {
    return leastStripWidth(sizes());
}

StripSizes TopStrip::sizes() const {
    StripSizes sizes;
    sizes.margin = scaled(Margin);
    sizes.gap = scaled(Gap);
    sizes.findBox = scaled(FindBoxWidth);
    sizes.leastFindBox = scaled(LeastFindBoxWidth);
    sizes.findButton = scaled(FindButtonWidth);
    sizes.findCount = m_fonts.widthOf(WidestCount);
    for (std::size_t item = 0; item < StripSwitchCount; ++item)
        sizes.switches[item] = scaled(KnobTrackWidth) + 4 * scaled(SwitchPadding) +
                               m_fonts.widthOf(SwitchTexts[item].title) +
                               m_fonts.widthOf(keysOf(SwitchTexts[item].command));
    return sizes;
}

void TopStrip::setSwitch(StripSwitch which, bool on) {
    m_switches[static_cast<std::size_t>(which)] = on;
    Invalidate(FALSE);
}

void TopStrip::setFound(std::optional<Found> found) {
    if (m_found == found)
        return;
    m_found = found;
    const CRect rect = itemRect(m_layout.findCount);
    InvalidateRect(&rect, FALSE);
}

void TopStrip::repaint() {
    Invalidate(FALSE);
    m_findBox.Invalidate();
}

CRect TopStrip::itemRect(const StripSpan& span) const {
    const int top = (height() - scaled(ItemHeight)) / 2;
    return CRect(span.left, top, span.right, top + scaled(ItemHeight));
}

TopStrip::Item TopStrip::itemAt(CPoint point) const {
    struct Place {
        const StripSpan& span;
        Item item;
    };
    const Place places[] = {
        {m_layout.findBox, Item::FindBox},           {m_layout.findPrevious, Item::FindPrevious},
        {m_layout.findNext, Item::FindNext},         {m_layout.switches[0], Item::Autoscroll},
        {m_layout.switches[1], Item::LockedColumns}, {m_layout.switches[2], Item::BlackTheme},
    };
    for (const Place& place : places)
        if (itemRect(place.span).PtInRect(point))
            return place.item;
    return Item::None;
}

// Painting

void TopStrip::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    CRect client;
    GetClientRect(&client);
    dc.FillSolidRect(&client, Colors::strip());
    const CRect edge(client.left, client.bottom - 1, client.right, client.bottom);
    dc.FillSolidRect(&edge, Colors::line());
    const ScopedSelection font(dc, m_fonts.text());
    drawFindBox(dc);
    drawFindButton(dc, m_layout.findPrevious, Item::FindPrevious, false);
    drawFindButton(dc, m_layout.findNext, Item::FindNext, true);
    drawFindCount(dc);
    for (std::size_t which = 0; which < StripSwitchCount; ++which)
        drawSwitch(dc, which);
}

void TopStrip::drawFindBox(CDC& dc) {
    const CRect rect = itemRect(m_layout.findBox);
    const bool hasFocus = GetFocus() == &m_findBox;
    fillRound(dc, rect, scaled(4), Colors::input(), hasFocus ? Colors::accent() : Colors::inputFrame());
    drawLens(dc, CPoint(rect.left + scaled(LensRoom) / 2 - 1, rect.top + rect.Height() / 2 - 1));
}

void TopStrip::drawFindButton(CDC& dc, const StripSpan& span, Item item, bool down) {
    const CRect rect = itemRect(span);
    if (m_hot == item)
        fillRound(dc, rect, scaled(4), Colors::hotItem(), Colors::hotItem());
    const bool canFind = m_found && m_found->count > 0;
    drawChevron(dc, rect.CenterPoint(), down, canFind ? Colors::stripText() : Colors::mutedText());
}

void TopStrip::drawFindCount(CDC& dc) {
    if (!m_found)
        return;
    CRect rect = itemRect(m_layout.findCount);
    std::wstring text = formatNumber(m_found->count, 0);
    if (m_found->ordinal > 0)
        text = formatNumber(m_found->ordinal, 0) + L" z " + text;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_found->count > 0 ? Colors::stripText() : Colors::fallen());
    dc.DrawText(text.c_str(), -1, &rect, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void TopStrip::drawSwitch(CDC& dc, std::size_t which) {
    CRect rect = itemRect(m_layout.switches[which]);
    const Item item = static_cast<Item>(static_cast<std::size_t>(Item::Autoscroll) + which);
    if (m_hot == item)
        fillRound(dc, rect, scaled(4), Colors::hotItem(), Colors::hotItem());

    const int middle = rect.top + rect.Height() / 2;
    CRect track(0, 0, scaled(KnobTrackWidth), scaled(KnobTrackHeight));
    track.OffsetRect(rect.left + scaled(SwitchPadding), middle - track.Height() / 2);
    const bool on = m_switches[which];
    const COLORREF trackColor = on ? Colors::accent() : Colors::input();
    fillRound(dc, track, track.Height(), trackColor, on ? Colors::accent() : Colors::inputFrame());
    CRect knob = track;
    knob.DeflateRect(scaled(KnobInset) + 1, scaled(KnobInset) + 1);
    if (on)
        knob.left = knob.right - knob.Height();
    else
        knob.right = knob.left + knob.Height();
    const COLORREF knobColor = on ? Colors::knob() : Colors::mutedText();
    fillRound(dc, knob, knob.Height(), knobColor, knobColor);

    rect.left = track.right + scaled(SwitchPadding);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::stripText());
    dc.DrawText(SwitchTexts[which].title, -1, &rect, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    rect.right -= scaled(SwitchPadding);
    dc.SetTextColor(Colors::mutedText());
    dc.DrawText(keysOf(SwitchTexts[which].command), -1, &rect, DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

BOOL TopStrip::OnEraseBkgnd(CDC*) {
    return TRUE;
}

// Events

void TopStrip::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    m_layout = layoutStrip(cx, sizes());
    CRect box = itemRect(m_layout.findBox);
    box.left += scaled(LensRoom);
    box.right -= scaled(Gap);
    box.DeflateRect(0, std::max(0, (box.Height() - m_fonts.lineHeight()) / 2));
    if (m_findBox.GetSafeHwnd())
        m_findBox.MoveWindow(&box);
    Invalidate(FALSE);
}

void TopStrip::OnMouseMove(UINT, CPoint point) {
    m_hot.moveTo(itemAt(point));
}

void TopStrip::OnMouseLeave() {
    m_hot.leave();
}

void TopStrip::OnLButtonDown(UINT, CPoint point) {
    switch (itemAt(point)) {
    case Item::None:
        break;
    case Item::FindBox:
        m_findBox.SetFocus();
        break;
    case Item::FindPrevious:
        m_events.onFindNext(false);
        break;
    case Item::FindNext:
        m_events.onFindNext(true);
        break;
    case Item::Autoscroll:
        m_events.onSwitch(StripSwitch::Autoscroll);
        break;
    case Item::LockedColumns:
        m_events.onSwitch(StripSwitch::LockedColumns);
        break;
    case Item::BlackTheme:
        m_events.onSwitch(StripSwitch::BlackTheme);
        break;
    }
}

void TopStrip::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point);
}

void TopStrip::OnFindFocusChanged() {
    const CRect box = itemRect(m_layout.findBox);
    InvalidateRect(&box, FALSE);
    m_events.onFindFocusChanged();
}

void TopStrip::OnPhraseChanged() {
    m_findBox.Invalidate();
    m_events.onPhraseChanged(m_findBox.text());
}

} // namespace Desk
