#include "QuotesPage.h"

#include <algorithm>

#include "DeskFonts.h"
#include "ScopedSelection.h"
#include "core/PolishFormat.h"
#include "core/PrintRange.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int Edge = 10;
constexpr int TitleHeight = 34;
constexpr int HeaderHeight = 26;
constexpr int FooterHeight = 26;
constexpr int TitleLetters = 20;
constexpr int CellPadding = 5;

constexpr COLORREF Ink = RGB(0, 0, 0);
constexpr COLORREF HairLine = RGB(0xC4, 0xC4, 0xC4);

void write(CDC& dc, const std::wstring& text, CRect area, UINT alignment) {
    if (area.Width() > 0)
        dc.DrawText(text.c_str(), static_cast<int>(text.size()), &area,
                    alignment | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void rule(CDC& dc, const CRect& area, int y, int thickness, COLORREF color) {
    const CRect line(area.left, y - thickness, area.right, y);
    dc.FillSolidRect(&line, color);
    dc.SetBkMode(TRANSPARENT);
}

/// On the screen the range is a bar and its figures are a tip; paper has no tips, so it shows figures.
UINT alignmentOf(QuoteColumn column) {
    return infoOf(column).holdsWords ? DT_LEFT : DT_RIGHT;
}

/// Calls `draw` with each cell's column and the area of its text.
template <typename Draw>
void forEachCell(const PrintedPage& page, const CRect& area, const Draw& draw) {
    for (const CellSpan& cell : page.cells) {
        CRect text(area.left + cell.left, area.top, area.left + std::min(cell.right, page.width), area.bottom);
        text.right -= scaled(CellPadding);
        // A figure may need all of its cell, and words and title are apart from it already.
        if (infoOf(cell.column).holdsWords)
            text.left += scaled(CellPadding);
        draw(cell.column, text);
    }
}

} // namespace

QuotesPage::QuotesPage(const QuoteBook& book, int rowHeight)
    : m_book(book),
      m_sizes{scaled(Edge), scaled(TitleHeight), scaled(HeaderHeight), scaled(FooterHeight), rowHeight} {
    createDeskFont(m_titleFont, TitleLetters, FW_BOLD);
    createDeskFont(m_boldFont, DeskTextHeight, FW_BOLD);
    createDeskFont(m_textFont, DeskTextHeight, FW_NORMAL);
}

void QuotesPage::draw(CDC& dc, const PrintedPage& page) {
    const SheetBands bands = layOutSheet(m_sizes, page.sheet.top, page.sheet.bottom);
    const auto areaOf = [&](const SheetBand& band) {
        return CRect(page.sheet.left + m_sizes.edge, band.top, page.sheet.left + m_sizes.edge + page.width,
                     band.bottom);
    };
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Ink);
    drawTitle(dc, page, areaOf(bands.title));
    drawHeader(dc, page, areaOf(bands.header));
    CRect row = areaOf(bands.rows);
    for (const PrintedRow& printed : page.rows) {
        row.bottom = row.top + printed.height;
        drawRow(dc, page, row, printed.instrument);
        row.top = row.bottom;
    }
    drawFooter(dc, page, areaOf(bands.footer));
}

void QuotesPage::drawTitle(CDC& dc, const PrintedPage& page, CRect area) {
    area.DeflateRect(scaled(CellPadding), 0);
    {
        const ScopedSelection font(dc, m_titleFont);
        write(dc, page.title, area, DT_LEFT | DT_TOP);
        area.left += dc.GetTextExtent(page.title.c_str(), static_cast<int>(page.title.size())).cx + 2 * m_sizes.edge;
    }
    // Both texts end on the same line, the large one's foot.
    area.bottom = area.top + scaled(TitleLetters) + scaled(CellPadding);
    const ScopedSelection font(dc, m_textFont);
    write(dc, page.part, area, DT_RIGHT | DT_BOTTOM);
}

void QuotesPage::drawHeader(CDC& dc, const PrintedPage& page, const CRect& area) {
    const ScopedSelection font(dc, m_boldFont);
    forEachCell(page, area, [&](QuoteColumn column, const CRect& text) {
        write(dc, infoOf(column).title, text, alignmentOf(column) | DT_VCENTER);
    });
    rule(dc, area, area.bottom, std::max(1, scaled(1)), Ink);
}

void QuotesPage::drawRow(CDC& dc, const PrintedPage& page, const CRect& area, std::size_t instrument) {
    const ScopedSelection font(dc, m_textFont);
    forEachCell(page, area, [&](QuoteColumn column, const CRect& text) {
        const std::wstring& value = m_book.text(instrument, column);
        write(dc, value.empty() ? Dash : value, text, alignmentOf(column) | DT_VCENTER);
    });
    rule(dc, area, area.bottom, 1, HairLine);
}

void QuotesPage::drawFooter(CDC& dc, const PrintedPage& page, CRect area) {
    area.DeflateRect(scaled(CellPadding), 0);
    const ScopedSelection font(dc, m_textFont);
    write(dc, page.time, area, DT_LEFT | DT_BOTTOM);
    write(dc, pageOfText(page.number, page.count), area, DT_RIGHT | DT_BOTTOM);
}

std::vector<CellSpan> cellsOnPaper(std::vector<CellSpan> cells, int width, bool fit) {
    const int whole = cells.empty() ? 0 : cells.back().right;
    if (fit && whole > 0)
        for (CellSpan& cell : cells) {
            cell.left = ::MulDiv(cell.left, width, whole);
            cell.right = ::MulDiv(cell.right, width, whole);
        }
    std::erase_if(cells, [width](const CellSpan& cell) { return cell.left >= width; });
    return cells;
}

} // namespace Desk
