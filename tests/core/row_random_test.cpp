#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

#include "RowStore.h"

namespace {

using Row = RowStore::Row;
using Rows = std::vector<Row>;

/// The rows as a plain vector, each rule told by a loop.
class ReferenceRows {
public:
    void insert(std::uint64_t data, int row) { place({data, 16}, row); }

    void insert(const Rows& inserted, int row) {
        const int first = row >= 0 && row < count() ? row : count();
        int next = first;
        for (const Row& one : inserted) {
            rows.insert(rows.begin() + next, one);
            ++next;
        }
    }

    bool remove(std::uint64_t data) {
        const int row = find(data);
        if (row >= 0) {
            rows.erase(rows.begin() + row);
        }
        return row >= 0;
    }

    void move(std::uint64_t data, int row) {
        if (remove(data)) {
            place({data, 0}, row);
        }
    }

    int find(std::uint64_t data) const {
        for (int row = 0; row < count(); ++row) {
            if (rows[static_cast<std::size_t>(row)].first == data) {
                return row;
            }
        }
        return -1;
    }

    int count() const { return static_cast<int>(rows.size()); }

    int topOf(int row) const {
        int top = 0;
        for (int before = 0; before < row; ++before) {
            top += rows[static_cast<std::size_t>(before)].second;
        }
        return top;
    }

    int rowAt(int y) const {
        for (int row = 0; row < count(); ++row) {
            if (y >= topOf(row) && y < topOf(row + 1)) {
                return row;
            }
        }
        return -1;
    }

    Rows rows;

private:
    void place(Row placed, int row) {
        if (row < 0 || row >= count()) {
            rows.push_back(placed);
        } else {
            rows.insert(rows.begin() + row, placed);
        }
    }
};

class RowDriver {
public:
    explicit RowDriver(unsigned int seed) : m_random(seed) {}

    int pick(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_random); }

    std::string step(ReferenceRows& reference, RowStore& store) {
        const int count = reference.count();
        const int row = pick(-2, count + 2);
        switch (pick(0, 11)) {
        case 0:
        case 1: {
            const std::uint64_t data = word();
            const int placed = store.insert(data, row);
            reference.insert(data, row);
            EXPECT_EQ(data, store.data(placed));
            return "insert " + std::to_string(data) + " at " + std::to_string(row);
        }
        case 2: {
            Rows rows(static_cast<std::size_t>(pick(0, 6)));
            for (Row& one : rows) {
                one = {word(), pick(0, 30)};
            }
            store.insert(rows, row);
            reference.insert(rows, row);
            return "insert many at " + std::to_string(row);
        }
        case 3:
        case 4: {
            const std::uint64_t data = word();
            EXPECT_EQ(reference.remove(data), store.remove(data));
            return "remove " + std::to_string(data);
        }
        case 5:
        case 6: {
            std::vector<std::uint64_t> list(static_cast<std::size_t>(pick(0, 12)));
            std::generate(list.begin(), list.end(), [this] { return word(); });
            return removeList(list, reference, store);
        }
        case 7:
        case 8: {
            const std::uint64_t data = word();
            store.move(data, row);
            reference.move(data, row);
            return "move " + std::to_string(data) + " to " + std::to_string(row);
        }
        case 9: {
            const int height = pick(0, 40);
            const bool inside = row >= 0 && row < count;
            EXPECT_EQ(inside, store.setHeight(row, height));
            if (inside) {
                reference.rows[static_cast<std::size_t>(row)].second = height;
            }
            return "height of " + std::to_string(row);
        }
        case 10: {
            const std::uint64_t data = word();
            store.setData(row, data);
            if (row >= 0 && row < count) {
                reference.rows[static_cast<std::size_t>(row)].first = data;
            }
            return "data of " + std::to_string(row);
        }
        default: {
            if (count < 60 || pick(0, 3) != 0) {
                return "nothing";
            }
            if (pick(0, 1) == 0) {
                store.clear();
                reference.rows.clear();
                return "clear";
            }
            std::shuffle(reference.rows.begin(), reference.rows.end(), m_random);
            reference.rows.resize(static_cast<std::size_t>(pick(0, 40)));
            store.replace(reference.rows);
            return "replace";
        }
        }
    }

private:
    /// Few words, so that some rows share one.
    std::uint64_t word() { return static_cast<std::uint64_t>(pick(1, 90)) * 0x100000001U; }

    static std::string removeList(const std::vector<std::uint64_t>& list, ReferenceRows& reference, RowStore& store) {
        std::vector<std::size_t> expectedMisses;
        for (std::size_t index = 0; index < list.size(); ++index) {
            if (!reference.remove(list[index])) {
                expectedMisses.push_back(index);
            }
        }
        std::vector<std::size_t> misses;
        for (std::size_t next = 0; next < list.size();) {
            const auto [removed, missing] = store.removeUntilMissing(std::span(list).subspan(next));
            next += removed;
            for (std::size_t told = 0; told < missing; ++told) {
                misses.push_back(next);
                ++next;
            }
        }
        EXPECT_EQ(expectedMisses, misses);
        return "remove a list of " + std::to_string(list.size());
    }

    std::mt19937 m_random;
};

} // namespace

TEST(RowStoreRandomly, AgreesWithThePlainReferenceAfterEachOf120000Operations) {
    constexpr int kRuns = 60;
    constexpr int kOperations = 2000;
    for (unsigned int seed = 1; seed <= kRuns; ++seed) {
        RowDriver driver(seed);
        ReferenceRows reference;
        RowStore store;
        for (int operation = 0; operation < kOperations; ++operation) {
            const std::string what = driver.step(reference, store);
            ASSERT_FALSE(testing::Test::HasFailure()) << "seed " << seed << " operation " << operation << ": " << what;
            ASSERT_EQ(reference.rows, store.rows()) << "seed " << seed << " operation " << operation << ": " << what;
            const int total = reference.topOf(reference.count());
            ASSERT_EQ(total, store.totalHeight()) << what;
            const int y = driver.pick(-3, total + 3);
            const std::optional<RowSpan> at = store.rowAt(y);
            ASSERT_EQ(reference.rowAt(y), at ? at->row : -1) << what << ", y " << y;
            const int row = driver.pick(0, reference.count() + 1);
            const std::optional<RowSpan> span = store.spanOf(row);
            ASSERT_EQ(reference.count() > 0, span.has_value()) << what;
            if (span) {
                const int shown = std::min(row, reference.count() - 1);
                ASSERT_EQ(shown, span->row) << what;
                ASSERT_EQ(reference.topOf(shown), span->top) << what;
                ASSERT_EQ(reference.topOf(shown + 1), span->bottom) << what;
            }
            const std::uint64_t looked = reference.rows.empty() ? 1 : reference.rows.back().first;
            ASSERT_EQ(reference.find(looked), store.find(looked).value_or(-1)) << what;
        }
    }
}

TEST(RowStoreRandomly, TenThousandOfAHundredThousandRowsGoInOneList) {
    constexpr int kRows = 100000;
    constexpr int kRemoved = 10000;
    std::mt19937_64 random(5);
    Rows rows;
    for (int row = 0; row < kRows; ++row) {
        rows.emplace_back(random(), 1 + row % 3);
    }
    RowStore store;
    store.replace(rows);
    std::vector<std::size_t> indexes(rows.size());
    for (std::size_t index = 0; index < indexes.size(); ++index) {
        indexes[index] = index;
    }
    std::shuffle(indexes.begin(), indexes.end(), random);
    indexes.resize(kRemoved);
    std::vector<std::uint64_t> list;
    for (const std::size_t index : indexes) {
        list.push_back(rows[index].first);
    }
    EXPECT_EQ(list.size(), store.removeUntilMissing(list).removed);

    std::sort(indexes.begin(), indexes.end());
    Rows kept;
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (!std::binary_search(indexes.begin(), indexes.end(), index)) {
            kept.push_back(rows[index]);
        }
    }
    EXPECT_TRUE(kept == store.rows());
}
