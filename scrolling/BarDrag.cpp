#include "BarDrag.h"

#include <algorithm>

namespace BarDrag {

namespace {

/// Pixels that edges keep between them; those that come closer fall back to less, on purpose.
constexpr int kMinGap = 3;
constexpr double kFallbackGap = 2.0;

bool edgesAreTooClose(const BarLayout& layout) {
    return layout.trackLength > 0.0 && layout.gap() < kMinGap;
}

} // namespace

Part pressed(const BarLayout& layout, int x, int y) {
    if (layout.leftHit.holds(x, y)) {
        return Part::LeftEdge;
    }
    if (layout.rightHit.holds(x, y)) {
        return Part::RightEdge;
    }
    if (layout.thumbHit.holds(x, y)) {
        return Part::Thumb;
    }
    return layout.client.holds(x, y) ? Part::Track : Part::None;
}

Part under(const BarLayout& layout, int x, int y) {
    if (layout.thumbHit.holds(x, y)) {
        return Part::Thumb;
    }
    if (layout.leftHit.holds(x, y)) {
        return Part::LeftEdge;
    }
    return layout.rightHit.holds(x, y) ? Part::RightEdge : Part::None;
}

int trackStep(const BarRect& thumb, int x) {
    if (x < thumb.left) {
        return thumb.left - thumb.right;
    }
    if (x >= thumb.right) {
        return thumb.right - thumb.left;
    }
    return x - thumb.centre();
}

int dragLeftEdge(RangeWindow& window, BarLayout& layout, BarSize client, int distance, int x) {
    window.moveStart(layout.fraction(distance));
    layout = BarLayout::of(client, window);
    if (edgesAreTooClose(layout)) {
        window.startBeforeEnd(layout.fraction(kFallbackGap));
    }
    // The edge as it was laid out, not as it fell back.
    return std::min(x, layout.leftEdge.right);
}

int dragRightEdge(RangeWindow& window, BarLayout& layout, BarSize client, int distance, int x) {
    window.moveEnd(layout.fraction(distance));
    layout = BarLayout::of(client, window);
    if (edgesAreTooClose(layout)) {
        window.endAfterStart(layout.fraction(kFallbackGap));
    }
    return std::max(x, layout.rightEdge.left);
}

std::optional<int> rebased(const BarLayout& layout, Part part, int x) {
    switch (part) {
    case Part::Thumb:
        if (x < layout.thumbHit.left) {
            return layout.thumbHit.left;
        }
        return x > layout.thumbHit.right ? std::optional(layout.thumbHit.right) : std::nullopt;
    case Part::LeftEdge:
        return x < layout.leftEdge.left ? std::optional(layout.leftEdge.left) : std::nullopt;
    case Part::RightEdge:
        return x > layout.rightEdge.right ? std::optional(layout.rightEdge.right) : std::nullopt;
    case Part::Track:
    case Part::None:
        break;
    }
    return std::nullopt;
}

} // namespace BarDrag
