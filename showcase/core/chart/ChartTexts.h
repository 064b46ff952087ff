#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "core/chart/Candles.h"

namespace Desk {

/// One of the values of the legend: "O" and "111,39".
struct LegendValue {
    std::wstring name;
    std::wstring value;
};
inline constexpr std::size_t LegendValueCount = 6;

/// Open, high, low, close, volume and average of a candle, as the legend tells them beside a grid.
std::array<LegendValue, LegendValueCount> legendOf(const Candle& candle, std::optional<double> average,
                                                   int gridDecimals);

inline constexpr int LeastPriceDecimals = 2;
/// With more there would be no room beside a label.
inline constexpr int MostPriceDecimals = 15;
/// "1 234,50": as many decimals as its grid has, but at least and at most those.
std::wstring priceText(double price, int decimals);
/// A price between the lines of such a grid: told more finely than they are, where they need more than two decimals.
std::wstring singlePriceText(double price, int gridDecimals);
/// "+3,21%   24 świece".
std::wstring spanText(const Candle& first, const Candle& last, std::size_t candles);
/// "Brak świec dla MMM; w pliku są: AAPL, COKE".
std::wstring missingText(const std::wstring& symbol, const std::vector<std::wstring>& known);

} // namespace Desk
