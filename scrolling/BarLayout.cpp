#include "BarLayout.h"

#include <algorithm>

#include "../graphics/Rounding.h"

namespace {

constexpr int kMinGripWidth = 8;

/// A host's window may lie anywhere. So far off the bar nothing shows or is pressed, and no sum of pixels overflows,
/// not even in the finer pixels of painting.
constexpr int kFarAway = 1 << 27;

int pixelOf(double trackLength, double fraction) {
    return std::clamp(truncateToInt(trackLength * fraction), -kFarAway, kFarAway);
}

BarRect widened(const BarRect& rect, int left, int right) {
    return {rect.left - left, rect.top, rect.right + right, rect.bottom};
}

} // namespace

BarLayout BarLayout::of(BarSize client, const RangeWindow& window) {
    BarLayout layout;
    const int edge = client.height / 2;
    layout.client = {0, 0, client.width, client.height};
    layout.edgeWidth = edge;
    layout.trackLength = client.width - 2 * edge;

    const int start = pixelOf(layout.trackLength, window.start);
    const int end = pixelOf(layout.trackLength, window.end);
    const int top = std::clamp(client.height / 8, 2, 6);
    const int bottom = client.height - top;
    layout.thumb = {start + edge, top, end + edge, bottom};
    layout.leftEdge = {start, top, start + edge, bottom};
    layout.rightEdge = {layout.thumb.right, top, layout.thumb.right + edge, bottom};

    const int half = edge / 2;
    const int within = layout.thumb.width() >= edge ? -edge : half;
    layout.thumbHit = widened(layout.thumb, within, within);
    layout.leftHit = widened(layout.leftEdge, half, edge);
    layout.rightHit = widened(layout.rightEdge, edge, half);
    return layout;
}

double BarLayout::fraction(double pixels) const {
    return trackLength > 0.0 ? pixels / trackLength : 0.0;
}

bool hasGrip(const BarRect& thumb) {
    return thumb.width() >= kMinGripWidth;
}

Grip gripOf(const BarRect& thumb, int spread) {
    const int middle = thumb.centre();
    const int inset = thumb.height() / 5;
    return {{middle - spread, middle + spread, middle - 3 * spread, middle + 3 * spread},
            thumb.top + inset,
            thumb.bottom - inset};
}
