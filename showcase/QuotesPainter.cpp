#include "QuotesPainter.h"

#include <algorithm>
#include <cmath>

#include "DeskColors.h"
#include "ScopedSelection.h"
#include "core/PolishFormat.h"
#include "core/PriceFlashes.h"

namespace Desk {

namespace {

constexpr int RowMargin = 4;
constexpr int CellPadding = 7;
constexpr int RangeBarHeight = 4;
constexpr int RangeMarkerWidth = 3;
constexpr int RangeMarkerHeight = 12;
constexpr double StrongestFlash = 0.6;
const std::wstring Ellipsis = L"…";

void outText(CDC& dc, int x, int y, const CRect& clip, const wchar_t* text, std::size_t length) {
    dc.ExtTextOut(x, y, ETO_CLIPPED, &clip, text, static_cast<UINT>(length), nullptr);
}

/// How many characters of the text fit into the width.
int fittingCharacters(CDC& dc, const std::wstring& text, int width) {
    int count = 0;
    SIZE size{};
    ::GetTextExtentExPointW(dc, text.c_str(), static_cast<int>(text.size()), std::max(width, 0), &count, nullptr,
                            &size);
    return count;
}

} // namespace

QuotesPainter::QuotesPainter(const QuoteBook& book, CellWidths& widths, DeskFonts& fonts)
    : m_book(book),
      m_widths(widths),
      m_fonts(fonts),
      m_rowHeight(fonts.lineHeight() + 2 * scaled(RowMargin)),
      m_padding(scaled(CellPadding)),
      m_ellipsisWidth(fonts.widthOf(Ellipsis)),
      m_dashWidth(fonts.widthOf(Dash)) {}

int QuotesPainter::cellWidthFor(int textWidth) const {
    return textWidth + 2 * m_padding;
}

bool QuotesPainter::isCutOff(std::size_t instrument, const CellSpan& cell) const {
    return cellWidthFor(m_widths.of(instrument, cell.column)) > cell.right - cell.left;
}

void QuotesPainter::drawRow(CDC& dc, const CRect& rect, std::size_t instrument, const std::vector<CellSpan>& cells,
                            const RowLook& look) const {
    COLORREF background = look.isOther ? Colors::otherRowBackground() : Colors::rowBackground();
    if (look.isSelected)
        background = Colors::selectedRow();
    dc.FillSolidRect(&rect, background);

    const ScopedSelection font(dc, m_fonts.text());
    dc.SetBkMode(TRANSPARENT);
    for (const CellSpan& cell : cells) {
        const CRect cellRect(cell.left, rect.top, cell.right, rect.bottom);
        if (cell.column == QuoteColumn::Price && look.flash != 0) {
            const double share = StrongestFlash * std::abs(look.flash) / PriceFlashes::Steps;
            dc.FillSolidRect(&cellRect,
                             Colors::blend(background, look.flash > 0 ? Colors::risen() : Colors::fallen(), share));
            dc.SetBkMode(TRANSPARENT);
        }
        drawCell(dc, cellRect, instrument, cell.column, look);
    }
}

void QuotesPainter::drawEmptyList(CDC& dc, const CRect& area) const {
    CRect rect = area;
    const ScopedSelection font(dc, m_fonts.text());
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::mutedText());
    dc.DrawText(L"Brak instrumentów", -1, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

void QuotesPainter::drawCell(CDC& dc, const CRect& rect, std::size_t instrument, QuoteColumn column,
                             const RowLook& look) const {
    if (column == QuoteColumn::Range52Weeks && placeInRange(m_book.at(instrument)))
        drawRange(dc, rect, m_book.at(instrument));
    else
        drawText(dc, rect, instrument, column, look);
}

CRect QuotesPainter::textArea(const CRect& cell) const {
    CRect area = cell;
    area.DeflateRect(m_padding, 0);
    area.right = std::max(area.left, area.right);
    return area;
}

void QuotesPainter::drawText(CDC& dc, const CRect& rect, std::size_t instrument, QuoteColumn column,
                             const RowLook& look) const {
    const CRect area = textArea(rect);
    const int top = rect.top + (rect.Height() - m_fonts.lineHeight()) / 2;
    const std::wstring& text = m_book.text(instrument, column);
    const bool alignsRight = infoOf(column).alignsRight;

    if (text.empty()) {
        dc.SetTextColor(Colors::mutedText());
        const int left = alignsRight ? area.right - m_dashWidth : area.left;
        outText(dc, left, top, area, Dash, std::size(Dash) - 1);
        return;
    }
    if (look.phrase && infoOf(column).holdsWords)
        markPieces(dc, area, text, *look.phrase);
    dc.SetTextColor(Colors::text());
    const int width = m_widths.of(instrument, column);
    if (width > area.Width())
        drawCutOffText(dc, area, text, top);
    else
        outText(dc, alignsRight ? area.right - width : area.left, top, area, text.c_str(), text.size());
}

void QuotesPainter::drawCutOffText(CDC& dc, const CRect& area, const std::wstring& text, int top) const {
    const int count = fittingCharacters(dc, text, area.Width() - m_ellipsisWidth);
    const std::wstring shortened = text.substr(0, static_cast<std::size_t>(count)) + Ellipsis;
    outText(dc, area.left, top, area, shortened.c_str(), shortened.size());
}

void QuotesPainter::markPieces(CDC& dc, const CRect& area, const std::wstring& text, const std::wstring& phrase) const {
    const std::vector<FoundPiece> pieces = findPieces(text, phrase);
    if (pieces.empty())
        return;
    // The i-th entry is where the character after the i-th begins.
    std::vector<int> ends(text.size());
    SIZE size{};
    ::GetTextExtentExPointW(dc, text.c_str(), static_cast<int>(text.size()), 0, nullptr, ends.data(), &size);
    const int height = m_fonts.lineHeight() + 2;
    const int top = area.top + (area.Height() - height) / 2;
    for (const FoundPiece& piece : pieces) {
        const int begin = piece.begin == 0 ? 0 : ends[piece.begin - 1];
        CRect mark(area.left + begin, top, area.left + ends[piece.begin + piece.length - 1], top + height);
        if (mark.IntersectRect(&mark, &area))
            dc.FillSolidRect(&mark, Colors::foundPiece());
    }
    dc.SetBkMode(TRANSPARENT);
}

void QuotesPainter::drawRange(CDC& dc, const CRect& rect, const Instrument& instrument) const {
    const CRect area = textArea(rect);
    const int markerWidth = scaled(RangeMarkerWidth);
    const int room = area.Width() - markerWidth;
    if (room <= 0)
        return;
    const double place = *placeInRange(instrument);
    const int middle = rect.top + rect.Height() / 2;
    const auto centred = [middle](int left, int right, int height) {
        return CRect(left, middle - height / 2, right, middle - height / 2 + height);
    };
    const int marker = area.left + static_cast<int>(std::lround(room * place));
    const CRect track = centred(area.left, area.right, scaled(RangeBarHeight));
    dc.FillSolidRect(&track, Colors::rangeTrack());
    const CRect reached = centred(area.left, marker, scaled(RangeBarHeight));
    dc.FillSolidRect(&reached, Colors::rangeReached());
    const CRect tick = centred(marker, marker + markerWidth, scaled(RangeMarkerHeight));
    dc.FillSolidRect(&tick, Colors::rangeMarker());
    dc.SetBkMode(TRANSPARENT);
}

} // namespace Desk
