#include "RangeWindow.h"

#include <algorithm>
#include <utility>

namespace {

/// The smallest width that the drag of an edge leaves.
constexpr double kMinRange = 1e-06;

} // namespace

void RangeWindow::move(double by) {
    const double kept = width();
    start += by;
    end += by;
    if (start < 0.0) {
        start = 0.0;
        end = kept;
    }
    if (end > 1.0) {
        end = 1.0;
        start = 1.0 - kept;
    }
}

void RangeWindow::moveStart(double by) {
    start = std::max(start + by, 0.0);
    if (start > end - kMinRange) {
        startBeforeEnd(kMinRange);
    }
}

void RangeWindow::moveEnd(double by) {
    end = std::min(end + by, 1.0);
    if (start > end - kMinRange) {
        endAfterStart(kMinRange);
    }
}

void RangeWindow::startBeforeEnd(double by) {
    // Beside the end of the range there may be less room than asked for.
    start = std::max(end - by, std::min(end, 0.0));
}

void RangeWindow::endAfterStart(double by) {
    end = std::min(start + by, std::max(start, 1.0));
}

void RangeWindow::toggleFull() {
    if (start == 0.0 && end == 1.0) {
        start = std::exchange(savedStart, 0.0);
        end = std::exchange(savedEnd, 1.0);
    } else {
        savedStart = std::exchange(start, 0.0);
        savedEnd = std::exchange(end, 1.0);
    }
}
