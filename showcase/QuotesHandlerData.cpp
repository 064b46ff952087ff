// The half of the handler that is about content: search, clipboard, order and ticks.
#include "QuotesHandler.h"

#include <OrtinControls/ITableView.h>
#include <OrtinFoundation/Clipboard.h>

#include <algorithm>

#include "core/KnownFirstSort.h"
#include "core/TabSeparatedText.h"

namespace Desk {

namespace {

constexpr std::array FlashingColumns{QuoteColumn::Price};

} // namespace

// Search

void QuotesHandler::SetFindMode(int mode) {
    const bool wasActive = m_find.isActive();
    m_find.setActive(mode != 0);
    if (m_find.isActive() == wasActive)
        return;
    repaintAll();
    m_events.onFindChanged();
}

int QuotesHandler::SearchPhrase(const wchar_t* phrase, int) {
    search(phrase ? phrase : L"");
    repaintAll();
    m_events.onFindChanged();
    return m_find.count();
}

int QuotesHandler::SearchNextPrev(int direction) {
    const int caret = m_selection.caret();
    const std::optional<int> row = direction < 0 ? m_find.previousBefore(caret) : m_find.nextAfter(caret);
    return showFoundRow(row) ? *row : -1;
}

bool QuotesHandler::SelectCurrentFound() {
    return showFoundRow(m_find.firstFrom(m_selection.caret()));
}

bool QuotesHandler::showFoundRow(std::optional<int> row) {
    if (!row)
        return false;
    m_find.setActive(true);
    m_view->Select(m_view->GetItemData(*row), TRUE, FALSE);
    repaintAll();
    m_events.onFindChanged();
    return true;
}

void QuotesHandler::search(const std::wstring& phrase) {
    std::vector<QuoteColumn> columns = visibleColumns();
    std::erase_if(columns, [](QuoteColumn column) { return !infoOf(column).holdsWords; });
    m_find.search(phrase, m_view->GetItemCount(), [&](int row) {
        const std::size_t instrument = instrumentAt(row);
        return std::any_of(columns.begin(), columns.end(),
                           [&](QuoteColumn column) { return containsPhrase(m_book.text(instrument, column), phrase); });
    });
}

void QuotesHandler::searchAgain() {
    const bool wasActive = m_find.isActive();
    search(std::wstring(m_find.phrase()));
    m_find.setActive(wasActive);
    m_events.onFindChanged();
}

// Clipboard

bool QuotesHandler::CopySelectionToClipboard(bool onlyCaretColumn) {
    const std::vector<QuoteColumn> columns =
        onlyCaretColumn ? std::vector{columnOf(m_selectedColumnId)} : visibleColumns();
    TabSeparatedText table;
    for (const std::size_t instrument : selectedInstruments()) {
        for (const QuoteColumn column : columns)
            table.addCell(m_book.text(instrument, column));
        table.endRow();
    }
    return !table.text().empty() && OrtinTools::Clipboard::SetClipboardString(m_list->GetSafeHwnd(), table.text());
}

// Order

bool QuotesHandler::SortColumnAvailable(int) const {
    return true;
}

void QuotesHandler::OnSortByColumn(int column) {
    const int id = m_view->GetColumnId(column);
    m_view->UpdateSortDirection(id != m_sortedColumnId || !m_view->IsSortAsc());
    m_sortedColumnId = id;
    m_view->SetSortRowColumnId(0, id);

    // The table takes the caret along with its instrument, and that alone.
    const std::vector<std::size_t> selected = selectedInstruments();
    m_view->Sort();
    std::vector<int> rows;
    rows.reserve(selected.size());
    for (const std::size_t instrument : selected)
        rows.push_back(m_rows[instrument]);
    m_selection.selectRows(std::move(rows), m_selection.caret());
    selectionChanged();
    m_view->SetCarretIndex(m_selection.caret());
}

std::vector<std::pair<unsigned __int64, int>> QuotesHandler::SortElements(bool descending) {
    std::vector<std::size_t> order(m_book.size());
    for (int row = 0; row < m_view->GetItemCount(); ++row)
        order[static_cast<std::size_t>(row)] = instrumentAt(row);
    const QuoteColumn column = columnOf(std::max(m_sortedColumnId, 0));
    sortKnownFirst(
        order, descending, [&](std::size_t instrument) { return m_book.isKnown(instrument, column); },
        [&](std::size_t a, std::size_t b) { return m_book.isBefore(a, b, column); });

    std::vector<std::pair<unsigned __int64, int>> rows;
    rows.reserve(order.size());
    for (const std::size_t instrument : order)
        rows.emplace_back(dataOf(instrument), m_painter.rowHeight());
    return rows;
}

void QuotesHandler::OnElementsSorted() {
    noteRows();
    searchAgain();
}

// Ticks

void QuotesHandler::OnTableViewDataChanged() {
    const std::vector<Tick> ticks = m_ticks.take();
    const auto now = static_cast<std::int64_t>(::GetTickCount64());
    for (const Tick& tick : ticks) {
        const std::optional<double> before = m_book.at(tick.instrument).price;
        m_book.setPrice(tick.instrument, tick.price);
        m_widths.forget(tick.instrument, QuoteColumn::Price);
        m_flashes.strike(tick.instrument, !before || tick.price >= *before, now);
        repaintCells(tick.instrument, ColumnsOfPrice);
    }
    if (!ticks.empty())
        m_events.onTicked(ticks.back());
}

bool QuotesHandler::fadeFlashes(std::int64_t now) {
    for (const std::size_t instrument : m_flashes.advance(now))
        repaintCells(instrument, FlashingColumns);
    return !m_flashes.isQuiet();
}

} // namespace Desk
