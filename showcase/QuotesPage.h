#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include <afxwin.h>

#include "QuoteBook.h"
#include "QuotesPainter.h"
#include "core/SheetBands.h"

namespace Desk {

/// A row on paper.
struct PrintedRow {
    std::size_t instrument = 0;
    int height = 0; ///< pixels of the table
};

/// What is to stand on one page. All in logical units of the page, which are pixels of the table.
struct PrintedPage {
    CRect sheet;
    /// The cells of each row, from the left edge of the rows; what reaches beyond `width` is cut off.
    std::vector<CellSpan> cells;
    int width = 0;
    std::vector<PrintedRow> rows;
    std::wstring title;
    std::wstring part; ///< what of the document is printed, at the right of the title
    std::wstring time; ///< when; empty if it does not matter
    int number = 0;
    int count = 0;
};

/// Draws pages of quotes on paper: title, header, rows and page number, black on white whatever the theme of the
/// screen. It measures on the device that it draws on, where letters are not as wide as on the screen.
class QuotesPage {
public:
    /// `book` outlives the object. `rowHeight` is that of the table.
    QuotesPage(const QuoteBook& book, int rowHeight);

    const SheetSizes& sizes() const { return m_sizes; }
    void draw(CDC& dc, const PrintedPage& page);

private:
    void drawTitle(CDC& dc, const PrintedPage& page, CRect area);
    void drawHeader(CDC& dc, const PrintedPage& page, const CRect& area);
    void drawRow(CDC& dc, const PrintedPage& page, const CRect& area, std::size_t instrument);
    void drawFooter(CDC& dc, const PrintedPage& page, CRect area);

    const QuoteBook& m_book;
    SheetSizes m_sizes;
    CFont m_titleFont;
    CFont m_boldFont;
    CFont m_textFont;
};

/// The cells for a page `width` wide: with `fit` all of them, wider or narrower in proportion, else as they are.
std::vector<CellSpan> cellsOnPaper(std::vector<CellSpan> cells, int width, bool fit);

} // namespace Desk
