#include "TrendLine.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace Desk {

namespace {

double distance(const ChartPixel& one, const ChartPixel& other) {
    return std::hypot(one.x - other.x, one.y - other.y);
}

AnchoredPoint anchoredPoint(const ChartPoint& point, const Candles& candles) {
    const auto last = static_cast<double>(candles.size() - 1);
    const double candle = point.place > 0.0 ? std::min(std::floor(point.place), last) : 0.0;
    return {candles[static_cast<std::size_t>(candle)].date, point.place - candle, point.price};
}

ChartPoint placedPoint(const AnchoredPoint& point, const Candles& candles) {
    const auto found = std::lower_bound(candles.begin(), candles.end() - 1, point.date,
                                        [](const Candle& candle, auto date) { return candle.date < date; });
    return {static_cast<double>(found - candles.begin()) + point.places, point.price};
}

} // namespace

ChartPixel pixelOf(const ChartPoint& point, const TimeScale& time, const PriceScale& prices) {
    return {time.xOf(point.place), prices.yOf(point.price)};
}

ChartPoint pointAt(const ChartPixel& pixel, const TimeScale& time, const PriceScale& prices) {
    return {time.placeAt(pixel.x), prices.valueAt(pixel.y)};
}

TrendLine dragged(const TrendLine& line, LineGrip grip, const ChartPoint& start, const ChartPoint& now) {
    const auto movedBy = [&](const ChartPoint& point) {
        return ChartPoint{point.place + (now.place - start.place), point.price + (now.price - start.price)};
    };
    return {grip == LineGrip::To ? line.from : movedBy(line.from), grip == LineGrip::From ? line.to : movedBy(line.to)};
}

LineGrip gripAt(const TrendLine& line, const ChartPixel& mouse, double reach, const TimeScale& time,
                const PriceScale& prices) {
    const double toFrom = distance(pixelOf(line.from, time, prices), mouse);
    const double toTo = distance(pixelOf(line.to, time, prices), mouse);
    if (std::min(toFrom, toTo) > reach)
        return LineGrip::All;
    return toFrom < toTo ? LineGrip::From : LineGrip::To;
}

AnchoredLine anchored(const TrendLine& line, const Candles& candles) {
    assert(!candles.empty());
    return {anchoredPoint(line.from, candles), anchoredPoint(line.to, candles)};
}

TrendLine placed(const AnchoredLine& line, const Candles& candles) {
    assert(!candles.empty());
    return {placedPoint(line.from, candles), placedPoint(line.to, candles)};
}

} // namespace Desk
