#pragma once

#include <optional>

#include "BarLayout.h"

/// What presses and moves of the mouse mean on a scroll and zoom bar. Points are client pixels. No windows of the
/// system.
namespace BarDrag {

enum class Part { None, Thumb, LeftEdge, RightEdge, Track };

/// What a press takes: the edges go before the thumb.
Part pressed(const BarLayout& layout, int x, int y);
/// What the mouse is over: here the thumb goes before the edges, and the track is nothing.
Part under(const BarLayout& layout, int x, int y);

/// How far a click in the track moves the thumb: by its own width towards the click, inside the thumb until its middle
/// is there.
int trackStep(const BarRect& thumb, int x);

/// Drags an edge by `distance` to `x`, lays the bar of size `client` out anew, and gives the point from which the drag
/// goes on: an edge that could not follow waits for the mouse to come back.
int dragLeftEdge(RangeWindow& window, BarLayout& layout, BarSize client, int distance, int x);
int dragRightEdge(RangeWindow& window, BarLayout& layout, BarSize client, int distance, int x);

/// The point from which a drag of `part` goes on if the bar has been set away from under the mouse.
std::optional<int> rebased(const BarLayout& layout, Part part, int x);

} // namespace BarDrag
