#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "core/chart/CandleColumns.h"
#include "core/chart/Candles.h"
#include "core/chart/ChartLayout.h"
#include "core/chart/DateGrid.h"
#include "core/chart/PriceScale.h"
#include "core/chart/TimeScale.h"
#include "core/chart/TrendLine.h"

namespace Desk {

/// How many closes the average is made of.
inline constexpr std::size_t AveragePeriod = 20;

/// What decides on where things stand, in pixels.
struct ChartMeasures {
    int width = 0; ///< of the canvas
    int height = 0;
    ChartSizes parts;
    struct {
        int width = 0;
        int margin = 0; ///< at its right, and half of it above and below
    } lineTool;
    int priceDistance = 1; ///< the least one between the lines of the grids
    int dateDistance = 1;
};

/// Where everything of one picture stands. It is computed anew for each picture; its lists keep their memory.
struct ChartFrame {
    ChartLayout layout;
    ChartArea lineTool; ///< its button, at the right end of the legend
    TimeScale time{{}, 0, 0, 1};
    PriceScale prices{0, 1, 0, 1};
    PriceScale volumes{0, 1, 0, 1};
    std::vector<CandleColumn> columns;
    PriceGrid priceGrid;
    PriceGrid volumeGrid;
    std::vector<DateMark> dates;
    /// One for each column that has one, at its middle.
    std::vector<ChartPixel> average;
    std::optional<std::size_t> highest; ///< the column with the greatest high, the first of them
    std::optional<std::size_t> busiest; ///< the column with the greatest volume, the first of them; none if all are 0

    /// Whether a pixel lies in one of the two plots.
    bool inPlots(int x, int y) const { return layout.prices.holds(x, y) || layout.volumes.holds(x, y); }
    /// The column of the candle at this pixel, or of the nearest one; nothing without any.
    std::optional<std::size_t> columnAt(int x) const;
};

/// `average` is `movingAverage` of the candles over `AveragePeriod`.
void layOutFrame(ChartFrame& frame, const Candles& candles, const std::vector<double>& average, const ChartRange& range,
                 const ChartMeasures& measures);

/// The part of a straight line that lies within an area that is `margin` wider on each side; nothing if it passes by.
struct ClippedLine {
    ChartPixel from;
    ChartPixel to;
};
std::optional<ClippedLine> clipped(const ChartPixel& from, const ChartPixel& to, const ChartArea& area, double margin);

} // namespace Desk
