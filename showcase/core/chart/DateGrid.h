#pragma once

#include <string>
#include <vector>

#include "core/chart/Candles.h"
#include "core/chart/TimeScale.h"

namespace Desk {

/// A vertical grid line at the first candle of a day, week, month, quarter, year or of several years.
struct DateMark {
    double place = 0; ///< the left edge of that candle
    std::wstring label;
};

/// Marks of the visible candles at least `leastDistance` pixels from each other, of the finest division that usually
/// allows it: "7 sty", "sty 2015" in the first month of a year, "lut", "2015". Where the series has gaps, so that two
/// are nearer, the later one is left out, or the beginning of the series.
std::vector<DateMark> dateGrid(const Candles& candles, const TimeScale& scale, int leastDistance);

/// "07.01.2015".
std::wstring formatShortDate(std::chrono::sys_days date);

} // namespace Desk
