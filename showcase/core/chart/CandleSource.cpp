#include "CandleSource.h"

namespace Desk {

namespace {

/// All invented series end on one day, so that pictures of them stay the same.
constexpr std::chrono::sys_days LastInventedDay = std::chrono::year(2025) / 12 / 30;
constexpr std::size_t InventedCandles = 1500;
/// Of an instrument whose price is not known.
constexpr double InventedPrice = 100;

} // namespace

Candles CandleSource::candlesOf(const std::string& symbol, std::optional<double> price) const {
    if (!m_file)
        return sampleCandles(symbol, price.value_or(InventedPrice), LastInventedDay, InventedCandles);
    const auto found = m_file->find(symbol);
    return found != m_file->end() ? found->second : Candles();
}

bool CandleSource::knows(const std::string& symbol) const {
    return !m_file || m_file->contains(symbol);
}

std::vector<std::string> CandleSource::symbols() const {
    std::vector<std::string> all;
    if (m_file)
        for (const auto& [symbol, candles] : *m_file)
            all.push_back(symbol);
    return all;
}

} // namespace Desk
