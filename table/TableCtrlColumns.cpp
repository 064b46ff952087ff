// The columns of a table: the arithmetic is the model's, the windows and the host are told here.

#include <OrtinControls/TableCtrl.h>

#include <algorithm>
#include <string>

#include "../graphics/Rounding.h"
#include "TableCtrlState.h"
#include "TableMessages.h"

namespace {

struct Widths {
    int client = 0;
    int window = 0;
};

Widths widthsOf(const CWnd& window) {
    if (window.GetSafeHwnd() == nullptr) {
        return {};
    }
    CRect client;
    CRect whole;
    window.GetClientRect(&client);
    window.GetWindowRect(&whole);
    return {client.Width(), whole.Width()};
}

} // namespace

int TableCtrl::GetColumnWidth(int id) const {
    return m_state->columns.GetColumnWidth(id);
}

bool TableCtrl::GetColumnVisibility(int id) const {
    return m_state->columns.GetColumnVisibility(id);
}

double TableCtrl::GetColumnRealWidth(int id) const {
    return m_state->columns.GetColumnRealWidth(id);
}

int TableCtrl::GetColumnCount() const {
    return m_state->columns.GetColumnCount();
}

int TableCtrl::GetVisibleColumnCount() const {
    return m_state->columns.GetVisibleColumnCount();
}

double TableCtrl::GetTableRealWidth() const {
    return m_state->columns.totalRealWidth() + (IsVScrollVisible() ? ::GetSystemMetrics(SM_CXVSCROLL) : 0);
}

void TableCtrl::refreshOrderIfDirty() const {
    if (m_state->columns.orderIsDirty()) {
        m_state->columns.UpdateOrderArray(m_state->header);
    }
}

void TableCtrl::UpdateOrderArray() {
    m_state->columns.UpdateOrderArray(m_state->header);
}

int TableCtrl::GetColumnId(int position) const {
    refreshOrderIfDirty();
    return m_state->columns.GetColumnId(position);
}

int TableCtrl::GetColumnIdxFromId(int id) const {
    refreshOrderIfDirty();
    return m_state->columns.GetColumnIdxFromId(id);
}

void TableCtrl::LockColumns(bool lock) {
    m_state->columns.columnsLocked = lock;
}

bool TableCtrl::AreColumnsLocked() const {
    return m_state->columns.columnsLocked;
}

void TableCtrl::SetColumnHeader(int id, std::wstring_view text) {
    m_state->header.setItemText(id, std::wstring(text).c_str());
}

void TableCtrl::SetColumns(const std::vector<std::pair<std::wstring, double>>& columns) {
    TableHeaderCtrl& header = m_state->header;
    while (header.itemCount() > 0 && header.DeleteItem(0)) {
    }
    m_state->columns.clear();
    int id = 0;
    for (const auto& [title, width] : columns) {
        // A column declared hidden gives the header its negative width as it stands.
        header.insertItem(id, title.c_str(), truncateToInt(width));
        m_state->columns.append(std::fabs(width), width > 0.0);
        ++id;
    }
    UpdateOrderArray();
}

int TableCtrl::AddColumn(const wchar_t* title, ITableView::EColumnAddType type) {
    TableHeaderCtrl& header = m_state->header;
    ColumnModel& columns = m_state->columns;
    const int index = header.itemCount();
    const double width = columns.widthOfNewColumn();
    header.insertItem(index, title, truncateToInt(width));
    columns.append(width, true);
    UpdateOrderArray(); // the host is asked next, and may look at the columns or leave by an exception

    std::optional<int> selected;
    if ((type == AddAfterSelected || type == AddAtSelected) && m_state->handler != nullptr) {
        selected = m_state->handler->GetSelectedPosition().x;
    }
    std::vector<int> order = header.itemOrder();
    std::optional<int> position;
    if (!order.empty()) {
        const int added = order.back();
        order.pop_back();
        const int last = static_cast<int>(order.size());
        switch (type) {
        case AddAfterSelected:
            position = selected ? std::optional(std::clamp(*selected, -1, last - 1) + 1) : std::nullopt;
            break;
        case AddAtSelected:
            position = selected ? std::optional(std::clamp(*selected, 0, last)) : std::nullopt;
            break;
        case AddAtEnd:
            position = last;
            break;
        case AddAtFront:
            position = 0;
            break;
        }
        // Without a position the order is a column short, and the header keeps the one it has.
        if (position) {
            order.insert(order.begin() + *position, added);
        }
        header.setItemOrder(order);
    }
    addedOrRemovedColumns();
    if (index == 0 && m_state->list.GetSafeHwnd() != nullptr) {
        UpdateHeaderPos();
        UpdateListPos();
    }
    return position.value_or(0);
}

void TableCtrl::addedOrRemovedColumns() {
    UpdateOrderArray();
    if (AreColumnsLocked()) {
        OnColumnsWidthChanged(-1, 0);
    }
    UpdateColumnWidths(-1, 0);
}

void TableCtrl::RemoveColumn(unsigned int id) {
    if (id >= static_cast<unsigned int>(GetColumnCount())) {
        return;
    }
    m_state->header.DeleteItem(static_cast<int>(id));
    m_state->columns.erase(static_cast<int>(id));
    addedOrRemovedColumns();
    if (m_state->handler != nullptr) {
        const int x = m_state->handler->GetSelectedPosition().x;
        m_state->handler->SelectPosition(x > 0 ? x - 1 : x, -1);
    }
    InvalidateView(0);
}

void TableCtrl::ShowColumn(int id, bool show) {
    if (id < 0 || id >= GetColumnCount()) {
        return;
    }
    {
        const TableHeaderCtrl::NoPaint guard(m_state->header);
        if (GetColumnVisibility(id) != show) {
            m_state->header.setItemWidth(id, show ? truncateToInt(GetColumnRealWidth(id)) : 0);
            m_state->columns.setVisible(id, show);
        }
    }
    UpdateOrderArray();
    if (AreColumnsLocked()) {
        OnColumnsWidthChanged(-1, 0);
    } else {
        UpdateColumnWidths(-1, 0);
    }
    keepSelectionOffHiddenColumns();
}

void TableCtrl::keepSelectionOffHiddenColumns() {
    if (m_state->handler == nullptr) {
        return;
    }
    const CPoint selected = GetSelectedPosition(0);
    if (selected.x < 0) {
        return;
    }
    int x = selected.x;
    const auto onHiddenColumn = [this] { return GetColumnWidth(GetSelectedPosition(1).x) == 0; };
    while (onHiddenColumn() && x < GetColumnCount() - 1) {
        ++x;
        m_state->handler->SelectPosition(x, selected.y);
    }
    while (onHiddenColumn() && x >= 1) {
        --x;
        m_state->handler->SelectPosition(x, selected.y);
    }
}

void TableCtrl::SetColumnWidth(int id, int width, bool redraw) {
    if (AreColumnsLocked()) {
        if (!m_state->header.itemWidth(id)) {
            return;
        }
        m_state->columns.setWidth(id, width, m_state->header);
    } else {
        UpdateColumnWidths(id, width);
    }
    if (redraw) {
        Redraw();
    }
}

void TableCtrl::UpdateColumns(const std::deque<double>& widths) {
    m_state->columns.restore(widths, m_state->header);
    if (AreColumnsLocked()) {
        OnColumnsWidthChanged(-1, 0);
    }
    if (m_state->handler != nullptr) {
        m_state->handler->OnColumnWidthChanged();
    }
}

void TableCtrl::UpdateColumns() {
    UpdateHeaderPos();
    if (!AreColumnsLocked()) {
        UpdateColumnWidths(-1, 0);
    } else if (!m_state->columns.widthChangedByUser) {
        OnResizeInLockedColumnsMode();
    }
}

bool TableCtrl::UpdateColumnWidths(int id, int width) {
    const TableHeaderCtrl::NoPaint guard(m_state->header);
    if (!m_state->columns.UpdateColumnWidths(id, width, widthsOf(m_state->list).window, m_state->header)) {
        return false;
    }
    m_state->list.requestFullRedraw();
    return true;
}

bool TableCtrl::OnColumnsWidthChanged(int id, int width) {
    const TableHeaderCtrl::NoPaint guard(m_state->header);
    if (!m_state->columns.setLockedWidth(id, width, m_state->header)) {
        return false;
    }
    const int total = m_state->columns.visibleHeaderWidth(m_state->header);
    UpdateMinWidth();
    m_state->columns.widthChangedByUser = true;
    if (CWnd* const owner = GetSafeHwnd() == nullptr ? nullptr : GetCtrlOwner()) {
        owner->SendMessage(TableMessages::kContentWidthChanged, static_cast<WPARAM>(total), GetDlgCtrlID());
    }
    return true;
}

void TableCtrl::OnResizeInLockedColumnsMode() {
    if (m_state->columns.fitLastColumn(widthsOf(m_state->list).client, widthsOf(m_state->header).client,
                                       m_state->header)) {
        UpdateMinWidth();
    }
}

void TableCtrl::UpdateMinWidth() {
    const Widths body = widthsOf(m_state->list);
    m_state->columns.UpdateMinWidth(body.client, body.window);
}

int TableCtrl::GetMinWidth() {
    return AreColumnsLocked() ? m_state->columns.minWidth() : GetColumnCount() * kMinColumnWidth;
}

int TableCtrl::GetMinWidthVisibleColumns() {
    const int columns = AreColumnsLocked() ? m_state->columns.minWidth() : GetVisibleColumnCount() * kMinColumnWidth;
    return saturateToInt(std::int64_t{columns} + (IsVScrollVisible() ? ::GetSystemMetrics(SM_CXVSCROLL) : 0));
}

int TableCtrl::TrackColumnWidthChange(int id, int width, bool end) {
    const bool accepted = AreColumnsLocked() ? OnColumnsWidthChanged(id, width) : UpdateColumnWidths(id, width);
    // The host is told of a refused width as well.
    if (m_state->handler != nullptr) {
        m_state->handler->OnColumnWidthChanging(id, width);
        if (end) {
            m_state->handler->OnColumnWidthChanged();
        }
    }
    if (GetSafeHwnd() != nullptr) {
        m_state->header.Invalidate(FALSE);
        m_state->list.Invalidate(FALSE);
        m_state->list.UpdateWindow();
    }
    return accepted ? 0 : -1;
}

int TableCtrl::TrackColumnWidthChangeBorderDblClk(int id) {
    if (m_state->handler == nullptr) {
        return -1;
    }
    const int width = m_state->handler->GetOptimalColumnWidth(id);
    if (width == -1) {
        return 0;
    }
    const bool accepted = AreColumnsLocked() ? OnColumnsWidthChanged(id, width) : UpdateColumnWidths(id, width);
    m_state->handler->OnColumnWidthChanged();
    if (GetSafeHwnd() != nullptr) {
        m_state->list.Invalidate(FALSE);
        m_state->list.UpdateWindow();
    }
    return accepted ? 0 : -1;
}

LRESULT TableCtrl::OnTrackColumnWidth(WPARAM column, LPARAM width) {
    return TrackColumnWidthChange(static_cast<int>(column), static_cast<int>(width), false);
}

LRESULT TableCtrl::OnEndTrackColumnWidth(WPARAM, LPARAM) {
    return TrackColumnWidthChange(0, 0, true);
}

LRESULT TableCtrl::OnTrackColumnWidthBorderDblclk(WPARAM column, LPARAM) {
    return TrackColumnWidthChangeBorderDblClk(static_cast<int>(column));
}

void TableCtrl::OnHdnTrack(NMHDR* notification, LRESULT* result) {
    const auto* const header = reinterpret_cast<const NMHEADERW*>(notification);
    *result = header->pitem == nullptr ? 0 : TrackColumnWidthChange(header->iItem, header->pitem->cxy, false);
}

void TableCtrl::OnHdnEndtrack(NMHDR* notification, LRESULT* result) {
    const auto* const header = reinterpret_cast<const NMHEADERW*>(notification);
    *result = header->pitem == nullptr ? 0 : TrackColumnWidthChange(header->iItem, header->pitem->cxy, true);
    if (*result != 0) {
        m_state->header.keepItemWidth(header->iItem);
    }
}

void TableCtrl::OnHdnItemdblclick(NMHDR* notification, LRESULT* result) {
    *result = TrackColumnWidthChangeBorderDblClk(reinterpret_cast<const NMHEADERW*>(notification)->iItem);
}

void TableCtrl::ComputeNewOrderArrayOnMoveColumn(int from, int to, std::vector<int>& order) {
    order = m_state->header.itemOrder();
    const int count = static_cast<int>(order.size());
    if (from == to || from < 0 || to < 0 || from >= count || to >= count) {
        return;
    }
    const int moved = order[static_cast<std::size_t>(from)];
    order.erase(order.begin() + from);
    order.insert(order.begin() + to, moved);
}

LRESULT TableCtrl::OnCanMoveColumn(WPARAM from, LPARAM to) {
    std::vector<int> order;
    ComputeNewOrderArrayOnMoveColumn(static_cast<int>(from), static_cast<int>(to), order);
    return m_state->handler != nullptr && m_state->handler->IsColumnOrderPossible(order) ? 0 : -1;
}

LRESULT TableCtrl::OnMoveColumn(WPARAM from, LPARAM to) {
    if (m_state->handler == nullptr) {
        return 0;
    }
    m_state->handler->OnMoveColumn();
    std::vector<int> order;
    ComputeNewOrderArrayOnMoveColumn(static_cast<int>(from), static_cast<int>(to), order);
    if (m_state->handler->IsColumnOrderPossible(order)) {
        m_state->header.setItemOrder(order);
        UpdateOrderArray();
        UpdateColumnWidths(-1, 0);
        if (GetSafeHwnd() != nullptr) {
            m_state->header.Invalidate(FALSE);
            m_state->list.Invalidate(FALSE);
        }
    }
    return 0;
}

void TableCtrl::SwitchColumnOrder(int positionA, int positionB, int newSelectedColumn) {
    std::vector<int> order = m_state->header.itemOrder();
    const int count = static_cast<int>(order.size());
    if (positionA < 0 || positionB < 0 || positionA >= count || positionB >= count) {
        return;
    }
    std::swap(order[static_cast<std::size_t>(positionA)], order[static_cast<std::size_t>(positionB)]);
    m_state->header.setItemOrder(order);
    if (m_state->handler != nullptr) {
        try {
            m_state->handler->SelectPosition(newSelectedColumn, m_state->handler->GetSelectedPosition().y);
            InvalidateView(0);
        } catch (...) {
            UpdateOrderArray();
            throw;
        }
    }
    UpdateOrderArray();
    UpdateColumnWidths(-1, 0);
}
