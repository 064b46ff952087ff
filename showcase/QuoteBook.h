#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/Instruments.h"
#include "core/PriceSession.h"
#include "core/QuoteColumns.h"

namespace Desk {

/// The instruments with the texts of their cells, made once and again only when a price changes: painting formats
/// nothing.
class QuoteBook {
public:
    explicit QuoteBook(std::vector<Instrument> instruments);

    std::size_t size() const { return m_instruments.size(); }
    const Instrument& at(std::size_t instrument) const { return m_instruments[instrument]; }
    /// Empty for an unknown value.
    const std::wstring& text(std::size_t instrument, QuoteColumn column) const;
    /// The price before the first tick, if it is known.
    std::vector<std::optional<double>> prices() const;
    void setPrice(std::size_t instrument, double price);
    /// Null before the first tick.
    const PriceSession* session(std::size_t instrument) const;

    /// Ascending order of a column's known values; words by the rules of Polish.
    bool isBefore(std::size_t a, std::size_t b, QuoteColumn column) const;
    bool isKnown(std::size_t instrument, QuoteColumn column) const;

private:
    using CellTexts = std::array<std::wstring, QuoteColumnCount>;

    std::vector<Instrument> m_instruments;
    std::vector<CellTexts> m_texts;
    std::vector<std::optional<PriceSession>> m_sessions;
};

} // namespace Desk
