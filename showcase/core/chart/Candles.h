#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <istream>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "core/InputError.h"
#include "core/PriceSession.h"

namespace Desk {

/// One day's trade of an instrument. Prices are in units of the currency, the volume in pieces.
struct Candle {
    std::chrono::sys_days date;
    double open = 0;
    double high = 0;
    double low = 0;
    double close = 0;
    double volume = 0;

    bool rises() const { return close >= open; }
    bool operator==(const Candle&) const = default;
};

/// The candle of a day that goes on: it makes the moves of the price, from its own close. Where the series ends at the
/// price that the session began with, it closes at the last one.
Candle carriedOn(const Candle& candle, const PriceSession& session);

/// Oldest first, one a day at most.
using Candles = std::vector<Candle>;

/// The candles of each symbol, in UTF-8.
using CandleBook = std::map<std::string, Candles, std::less<>>;

/// Reads candles from comma-separated values with a header. The columns Symbol, Date (2015-01-02), Open, High, Low,
/// Close and Volume may stand in any order among others, which are ignored. No cell may be empty; within a symbol dates
/// ascend, the high is the greatest and the low the least of the four prices, which are above 0, and volumes are not
/// below 0. Throws `InputError`. `fileName` is for messages.
CandleBook readCandles(std::istream& input, const std::string& fileName);

/// The same from a file.
CandleBook readCandles(const std::filesystem::path& file);

/// Invented candles of working days up to `lastDay`, the last one closing at `lastClose`; the same ones for the same
/// arguments, another course for each symbol. None if `lastClose` is not above 0.
Candles sampleCandles(std::string_view symbol, double lastClose, std::chrono::sys_days lastDay, std::size_t count);

} // namespace Desk
