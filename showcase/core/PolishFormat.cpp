#include "PolishFormat.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace Desk {

namespace {

constexpr wchar_t NoBreakSpace = L'\u00A0';

/// The decimal digits with a point, without an exponent.
std::string plainDigits(double magnitude, int decimals) {
    // The greatest double has 309 digits before the point.
    std::array<char, 400> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(digits.data(), end) : std::string();
}

} // namespace

std::wstring formatNumber(double value, int decimals) {
    const std::string digits = plainDigits(std::fabs(value), decimals);
    const std::size_t whole = std::min(digits.find('.'), digits.size());

    std::wstring text;
    // What rounds to nothing has no sign.
    if (value < 0.0 && digits.find_first_not_of("0.") != std::string::npos)
        text += L'-';
    for (std::size_t at = 0; at < whole; ++at) {
        if (at > 0 && (whole - at) % 3 == 0)
            text += NoBreakSpace;
        text += static_cast<wchar_t>(digits[at]);
    }
    if (whole < digits.size()) {
        text += L',';
        for (const char digit : std::string_view(digits).substr(whole + 1))
            text += static_cast<wchar_t>(digit);
    }
    return text;
}

std::wstring formatPercent(double fraction) {
    return formatNumber(fraction * 100.0, 2) + L'%';
}

std::wstring formatLargeSum(double value) {
    const double magnitude = std::fabs(value);
    if (magnitude >= 1e9)
        return formatNumber(value / 1e9, 2) + NoBreakSpace + L"mld";
    if (magnitude >= 1e6)
        return formatNumber(value / 1e6, 2) + NoBreakSpace + L"mln";
    return formatNumber(value, 0);
}

std::wstring formatCount(long long count, const wchar_t* one, const wchar_t* few, const wchar_t* many) {
    const long long units = count % 10;
    const bool teen = count % 100 / 10 == 1;
    const wchar_t* form = many;
    if (count == 1)
        form = one;
    else if (!teen && units >= 2 && units <= 4)
        form = few;
    return formatNumber(static_cast<double>(count), 0) + NoBreakSpace + form;
}

} // namespace Desk
