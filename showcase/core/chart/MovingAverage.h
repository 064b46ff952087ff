#pragma once

#include <cstddef>
#include <vector>

#include "core/chart/Candles.h"

namespace Desk {

/// The simple moving average of the closes over `period` candles; element `i` belongs to candle `period - 1 + i`, so
/// that there are none of a series shorter than the period. Exact to rounding over any length: it does not drift.
std::vector<double> movingAverage(const Candles& candles, std::size_t period);

/// Brings the averages up to date where no close but the last has changed.
void renewLastAverage(std::vector<double>& averages, const Candles& candles, std::size_t period);

} // namespace Desk
