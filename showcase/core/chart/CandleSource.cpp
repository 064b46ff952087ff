#include "CandleSource.h"

namespace Desk {

namespace {

/// All invented series end on one day, so that pictures of them stay the same.
constexpr std::chrono::sys_days LastInventedDay = std::chrono::year(2025) / 12 / 30;
constexpr std::size_t InventedCandles = 1500;
/// Of an instrument whose price is not known.
constexpr double InventedPrice = 100;

const Candles NoCandles;

} // namespace

const Candles& CandleSource::candlesOf(const Instrument& instrument) {
    if (m_file) {
        const auto found = m_file->find(instrument.symbol);
        return found != m_file->end() ? found->second : NoCandles;
    }
    m_invented =
        sampleCandles(instrument.symbol, instrument.price.value_or(InventedPrice), LastInventedDay, InventedCandles);
    return m_invented;
}

bool CandleSource::knows(const Instrument& instrument) const {
    return !m_file || m_file->contains(instrument.symbol);
}

std::vector<std::string> CandleSource::symbols() const {
    std::vector<std::string> all;
    if (m_file)
        for (const auto& [symbol, candles] : *m_file)
            all.push_back(symbol);
    return all;
}

} // namespace Desk
