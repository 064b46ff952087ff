#pragma once

namespace Desk {

/// A scrolled content as a scroll bar sees it: `extent` pixels, of which `page` are in view from `position` on.
struct ScrollState {
    int extent = 0;
    int page = 0;
    int position = 0;

    int greatestPosition() const { return extent > page ? extent - page : 0; }
    bool operator==(const ScrollState&) const = default;
};

/// Where a thumb lies in its track, half-open and relative to the track's start.
struct ThumbSpan {
    int begin = 0;
    int end = 0;

    bool operator==(const ThumbSpan&) const = default;
};

/// A thumb as long as the page's share of the content, but not under `leastLength`. Empty if all is in view or the
/// track has no room.
ThumbSpan thumbSpan(const ScrollState& state, int trackLength, int leastLength);

/// The position that puts the thumb's start at `begin`, rounded to the nearest and held within the range.
int positionForThumb(const ScrollState& state, int trackLength, int leastLength, int begin);

} // namespace Desk
