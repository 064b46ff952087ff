// The rows of the body, with what the handler is asked and told while they change, and the scroll bar that follows.

#include "TableList.h"

#include <span>

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
    std::span<const std::uint64_t> rest(list);
    while (!rest.empty()) {
        rest = rest.subspan(m_rows.removeUntilMissing(rest));
        m_scrollDirty = true;
        if (!rest.empty()) {
            // A removal that finds its row leaves find mode and the back buffer alone: only one that finds none ends
            // both.
            if (m_handler != nullptr) {
                m_handler->SetFindMode(0);
            }
            requestFullRedraw();
            rest = rest.subspan(1);
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
