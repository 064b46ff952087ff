#include "DeskScrollBar.h"

#include <XTToolkitPro.h>

#include <algorithm>

#include "DeskColors.h"
#include "DeskFonts.h"

namespace Desk {

namespace {

constexpr int BarWidth = 14;
constexpr int LeastThumb = 28;
constexpr int ThumbInset = 3;
constexpr UINT_PTR PagingTimer = 1;
constexpr UINT PagingDelay = 320;
constexpr UINT PagingPause = 60;

} // namespace

BEGIN_MESSAGE_MAP(DeskScrollBar, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_CAPTURECHANGED()
    ON_WM_TIMER()
END_MESSAGE_MAP()

int DeskScrollBar::width() {
    return scaled(BarWidth);
}

int DeskScrollBar::leastThumb() {
    return scaled(LeastThumb);
}

BOOL DeskScrollBar::createIn(CWnd* parent, int id) {
    return CWnd::Create(AfxRegisterWndClass(0, ::LoadCursorW(nullptr, IDC_ARROW)), L"", WS_CHILD | WS_VISIBLE,
                        CRect(0, 0, width(), width()), parent, static_cast<UINT>(id));
}

void DeskScrollBar::setState(const ScrollState& state) {
    if (m_state == state)
        return;
    m_state = state;
    Invalidate(FALSE);
}

int DeskScrollBar::trackLength() const {
    CRect client;
    GetClientRect(&client);
    return along(client.BottomRight());
}

ThumbSpan DeskScrollBar::thumb() const {
    return thumbSpan(m_state, trackLength(), leastThumb());
}

void DeskScrollBar::OnPaint() {
    CPaintDC paint(this);
    CXTPBufferDC dc(paint);
    CRect client;
    GetClientRect(&client);
    draw(dc, client, m_direction, thumb(), m_hot || m_drag);
}

void DeskScrollBar::draw(CDC& dc, const CRect& area, Direction direction, const ThumbSpan& thumb, bool isHot) {
    dc.FillSolidRect(&area, Colors::scrollTrack());
    const bool isVertical = direction == Direction::Vertical;
    CRect edge = area;
    if (isVertical)
        edge.right = edge.left + 1;
    else
        edge.bottom = edge.top + 1;
    dc.FillSolidRect(&edge, Colors::line());
    CRect rect = isVertical ? CRect(area.left + 1, area.top + thumb.begin, area.right, area.top + thumb.end)
                            : CRect(area.left + thumb.begin, area.top + 1, area.left + thumb.end, area.bottom);
    const int inset = thumb.end > thumb.begin ? scaled(1) : 0;
    rect.DeflateRect(isVertical ? scaled(ThumbInset) : inset, isVertical ? inset : scaled(ThumbInset));
    dc.FillSolidRect(&rect, isHot ? Colors::scrollThumbHot() : Colors::scrollThumb());
}

BOOL DeskScrollBar::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void DeskScrollBar::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    Invalidate(FALSE);
}

void DeskScrollBar::OnLButtonDown(UINT, CPoint point) {
    const ThumbSpan span = thumb();
    if (span.begin == span.end)
        return;
    SetCapture();
    const int place = along(point);
    if (place >= span.begin && place < span.end) {
        m_drag = ThumbDrag{place - span.begin};
        Invalidate(FALSE);
        return;
    }
    m_paging = Paging{place};
    SetTimer(PagingTimer, PagingDelay);
    turnPage();
}

void DeskScrollBar::OnLButtonUp(UINT, CPoint) {
    if (GetCapture() == this)
        ::ReleaseCapture();
}

void DeskScrollBar::OnMouseMove(UINT, CPoint point) {
    const int place = along(point);
    if (m_drag && onScrollTo)
        onScrollTo(positionForThumb(m_state, trackLength(), leastThumb(), place - m_drag->grip));
    if (m_paging)
        m_paging->target = place;
    const ThumbSpan span = thumb();
    m_hot.moveTo(place >= span.begin && place < span.end);
}

void DeskScrollBar::OnMouseLeave() {
    m_hot.leave();
}

void DeskScrollBar::OnCaptureChanged(CWnd*) {
    endGestures();
}

void DeskScrollBar::OnTimer(UINT_PTR) {
    turnPage();
    if (m_paging)
        SetTimer(PagingTimer, PagingPause);
}

void DeskScrollBar::turnPage() {
    const ThumbSpan span = thumb();
    if (!m_paging || !onScrollTo || (m_paging->target >= span.begin && m_paging->target < span.end))
        return;
    const int step = m_paging->target < span.begin ? -m_state.page : m_state.page;
    onScrollTo(std::clamp(m_state.position + step, 0, m_state.greatestPosition()));
}

void DeskScrollBar::endGestures() {
    KillTimer(PagingTimer);
    m_drag.reset();
    m_paging.reset();
    Invalidate(FALSE);
}

} // namespace Desk
