#include "CellWidths.h"

namespace Desk {

CellWidths::CellWidths(const QuoteBook& book, DeskFonts& fonts) : m_book(book), m_fonts(fonts) {
    std::array<int, QuoteColumnCount> unknown{};
    unknown.fill(NotMeasured);
    m_widths.assign(book.size(), unknown);
}

int CellWidths::of(std::size_t instrument, QuoteColumn column) {
    int& width = m_widths[instrument][static_cast<std::size_t>(column)];
    if (width == NotMeasured)
        width = m_fonts.widthOf(m_book.text(instrument, column));
    return width;
}

void CellWidths::forget(std::size_t instrument, QuoteColumn column) {
    m_widths[instrument][static_cast<std::size_t>(column)] = NotMeasured;
}

} // namespace Desk
