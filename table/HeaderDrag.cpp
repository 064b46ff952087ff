#include "HeaderDrag.h"

namespace {

/// Square of the distance in pixels that a press may move before it is a drag.
constexpr int kDragDistanceSquared = 32;

} // namespace

bool HeaderDrag::press(Point point, const Hit& hit) {
    dropAllowed = true;
    buttonDown = true;
    moved = false;
    pressOnItem = false;
    dragShown = false;
    pressPosition = point;
    pressOnDivider = hit.onDivider;
    if (!hit.onHeader) {
        return false;
    }
    pressOnItem = true;
    if (mouseMovingColumns && !hit.onDivider) {
        sourcePosition = hit.position;
        targetPosition = hit.position;
    }
    return true;
}

HeaderDrag::Motion HeaderDrag::move(Point point, int position) {
    if (sourcePosition < 0) {
        return {};
    }
    if (position != targetPosition) {
        targetPosition = position;
        moved = true;
        dragShown = true;
        return {.repaint = true, .targetChanged = true};
    }
    const int dx = point.x - pressPosition.x;
    const int dy = point.y - pressPosition.y;
    if (!dragShown && dx * dx + dy * dy > kDragDistanceSquared) {
        dragShown = true;
        moved = true;
        return {.repaint = true, .targetChanged = false};
    }
    return {};
}

HeaderDrag::Release HeaderDrag::release() const {
    if (!pressOnItem) {
        return Release::Nothing;
    }
    if (!moved) {
        return Release::Click;
    }
    const bool dropped = buttonDown && sourcePosition >= 0 && targetPosition >= 0 && targetPosition != sourcePosition;
    return dropped ? Release::Move : Release::Nothing;
}

void HeaderDrag::forgetColumn() {
    sourcePosition = -1;
    targetPosition = -1;
}

void HeaderDrag::finish() {
    buttonDown = false;
    moved = false;
    pressOnItem = false;
}

bool HeaderDrag::inFlight() const {
    return dragShown && mouseMovingColumns && sourcePosition >= 0 && targetPosition >= 0;
}
