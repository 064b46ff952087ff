#include "RowScroll.h"

#include <algorithm>
#include <cstdint>

#include "../graphics/Rounding.h"

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
    const std::int64_t position = bar.position;
    switch (command) {
    case LineUp:
        return saturateToInt(position - kLineStep);
    case LineDown:
        return saturateToInt(position + kLineStep);
    case PageUp:
        return saturateToInt(position - bar.viewHeight);
    case PageDown:
        return saturateToInt(position + bar.viewHeight);
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
    const int turned = saturateToInt(std::int64_t{position} - wheelDelta / kWheelUnitsPerPixel);
    return std::max(0, std::min(turned, rangeMaximum));
}

std::optional<int> BottomKeeper::update(int position, int viewHeight, int totalHeight) {
    std::optional<int> kept;
    if (m_lastViewHeight != -1) {
        kept = saturateToInt(std::int64_t{m_lastViewHeight} - m_lastTotalHeight - viewHeight + position + totalHeight);
    }
    m_lastViewHeight = viewHeight;
    m_lastTotalHeight = totalHeight;
    return kept;
}

} // namespace RowScroll
