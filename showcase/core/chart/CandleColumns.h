#pragma once

#include <vector>

#include "core/chart/Candles.h"
#include "core/chart/TimeScale.h"

namespace Desk {

/// What stands in one column of the chart: a candle, or all those that fall on one pixel, in whole pixels so that
/// nothing is half lit.
struct CandleColumn {
    int left = 0;   ///< of the body
    int right = 0;  ///< behind the body; at least `left + 1`
    int middle = 0; ///< the pixel column of the wick, in the body's middle: bodies have an odd width or 2 pixels
    Candle candle;  ///< of several: the first's date and open, the last's close, the extremes, the sum of the volumes
    std::size_t first = 0; ///< the candles that it stands for: `first` up to, but without, `last`
    std::size_t last = 0;
};

/// The columns of all visible candles, from left to right, all equally wide; bodies neither touch nor overlap unless a
/// candle has less than two pixels. One pass over the visible candles. A candle that is cut by an edge
/// may have its column just outside the plot, so that there may be two more than pixels.
void candleColumns(const Candles& candles, const TimeScale& scale, std::vector<CandleColumn>& columns);

/// The least low and the greatest high of the columns, with a margin of `share` of the difference on both sides.
struct PriceSpan {
    double low = 0;
    double high = 1;
};
PriceSpan priceSpan(const std::vector<CandleColumn>& columns, double share);
double greatestVolume(const std::vector<CandleColumn>& columns);

} // namespace Desk
