#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/Instruments.h"

namespace Desk {

enum class QuoteColumn {
    Symbol,
    Name,
    Sector,
    Price,
    PriceEarnings,
    DividendYield,
    EarningsPerShare,
    Range52Weeks,
    MarketCap,
};

struct QuoteColumnInfo {
    QuoteColumn column;
    /// How the column is called where its layout is kept.
    std::string_view key;
    const wchar_t* title;
    /// At 96 pixels to the inch.
    double defaultWidth;
    bool alignsRight;
    /// The others hold figures.
    bool holdsWords = false;
};

/// All columns in their first order, indexed by `QuoteColumn`.
inline constexpr std::array QuoteColumns{
    QuoteColumnInfo{QuoteColumn::Symbol, "symbol", L"Symbol", 76.0, false, true},
    QuoteColumnInfo{QuoteColumn::Name, "name", L"Nazwa", 220.0, false, true},
    QuoteColumnInfo{QuoteColumn::Sector, "sector", L"Sektor", 190.0, false, true},
    QuoteColumnInfo{QuoteColumn::Price, "price", L"Kurs", 92.0, true},
    QuoteColumnInfo{QuoteColumn::PriceEarnings, "price-earnings", L"C/Z", 78.0, true},
    QuoteColumnInfo{QuoteColumn::DividendYield, "dividend-yield", L"Dywidenda", 92.0, true},
    QuoteColumnInfo{QuoteColumn::EarningsPerShare, "earnings-per-share", L"Zysk/akcję", 96.0, true},
    QuoteColumnInfo{QuoteColumn::Range52Weeks, "range-52-weeks", L"52 tygodnie", 128.0, false},
    QuoteColumnInfo{QuoteColumn::MarketCap, "market-cap", L"Kapitalizacja", 136.0, true},
};

/// What looks different with another price: the price itself and where it stands in its range.
inline constexpr std::array ColumnsOfPrice{QuoteColumn::Price, QuoteColumn::Range52Weeks};

inline constexpr std::size_t QuoteColumnCount = QuoteColumns.size();

constexpr const QuoteColumnInfo& infoOf(QuoteColumn column) {
    return QuoteColumns[static_cast<std::size_t>(column)];
}

/// The words of a column of words, in UTF-8; null for a column of figures.
const std::string* wordsOf(QuoteColumn column, const Instrument& instrument);

/// By what a column of figures is compared; nothing if unknown, and for a column of words. The range over 52 weeks is
/// compared by where the price stands in it: 0 at its low, 1 at its high.
std::optional<double> figureOf(QuoteColumn column, const Instrument& instrument);

/// The text of a column of figures, empty if unknown.
std::wstring figureText(QuoteColumn column, const Instrument& instrument);

/// Where the price stands between the low (0) and the high (1) of 52 weeks, held within both.
std::optional<double> placeInRange(const Instrument& instrument);

} // namespace Desk
