#include <gtest/gtest.h>

#include <limits>

#include "RowStore.h"

namespace {

using Row = RowStore::Row;
using Rows = std::vector<Row>;

class StoredRows : public testing::Test {
protected:
    void fill(const Rows& rows) { store.replace(rows); }

    std::vector<RowStore::Data> words() const {
        std::vector<RowStore::Data> data;
        for (const Row& row : store.rows()) {
            data.push_back(row.first);
        }
        return data;
    }

    using Words = std::vector<RowStore::Data>;
    /// Entries removed, entries missing behind them.
    using Gone = std::pair<std::size_t, std::size_t>;

    Gone remove(std::span<const RowStore::Data> list) {
        const RowStore::Removal removal = store.removeUntilMissing(list);
        return {removal.removed, removal.missing};
    }

    RowStore store;
};

} // namespace

TEST_F(StoredRows, ANewRowIsSixteenHighUntilItsHeightIsKnown) {
    EXPECT_EQ(0, store.insert(7, -1));
    EXPECT_EQ(16, store.height(0));
    EXPECT_EQ(16, store.totalHeight());
}

TEST_F(StoredRows, ARowIsPlacedBeforeTheGivenOneAndOtherwiseAtTheEnd) {
    struct Case {
        const char* what;
        int row;
        int placed;
    };
    const Case cases[] = {
        {"first", 0, 0},
        {"in the middle", 1, 1},
        {"minus one appends", -1, 3},
        {"just past the end", 3, 3},
        {"far past the end", 99, 3},
        {"far below", std::numeric_limits<int>::min(), 3},
    };
    for (const Case& c : cases) {
        fill({{1, 10}, {2, 10}, {3, 10}});
        EXPECT_EQ(c.placed, store.insert(9, c.row)) << c.what;
        EXPECT_EQ(9U, store.data(c.placed)) << c.what;
        EXPECT_EQ(4, store.count()) << c.what;
        EXPECT_EQ(46, store.totalHeight()) << c.what;
    }
}

TEST_F(StoredRows, ManyRowsAreInsertedTogetherWithTheirHeightsAsGiven) {
    fill({{1, 10}, {2, 10}});
    store.insert(Rows{{8, 5}, {9, 0}}, 1);
    EXPECT_EQ((Rows{{1, 10}, {8, 5}, {9, 0}, {2, 10}}), store.rows());
    EXPECT_EQ(25, store.totalHeight());
    store.insert(Rows{{10, 1}}, 99);
    EXPECT_EQ((Words{1, 8, 9, 2, 10}), words());
}

TEST_F(StoredRows, RemovingTakesTheFirstRowWithThatWord) {
    fill({{1, 10}, {2, 20}, {2, 30}, {3, 40}});
    EXPECT_TRUE(store.remove(2));
    EXPECT_EQ((Rows{{1, 10}, {2, 30}, {3, 40}}), store.rows());
    EXPECT_FALSE(store.remove(4));
    EXPECT_EQ(3, store.count());
    EXPECT_EQ(80, store.totalHeight());
}

TEST_F(StoredRows, MovingTakesTheRowOutFirstAndItsHeightWithIt) {
    fill({{1, 10}, {2, 20}, {3, 30}});
    store.move(1, 1);
    EXPECT_EQ((Rows{{2, 20}, {1, 0}, {3, 30}}), store.rows());
    store.move(2, 2);
    EXPECT_EQ((Rows{{1, 0}, {3, 30}, {2, 0}}), store.rows()) << "at the new count is past the end";
    store.move(2, 0);
    EXPECT_EQ((Words{2, 1, 3}), words());
    store.move(2, 99);
    EXPECT_EQ((Words{1, 3, 2}), words());
    store.move(4, 0);
    EXPECT_EQ((Words{1, 3, 2}), words());
    EXPECT_EQ(30, store.totalHeight());
}

TEST_F(StoredRows, OutOfRangeNothingIsReadAndNothingWritten) {
    fill({{1, 10}});
    for (const int row : {-1, 1, 99, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(0U, store.data(row));
        EXPECT_EQ(0, store.height(row));
        EXPECT_FALSE(store.setHeight(row, 5));
        store.setData(row, 5);
    }
    EXPECT_EQ((Rows{{1, 10}}), store.rows());
    EXPECT_TRUE(store.setHeight(0, 12));
    store.setData(0, 2);
    EXPECT_EQ((Rows{{2, 12}}), store.rows());
    EXPECT_EQ(12, store.totalHeight());
}

TEST_F(StoredRows, ARowHoldsItsTopAndNotItsBottom) {
    fill({{1, 10}, {2, 0}, {3, 5}});
    struct Case {
        int y;
        int row;
        int top;
    };
    const Case cases[] = {{0, 0, 0}, {9, 0, 0}, {10, 2, 10}, {14, 2, 10}};
    for (const Case& c : cases) {
        const std::optional<RowSpan> span = store.rowAt(c.y);
        ASSERT_TRUE(span) << c.y;
        EXPECT_EQ(c.row, span->row) << c.y;
        EXPECT_EQ(c.top, span->top) << c.y;
        EXPECT_EQ(c.top + store.height(c.row), span->bottom) << c.y;
    }
    EXPECT_FALSE(store.rowAt(-1));
    EXPECT_FALSE(store.rowAt(15));
}

TEST_F(StoredRows, TheSpanOfARowPastTheEndIsThatOfTheLast) {
    fill({{1, 10}, {2, 20}});
    const std::optional<RowSpan> span = store.spanOf(7);
    ASSERT_TRUE(span);
    EXPECT_EQ(1, span->row);
    EXPECT_EQ(10, span->top);
    EXPECT_EQ(30, span->bottom);
    EXPECT_FALSE(store.spanOf(-1));
    store.clear();
    EXPECT_FALSE(store.spanOf(0));
}

TEST_F(StoredRows, TheSumOfHugeHeightsSaturates) {
    constexpr int kMost = std::numeric_limits<int>::max();
    fill({{1, kMost}, {2, kMost}, {3, 7}});
    EXPECT_EQ(kMost, store.totalHeight());
    EXPECT_EQ(kMost, store.spanOf(2)->top);
    EXPECT_TRUE(store.remove(1));
    EXPECT_TRUE(store.remove(2));
    EXPECT_EQ(7, store.totalHeight());
}

TEST_F(StoredRows, RemovingAListStopsAtTheFirstWordWithoutARow) {
    fill({{1, 1}, {2, 2}, {3, 3}, {2, 4}});
    const Words list{2, 3, 9, 1, 2};
    EXPECT_EQ((Gone{2, 1}), remove(list));
    EXPECT_EQ((Words{1, 2}), words());
    EXPECT_EQ((Gone{2, 0}), remove(std::span(list).subspan(3)));
    EXPECT_EQ(0, store.count());
    EXPECT_EQ(0, store.totalHeight());
}

TEST_F(StoredRows, AWordListedMoreOftenThanItHasRowsIsMissingTheLastTime) {
    fill({{5, 1}, {5, 1}, {6, 1}});
    const Words list{5, 5, 5, 6};
    EXPECT_EQ((Gone{2, 1}), remove(list));
    EXPECT_EQ((Words{6}), words());
}

TEST_F(StoredRows, RemovingAListTellsHowManyWordsInARowAreMissing) {
    struct Case {
        const char* what;
        Words list;
        Gone gone;
        Words left;
    };
    const Case cases[] = {
        {"all of them", {7, 8, 9}, {0, 3}, {1, 2, 3}},
        {"those up to the next that is there", {1, 7, 8, 3, 9}, {1, 2}, {2, 3}},
        {"to the end of the list", {3, 1, 7, 7, 7}, {2, 3}, {2}},
        {"a word that was there once", {2, 2, 2, 1}, {1, 2}, {1, 3}},
        {"a single one", {9}, {0, 1}, {1, 2, 3}},
    };
    for (const Case& c : cases) {
        fill({{1, 1}, {2, 2}, {3, 3}});
        EXPECT_EQ(c.gone, remove(c.list)) << c.what;
        EXPECT_EQ(c.left, words()) << c.what;
    }
}

TEST_F(StoredRows, AListOfWhichNothingIsThereChangesNothing) {
    fill({{1, 1}});
    const std::uint64_t before = store.revision();
    EXPECT_EQ((Gone{0, 2}), remove(Words{8, 9}));
    EXPECT_EQ(before, store.revision());
}

TEST_F(StoredRows, RemovingAnEmptyListDoesNothing) {
    fill({{5, 1}});
    const Words list;
    EXPECT_EQ((Gone{0, 0}), remove(list));
    EXPECT_EQ(1, store.count());
}

TEST_F(StoredRows, EachChangeRaisesTheRevisionAndAReadDoesNot) {
    std::uint64_t last = store.revision();
    const auto changed = [&] { return std::exchange(last, store.revision()) != last; };
    const auto grew = [&] {
        const std::uint64_t before = std::exchange(last, store.revision());
        return last > before;
    };
    store.insert(1, -1);
    EXPECT_TRUE(grew());
    store.setHeight(0, 20);
    EXPECT_TRUE(grew());
    store.setData(0, 3);
    EXPECT_TRUE(grew());
    store.move(3, 0);
    EXPECT_TRUE(grew());
    store.insert(Rows{{4, 4}}, 0);
    EXPECT_TRUE(grew());
    store.remove(4);
    EXPECT_TRUE(grew());
    store.replace({{1, 1}});
    EXPECT_TRUE(grew());
    (void)store.rowAt(0);
    (void)store.spanOf(0);
    (void)store.totalHeight();
    (void)store.find(1);
    EXPECT_FALSE(changed());
    store.clear();
    EXPECT_TRUE(grew());
}
