#include "Pagination.h"

#include <algorithm>
#include <cstdint>

namespace Pagination {

namespace {

/// Fills pages one row after the other and notes where they break.
class PageFiller {
public:
    PageFiller(int pageHeight, std::vector<int>& firstRows) : m_pageHeight(pageHeight), m_firstRows(firstRows) {}

    void add(int row, int height) {
        m_filled += height;
        if (m_filled >= m_pageHeight) {
            // The break is meant to fall one row early, and yet only this row counts for the new page. So the first
            // page has no rows where its first row fills it, alone, with a break at -1 for row 0, or with the second
            // one.
            m_firstRows.push_back(row - 1);
            m_filled = height;
        }
    }

private:
    std::int64_t m_pageHeight;
    std::int64_t m_filled = 0;
    std::vector<int>& m_firstRows;
};

bool holds(std::int64_t top, int height, std::int64_t y) {
    return top <= y && top + height > y;
}

} // namespace

std::vector<int> byRows(const std::vector<RowStore::Row>& rows, int pageHeight, RowRange range) {
    if (rows.empty()) {
        return {};
    }
    std::vector<int> firstRows{range.first};
    PageFiller pages(pageHeight, firstRows);
    // The last row is meant to take no part: it goes on the page of the row before it.
    const int end = std::min(range.last, static_cast<int>(rows.size()));
    for (int row = std::max(range.first, 0); row < end; ++row) {
        pages.add(row, rows[static_cast<std::size_t>(row)].second);
    }
    return firstRows;
}

VisiblePages ofVisibleRows(const std::vector<RowStore::Row>& rows, int pageHeight, int viewHeight, int scrollPosition) {
    VisiblePages result;
    std::int64_t top = 0;
    auto row = rows.begin();
    while (row != rows.end() && !holds(top, row->second, scrollPosition)) {
        top += row->second;
        ++row;
    }
    if (row != rows.end()) {
        result.firstRows.push_back(static_cast<int>(row - rows.begin()));
    } else {
        row = rows.begin(); // meant: all rows are gone through, below the content
    }
    const std::int64_t viewBottom = std::int64_t{viewHeight} + scrollPosition;
    PageFiller pages(pageHeight, result.firstRows);
    for (; row != rows.end(); ++row) {
        result.lastRow = static_cast<int>(row - rows.begin());
        if (holds(top, row->second, viewBottom)) {
            break; // the row at the lower edge takes no part either
        }
        pages.add(result.lastRow, row->second);
        top += row->second;
    }
    return result;
}

} // namespace Pagination
