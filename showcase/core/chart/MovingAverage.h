#pragma once

#include <cstddef>
#include <vector>

#include "core/chart/Candles.h"

namespace Desk {

/// The simple moving average of the closes over `period` candles; element `i` belongs to candle `period - 1 + i`, so
/// that there are none of a series shorter than the period. Exact to rounding over any length: it does not drift.
std::vector<double> movingAverage(const Candles& candles, std::size_t period);

} // namespace Desk
