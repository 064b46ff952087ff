#pragma once

#include <optional>

/// The arithmetic of one axis of a scrolled display. All values are pixels. No windows.
namespace ScrollPosition {

struct Axis {
    int display; ///< extent of the whole display
    int page;    ///< extent of what shows, 0 where the axis needs no scrolling
    int position;
};

/// Where the position goes that was asked for, empty if the axis does not scroll.
std::optional<int> requested(const Axis& axis, int position);

/// How far a scroll bar command (SB_LINEUP and so on, 0 to 5) moves the position, kept inside the display; 0 for any
/// other command.
int step(unsigned int command, const Axis& axis, int lineOffset, int trackPosition);

/// How many line steps a turn of the wheel stands for, at least one; `lines` is the system's setting for a notch.
int wheelSteps(int wheelDelta, int lines);

/// What the bar of an axis shows in a window of `extent`. `position` and `page` are the axis's own from then on.
struct Bar {
    int page;
    int position;
    int maximum;
};
Bar fitted(const Axis& axis, int extent);

/// The extent of the client area as if no bar showed: a window that reaches past its client area by the thickness of a
/// bar shows one.
int extentWithoutBar(int windowEnd, int clientEnd, int barThickness);

} // namespace ScrollPosition
