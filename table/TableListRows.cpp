// The rows of the body, with what the handler is asked and told while they change, and the scroll bar that follows.

#include "TableList.h"

#include <OrtinControls/ITableHandler.h>

void TableList::insertRow(std::uint64_t data, int row) {
    const int inserted = m_rows.insert(data, row);
    if (m_handler != nullptr) {
        m_rows.setHeight(inserted, m_handler->ComputeItemHeight(inserted));
        m_handler->SetFindMode(0);
    }
    m_scrollDirty = true;
    requestFullRedraw();
}

void TableList::insertRows(const std::vector<RowStore::Row>& rows, int row) {
    m_rows.insert(rows, row);
    if (m_handler != nullptr) {
        m_handler->SetFindMode(0);
    }
    m_scrollDirty = true;
    requestFullRedraw();
}

void TableList::removeRows(const std::vector<std::uint64_t>& list) {
    // The host may change the rows whenever it is told, but never the list.
    const std::uint64_t* next = list.data();
    const std::uint64_t* const end = next + list.size();
    while (next != end) {
        next = m_rows.removeUntilMissing(next, end);
        m_scrollDirty = true;
        if (next != end) {
            // A removal that finds its row leaves find mode and the back buffer alone: only one that finds none ends
            // both.
            if (m_handler != nullptr) {
                m_handler->SetFindMode(0);
            }
            requestFullRedraw();
            ++next;
        }
    }
}

void TableList::removeAllRows() {
    m_rows.clear();
    m_scrollDirty = true;
    if (m_handler != nullptr) {
        m_handler->SetFindMode(0);
    }
    requestFullRedraw();
}

void TableList::updateAllHeights() {
    for (int row = 0; m_handler != nullptr && row < m_rows.count(); ++row) {
        m_handler->UpdateItemPosition(row);
        m_rows.setHeight(row, m_handler->ComputeItemHeight(row));
    }
    m_scrollDirty = true;
}
