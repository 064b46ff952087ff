// The rows of a table: the body holds them, the selection and the repaint that follow a change are decided here.

#include <OrtinControls/TableCtrl.h>

#include <algorithm>

#include "../graphics/Rounding.h"
#include "TableCtrlState.h"

int TableCtrl::GetItemCount() const {
    return m_state->list.rows().count();
}

unsigned __int64 TableCtrl::GetItemData(int row) const {
    return m_state->list.rows().data(row);
}

void TableCtrl::SetItemData(int row, unsigned __int64 data) {
    m_state->list.rows().setData(row, data);
}

int TableCtrl::GetItemHeight(unsigned __int64 index) const {
    const RowStore& rows = m_state->list.rows();
    return index < static_cast<unsigned __int64>(rows.count()) ? rows.height(static_cast<int>(index)) : 0;
}

bool TableCtrl::SetItemHeight(unsigned __int64 index, int height) {
    RowStore& rows = m_state->list.rows();
    return index < static_cast<unsigned __int64>(rows.count()) && rows.setHeight(static_cast<int>(index), height);
}

int TableCtrl::GetAllItemsHeight() const {
    return m_state->list.rows().totalHeight();
}

void TableCtrl::UpdateAllHeights() {
    m_state->list.updateAllHeights();
}

int TableCtrl::GetSelectedItem() const {
    return m_state->handler == nullptr ? -1 : m_state->handler->GetSelectedItem();
}

int TableCtrl::GetSelectedItemStart() const {
    return m_state->handler == nullptr ? -1 : m_state->handler->GetSelectedItemStart();
}

CPoint TableCtrl::GetSelectedPosition(int asId) {
    if (m_state->handler == nullptr) {
        return CPoint(0, 0);
    }
    CPoint position = m_state->handler->GetSelectedPosition();
    if (asId != 0 && position.x >= 0) {
        position.x = GetColumnId(position.x);
    }
    return position;
}

CPoint TableCtrl::GetSelectedPositionStart(int asId) {
    if (m_state->handler == nullptr) {
        return CPoint(0, 0);
    }
    CPoint position = m_state->handler->GetSelectedPositionStart();
    if (asId != 0) {
        position.x = GetColumnId(position.x); // a negative position becomes an id here, and only here
    }
    return position;
}

void TableCtrl::AddItem(unsigned __int64 data) {
    TableCtrl::InsertItem(data, -1);
}

void TableCtrl::InsertItem(unsigned __int64 data, int row) {
    const int selected = GetSelectedItem();
    m_state->list.insertRow(data, row);
    if (m_state->updating) {
        return;
    }
    if (selected == -1 && m_state->handler != nullptr) {
        m_state->handler->SetSelectedItem(0, true);
    }
    UpdateMinWidth();
    if (GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
}

void TableCtrl::InsertItems(const std::vector<std::pair<unsigned __int64, int>>& items, int row, int scrollDelta) {
    if (items.empty()) {
        return;
    }
    TableList& list = m_state->list;
    const int selected = GetSelectedItem();
    const int count = static_cast<int>(items.size());
    const int firstInserted = list.rows().contains(row) ? row : list.rows().count();
    list.insertRows(items, firstInserted);
    if (m_state->updating) {
        return;
    }
    if (scrollDelta > 0 && list.GetSafeHwnd() != nullptr) {
        const int position = list.GetScrollPos(SB_VERT);
        if (position > 0 && list.rows().totalHeight() > list.clientHeight()) {
            list.SetScrollPos(SB_VERT, saturateToInt(std::int64_t{position} + scrollDelta), TRUE);
        }
    }
    if (selected >= firstInserted && m_state->handler != nullptr) {
        m_state->handler->SetSelectedItem(selected + count, true);
    }
    UpdateMinWidth();
    if (GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
}

void TableCtrl::DeleteItem(unsigned __int64 data) {
    TableCtrl::DeleteItems({data});
}

void TableCtrl::DeleteItems(const std::vector<unsigned __int64>& items) {
    const int selected = GetSelectedItem();
    m_state->list.removeRows(items);
    if (m_state->updating) {
        return;
    }
    const int caretRow = std::min(GetItemCount() - 1, selected);
    if (m_state->handler != nullptr) {
        m_state->handler->SetSelectedItem(caretRow, true);
    }
    m_state->list.scrollIntoView(caretRow);
    InvalidateView(0);
}

void TableCtrl::DeleteAllItems() {
    m_state->list.removeAllRows();
    if (m_state->updating) {
        return;
    }
    if (m_state->handler != nullptr) {
        m_state->handler->SetSelectedItem(-1, true);
    }
    InvalidateView(0);
}

void TableCtrl::MoveElement(unsigned __int64 data, int row) {
    m_state->list.rows().move(data, row);
}

void TableCtrl::MoveElementAt(unsigned __int64 data, int row) {
    MoveElement(data, row);
    UpdateAllHeights();
}

void TableCtrl::Select(unsigned __int64 data, int ensureVisible, int extra) {
    for (int row = 0; row < GetItemCount(); ++row) {
        if (GetItemData(row) == data) {
            if (m_state->handler != nullptr) {
                m_state->handler->SetSelectedItem(row, extra != 0);
            }
            if (ensureVisible != 0) {
                m_state->list.scrollIntoView(row);
            }
            return;
        }
    }
}

void TableCtrl::SelectItem(int row, bool redraw) {
    if (m_state->handler != nullptr) {
        m_state->handler->SetSelectedItem(row, false);
    }
    m_state->list.scrollIntoView(row);
    if (redraw && m_state->list.GetSafeHwnd() != nullptr) {
        m_state->list.Invalidate(TRUE);
    }
}

void TableCtrl::SetCarretIndex(int row) {
    m_state->list.scrollIntoView(row);
}

void TableCtrl::InvalidateView(unsigned __int64 data) {
    if (data == 0 || m_state->list.isDrawn(data)) {
        m_state->list.markAndRefresh(data);
    }
}

int TableCtrl::ItemFromCursor(CPoint& cell) {
    TableList& list = m_state->list;
    if (list.GetSafeHwnd() == nullptr) {
        return -1;
    }
    CPoint point;
    ::GetCursorPos(&point);
    list.ScreenToClient(&point);
    const int y = list.contentY(point.y);
    const std::optional<RowSpan> span = list.rows().rowAt(y);
    if (!span) {
        return -1;
    }
    if (m_state->handler != nullptr) {
        cell = m_state->handler->GetCell(span->row, CPoint(point.x, y - span->top));
    }
    return span->row;
}

void TableCtrl::BeginUpdate() {
    m_state->updating = true;
    m_state->list.SetRedraw(FALSE);
}

void TableCtrl::FinishUpdate() {
    m_state->updating = false;
    m_state->list.SetRedraw(TRUE);
    UpdateMinWidth();
    if (GetSafeHwnd() != nullptr) {
        Invalidate(FALSE);
    }
}

void TableCtrl::Redraw() {
    if (m_state->updating || GetSafeHwnd() == nullptr) {
        return;
    }
    m_state->header.Invalidate(FALSE);
    m_state->list.repaintNow();
    if (m_state->list.GetSafeHwnd() != nullptr) {
        m_state->list.UpdateWindow();
    }
}

bool TableCtrl::IsVScrollVisible() const {
    CRect client;
    if (GetSafeHwnd() != nullptr) {
        GetClientRect(&client);
    }
    return m_state->list.rows().totalHeight() > client.Height();
}

bool TableCtrl::ShowScrollbar() const {
    return m_state->list.showScrollbar;
}

void TableCtrl::ShowScrollbar(bool show) {
    TableList& list = m_state->list;
    list.showScrollbar = show;
    list.markScrollDirty();
    list.updateScroll();
    if (list.GetSafeHwnd() == nullptr) {
        return;
    }
    // Only a change of the size makes the system calculate the non-client area again.
    CRect rect;
    list.GetWindowRect(&rect);
    ScreenToClient(&rect);
    list.MoveWindow(rect.left, rect.top, rect.Width() + 1, rect.Height(), TRUE);
    list.MoveWindow(rect.left, rect.top, rect.Width(), rect.Height(), TRUE);
}

void TableCtrl::UpdateVScroll() {
    m_state->list.updateScroll();
}

void TableCtrl::SetVScrollAlwaysVisible() {
    m_state->list.vScrollAlwaysVisible = true;
}

void TableCtrl::KeepVScrollToBottomSide() {
    m_state->list.bottomKeeper.enabled = true;
}

void TableCtrl::SetVScrollMaxPos() {
    TableList& list = m_state->list;
    list.updateScroll();
    if (list.GetSafeHwnd() != nullptr) {
        list.scrollTo(list.rangeMaximum());
    }
}

void TableCtrl::SetVScrollMinPos() {
    if (m_state->list.GetSafeHwnd() != nullptr) {
        m_state->list.scrollTo(0);
    }
}
