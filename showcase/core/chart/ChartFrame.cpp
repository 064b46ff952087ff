#include "ChartFrame.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

/// Above and below the candles, of the difference between the least and the greatest price.
constexpr double PriceMargin = 0.06;
constexpr double VolumeMargin = 0.12;

void layOutAverage(ChartFrame& frame, const std::vector<double>& average) {
    frame.average.clear();
    for (const CandleColumn& column : frame.columns)
        if (column.last >= AveragePeriod && column.last - AveragePeriod < average.size())
            frame.average.push_back(
                {static_cast<double>(column.middle), frame.prices.yOf(average[column.last - AveragePeriod])});
}

/// The first of the greatest.
template <typename Value>
std::optional<std::size_t> greatest(const std::vector<CandleColumn>& columns, Value value) {
    if (columns.empty())
        return std::nullopt;
    const auto found =
        std::max_element(columns.begin(), columns.end(), [value](const CandleColumn& a, const CandleColumn& b) {
            return a.candle.*value < b.candle.*value;
        });
    return static_cast<std::size_t>(found - columns.begin());
}

} // namespace

std::optional<std::size_t> ChartFrame::columnAt(int x) const {
    if (columns.empty())
        return std::nullopt;
    const double place = time.placeAt(x + 0.5);
    const auto behind =
        std::upper_bound(columns.begin(), columns.end(), place, [](double sought, const CandleColumn& column) {
            return sought < static_cast<double>(column.first);
        });
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - columns.begin() - 1, 0));
}

void layOutFrame(ChartFrame& frame, const Candles& candles, const std::vector<double>& average, const ChartRange& range,
                 const ChartMeasures& measures) {
    frame.layout = layoutChart(measures.width, measures.height, measures.parts);
    const ChartArea& legend = frame.layout.legend;
    const int toolRight = std::max(legend.left, legend.right - measures.lineTool.margin);
    const int toolMargin = std::min(measures.lineTool.margin / 2, legend.height() / 2);
    frame.lineTool = {std::max(legend.left, toolRight - measures.lineTool.width), legend.top + toolMargin, toolRight,
                      legend.bottom - toolMargin};
    const ChartArea& plot = frame.layout.prices;
    const ChartArea& volumePlot = frame.layout.volumes;
    frame.time = TimeScale(range, candles.size(), plot.left, plot.right);
    candleColumns(candles, frame.time, frame.columns);
    const PriceSpan span = priceSpan(frame.columns, PriceMargin);
    frame.prices = PriceScale(span.low, span.high, plot.top, plot.bottom);
    const double volume = greatestVolume(frame.columns);
    const bool isTraded = volume > 0;
    frame.volumes = PriceScale(0, isTraded ? volume * (1 + VolumeMargin) : 1, volumePlot.top, volumePlot.bottom);
    frame.priceGrid = priceGrid(frame.prices, measures.priceDistance);
    frame.volumeGrid = isTraded ? priceGrid(frame.volumes, measures.priceDistance) : PriceGrid{};
    frame.dates = dateGrid(candles, frame.time, measures.dateDistance);
    layOutAverage(frame, average);
    frame.highest = greatest(frame.columns, &Candle::high);
    frame.busiest = isTraded ? greatest(frame.columns, &Candle::volume) : std::nullopt;
}

std::optional<ClippedLine> clipped(const ChartPixel& from, const ChartPixel& to, const ChartArea& area, double margin) {
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    double begin = 0;
    double end = 1;
    // How far the line runs against a border, and how far it begins from it.
    const auto cut = [&](double run, double room) {
        if (run == 0)
            return room >= 0;
        if (run < 0)
            begin = std::max(begin, room / run);
        else
            end = std::min(end, room / run);
        return begin <= end;
    };
    if (!cut(-dx, from.x - (area.left - margin)) || !cut(dx, area.right + margin - from.x) ||
        !cut(-dy, from.y - (area.top - margin)) || !cut(dy, area.bottom + margin - from.y))
        return std::nullopt;
    return ClippedLine{{from.x + begin * dx, from.y + begin * dy}, {from.x + end * dx, from.y + end * dy}};
}

} // namespace Desk
