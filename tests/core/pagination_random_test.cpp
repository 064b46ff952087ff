#include <gtest/gtest.h>

#include <random>

#include "Pagination.h"

namespace {

using Rows = std::vector<RowStore::Row>;

constexpr int kCases = 100'000;

int heightOf(const Rows& rows, int row) {
    return rows.at(static_cast<std::size_t>(row)).second;
}

int topOf(const Rows& rows, int row) {
    int top = 0;
    for (int before = 0; before < row; ++before) {
        top += heightOf(rows, before);
    }
    return top;
}

bool reaches(const Rows& rows, int row, int y) {
    return topOf(rows, row) <= y && topOf(rows, row) + heightOf(rows, row) > y;
}

/// The breaks for the rows from `first` on, before `end`, each found by summing anew from the break before.
void breakPages(const Rows& rows, int pageHeight, int first, int end, std::vector<int>& firstRows) {
    int counted = first;
    for (int row = first; row < end; ++row) {
        int sum = 0;
        for (int each = counted; each <= row; ++each) {
            sum += heightOf(rows, each);
        }
        if (sum >= pageHeight) {
            firstRows.push_back(row - 1);
            counted = row;
        }
    }
}

std::vector<int> slowByRows(const Rows& rows, int pageHeight, Pagination::RowRange range) {
    std::vector<int> firstRows;
    if (!rows.empty()) {
        firstRows.push_back(range.first);
        breakPages(rows, pageHeight, range.first, range.last, firstRows);
    }
    return firstRows;
}

Pagination::VisiblePages slowOfVisibleRows(const Rows& rows, int pageHeight, int viewHeight, int scrollPosition) {
    const int count = static_cast<int>(rows.size());
    Pagination::VisiblePages pages;
    int first = 0;
    while (first < count && !reaches(rows, first, scrollPosition)) {
        ++first;
    }
    int below = 0; // how far the view's content lies under the row where the walk begins
    if (first < count) {
        pages.firstRows.push_back(first);
    } else {
        below = topOf(rows, count);
        first = 0;
    }
    int last = first;
    while (last < count && !reaches(rows, last, viewHeight + scrollPosition - below)) {
        ++last;
    }
    breakPages(rows, pageHeight, first, last, pages.firstRows);
    pages.lastRow = last < count ? last : count - 1;
    if (pages.lastRow < first) {
        return {};
    }
    return pages;
}

} // namespace

TEST(Pagination, PutsEachRowOnOnePageThatIsTooLongByItsFirstAndLastRowAtMost) {
    std::mt19937 random(2027);
    const auto number = [&](int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); };
    for (int one = 0; one < kCases; ++one) {
        Rows rows;
        for (int row = number(1, 24); row > 0; --row) {
            rows.emplace_back(row, number(0, 40));
        }
        const int pageHeight = number(-5, 120);
        const int last = number(0, static_cast<int>(rows.size()) - 1);
        const int first = number(0, last);
        const std::vector<int> firstRows = Pagination::byRows(rows, pageHeight, {first, last});
        std::vector<int> printed;
        for (std::size_t page = 0; page < firstRows.size(); ++page) {
            const int lastOfPage = page + 1 < firstRows.size() ? firstRows[page + 1] - 1 : last;
            int inner = 0;
            for (int row = firstRows[page]; row <= lastOfPage; ++row) {
                printed.push_back(row);
                inner += row > firstRows[page] && row < lastOfPage ? heightOf(rows, row) : 0;
            }
            ASSERT_TRUE(inner < pageHeight || lastOfPage - firstRows[page] <= 2) << "case " << one;
        }
        std::vector<int> expected;
        const bool beginsEarly = firstRows.size() > 1 && firstRows[1] < first;
        for (int row = beginsEarly ? first - 1 : first; row <= last; ++row) {
            expected.push_back(row);
        }
        ASSERT_EQ(expected, printed) << "case " << one;
        ASSERT_EQ(first < last && heightOf(rows, first) >= pageHeight, beginsEarly) << "case " << one;
    }
}

TEST(Pagination, AgreesWithASlowReferenceOverRandomTables) {
    std::mt19937 random(2026);
    const auto number = [&](int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); };
    for (int one = 0; one < kCases; ++one) {
        const int tallest = number(0, 40);
        Rows rows;
        for (int row = number(0, 24); row > 0; --row) {
            rows.emplace_back(row, number(0, tallest));
        }
        const int count = static_cast<int>(rows.size());
        const int pageHeight = number(-5, 120);
        const int first = count == 0 ? 0 : number(0, count - 1);
        const int last = count == 0 ? -1 : number(0, count - 1);
        ASSERT_EQ(slowByRows(rows, pageHeight, {first, last}), Pagination::byRows(rows, pageHeight, {first, last}))
            << "case " << one;

        const int viewHeight = number(0, 200);
        const int scrollPosition = number(0, 300);
        const Pagination::VisiblePages expected = slowOfVisibleRows(rows, pageHeight, viewHeight, scrollPosition);
        const Pagination::VisiblePages actual = Pagination::ofVisibleRows(rows, pageHeight, viewHeight, scrollPosition);
        ASSERT_EQ(expected.firstRows, actual.firstRows) << "case " << one;
        ASSERT_EQ(expected.lastRow, actual.lastRow) << "case " << one;
    }
}
