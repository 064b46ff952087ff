#include "CellWidths.h"

namespace Desk {

CellWidths::CellWidths(const QuoteBook& book, CFont& font) : m_book(book) {
    m_dc.CreateCompatibleDC(nullptr);
    m_dc.SelectObject(&font);
    std::array<int, QuoteColumnCount> unknown{};
    unknown.fill(NotMeasured);
    m_widths.assign(book.size(), unknown);
}

int CellWidths::of(std::size_t instrument, QuoteColumn column) {
    int& width = m_widths[instrument][static_cast<std::size_t>(column)];
    if (width == NotMeasured)
        width = of(m_book.text(instrument, column));
    return width;
}

int CellWidths::of(const std::wstring& text) {
    return m_dc.GetTextExtent(text.c_str(), static_cast<int>(text.size())).cx;
}

void CellWidths::forget(std::size_t instrument, QuoteColumn column) {
    m_widths[instrument][static_cast<std::size_t>(column)] = NotMeasured;
}

} // namespace Desk
