#include <algorithm>
#include <cmath>

#include "core/SeededRandom.h"
#include "core/chart/Candles.h"

namespace Desk {

namespace {

constexpr double GreatestPriceStep = 0.01;
/// A price has at least so many steps, however low it is.
constexpr double LeastStepsOfPrice = 1000.0;
/// How strongly a price that is far from the last one is drawn to it, so that long courses stay readable.
constexpr double PullHome = 0.0015;

/// FNV-1a.
std::uint64_t seedOf(std::string_view symbol) {
    std::uint64_t seed = 0xCBF29CE484222325u;
    for (const char byte : symbol)
        seed = (seed ^ static_cast<unsigned char>(byte)) * 0x100000001B3u;
    return seed;
}

/// Small values are frequent, great ones rare; from -1 to 1.
double bellShaped(SeededRandom& random) {
    double sum = 0.0;
    for (int part = 0; part < 4; ++part)
        sum += random.between(-0.25, 0.25);
    return sum;
}

double priceStep(double price) {
    double step = GreatestPriceStep;
    while (price < step * LeastStepsOfPrice)
        step /= 10.0;
    return step;
}

bool isWorkingDay(std::chrono::sys_days day) {
    const std::chrono::weekday weekday(day);
    return weekday != std::chrono::Saturday && weekday != std::chrono::Sunday;
}

/// Days and closes, newest first: the last close is the one that is known.
Candles inventCloses(SeededRandom& random, double lastClose, std::chrono::sys_days lastDay, std::size_t count) {
    const double step = priceStep(lastClose);
    Candles candles(count);
    double course = 1.0;
    double nervousness = 0.03;
    std::chrono::sys_days day = lastDay;
    for (std::size_t age = 0; age < count; ++age) {
        while (!isWorkingDay(day))
            day -= std::chrono::days(1);
        candles[age].date = day;
        candles[age].close = age == 0 ? lastClose : std::max(step, std::round(lastClose * course / step) * step);
        nervousness = std::clamp(nervousness * (1.0 + bellShaped(random) * 0.2), 0.015, 0.07);
        course *= 1.0 + bellShaped(random) * nervousness - PullHome * (course - 1.0);
        day -= std::chrono::days(1);
    }
    return candles;
}

} // namespace

Candles sampleCandles(std::string_view symbol, double lastClose, std::chrono::sys_days lastDay, std::size_t count) {
    if (!(lastClose > 0.0) || !std::isnormal(lastClose))
        return {};
    SeededRandom random(seedOf(symbol));
    Candles candles = inventCloses(random, lastClose, lastDay, count);
    std::reverse(candles.begin(), candles.end());

    const double step = priceStep(lastClose);
    const auto rounded = [step](double price) { return std::max(step, std::round(price / step) * step); };
    const double usualVolume = 50'000.0 * std::pow(100.0, random.between(0.0, 1.0));
    double before = candles.empty() ? 0.0 : candles.front().close;
    for (Candle& candle : candles) {
        candle.open = rounded(before * (1.0 + bellShaped(random) * 0.012));
        const double upper = std::max(candle.open, candle.close);
        const double lower = std::min(candle.open, candle.close);
        candle.high = std::max(upper, rounded(upper * (1.0 + std::fabs(bellShaped(random)) * 0.03)));
        candle.low = std::min(lower, rounded(lower * (1.0 - std::fabs(bellShaped(random)) * 0.03)));
        const double unrest = (candle.high - candle.low) / candle.low;
        candle.volume = std::round(usualVolume * random.between(0.4, 1.2) * (1.0 + 20.0 * unrest));
        before = candle.close;
    }
    return candles;
}

} // namespace Desk
