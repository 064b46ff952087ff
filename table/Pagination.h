#pragma once

#include <vector>

#include "RowStore.h"

/// Where the pages of a printed table begin. Heights are pixels of the table, and so is the height of a page; rows are
/// indexes. No windows.
namespace Pagination {

/// Both ends are printed. They need not be rows: only rows that exist take part.
struct RowRange {
    int first;
    int last;
};

/// The first row of each page for the rows of `range`; nothing without rows.
std::vector<int> byRows(const std::vector<RowStore::Row>& rows, int pageHeight, RowRange range);

struct VisiblePages {
    /// The first row of each page.
    std::vector<int> firstRows;
    /// The last row that is printed, -1 for none.
    int lastRow = -1;
};

/// The pages for the rows that a view of `viewHeight` pixels shows, scrolled down by `scrollPosition`: those that it
/// shows in part are printed too.
VisiblePages ofVisibleRows(const std::vector<RowStore::Row>& rows, int pageHeight, int viewHeight, int scrollPosition);

} // namespace Pagination
