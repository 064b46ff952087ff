#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "DeskFonts.h"
#include "QuoteBook.h"

namespace Desk {

/// How wide the texts of the cells are, measured once each: painting only has to look whether a text fits.
class CellWidths {
public:
    /// Both outlive the object.
    CellWidths(const QuoteBook& book, DeskFonts& fonts);

    int of(std::size_t instrument, QuoteColumn column);
    /// The text has changed.
    void forget(std::size_t instrument, QuoteColumn column);

private:
    static constexpr int NotMeasured = -1;

    const QuoteBook& m_book;
    DeskFonts& m_fonts;
    std::vector<std::array<int, QuoteColumnCount>> m_widths;
};

} // namespace Desk
