#include "MovingAverage.h"

namespace Desk {

// The series is cut into blocks of one period. Each window is the end of one block and the beginning of the next: both
// sums only ever grow, so that nothing is taken away again and errors cannot pile up.
std::vector<double> movingAverage(const Candles& candles, std::size_t period) {
    std::vector<double> averages;
    if (period == 0 || candles.size() < period)
        return averages;
    averages.reserve(candles.size() - period + 1);

    std::vector<double> ends(period);
    for (std::size_t block = 0; block + period <= candles.size(); block += period) {
        double end = 0.0;
        for (std::size_t place = period; place-- > 0;) {
            end += candles[block + place].close;
            ends[place] = end;
        }
        double beginning = 0.0;
        for (std::size_t place = 0; place < period && block + place + period <= candles.size(); ++place) {
            averages.push_back((ends[place] + beginning) / static_cast<double>(period));
            if (block + place + period < candles.size())
                beginning += candles[block + place + period].close;
        }
    }
    return averages;
}

void renewLastAverage(std::vector<double>& averages, const Candles& candles, std::size_t period) {
    if (averages.empty())
        return;
    double sum = 0.0;
    for (auto candle = candles.end() - static_cast<std::ptrdiff_t>(period); candle != candles.end(); ++candle)
        sum += candle->close;
    averages.back() = sum / static_cast<double>(period);
}

} // namespace Desk
