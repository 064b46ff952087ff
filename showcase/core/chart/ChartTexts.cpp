#include "ChartTexts.h"

#include <algorithm>

#include "core/PolishFormat.h"

namespace Desk {

namespace {

constexpr std::size_t MostNamedSymbols = 12;

} // namespace

std::wstring priceText(double price, int decimals) {
    return formatNumber(price, std::clamp(decimals, LeastPriceDecimals, MostPriceDecimals));
}

std::wstring singlePriceText(double price, int gridDecimals) {
    return gridDecimals > LeastPriceDecimals ? priceText(price, gridDecimals + 1) : formatFigure(price);
}

std::array<LegendValue, LegendValueCount> legendOf(const Candle& candle, std::optional<double> average,
                                                   int gridDecimals) {
    return {{
        {L"O", singlePriceText(candle.open, gridDecimals)},
        {L"H", singlePriceText(candle.high, gridDecimals)},
        {L"L", singlePriceText(candle.low, gridDecimals)},
        {L"C", singlePriceText(candle.close, gridDecimals)},
        {L"Wol.", formatLargeSum(candle.volume)},
        {L"Śr. 20", average ? singlePriceText(*average, gridDecimals) : Dash},
    }};
}

std::wstring spanText(const Candle& first, const Candle& last, std::size_t candles) {
    const double change = last.close / first.open - 1;
    return (change > 0 ? L"+" : L"") + formatPercent(change) + L"   " +
           formatCount(static_cast<long long>(candles), L"świeca", L"świece", L"świec");
}

std::wstring missingText(const std::wstring& symbol, const std::vector<std::wstring>& known) {
    std::wstring text = L"Brak świec dla " + symbol;
    if (known.empty())
        return text + L"; w pliku nie ma żadnych";
    text += L"; w pliku są: ";
    for (std::size_t at = 0; at < std::min(known.size(), MostNamedSymbols); ++at)
        text += (at > 0 ? L", " : L"") + known[at];
    return known.size() > MostNamedSymbols ? text + L" …" : text;
}

} // namespace Desk
