// The rows of the body, with what the handler is asked and told while they change, and the scroll bar that follows.

#include "TableList.h"

#include <span>

#include <OrtinControls/ITableHandler.h>

void TableList::noteMovedRows() {
    m_scrollDirty = true;
    requestFullRedraw();
}

void TableList::insertRow(std::uint64_t data, int row) {
    const int inserted = m_rows.insert(data, row);
    noteMovedRows();
    if (m_handler != nullptr) {
        askHeight(inserted);
        m_handler->SetFindMode(0);
    }
    noteMovedRows();
}

void TableList::insertRows(const std::vector<RowStore::Row>& rows, int row) {
    m_rows.insert(rows, row);
    noteMovedRows();
    if (m_handler != nullptr) {
        m_handler->SetFindMode(0);
    }
    noteMovedRows();
}

void TableList::removeRows(const std::vector<std::uint64_t>& list) {
    // The list is the host's and may change while the host is told: only the index outlives a call.
    std::size_t next = 0;
    while (next < list.size()) {
        const auto [removed, missing] = m_rows.removeUntilMissing(std::span(list).subspan(next));
        next += removed;
        if (removed > 0) {
            m_scrollDirty = true;
        }
        // A removal that finds its row leaves find mode and the back buffer alone: only one that finds none ends both.
        const std::uint64_t revision = m_rows.revision();
        for (std::size_t told = 0; told < missing && m_rows.revision() == revision; ++told) {
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
    noteMovedRows();
    if (m_handler != nullptr) {
        m_handler->SetFindMode(0);
    }
    noteMovedRows();
}

void TableList::updateAllHeights() {
    m_scrollDirty = true; // and again at the end: the host may throw, or paint, in between
    for (int row = 0; m_handler != nullptr && row < m_rows.count(); ++row) {
        m_handler->UpdateItemPosition(row);
        askHeight(row);
    }
    m_scrollDirty = true;
}

std::vector<int> TableList::pagesOfRows(int pageHeight, Pagination::RowRange range) const {
    return Pagination::byRows(m_rows.rows(), pageHeight, range);
}

Pagination::VisiblePages TableList::pagesOfVisibleRows(int pageHeight) const {
    return Pagination::ofVisibleRows(m_rows.rows(), pageHeight, clientHeight(), effectiveScrollPos());
}

void TableList::askHeight(int row) {
    const std::uint64_t data = m_rows.data(row);
    const int height = m_handler->ComputeItemHeight(row);
    if (m_rows.data(row) == data) { // else the host has changed the rows, and the answer is for one that went elsewhere
        m_rows.setHeight(row, height);
    }
}
