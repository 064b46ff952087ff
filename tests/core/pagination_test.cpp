#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "Pagination.h"

namespace {

using Rows = std::vector<RowStore::Row>;

Rows rowsOf(const std::vector<int>& heights) {
    Rows rows;
    for (const int height : heights) {
        rows.emplace_back(rows.size() + 1, height);
    }
    return rows;
}

std::string text(const std::vector<int>& firstRows) {
    std::ostringstream out;
    for (const int row : firstRows) {
        out << row << ' ';
    }
    return out.str();
}

/// "0 3 | 5": the first rows and the last row.
std::string visible(const std::vector<int>& heights, int pageHeight, int viewHeight, int scrollPosition) {
    const Pagination::VisiblePages pages =
        Pagination::ofVisibleRows(rowsOf(heights), pageHeight, viewHeight, scrollPosition);
    return text(pages.firstRows) + "| " + std::to_string(pages.lastRow);
}

struct ByRows {
    const char* what;
    std::vector<int> heights;
    int pageHeight;
    Pagination::RowRange range;
    std::string firstRows;
};

constexpr int kMost = std::numeric_limits<int>::max();

const ByRows kByRows[] = {
    {"no rows, no pages", {}, 100, {0, -1}, ""},
    {"no rows, whatever the range", {}, 100, {2, 7}, ""},
    {"one row, one page", {10}, 100, {0, 0}, "0 "},
    {"a range in one row", {10, 10, 10}, 5, {1, 1}, "1 "},
    {"a reversed range is its first row", {10, 10, 10}, 5, {2, 0}, "2 "},
    {"all rows fit", {10, 10, 10, 10}, 100, {0, 3}, "0 "},
    {"the break falls one row early and the last row takes no part", {10, 10, 10, 10}, 25, {0, 3}, "0 1 "},
    {"rows that just fill the page break it", {10, 10, 10, 10}, 20, {0, 3}, "0 0 1 "},
    {"only the breaking row counts for the new page", {10, 10, 10, 10, 10, 10}, 25, {0, 5}, "0 1 3 "},
    {"a first row taller than the page breaks before itself", {30, 10, 10}, 25, {0, 2}, "0 -1 0 "},
    {"a range that begins with a tall row breaks before itself", {10, 30, 5, 5}, 25, {1, 3}, "1 0 1 "},
    {"a tall row in the middle breaks before it", {10, 30, 5, 5}, 25, {0, 3}, "0 0 1 "},
    {"a tall last row is on the page before it", {10, 100}, 25, {0, 1}, "0 "},
    {"rows that fill a page each repeat values", {25, 25, 25}, 25, {0, 2}, "0 -1 0 "},
    {"rows without height fill nothing", {0, 0, 0, 0}, 1, {0, 3}, "0 "},
    {"a page without height breaks at each row", {10, 10, 10}, 0, {0, 2}, "0 -1 0 "},
    {"a page that the margins have eaten breaks at each row", {10, 10, 10}, -50, {0, 2}, "0 -1 0 "},
    {"a range past the last row ends with it", {10, 10}, 15, {0, kMost}, "0 0 "},
    {"a range before the first row begins with it", {10, 10}, 5, {-7, 1}, "-7 -1 "},
    {"a range outside the rows", {10, 10}, 0, {5, 9}, "5 "},
    {"sums past the range of int", {kMost, kMost, kMost, 1}, kMost, {0, 3}, "0 -1 0 1 "},
};

} // namespace

TEST(PaginationByRows, FindsTheFirstRowsOfThePages) {
    for (const ByRows& one : kByRows) {
        EXPECT_EQ(one.firstRows, text(Pagination::byRows(rowsOf(one.heights), one.pageHeight, one.range))) << one.what;
    }
}

TEST(PaginationOfVisibleRows, IsOnePageFromTheFirstRowToTheLastWhereAllFit) {
    EXPECT_EQ("0 | 2", visible({10, 10, 10}, 100, 50, 0));
}

TEST(PaginationOfVisibleRows, PrintsTheRowAtTheLowerEdgeOfTheView) {
    EXPECT_EQ("0 | 2", visible({10, 10, 10, 10}, 100, 25, 0));
    EXPECT_EQ("0 | 2", visible({10, 10, 10, 10}, 100, 20, 0)); // a row that begins at the edge counts as in the view
    EXPECT_EQ("0 | 1", visible({10, 10, 10, 10}, 100, 19, 0));
}

TEST(PaginationOfVisibleRows, PrintsTheRowAtTheUpperEdgeOfTheView) {
    EXPECT_EQ("1 | 3", visible({10, 10, 10, 10, 10}, 100, 20, 15));
    EXPECT_EQ("2 | 4", visible({10, 10, 10, 10, 10}, 100, 20, 20));
}

TEST(PaginationOfVisibleRows, BreaksPagesOneRowEarlyToo) {
    EXPECT_EQ("0 1 3 | 5", visible({10, 10, 10, 10, 10, 10}, 25, 55, 0));
    EXPECT_EQ("1 0 1 | 3", visible({10, 40, 40, 40}, 25, 100, 10));
}

TEST(PaginationOfVisibleRows, IsNothingForAnEmptyTable) {
    EXPECT_EQ("| -1", visible({}, 100, 50, 0));
    EXPECT_EQ("| -1", visible({}, 0, 50, 10));
}

TEST(PaginationOfVisibleRows, OfAViewBelowTheContentAppendsNoFirstRow) {
    EXPECT_EQ("| 2", visible({10, 10, 10}, 100, 50, 30));
    EXPECT_EQ("1 | 2", visible({10, 10, 10}, 25, 50, 30)) << "but the rows are gone through all the same";
}

TEST(PaginationOfVisibleRows, SkipsRowsWithoutHeight) {
    EXPECT_EQ("1 | 1", visible({0, 10, 0, 10}, 100, 5, 0));
}

TEST(PaginationOfVisibleRows, HoldsAtTheEndsOfInt) {
    EXPECT_EQ("1 0 | 2", visible({kMost, kMost, kMost}, kMost, kMost, kMost));
}
