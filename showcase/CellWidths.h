#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include <afxwin.h>

#include "QuoteBook.h"

namespace Desk {

/// How wide the texts of the cells are in one font, measured once each: painting only has to look whether a text fits.
class CellWidths {
public:
    /// Both outlive the object.
    CellWidths(const QuoteBook& book, CFont& font);

    int of(std::size_t instrument, QuoteColumn column);
    int of(const std::wstring& text);
    /// The text has changed.
    void forget(std::size_t instrument, QuoteColumn column);

private:
    static constexpr int NotMeasured = -1;

    const QuoteBook& m_book;
    CDC m_dc;
    std::vector<std::array<int, QuoteColumnCount>> m_widths;
};

} // namespace Desk
