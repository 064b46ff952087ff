#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <afxwin.h>

#include "CellWidths.h"
#include "DeskFonts.h"
#include "QuoteBook.h"
#include "core/FindModel.h"

namespace Desk {

/// A visible cell of each row: from `left` up to, but without, `right`, in pixels of the view.
struct CellSpan {
    QuoteColumn column = QuoteColumn::Symbol;
    int left = 0;
    int right = 0;
};

/// How a row looks beyond its content.
struct RowLook {
    bool isOther = false; ///< every other row has another background
    bool isSelected = false;
    /// As `PriceFlashes::levelOf` has it.
    int flash = 0;
    /// What to mark in words; null without a search.
    const std::wstring* phrase = nullptr;
};

/// Draws rows of the quotes table: from state to a device context, changing nothing.
class QuotesPainter {
public:
    /// All three outlive the painter.
    QuotesPainter(const QuoteBook& book, CellWidths& widths, DeskFonts& fonts);

    int rowHeight() const { return m_rowHeight; }
    /// The width that shows the whole text of a cell that is `textWidth` wide.
    int cellWidthFor(int textWidth) const;
    bool isCutOff(std::size_t instrument, const CellSpan& cell) const;

    void drawRow(CDC& dc, const CRect& rect, std::size_t instrument, const std::vector<CellSpan>& cells,
                 const RowLook& look) const;
    /// Says that there is nothing to show.
    void drawEmptyList(CDC& dc, const CRect& area) const;

private:
    void drawCell(CDC& dc, const CRect& rect, std::size_t instrument, QuoteColumn column, const RowLook& look) const;
    void drawText(CDC& dc, const CRect& rect, std::size_t instrument, QuoteColumn column, const RowLook& look) const;
    void drawCutOffText(CDC& dc, const CRect& area, const std::wstring& text, int top) const;
    void markPieces(CDC& dc, const CRect& area, const std::wstring& text, const std::wstring& phrase) const;
    void drawRange(CDC& dc, const CRect& rect, const Instrument& instrument) const;
    CRect textArea(const CRect& cell) const;

    const QuoteBook& m_book;
    CellWidths& m_widths;
    DeskFonts& m_fonts;
    int m_rowHeight;
    int m_padding;
    int m_ellipsisWidth;
    int m_dashWidth;
};

} // namespace Desk
