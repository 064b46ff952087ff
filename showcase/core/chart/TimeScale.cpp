#include "TimeScale.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

/// Of a candle that is hardly there by rounding alone nothing is seen.
constexpr double HardlyThere = 1e-6;

std::size_t placeWithin(double place, std::size_t candles) {
    return static_cast<std::size_t>(std::clamp(place, 0.0, static_cast<double>(candles)));
}

double leastWidth(std::size_t candles) {
    return candles > LeastVisibleCandles ? static_cast<double>(LeastVisibleCandles) / static_cast<double>(candles)
                                         : 1.0;
}

/// The range of that width which begins at `start`, or else as near to it as both ends allow.
ChartRange placedAt(double start, double width) {
    if (start <= 0.0)
        return {0.0, width};
    return start + width >= 1.0 ? ChartRange{1.0 - width, 1.0} : ChartRange{start, start + width};
}

} // namespace

ChartRange moved(const ChartRange& range, double delta) {
    return std::isnan(delta) ? range : placedAt(range.start + delta, range.end - range.start);
}

ChartRange zoomed(const ChartRange& range, double anchor, double factor, std::size_t candles) {
    if (std::isnan(anchor) || std::isnan(factor))
        return range;
    const double width = range.end - range.start;
    const double newWidth = std::clamp(width * std::max(factor, 0.0), leastWidth(candles), 1.0);
    const double fixed = std::clamp(anchor, 0.0, 1.0);
    return placedAt(range.start + fixed * (width - newWidth), newWidth);
}

TimeScale::TimeScale(const ChartRange& range, std::size_t candles, int left, int right) : m_left(left), m_right(right) {
    const double firstPlace = range.start * static_cast<double>(candles);
    const double lastPlace = range.end * static_cast<double>(candles);
    if (!(lastPlace - firstPlace > 0.0) || !std::isfinite(lastPlace - firstPlace) || right <= left)
        return;
    m_firstPlace = firstPlace;
    m_pixels = (static_cast<double>(right) - left) / (lastPlace - firstPlace);
    m_first = placeWithin(std::floor(firstPlace + HardlyThere), candles);
    m_last = std::max(m_first, placeWithin(std::ceil(lastPlace - HardlyThere), candles));
}

} // namespace Desk
