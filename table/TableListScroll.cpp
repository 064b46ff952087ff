// The scroll bar of the body.

#include "TableList.h"

#include <OrtinControls/ITableHandler.h>

#include "../graphics/Rounding.h"
#include "../graphics/ScopedFlag.h"

namespace {

/// The bar's page and range reach one pixel past the content, so that the last row's lower line shows.
constexpr int kBeyondContent = 1;

} // namespace

int TableList::clientHeight() const {
    CRect client;
    if (GetSafeHwnd() != nullptr) {
        GetClientRect(&client);
    }
    return client.Height();
}

int TableList::rangeMaximum() const {
    int minimum = 0;
    int maximum = 0;
    GetScrollRange(SB_VERT, &minimum, &maximum);
    return maximum;
}

int TableList::contentY(int clientY) const {
    return saturateToInt(std::int64_t{clientY} + GetScrollPos(SB_VERT));
}

int TableList::effectiveScrollPos() const {
    return vScrollAlwaysVisible && rangeMaximum() == 0 ? 0 : GetScrollPos(SB_VERT);
}

void TableList::updateScroll() {
    // Showing or hiding the bar changes the client height, and the size message comes back here.
    if (m_updatingScroll || GetSafeHwnd() == nullptr) {
        return;
    }
    const ScopedFlag updating(m_updatingScroll);
    // Cleared first: the host hears of the size change in between, and rows that it changes there count for the next.
    m_scrollDirty = false;
    const int total = m_rows.totalHeight();
    const int view = clientHeight();
    if (total > view && !autoscrollIsOn()) {
        const int position = GetScrollPos(SB_VERT);
        ShowScrollBar(SB_VERT, showScrollbar);
        // Page and range together: a page that is set first is cut to the range of before.
        SCROLLINFO content{};
        content.cbSize = sizeof content;
        content.fMask = SIF_PAGE | SIF_RANGE;
        content.nPage = static_cast<UINT>(view + kBeyondContent);
        content.nMax = saturateToInt(std::int64_t{total} + kBeyondContent);
        SetScrollInfo(SB_VERT, &content, FALSE);
        if (bottomKeeper.enabled) {
            if (const std::optional<int> kept = bottomKeeper.update(position, view, total)) {
                SetScrollPos(SB_VERT, *kept, TRUE);
            }
        }
        if (showScrollbar && vScrollAlwaysVisible) {
            EnableScrollBar(SB_VERT, ESB_ENABLE_BOTH);
        }
    } else {
        SCROLLINFO none{};
        none.cbSize = sizeof none;
        none.fMask = SIF_RANGE | SIF_PAGE | (vScrollAlwaysVisible ? SIF_DISABLENOSCROLL : 0U);
        SetScrollInfo(SB_VERT, &none, TRUE);
        ShowScrollBar(SB_VERT, showScrollbar && vScrollAlwaysVisible);
    }
}

void TableList::scrollIntoView(int row) {
    const std::optional<RowSpan> span = m_rows.spanOf(row);
    if (!span || GetSafeHwnd() == nullptr) {
        return;
    }
    const int viewTop = GetScrollPos(SB_VERT);
    const int viewHeight = clientHeight();
    RowScroll::Margins margins;
    if (m_handler != nullptr) {
        m_handler->GetCarretOffset(margins.top, margins.bottom);
    }
    if (const std::optional<int> position = RowScroll::intoView(*span, viewTop, viewHeight, margins);
        position && GetSafeHwnd() != nullptr) {
        scrollTo(*position);
    }
}

void TableList::scrollTo(int position) {
    if (position != GetScrollPos(SB_VERT)) {
        SetScrollPos(SB_VERT, position, TRUE);
        requestFullRedraw();
    }
}

void TableList::OnVScroll(UINT command, UINT /*position*/, CScrollBar* /*bar*/) {
    SCROLLINFO track{};
    track.cbSize = sizeof track;
    track.fMask = SIF_TRACKPOS;
    GetScrollInfo(SB_VERT, &track, SIF_TRACKPOS);
    const RowScroll::BarState bar{GetScrollPos(SB_VERT), clientHeight(), track.nTrackPos, rangeMaximum()};
    if (const std::optional<int> position = RowScroll::afterCommand(command, bar)) {
        SetScrollPos(SB_VERT, *position, TRUE);
        repaintNow();
    }
}

BOOL TableList::OnMouseWheel(UINT flags, short delta, CPoint point) {
    SetScrollPos(SB_VERT, RowScroll::afterWheel(GetScrollPos(SB_VERT), delta, rangeMaximum()), TRUE);
    repaintNow();
    return CWnd::OnMouseWheel(flags, delta, point);
}
