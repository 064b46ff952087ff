#pragma once

#include <chrono>
#include <cstddef>

#include "core/chart/Candles.h"
#include "core/chart/PriceScale.h"
#include "core/chart/TimeScale.h"

namespace Desk {

/// A point of a drawing: it stays at its candle and price however the chart is zoomed.
struct ChartPoint {
    double place = 0;
    double price = 0;

    bool operator==(const ChartPoint&) const = default;
};

struct ChartPixel {
    double x = 0;
    double y = 0;

    bool operator==(const ChartPixel&) const = default;
};

ChartPixel pixelOf(const ChartPoint& point, const TimeScale& time, const PriceScale& prices);
ChartPoint pointAt(const ChartPixel& pixel, const TimeScale& time, const PriceScale& prices);

/// A line that the user has drawn from one point to another.
struct TrendLine {
    ChartPoint from;
    ChartPoint to;

    bool operator==(const TrendLine&) const = default;
};

/// What of a line the mouse has taken: one end, or all of it.
enum class LineGrip { From, To, All };

/// The line as it is once what `grip` names has been dragged from `start` to `now`; `line` is the one of the drag's
/// start, so that rounding does not pile up.
TrendLine dragged(const TrendLine& line, LineGrip grip, const ChartPoint& start, const ChartPoint& now);

/// The grip under the mouse on a line that is known to be there: an end if the mouse is within `reach` pixels of it
/// (the nearer one), else all.
LineGrip gripAt(const TrendLine& line, const ChartPixel& mouse, double reach, const TimeScale& time,
                const PriceScale& prices);

/// A point that is kept from one start to the next, when the series may begin on another day: `places` from the left
/// edge of the candle of `date`. In a series without that day the next one after it counts, or else the last.
struct AnchoredPoint {
    std::chrono::sys_days date;
    double places = 0;
    double price = 0;

    bool operator==(const AnchoredPoint&) const = default;
};
struct AnchoredLine {
    AnchoredPoint from;
    AnchoredPoint to;

    bool operator==(const AnchoredLine&) const = default;
};
/// For both `candles` is not empty.
AnchoredLine anchored(const TrendLine& line, const Candles& candles);
TrendLine placed(const AnchoredLine& line, const Candles& candles);

} // namespace Desk
