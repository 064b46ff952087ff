#include "RowScroll.h"

#include <algorithm>
#include <cstdint>

#include "Rounding.h"

namespace RowScroll {

namespace {

constexpr int kLineStep = 8;
constexpr int kWheelUnitsPerPixel = 8;

enum Command : unsigned int { LineUp, LineDown, PageUp, PageDown, ThumbPosition, ThumbTrack, Top, Bottom };

} // namespace

std::optional<int> intoView(const RowSpan& span, int viewTop, int viewHeight, Margins margins) {
    const std::int64_t viewBottom = std::int64_t{viewTop} + viewHeight;
    const std::int64_t upper = std::int64_t{margins.top} - 1 + span.top;
    const std::int64_t lower = std::int64_t{span.bottom} - margins.bottom;
    if (viewTop > upper) {
        return saturateToInt(upper);
    }
    if (viewBottom >= lower) {
        return std::nullopt;
    }
    return saturateToInt(viewTop - viewBottom + 1 + lower);
}

std::optional<int> afterCommand(unsigned int command, const BarState& bar) {
    switch (command) {
    case LineUp:
        return bar.position - kLineStep;
    case LineDown:
        return bar.position + kLineStep;
    case PageUp:
        return bar.position - bar.viewHeight;
    case PageDown:
        return bar.position + bar.viewHeight;
    case ThumbPosition:
    case ThumbTrack:
        return bar.trackPosition;
    case Top:
        return 0;
    case Bottom:
        return bar.rangeMaximum;
    default:
        return std::nullopt;
    }
}

int afterWheel(int position, int wheelDelta, int rangeMaximum) {
    return std::max(0, std::min(position - wheelDelta / kWheelUnitsPerPixel, rangeMaximum));
}

std::optional<int> BottomKeeper::update(int position, int viewHeight, int totalHeight) {
    std::optional<int> kept;
    if (m_lastViewHeight != -1) {
        kept = m_lastViewHeight - m_lastTotalHeight - viewHeight + position + totalHeight;
    }
    m_lastViewHeight = viewHeight;
    m_lastTotalHeight = totalHeight;
    return kept;
}

} // namespace RowScroll
