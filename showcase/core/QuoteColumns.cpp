#include "QuoteColumns.h"

#include <algorithm>

#include "core/PolishFormat.h"

namespace Desk {

namespace {

constexpr bool isIndexedByColumn() {
    for (std::size_t index = 0; index < QuoteColumns.size(); ++index)
        if (static_cast<std::size_t>(QuoteColumns[index].column) != index)
            return false;
    return true;
}
static_assert(isIndexedByColumn());

std::wstring figure(std::optional<double> value) {
    return value ? formatFigure(*value) : std::wstring();
}

std::wstring rangeText(const Instrument& instrument) {
    if (!instrument.low52Weeks || !instrument.high52Weeks)
        return {};
    return figure(instrument.low52Weeks) + L" – " + figure(instrument.high52Weeks);
}

} // namespace

const std::string* wordsOf(QuoteColumn column, const Instrument& instrument) {
    switch (column) {
    case QuoteColumn::Symbol:
        return &instrument.symbol;
    case QuoteColumn::Name:
        return &instrument.name;
    case QuoteColumn::Sector:
        return &instrument.sector;
    default:
        return nullptr;
    }
}

std::optional<double> figureOf(QuoteColumn column, const Instrument& instrument) {
    switch (column) {
    case QuoteColumn::Price:
        return instrument.price;
    case QuoteColumn::PriceEarnings:
        return instrument.priceEarnings;
    case QuoteColumn::DividendYield:
        return instrument.dividendYield;
    case QuoteColumn::EarningsPerShare:
        return instrument.earningsPerShare;
    case QuoteColumn::Range52Weeks:
        return placeInRange(instrument);
    case QuoteColumn::MarketCap:
        return instrument.marketCap;
    default:
        return std::nullopt;
    }
}

std::wstring figureText(QuoteColumn column, const Instrument& instrument) {
    switch (column) {
    case QuoteColumn::DividendYield:
        return instrument.dividendYield ? formatPercent(*instrument.dividendYield) : std::wstring();
    case QuoteColumn::MarketCap:
        return instrument.marketCap ? formatLargeSum(*instrument.marketCap) : std::wstring();
    case QuoteColumn::Range52Weeks:
        return rangeText(instrument);
    default:
        return figure(figureOf(column, instrument));
    }
}

std::optional<double> placeInRange(const Instrument& instrument) {
    if (!instrument.price || !instrument.low52Weeks || !instrument.high52Weeks)
        return std::nullopt;
    const double span = *instrument.high52Weeks - *instrument.low52Weeks;
    if (!(span > 0.0))
        return std::nullopt;
    return std::clamp((*instrument.price - *instrument.low52Weeks) / span, 0.0, 1.0);
}

} // namespace Desk
