// The half of the handler that is about paper.
#include "QuotesHandler.h"

#include <OrtinControls/ITableView.h>
#include <OrtinControls/PrintInfo.h>

#include <algorithm>

#include "core/PolishFormat.h"
#include "core/PrintRange.h"

namespace Desk {

bool QuotesHandler::DrawPrintRequestedItems(int firstRow, int lastRow, const CRect& rect, const PrintInfo& info,
                                            const std::vector<std::pair<unsigned __int64, int>>& rows, CDC& dc) {
    CRect client;
    m_list->GetClientRect(&client);
    PrintedPage page;
    page.sheet = info.PrintAreaInObjectUnits();
    page.width = rect.Width();
    page.cells = cellsOnPaper(cellsFor(client.right), page.width, info.FitToPageArea());
    // A page of a table whose rows are taller than the page may ask for rows that are not there.
    const int end = std::min(lastRow + 1, static_cast<int>(rows.size()));
    for (int row = std::max(firstRow, 0); row < end; ++row)
        page.rows.push_back({instrumentAt(row), rows[static_cast<std::size_t>(row)].second});
    page.title = Caption();
    page.part = partText(info.PrintOption());
    page.time = m_printTime;
    page.number = info.CurrentPage();
    page.count = info.m_pagesCount;
    m_page.draw(dc, page);
    if (onPageDrawn)
        onPageDrawn(page.number);
    return true;
}

std::wstring QuotesHandler::partText(EPrintOption option) const {
    switch (option) {
    case PrintOptionSelection:
        if (const auto rows = rowsOfSelection())
            return rowsText(rows->first + 1, rows->end) + L" z " + std::to_wstring(m_book.size());
        return {};
    case PrintOptionCustom:
        return L"widoczny obszar";
    default:
        return formatCount(static_cast<long long>(m_book.size()), L"instrument", L"instrumenty", L"instrumentów");
    }
}

std::optional<RowRange> QuotesHandler::rowsOfSelection() const {
    const std::vector<RowRange> ranges = m_selection.ranges();
    if (ranges.empty())
        return std::nullopt;
    return RowRange{ranges.front().first, ranges.back().end};
}

int QuotesHandler::GetSelectedItem() const {
    const auto rows = m_tellsEndsOfSelection ? rowsOfSelection() : std::nullopt;
    return rows ? rows->end - 1 : m_selection.caret();
}

int QuotesHandler::GetSelectedItemStart() const {
    const auto rows = m_tellsEndsOfSelection ? rowsOfSelection() : std::nullopt;
    return rows ? rows->first : m_selection.anchor();
}

} // namespace Desk
