#include "InfoView.h"

#include <XTToolkitPro.h>

#include <algorithm>

#include "DeskColors.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int PageWidth = 720;
constexpr int Margin = 24;
constexpr int NamesWidth = 220;
constexpr int Gap = 6;
constexpr int TitleHeight = 26;
constexpr int HeadingHeight = 17;

COLORREF colorOf(InfoColor color) {
    switch (color) {
    case InfoColor::Risen:
        return Colors::risen();
    case InfoColor::Fallen:
        return Colors::fallen();
    case InfoColor::SelectedRow:
        return Colors::selectedRow();
    case InfoColor::FoundText:
        return Colors::foundPiece();
    case InfoColor::RangeReached:
        return Colors::rangeReached();
    case InfoColor::RangeMarker:
        return Colors::rangeMarker();
    }
    return Colors::text();
}

COLORREF colorOf(InfoFont font) {
    // Of the bare accent little is seen in the black theme.
    const bool isHeading = font == InfoFont::Title || font == InfoFont::Heading;
    return isHeading ? Colors::blend(Colors::accent(), Colors::text(), 0.35) : Colors::text();
}

} // namespace

BEGIN_MESSAGE_MAP(InfoView, CWnd)
    ON_WM_NCCALCSIZE()
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
END_MESSAGE_MAP()

InfoView::InfoView(DeskFonts& fonts) : m_fonts(fonts) {
    createDeskFont(m_titleFont, TitleHeight, FW_BOLD);
    createDeskFont(m_headingFont, HeadingHeight, FW_BOLD);
}

BOOL InfoView::createIn(CWnd* parent, int id) {
    if (!CWnd::Create(AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"",
                      WS_CHILD | WS_VISIBLE | WS_HSCROLL | WS_VSCROLL, CRect(0, 0, 10, 10), parent,
                      static_cast<UINT>(id)))
        return FALSE;
    m_scroll.SetDisplaySize(page().width, page().height);
    return TRUE;
}

// Scrolling

void InfoView::OnNcCalcSize(BOOL, NCCALCSIZE_PARAMS*) {
    // All of the window is client area.
}

ScrollState InfoView::horizontal() {
    return {page().width, CXTPClientRect(this).Width(), GetScrollPos(SB_HORZ)};
}

ScrollState InfoView::vertical() {
    return {page().height, CXTPClientRect(this).Height(), GetScrollPos(SB_VERT)};
}

void InfoView::scrollToX(int position) {
    m_scroll.ScrollHorizontalPosition(std::max(0, position));
    tellScrolled();
}

void InfoView::scrollToY(int position) {
    m_scroll.ScrollVerticalPosition(std::max(0, position));
    tellScrolled();
}

bool InfoView::scrollByKey(WPARAM key) {
    // A line of the page before stays in view.
    const int step = std::max(1, vertical().page - m_fonts.lineHeight());
    switch (key) {
    case VK_UP:
        m_scroll.OnVScroll(SB_LINEUP, 0, nullptr);
        break;
    case VK_DOWN:
        m_scroll.OnVScroll(SB_LINEDOWN, 0, nullptr);
        break;
    case VK_LEFT:
        m_scroll.OnHScroll(SB_LINELEFT, 0, nullptr);
        break;
    case VK_RIGHT:
        m_scroll.OnHScroll(SB_LINERIGHT, 0, nullptr);
        break;
    case VK_PRIOR:
        m_scroll.ScrollVerticalPosition(std::max(0, vertical().position - step));
        break;
    case VK_NEXT:
        m_scroll.ScrollVerticalPosition(vertical().position + step);
        break;
    case VK_HOME:
        m_scroll.ScrollToOrigin(true, true);
        break;
    case VK_END:
        m_scroll.ScrollVerticalPosition(page().height);
        break;
    default:
        return false;
    }
    tellScrolled();
    return true;
}

void InfoView::scrollByWheel(short delta) {
    m_scroll.OnMouseWheel(0, delta, CPoint());
    tellScrolled();
}

void InfoView::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    m_scroll.OnSize(type, cx, cy);
    tellScrolled();
}

void InfoView::tellScrolled() {
    if (onScrolled)
        onScrolled();
}

// Painting

CFont& InfoView::fontOf(InfoFont font) {
    switch (font) {
    case InfoFont::Title:
        return m_titleFont;
    case InfoFont::Heading:
        return m_headingFont;
    case InfoFont::Name:
        return m_fonts.bold();
    case InfoFont::Text:
        break;
    }
    return m_fonts.text();
}

const InfoPage& InfoView::page() {
    if (m_page)
        return *m_page;
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const auto measured = [&](InfoFont font, std::wstring_view text) {
        const ScopedSelection selected(dc, fontOf(font));
        return dc.GetTextExtent(text.data(), static_cast<int>(text.size()));
    };
    const InfoTypefaces typefaces{
        [&](InfoFont font, std::wstring_view text) { return static_cast<int>(measured(font, text).cx); },
        [&](InfoFont font) { return static_cast<int>(measured(font, L"Ą").cy); }};
    m_page = layoutInfo(infoParts(), {scaled(PageWidth), scaled(Margin), scaled(NamesWidth), scaled(Gap)}, typefaces);
    return *m_page;
}

CSize InfoView::pageSize() {
    return CSize(page().width, page().height);
}

void InfoView::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    const CRect part(paint.m_ps.rcPaint);
    dc.FillSolidRect(&part, Colors::rowBackground());
    const CPoint origin(GetScrollPos(SB_HORZ), GetScrollPos(SB_VERT));
    dc.OffsetWindowOrg(origin.x, origin.y);
    drawPage(dc, part + origin);
}

/// `part` is that of the page.
void InfoView::drawPage(CDC& dc, const CRect& part) {
    const auto isSeen = [&part](int top, int height) { return top < part.bottom && top + height > part.top; };
    dc.SetBkMode(TRANSPARENT);
    for (const InfoLine& line : page().lines)
        if (isSeen(line.top, line.height)) {
            const ScopedSelection font(dc, fontOf(line.font));
            dc.SetTextColor(colorOf(line.font));
            dc.TextOut(line.left, line.top, line.text.c_str(), static_cast<int>(line.text.size()));
        }
    for (const InfoField& field : page().fields)
        if (isSeen(field.top, field.height)) {
            const CRect rect(CPoint(field.left, field.top), CSize(field.width, field.height));
            dc.FillSolidRect(&rect, colorOf(field.color));
        }
    for (const int rule : page().rules) {
        const CRect rect(scaled(Margin), rule, page().width - scaled(Margin), rule + 1);
        dc.FillSolidRect(&rect, Colors::line());
    }
}

BOOL InfoView::OnEraseBkgnd(CDC*) {
    return TRUE;
}

} // namespace Desk
