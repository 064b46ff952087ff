#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/chart/Candles.h"

namespace Desk {

/// Where the candles of an instrument come from: a file or, without one, the seeded invention.
class CandleSource {
public:
    explicit CandleSource(std::optional<CandleBook> file) : m_file(std::move(file)) {}

    /// Empty if the file has none for it. Invented ones end at `price`.
    Candles candlesOf(const std::string& symbol, std::optional<double> price) const;
    /// Whether it has any, without looking closer.
    bool knows(const std::string& symbol) const;
    /// The symbols of the file, in order; none without a file.
    std::vector<std::string> symbols() const;

private:
    std::optional<CandleBook> m_file;
};

} // namespace Desk
