#pragma once

#include <cstddef>
#include <optional>

#include "core/chart/ChartObject.h"
#include "core/chart/TimeScale.h"
#include "core/chart/TrendLine.h"

namespace Desk {

/// Whole candles, from `first` up to, but without, `last`.
struct CandleSpan {
    std::size_t first = 0;
    std::size_t last = 0;

    bool operator==(const CandleSpan&) const = default;
};

/// A pixel of the canvas.
struct ChartPosition {
    int x = 0;
    int y = 0;

    bool operator==(const ChartPosition&) const = default;
};

/// What the user has made of the chart so far, but for the lines.
struct ChartState {
    std::size_t candles = 0; ///< of the series that is shown
    ChartRange range;
    std::optional<CandleSpan> span; ///< the selected range
    ChartObject selected;
    ChartObject hovered;
    std::optional<ChartPosition> crossHair; ///< where the mouse is while it is over a plot
    bool drawsLine = false;                 ///< the next press begins a line
};

/// The trend lines of the series that is shown. An index stays that of its line until one before it is removed.
class ChartLines {
public:
    virtual ~ChartLines() = default;
    virtual std::size_t lineCount() const = 0;
    virtual const TrendLine& line(std::size_t index) const = 0;
    virtual void setLine(std::size_t index, const TrendLine& line) = 0;
    /// Behind all others.
    virtual void addLine(const TrendLine& line) = 0;
    virtual void removeLine(std::size_t index) = 0;
};

} // namespace Desk
