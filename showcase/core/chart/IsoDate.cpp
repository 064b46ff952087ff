#include "IsoDate.h"

#include <charconv>

namespace Desk {

namespace {

std::optional<int> parseDigits(std::string_view digits) {
    int value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size() || digits.front() == '-')
        return std::nullopt;
    return value;
}

/// With zeros in front.
std::string digitsOf(int value, std::size_t length) {
    const std::string digits = std::to_string(value);
    return std::string(length - digits.size(), '0') + digits;
}

} // namespace

std::optional<std::chrono::sys_days> parseIsoDate(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return std::nullopt;
    const std::optional<int> year = parseDigits(text.substr(0, 4));
    const std::optional<int> month = parseDigits(text.substr(5, 2));
    const std::optional<int> day = parseDigits(text.substr(8, 2));
    if (!year || !month || !day)
        return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(*year), std::chrono::month(static_cast<unsigned>(*month)),
                                           std::chrono::day(static_cast<unsigned>(*day)));
    if (!date.ok())
        return std::nullopt;
    return date;
}

std::optional<std::string> formatIsoDate(std::chrono::sys_days date) {
    constexpr int GreatestYear = 9999;
    const std::chrono::year_month_day day(date);
    const int year = static_cast<int>(day.year());
    if (!day.ok() || year < 0 || year > GreatestYear)
        return std::nullopt;
    return digitsOf(year, 4) + '-' + digitsOf(static_cast<int>(static_cast<unsigned>(day.month())), 2) + '-' +
           digitsOf(static_cast<int>(static_cast<unsigned>(day.day())), 2);
}

} // namespace Desk
