#include "core/SheetBands.h"

#include <gtest/gtest.h>

#include <random>

#include "Pagination.h"

using namespace Desk;

namespace {

constexpr SheetSizes Sizes{10, 34, 26, 24, 20};

} // namespace

TEST(SheetBands, LieFromTheTopToTheBottomWithoutGaps) {
    const SheetBands bands = layOutSheet(Sizes, 100, 1100);
    EXPECT_EQ(bands.title, (SheetBand{110, 144}));
    EXPECT_EQ(bands.header, (SheetBand{144, 170}));
    EXPECT_EQ(bands.rows, (SheetBand{170, 1066}));
    EXPECT_EQ(bands.footer, (SheetBand{1066, 1090}));
}

TEST(SheetBands, RowsBeginBelowTheUpperMargin) {
    EXPECT_EQ(layOutSheet(Sizes, 0, 1000).rows.top, marginAboveRows(Sizes));
}

TEST(SheetBands, TheRowsOfNoPageReachTheFooter) {
    std::mt19937 random(5);
    const auto upTo = [&](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)) + 1; };
    for (int round = 0; round < 20000; ++round) {
        SheetSizes sizes = Sizes;
        sizes.row = upTo(40);
        const int sheet = marginAboveRows(sizes) + marginBelowRows(sizes) + 2 * sizes.row + upTo(2000);
        const int rowsHeight = sheet - marginAboveRows(sizes) - marginBelowRows(sizes);
        std::vector<RowStore::Row> rows(static_cast<std::size_t>(upTo(600)), {1, sizes.row});
        const int last = static_cast<int>(rows.size()) - 1;
        const std::vector<int> firstRows = Pagination::byRows(rows, rowsHeight, {0, last});
        const SheetBands bands = layOutSheet(sizes, 0, sheet);
        for (std::size_t page = 0; page < firstRows.size(); ++page) {
            const int end = page + 1 < firstRows.size() ? firstRows[page + 1] : last + 1;
            ASSERT_LE(bands.rows.top + (end - firstRows[page]) * sizes.row, bands.footer.top)
                << "page " << page + 1 << " of " << rows.size() << " rows " << sizes.row << " high";
        }
    }
}
