#include "ScrollPosition.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "../graphics/Rounding.h"

namespace ScrollPosition {

namespace {

enum Command : unsigned int { LineBack, LineForward, PageBack, PageForward, ThumbPosition, ThumbTrack };

constexpr int kWheelNotch = 120;
/// The system's setting for a notch as it comes: it makes one line step.
constexpr int kUsualLines = 3;

std::int64_t lastPosition(const Axis& axis) {
    return std::int64_t{axis.display} - axis.page;
}

std::int64_t wantedStep(unsigned int command, const Axis& axis, int lineOffset, int trackPosition) {
    switch (command) {
    case LineBack:
        return -std::int64_t{lineOffset};
    case LineForward:
        return lineOffset;
    case PageBack:
        return -std::int64_t{axis.page};
    case PageForward:
        return axis.page;
    case ThumbPosition:
    case ThumbTrack:
        return std::int64_t{trackPosition} - axis.position;
    default:
        return 0;
    }
}

} // namespace

std::optional<int> requested(const Axis& axis, int position) {
    if (axis.display <= 0 || axis.page <= 0 || position < 0 || lastPosition(axis) <= 0) {
        return std::nullopt;
    }
    return static_cast<int>(std::min<std::int64_t>(position, lastPosition(axis)));
}

int step(unsigned int command, const Axis& axis, int lineOffset, int trackPosition) {
    // An axis without a page is meant to follow commands too, though it shows no bar to give any.
    const std::int64_t wanted = axis.position + wantedStep(command, axis, lineOffset, trackPosition);
    const std::int64_t kept = std::max<std::int64_t>(std::min(wanted, lastPosition(axis)), 0);
    return saturateToInt(kept - axis.position);
}

int wheelSteps(int wheelDelta, int lines) {
    const std::int64_t notches = std::abs(wheelDelta) / kWheelNotch;
    // A part of a notch and a setting of no lines are meant to make one step too.
    return saturateToInt(std::max<std::int64_t>(notches * lines / kUsualLines, 1));
}

Bar fitted(const Axis& axis, int extent) {
    if (extent >= axis.display) {
        return {0, 0, 0};
    }
    int position = axis.position;
    if (axis.page > 0 && position > 0) {
        position = truncateToInt(static_cast<double>(position) * extent / axis.page);
    }
    // One pixel less than what scrolling reaches, on purpose.
    const std::int64_t last = std::int64_t{axis.display} - extent - 1;
    return {extent, saturateToInt(std::min<std::int64_t>(position, last)), axis.display - 1};
}

int extentWithoutBar(int windowEnd, int clientEnd, int barThickness) {
    return windowEnd >= clientEnd + barThickness ? clientEnd + barThickness : clientEnd;
}

} // namespace ScrollPosition
