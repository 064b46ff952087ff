#pragma once

#include <filesystem>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "core/InputError.h"

namespace Desk {

/// One instrument as the quotes table shows it. Texts are UTF-8; an absent number is unknown.
struct Instrument {
    std::string symbol;
    std::string name;
    std::string sector;
    std::optional<double> price;
    std::optional<double> priceEarnings;
    std::optional<double> dividendYield; ///< a fraction: 0.0175 is 1.75 %
    std::optional<double> earningsPerShare;
    std::optional<double> low52Weeks;
    std::optional<double> high52Weeks;
    std::optional<double> marketCap; ///< in units of the currency

    bool operator==(const Instrument&) const = default;
};

/// Reads instruments from comma-separated values with a header. The columns Symbol, Name, Sector, Price, PriceEarnings,
/// DividendYield, EarningsPerShare, Low52Weeks, High52Weeks and MarketCap may stand in any order among others, which
/// are ignored. Any cell but the symbol may be empty; numbers have a decimal point; symbols are unique.
/// Throws `InputError`. `fileName` is for messages.
std::vector<Instrument> readInstruments(std::istream& input, const std::string& fileName);

/// The same from a file.
std::vector<Instrument> readInstruments(const std::filesystem::path& file);

} // namespace Desk
