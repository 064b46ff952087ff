#include <OrtinControls/ScrollProcessor.h>

#include <cstdint>

#include <XTToolkitPro.h>

#include "../graphics/Rounding.h"
#include "ScrollPosition.h"

namespace {

constexpr int kLineOffset = 60;
constexpr int kDesignDpi = 96;

/// SystemParametersInfo gives it where a notch of the wheel is to turn a page.
constexpr int kPageScroll = -1;

long& along(int bar, CSize& size) {
    return bar == SB_HORZ ? size.cx : size.cy;
}

} // namespace

ScrollProcessor::ScrollProcessor(CWnd* const wnd)
    : m_wnd(wnd),
      m_horizontalLineOffset(XTPDpiHelper().ScaleX(kLineOffset, kDesignDpi)),
      m_verticalLineOffset(XTPDpiHelper().ScaleY(kLineOffset, kDesignDpi)) {}

void ScrollProcessor::SetDisplaySize(int cx, int cy) {
    m_displaySize = CSize(cx, cy);
    if (m_wnd != nullptr && ::IsWindow(m_wnd->m_hWnd)) {
        UpdateScrollInfo();
    }
}

void ScrollProcessor::ScrollToOrigin(bool horizontal, bool vertical) {
    if (horizontal && m_scrollPos.cx > 0) {
        ScrollHorizontalPosition(0);
    }
    if (vertical && m_scrollPos.cy > 0) {
        ScrollVerticalPosition(0);
    }
}

void ScrollProcessor::ScrollHorizontalPosition(long position) {
    ScrollToPosition(SB_HORZ, position, m_displaySize.cx, m_pageSize.cx, m_scrollPos.cx);
}

void ScrollProcessor::ScrollVerticalPosition(long position) {
    ScrollToPosition(SB_VERT, position, m_displaySize.cy, m_pageSize.cy, m_scrollPos.cy);
}

void ScrollProcessor::ScrollToPosition(int bar, long pos, long display, long page, long& scrollPos) {
    const std::optional<int> position = ScrollPosition::requested({display, page, scrollPos}, pos);
    if (m_wnd == nullptr || !position) {
        return;
    }
    const int delta = scrollPos - *position;
    scrollPos = *position;
    m_wnd->SetScrollPos(bar, *position, TRUE);
    ScrollContent(bar, delta); // meant for a delta of 0 too
}

void ScrollProcessor::OnHScroll(unsigned code, unsigned /*pos*/, CScrollBar* bar) {
    FollowCommand(SB_HORZ, code, bar, m_horizontalLineOffset);
}

void ScrollProcessor::OnVScroll(unsigned code, unsigned /*pos*/, CScrollBar* bar) {
    FollowCommand(SB_VERT, code, bar, m_verticalLineOffset);
}

void ScrollProcessor::FollowCommand(int bar, unsigned code, CScrollBar* control, long lineOffset) {
    if (m_wnd == nullptr || code > SB_THUMBTRACK) {
        return;
    }
    const bool ofThumb = code == SB_THUMBPOSITION || code == SB_THUMBTRACK;
    const int trackPosition = ofThumb ? Get32BitScrollPos(bar, control) : 0;
    long& scrollPos = along(bar, m_scrollPos);
    const int delta = ScrollPosition::step(code, {along(bar, m_displaySize), along(bar, m_pageSize), scrollPos},
                                           lineOffset, trackPosition);
    if (delta != 0) {
        scrollPos += delta;
        m_wnd->SetScrollPos(bar, scrollPos, TRUE);
        ScrollContent(bar, -delta);
    }
}

int ScrollProcessor::OnMouseWheel(unsigned /*flags*/, short delta, CPoint /*point*/) {
    if (m_wnd == nullptr) {
        return 0;
    }
    int lowest = 0;
    int highest = 0;
    m_wnd->GetScrollRange(SB_VERT, &lowest, &highest);
    if (lowest == highest) {
        return 0;
    }
    int lines = 0;
    ::SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
    const bool forward = delta < 1;
    if (lines == kPageScroll) {
        OnVScroll(forward ? SB_PAGEDOWN : SB_PAGEUP, 0, nullptr);
        return 1;
    }
    long before = -1;
    // A step that moves nothing is followed by none that does.
    for (int left = ScrollPosition::wheelSteps(delta, lines); left > 0 && before != m_scrollPos.cy; --left) {
        before = m_scrollPos.cy;
        OnVScroll(forward ? SB_LINEDOWN : SB_LINEUP, 0, nullptr);
    }
    return 1;
}

void ScrollProcessor::OnSize(unsigned /*type*/, int /*cx*/, int /*cy*/) {
    UpdateScrollInfo();
}

void ScrollProcessor::ScrollContent(int bar, int delta) {
    m_wnd->ScrollWindow(bar == SB_HORZ ? delta : 0, bar == SB_VERT ? delta : 0);
}

long ScrollProcessor::Get32BitScrollPos(int bar, CScrollBar* control) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    if (control != nullptr) {
        ::GetScrollInfo(control->m_hWnd, SB_CTL, &info);
    } else {
        ::GetScrollInfo(m_wnd->m_hWnd, bar, &info);
    }
    return info.nTrackPos;
}

void ScrollProcessor::UpdateScrollInfo() {
    if (m_wnd == nullptr) {
        return;
    }
    // A bar that appears or goes changes the client area and comes back here by WM_SIZE. The size without bars is the
    // same then, so that nothing is left to do, but the host may have detached the window.
    const CSize window = GetClientRectSB(m_wnd).Size();
    long deltaX = 0;
    long deltaY = 0;
    UpdateScrollBar(SB_HORZ, window.cx, m_displaySize.cx, m_pageSize.cx, m_scrollPos.cx, deltaX);
    if (m_wnd != nullptr) {
        UpdateScrollBar(SB_VERT, window.cy, m_displaySize.cy, m_pageSize.cy, m_scrollPos.cy, deltaY);
    }
    if (m_wnd != nullptr && (deltaX != 0 || deltaY != 0)) {
        m_wnd->ScrollWindow(deltaX, deltaY);
    }
}

void ScrollProcessor::UpdateScrollBar(int bar, int windowSize, int displaySize, long& pageSize, long& scrollPos,
                                      long& deltaPos) {
    const ScrollPosition::Bar fitted = ScrollPosition::fitted({displaySize, pageSize, scrollPos}, windowSize);
    pageSize = fitted.page;
    scrollPos = fitted.position;
    deltaPos = saturateToInt(std::int64_t{m_wnd->GetScrollPos(bar)} - scrollPos);
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | SIF_TRACKPOS;
    info.nMax = fitted.maximum;
    info.nPage = static_cast<UINT>(fitted.page);
    info.nPos = fitted.position;
    m_wnd->SetScrollInfo(bar, &info, TRUE);
}

CRect ScrollProcessor::GetClientRectSB(CWnd const* const wnd) {
    CRect client;
    if (wnd == nullptr) {
        return client;
    }
    CRect window;
    wnd->GetWindowRect(&window);
    wnd->ScreenToClient(&window);
    wnd->GetClientRect(&client);
    client.right = ScrollPosition::extentWithoutBar(window.right, client.right, ::GetSystemMetrics(SM_CXVSCROLL));
    client.bottom = ScrollPosition::extentWithoutBar(window.bottom, client.bottom, ::GetSystemMetrics(SM_CYHSCROLL));
    return client;
}
