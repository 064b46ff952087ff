#include "PolishFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace Desk {

namespace {

constexpr wchar_t NoBreakSpace = L'\u00A0';
constexpr int LeastDecimals = 2;
constexpr int MostDecimals = 10;

struct SumUnit {
    double size;
    int decimals;
    /// A sum that takes more of them once it is rounded goes to the next unit.
    std::size_t mostWholeDigits;
    const wchar_t* name;
};

constexpr SumUnit GreatestUnit{1e12, 2, 0, L"bln"};
constexpr std::array SmallerUnits{
    SumUnit{1.0, 0, 6, nullptr},
    SumUnit{1e6, 2, 3, L"mln"},
    SumUnit{1e9, 2, 3, L"mld"},
};

/// The decimal digits with a point, without an exponent.
std::string plainDigits(double magnitude, int decimals) {
    // The greatest double has 309 digits before the point.
    std::array<char, 400> digits{};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), magnitude, std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(digits.data(), end) : std::string();
}

std::size_t wholeDigits(const std::string& digits) {
    return std::min(digits.find('.'), digits.size());
}

} // namespace

std::wstring formatNumber(double value, int decimals) {
    const std::string digits = plainDigits(std::fabs(value), decimals);
    const std::size_t whole = wholeDigits(digits);

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

std::wstring formatFigure(double value) {
    const std::string digits = plainDigits(std::fabs(value), MostDecimals);
    const std::size_t first = digits.find_first_not_of("0.");
    const std::size_t point = wholeDigits(digits);
    if (first == std::string::npos || first < point)
        return formatNumber(value, LeastDecimals);
    int decimals = std::clamp(static_cast<int>(first - point) + 1, LeastDecimals, MostDecimals);
    const std::string rounded = plainDigits(std::fabs(value), decimals);
    while (decimals > LeastDecimals && rounded[point + static_cast<std::size_t>(decimals)] == '0')
        --decimals;
    return formatNumber(value, decimals);
}

std::wstring formatPercent(double fraction) {
    return formatNumber(fraction * 100.0, 2) + L'%';
}

std::wstring formatLargeSum(double value) {
    const auto holds = [value](const SumUnit& unit) {
        return wholeDigits(plainDigits(std::fabs(value) / unit.size, unit.decimals)) <= unit.mostWholeDigits;
    };
    const auto smaller = std::find_if(SmallerUnits.begin(), SmallerUnits.end(), holds);
    const SumUnit& unit = smaller != SmallerUnits.end() ? *smaller : GreatestUnit;
    const std::wstring number = formatNumber(value / unit.size, unit.decimals);
    return unit.name ? number + NoBreakSpace + unit.name : number;
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
