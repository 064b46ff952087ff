// Both sorts of a table: the host sorts by itself, or a header click sorts by the host's comparison.

#include <OrtinControls/TableCtrl.h>

#include <algorithm>

#include "TableCtrlState.h"
#include "TolerantSort.h"

namespace {

/// Sorts the first `count` rows, all if that is negative. The host is asked in the middle of it and may look at the
/// rows or even change them, so a copy is sorted; a change by the host outlives the sort.
void sortLeadingRows(RowStore& store, int count, const ITableHandler& handler, int column, bool descending) {
    std::vector<RowStore::Row> rows = store.rows();
    const auto end = count < 0 ? rows.end() : rows.begin() + std::min(count, store.count());
    const std::uint64_t revision = store.revision();
    TolerantSort::sort(rows.begin(), end, [&](const RowStore::Row& a, const RowStore::Row& b) {
        return handler.CompareElementsViaColumn(a.first, b.first, column) != descending;
    });
    if (store.revision() == revision) {
        store.replace(std::move(rows));
    }
}

} // namespace

void TableCtrl::EnableSortingOnColumnHeaderClick(bool enable) {
    m_state->sortOnHeaderClick = enable;
}

void TableCtrl::SortAsc() {
    m_state->sortDescending = false;
    Sort();
}

void TableCtrl::SortDesc() {
    m_state->sortDescending = true;
    Sort();
}

void TableCtrl::SortSwitch() {
    m_state->sortDescending = !m_state->sortDescending;
    Sort();
}

bool TableCtrl::IsSortAsc() const {
    return !m_state->sortDescending;
}

void TableCtrl::UpdateSortDirection(bool ascending) {
    m_state->sortDescending = !ascending;
}

void TableCtrl::SetSortRowColumnId(int row, int column) {
    m_state->sortRow = row;
    m_state->sortColumn = column;
}

void TableCtrl::Sort() {
    TableList& list = m_state->list;
    if (ITableHandler* const handler = m_state->handler) {
        const unsigned __int64 data = GetItemData(GetSelectedItem());
        list.rows().replace(handler->SortElements(m_state->sortDescending));
        handler->OnElementsSorted();
        UpdateAllHeights();
        Select(data, 0, 0);
        list.requestFullRedraw();
        if (list.GetSafeHwnd() != nullptr) {
            list.Invalidate(FALSE);
        }
    }
    m_state->header.showSortArrow(m_state->sortColumn, m_state->sortDescending, m_state->sortRow == 0);
}

void TableCtrl::OnHdnItemclick(NMHDR* notification, LRESULT* result) {
    *result = 0;
    ITableHandler* const handler = m_state->handler;
    const int id = reinterpret_cast<const NMHEADERW*>(notification)->iItem;
    // A press on an item that is released beside all items comes without one.
    if (handler == nullptr || id < 0 || id >= m_state->header.itemCount()) {
        return;
    }
    TableList& list = m_state->list;
    const int row = handler->GetSelectedPosition().y;
    const int position = GetColumnIdxFromId(id);
    handler->SelectPosition(position, row);
    if (m_state->sortOnHeaderClick) {
        const bool descending = m_state->headerSortDescending;
        const unsigned __int64 data = GetItemData(GetSelectedItem());
        sortLeadingRows(list.rows(), handler->ElementsToCompareCount(), *handler, position, descending);
        handler->OnElementsSorted();
        UpdateAllHeights();
        Select(data, 0, 1);
        if (list.GetSafeHwnd() != nullptr) {
            list.Invalidate(FALSE);
        }
        // The arrow goes by item and the comparison by position, so after a column move the arrow may stand elsewhere.
        m_state->header.showSortArrow(position, descending, true);
        m_state->headerSortDescending = !descending;
    } else if (handler->SortColumnAvailable(position)) {
        handler->OnSortByColumn(position);
    }
    if (list.GetSafeHwnd() != nullptr) {
        list.Invalidate(FALSE);
        list.UpdateWindow();
    }
}
