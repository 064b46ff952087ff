#pragma once

#include <cstddef>

namespace Desk {

/// The visible part of a series in fractions of it, from 0 to 1: what a scroll and zoom bar holds.
struct ChartRange {
    double start = 0;
    double end = 1;

    bool operator==(const ChartRange&) const = default;
};

/// The range moved by `delta`, as wide as before, and stopped at the ends of the series.
ChartRange moved(const ChartRange& range, double delta);

/// The range `factor` times as wide, with the point that lies at `anchor` (0 left, 1 right) of it staying where it is
/// as long as both ends allow. Never narrower than `LeastVisibleCandles` of `candles`, nor wider than all.
ChartRange zoomed(const ChartRange& range, double anchor, double factor, std::size_t candles);

inline constexpr std::size_t LeastVisibleCandles = 8;

/// Where the candles of a series stand on the horizontal axis of a plot. Candle `i` takes the place from `i` to `i +
/// 1`, so that its middle is at `i + 0.5`; a place is a real number and need not lie in the series. Pixels of the
/// plot's window.
class TimeScale {
public:
    /// The range fills the pixels from `left` up to, but without, `right`.
    TimeScale(const ChartRange& range, std::size_t candles, int left, int right);

    double xOf(double place) const { return m_left + (place - m_firstPlace) * m_pixels; }
    double placeAt(double x) const { return m_firstPlace + (x - m_left) / m_pixels; }
    /// How wide one candle is; may be far below 1.
    double candleWidth() const { return m_pixels; }
    /// The candles of which something is seen: from `first()` up to, but without, `last()`.
    std::size_t first() const { return m_first; }
    std::size_t last() const { return m_last; }
    int left() const { return m_left; }
    int right() const { return m_right; }

private:
    double m_firstPlace = 0;
    double m_pixels = 1;
    std::size_t m_first = 0;
    std::size_t m_last = 0;
    int m_left = 0;
    int m_right = 0;
};

} // namespace Desk
