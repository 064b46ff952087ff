#pragma once

#include <optional>

#include "RowStore.h"

/// The arithmetic of the vertical scroll position. All values are pixels of the content. No windows.
namespace RowScroll {

/// What a host wants to see beside a row that is scrolled into view.
struct Margins {
    int top = 0;
    int bottom = 0;
};

/// The position that brings `span` into view, empty if it need not move. A row at the very top of the view still moves
/// it by one pixel, so that the line above the row shows.
std::optional<int> intoView(const RowSpan& span, int viewTop, int viewHeight, Margins margins);

/// The position after a scroll bar command (SB_LINEUP and so on, 0 to 7), empty for one that does nothing.
struct BarState {
    int position;
    int viewHeight;
    int trackPosition;
    int rangeMaximum;
};
std::optional<int> afterCommand(unsigned int command, const BarState& bar);

/// The position after a wheel turn, within 0 and the maximum of the range.
int afterWheel(int position, int wheelDelta, int rangeMaximum);

/// Keeps the distance from the last row when the rows or the height of the view change.
class BottomKeeper {
public:
    bool enabled = false;

    /// Notes the current heights and gives the position that keeps the distance, empty if there is nothing to keep.
    std::optional<int> update(int position, int viewHeight, int totalHeight);

private:
    int m_lastViewHeight = -1;
    int m_lastTotalHeight = 0;
};

} // namespace RowScroll
