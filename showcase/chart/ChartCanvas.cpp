#include "ChartCanvas.h"

#include <cmath>

#include "MouseLeaving.h"
#include "core/chart/ChartTexts.h"

namespace Desk {

namespace {

/// How far from an object the mouse still takes it.
constexpr int Reach = 3;
/// What a notch of the wheel leaves of what is seen.
constexpr double ZoomOfNotch = 0.8;

constexpr UINT_PTR FrameTimer = 1;
/// Prices that tick make at most 25 pictures a second.
constexpr UINT FramePause = 40;

} // namespace

BEGIN_MESSAGE_MAP(ChartCanvas, VectorCanvas::VectorCanvasCtrl)
    ON_WM_PAINT()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
END_MESSAGE_MAP()

ChartCanvas::ChartCanvas(ChartModel& model, DeskFonts& fonts)
    : VectorCanvasCtrl(&m_painter),
      m_model(model),
      m_overlay(model, m_frame, fonts) {
    m_painter.EnableShadows(1);
}

// The window lets the painter's surfaces go, so it ends before the painter.
ChartCanvas::~ChartCanvas() {
    DestroyWindow();
}

BOOL ChartCanvas::createIn(CWnd* parent, int id) {
    return Create(L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(0, 0, 10, 10), parent, static_cast<UINT>(id));
}

// Painting

void ChartCanvas::apply(const ChartChange& change) {
    if (change.picture) {
        m_isStale = true;
        Invalidate(FALSE);
    } else if (change.crossHair) {
        renewOverlay();
    }
    if ((change.range || change.selection) && onChanged)
        onChanged(change);
}

void ChartCanvas::renewSoon() {
    if (!m_awaitsFrame)
        m_awaitsFrame = SetTimer(FrameTimer, FramePause) != 0;
}

void ChartCanvas::OnTimer(UINT_PTR timer) {
    if (timer != FrameTimer)
        return;
    KillTimer(FrameTimer);
    m_awaitsFrame = false;
    apply({.picture = true});
}

void ChartCanvas::renewOverlay() {
    for (const CRect& area : m_overlayAreas)
        InvalidateRect(&area, FALSE);
    m_overlayAreas = m_overlay.areas();
    for (const CRect& area : m_overlayAreas)
        InvalidateRect(&area, FALSE);
}

const VectorCanvas::IVectorPainter& ChartCanvas::picture() {
    if (m_isStale)
        render();
    return m_painter;
}

void ChartCanvas::render() {
    CRect client;
    GetClientRect(&client);
    m_isStale = false;
    m_painting.takeStyles(m_model);
    layOut(client.Size(), 0);
    // Prices close to each other have longer labels. A plot that is narrower for them has the same prices.
    if (m_frame.priceGrid.decimals > LeastPriceDecimals)
        layOut(client.Size(), m_frame.priceGrid.decimals);
    m_overlayAreas = m_overlay.areas();
    if (!m_painter.InitRender(client.Size()))
        return;
    m_painting.draw(m_painter, m_model, m_frame);
    m_painter.EndRender(true);
}

void ChartCanvas::layOut(CSize size, int priceDecimals) {
    layOutFrame(m_frame, m_model.candles(), m_model.average(), m_model.state().range,
                m_painting.measure(m_model, size, priceDecimals));
}

void ChartCanvas::OnPaint() {
    CPaintDC dc(this);
    if (m_isStale)
        render();
    else
        Draw(&dc, CPoint(0, 0));
}

void ChartCanvas::Draw(CDC* dc, const CPoint& origin) {
    CRect client;
    GetClientRect(&client);
    if (!dc || !fitBack(*dc, client.Size()))
        return;
    VectorCanvasCtrl::Draw(&m_back, CPoint(0, 0));
    m_overlay.draw(m_back);
    dc->BitBlt(origin.x, origin.y, client.Width(), client.Height(), &m_back, 0, 0, SRCCOPY);
}

bool ChartCanvas::fitBack(CDC& dc, CSize size) {
    if (m_backSize == size)
        return true;
    m_backSize = CSize();
    // The old bitmap is let go before it ends.
    m_back.DeleteDC();
    m_backPicture.DeleteObject();
    if (size.cx <= 0 || size.cy <= 0 || !m_back.CreateCompatibleDC(&dc) ||
        !m_backPicture.CreateCompatibleBitmap(&dc, size.cx, size.cy))
        return false;
    m_back.SelectObject(&m_backPicture);
    m_backSize = size;
    return true;
}

void ChartCanvas::OnSize(UINT type, int cx, int cy) {
    VectorCanvasCtrl::OnSize(type, cx, cy);
    apply({.picture = true});
}

// Mouse and keys

ChartMouse ChartCanvas::mouseAt(CPoint point, UINT flags) {
    const VectorCanvas::IVectorPainter& shown = picture();
    return {{point.x, point.y},
            objectNear(point.x, point.y, scaled(Reach), [&shown](int x, int y) { return shown.GetObjectId(x, y); }),
            (flags & MK_SHIFT) != 0};
}

void ChartCanvas::OnMouseMove(UINT flags, CPoint point) {
    if (!m_watchesLeaving)
        m_watchesLeaving = watchMouseLeaving(m_hWnd);
    apply(m_model.gestures().move(mouseAt(point, flags), m_frame));
}

void ChartCanvas::OnMouseLeave() {
    m_watchesLeaving = false;
    apply(m_model.gestures().leave());
}

void ChartCanvas::OnLButtonDown(UINT flags, CPoint point) {
    SetFocus();
    const ChartChange change = m_model.gestures().press(mouseAt(point, flags), m_frame);
    if (m_model.gestures().isDragging())
        SetCapture();
    apply(change);
}

/// A quick second press is one more press.
void ChartCanvas::OnLButtonDblClk(UINT flags, CPoint point) {
    OnLButtonDown(flags, point);
}

void ChartCanvas::OnLButtonUp(UINT flags, CPoint point) {
    if (GetCapture() != this)
        return;
    // The release may lie farther on than the last move that was told.
    apply(m_model.gestures().move(mouseAt(point, flags), m_frame));
    ReleaseCapture();
    // In the drag only what is dragged was looked at, and nobody tells that the mouse has left meanwhile.
    apply(m_model.gestures().move(mouseAt(point, flags), m_frame));
}

/// The end of each drag, whoever brought it about.
void ChartCanvas::OnCaptureChanged(CWnd*) {
    apply(m_model.gestures().release());
}

BOOL ChartCanvas::OnSetCursor(CWnd* window, UINT hitTest, UINT message) {
    if (hitTest != HTCLIENT)
        return VectorCanvasCtrl::OnSetCursor(window, hitTest, message);
    const ChartState& state = m_model.state();
    const wchar_t* cursor = IDC_ARROW;
    if (state.drawsLine)
        cursor = IDC_CROSS;
    else if (state.hovered.kind != ChartObject::Kind::Nothing)
        cursor = IDC_HAND;
    ::SetCursor(::LoadCursorW(nullptr, cursor));
    return TRUE;
}

void ChartCanvas::OnKeyDown(UINT key, UINT, UINT) {
    const std::optional<ChartKey> known = chartKeyOf(key);
    if (!known) {
        Default();
        return;
    }
    const ChartChange change = m_model.gestures().key(*known);
    if (!m_model.gestures().isDragging() && GetCapture() == this)
        ReleaseCapture();
    apply(change);
}

void ChartCanvas::zoomAt(int x, short delta) {
    picture();
    apply(m_model.gestures().zoomAt(x, std::pow(ZoomOfNotch, static_cast<double>(delta) / WHEEL_DELTA), m_frame));
}

} // namespace Desk
