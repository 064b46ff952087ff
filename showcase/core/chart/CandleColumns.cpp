#include "CandleColumns.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

/// What lies this near to a pixel's edge lies there but for rounding.
constexpr double Rounding = 1e-6;
/// Farther away, and wider, nothing differs for the eye.
constexpr double FarPixel = 1e8;

int pixelAt(double x) {
    return static_cast<int>(std::floor(std::clamp(x, -FarPixel, FarPixel) + Rounding));
}

/// Room for a gap of a pixel at least, and of about a quarter of wide candles.
int bodyWidth(double candleWidth) {
    const int slot = pixelAt(candleWidth);
    if (slot <= 3)
        return std::max(1, slot - 1);
    const int width = std::min(slot - 1, pixelAt(candleWidth * 0.75 + 0.5));
    return width % 2 == 1 ? width : width - 1;
}

Candle combined(const Candles& candles, std::size_t first, std::size_t last) {
    Candle sum = candles[first];
    for (std::size_t at = first + 1; at < last; ++at) {
        sum.high = std::max(sum.high, candles[at].high);
        sum.low = std::min(sum.low, candles[at].low);
        sum.volume += candles[at].volume;
    }
    sum.close = candles[last - 1].close;
    return sum;
}

} // namespace

void candleColumns(const Candles& candles, const TimeScale& scale, std::vector<CandleColumn>& columns) {
    columns.clear();
    const std::size_t end = std::min(scale.last(), candles.size());
    const bool conflates = scale.candleWidth() < 1.0 - Rounding;
    const int width = bodyWidth(scale.candleWidth());
    const int leastDistance = std::max(1, pixelAt(scale.candleWidth()));

    for (std::size_t first = scale.first(); first < end;) {
        CandleColumn column;
        column.middle = pixelAt(scale.xOf(static_cast<double>(first) + 0.5));
        // Rounding must not put two neighbours nearer than their width allows.
        if (!columns.empty())
            column.middle = std::max(column.middle, columns.back().middle + leastDistance);
        column.left = column.middle - width / 2;
        column.right = column.left + width;
        column.first = first;
        column.last = first + 1;
        if (conflates) {
            const double behind = std::ceil(scale.placeAt(column.middle + 1.0 - Rounding) - 0.5);
            column.last =
                static_cast<std::size_t>(std::clamp(behind, static_cast<double>(first + 1), static_cast<double>(end)));
        }
        column.candle = combined(candles, column.first, column.last);
        columns.push_back(column);
        first = column.last;
    }
}

PriceSpan priceSpan(const std::vector<CandleColumn>& columns, double share) {
    if (columns.empty())
        return {};
    PriceSpan span{columns.front().candle.low, columns.front().candle.high};
    for (const CandleColumn& column : columns) {
        span.low = std::min(span.low, column.candle.low);
        span.high = std::max(span.high, column.candle.high);
    }
    const double margin = (span.high - span.low) * share;
    return {span.low - margin, span.high + margin};
}

double greatestVolume(const std::vector<CandleColumn>& columns) {
    double greatest = 0.0;
    for (const CandleColumn& column : columns)
        greatest = std::max(greatest, column.candle.volume);
    return greatest;
}

} // namespace Desk
