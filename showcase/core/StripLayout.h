#pragma once

#include <array>
#include <cstddef>

namespace Desk {

/// From `left` up to, but without, `right`; in pixels of the strip.
struct StripSpan {
    int left = 0;
    int right = 0;

    bool holds(int x) const { return x >= left && x < right; }
    bool operator==(const StripSpan&) const = default;
};

inline constexpr std::size_t StripSwitchCount = 3;

/// What the items of the top strip need, in pixels.
struct StripSizes {
    int margin = 0;
    int gap = 0;
    int findBox = 0;
    int leastFindBox = 0;
    int findButton = 0;
    int findCount = 0;
    std::array<int, StripSwitchCount> switches{};
};

/// Where the items lie: the search from the left, the switches from the right.
struct StripLayout {
    StripSpan findBox;
    StripSpan findPrevious;
    StripSpan findNext;
    StripSpan findCount;
    std::array<StripSpan, StripSwitchCount> switches{};
};

/// In a strip too narrow for all, the search box shrinks to its least width first; then the count goes; what is left
/// over at the right is cut off.
StripLayout layoutStrip(int width, const StripSizes& sizes);

/// The least width that shows everything.
int leastStripWidth(const StripSizes& sizes);

} // namespace Desk
