#include "DeskDropList.h"

#include <algorithm>

#include "DeskColors.h"
#include "DeskScrollBar.h"

namespace Desk {

namespace {

constexpr int WheelItems = 3;

/// What may move the items on the screen past WM_PAINT.
bool mayScroll(UINT message) {
    switch (message) {
    case LB_SETTOPINDEX:
    case LB_SETCURSEL:
    case LB_SETCARETINDEX:
    case LB_SELECTSTRING:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_MOUSEMOVE:
    case WM_LBUTTONDOWN:
    case WM_TIMER:
        return true;
    default:
        return false;
    }
}

} // namespace

BEGIN_MESSAGE_MAP(DeskDropList, CWnd)
    ON_WM_NCPAINT()
END_MESSAGE_MAP()

void DeskDropList::adopt(CComboBox& combo) {
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    if (::GetComboBoxInfo(combo, &info) && info.hwndList)
        SubclassWindow(info.hwndList);
}

// Places

ScrollState DeskDropList::state() const {
    const auto ask = [this](UINT message) { return static_cast<int>(::SendMessageW(m_hWnd, message, 0, 0)); };
    CRect client;
    GetClientRect(&client);
    return {ask(LB_GETCOUNT), client.Height() / std::max(ask(LB_GETITEMHEIGHT), 1), ask(LB_GETTOPINDEX)};
}

CRect DeskDropList::barArea() const {
    CRect area;
    GetClientRect(&area);
    area.left = area.right - barWidth();
    return area;
}

int DeskDropList::barWidth() const {
    return m_hWnd && state().greatestPosition() > 0 ? DeskScrollBar::width() : 0;
}

ThumbSpan DeskDropList::thumb() const {
    return thumbSpan(state(), barArea().Height(), DeskScrollBar::leastThumb());
}

// Messages

LRESULT DeskDropList::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOUSEWHEEL) {
        scrollTo(state().position - GET_WHEEL_DELTA_WPARAM(wParam) * WheelItems / WHEEL_DELTA);
        return 0;
    }
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST && takesMouse(message, CPoint(lParam)))
        return 0;
    if (message == WM_CAPTURECHANGED)
        m_grip.reset();
    const LRESULT result = CWnd::WindowProc(message, wParam, lParam);
    if (m_hWnd && (message == WM_PAINT || (mayScroll(message) && state().position != m_drawnTop)))
        drawBar();
    return result;
}

/// What happens on the bar, and a drag of its thumb wherever it goes, is not for the list, which would choose an item.
bool DeskDropList::takesMouse(UINT message, CPoint point) {
    const bool isOnBar = barArea().PtInRect(point) != FALSE;
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (isOnBar)
            press(point.y);
        return isOnBar;
    case WM_LBUTTONUP:
        if (!m_grip)
            return isOnBar;
        endDrag();
        return true;
    case WM_MOUSEMOVE:
        if (!m_grip)
            return isOnBar;
        scrollTo(positionForThumb(state(), barArea().Height(), DeskScrollBar::leastThumb(), point.y - *m_grip));
        return true;
    default:
        return isOnBar;
    }
}

void DeskDropList::press(int y) {
    const ThumbSpan span = thumb();
    if (y < span.begin || y >= span.end) {
        const ScrollState now = state();
        scrollTo(now.position + (y < span.begin ? -now.page : now.page));
        return;
    }
    m_hasCaptured = GetCapture() != this;
    if (m_hasCaptured)
        SetCapture();
    m_grip = y - span.begin;
    drawBar();
}

void DeskDropList::endDrag() {
    m_grip.reset();
    drawBar();
    if (m_hasCaptured && GetCapture() == this)
        ::ReleaseCapture();
    m_hasCaptured = false;
}

void DeskDropList::scrollTo(int top) {
    const ScrollState now = state();
    SendMessage(LB_SETTOPINDEX, static_cast<WPARAM>(std::clamp(top, 0, now.greatestPosition())));
}

// Painting

void DeskDropList::drawBar() {
    m_drawnTop = state().position;
    if (barWidth() == 0)
        return;
    CClientDC dc(this);
    DeskScrollBar::draw(dc, barArea(), DeskScrollBar::Direction::Vertical, thumb(), m_grip.has_value());
}

void DeskDropList::OnNcPaint() {
    CWindowDC dc(this);
    CRect window;
    GetWindowRect(&window);
    window.OffsetRect(-window.TopLeft());
    const CRect edges[] = {{0, 0, window.right, 1},
                           {0, window.bottom - 1, window.right, window.bottom},
                           {0, 0, 1, window.bottom},
                           {window.right - 1, 0, window.right, window.bottom}};
    for (const CRect& edge : edges)
        dc.FillSolidRect(&edge, Colors::inputFrame());
}

} // namespace Desk
