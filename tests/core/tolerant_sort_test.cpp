#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

#include "TolerantSort.h"

namespace {

using Row = std::pair<std::uint64_t, int>;
using Rows = std::vector<Row>;
using Predicate = std::function<bool(std::uint64_t, std::uint64_t)>;

/// Each row's height tells where it came from, so that a permutation shows.
Rows rowsOf(const std::vector<std::uint64_t>& words) {
    Rows rows;
    for (const std::uint64_t word : words) {
        rows.emplace_back(word, static_cast<int>(rows.size()));
    }
    return rows;
}

bool holdsEachRowOnce(const Rows& sorted, Rows original) {
    Rows copy = sorted;
    std::sort(copy.begin(), copy.end());
    std::sort(original.begin(), original.end());
    return copy == original;
}

/// Sorts a copy of exactly the right size, where the address sanitizer sees each step past the range.
Rows sorted(const Rows& rows, const Predicate& before, std::uint64_t* comparisons = nullptr) {
    Rows result = rows;
    result.shrink_to_fit();
    TolerantSort::sort(result.begin(), result.end(), [&](const Row& a, const Row& b) {
        if (comparisons != nullptr) {
            ++*comparisons;
        }
        return before(a.first, b.first);
    });
    return result;
}

std::vector<std::uint64_t> words(const Rows& rows) {
    std::vector<std::uint64_t> result;
    for (const Row& row : rows) {
        result.push_back(row.first);
    }
    return result;
}

struct Shape {
    const char* name;
    std::function<std::uint64_t(std::uint64_t index, std::uint64_t count, std::mt19937_64& random)> word;
};

const Shape kShapes[] = {
    {"random", [](auto, auto, auto& random) { return static_cast<std::uint64_t>(random()); }},
    {"ascending", [](auto index, auto, auto&) { return index; }},
    {"descending", [](auto index, auto count, auto&) { return count - index; }},
    {"all equal", [](auto, auto, auto&) { return std::uint64_t{7}; }},
    {"two words", [](auto, auto, auto& random) { return static_cast<std::uint64_t>(random() % 2); }},
    {"few words", [](auto, auto, auto& random) { return static_cast<std::uint64_t>(random() % 9); }},
    {"up and down", [](auto index, auto count, auto&) { return index < count / 2 ? index : count - index; }},
    {"saw", [](auto index, auto, auto&) { return index % 50; }},
    {"one at the end", [](auto index, auto count, auto&) { return index + 1 == count ? 0 : index + 1; }},
};

Rows make(const Shape& shape, std::uint64_t count, std::mt19937_64& random) {
    std::vector<std::uint64_t> made;
    for (std::uint64_t index = 0; index < count; ++index) {
        made.push_back(shape.word(index, count, random));
    }
    return rowsOf(made);
}

/// A quicksort's usual cost with room to spare: far below a quadratic one.
std::uint64_t comparisonLimit(std::uint64_t count) {
    const double n = static_cast<double>(count) + 1.0;
    return static_cast<std::uint64_t>(4.0 * n * std::log2(n) + 600.0);
}

constexpr std::uint64_t kCounts[] = {0, 1, 2, 3, 5, 31, 32, 33, 34, 39, 40, 41, 42, 100, 1000, 5000};

} // namespace

TEST(TolerantSorting, SortsEachShapeBothWaysWithinTheUsualCost) {
    struct Direction {
        const char* name;
        Predicate before;
        bool ascending;
    };
    const Direction directions[] = {
        {"less", [](auto a, auto b) { return a < b; }, true},
        {"greater", [](auto a, auto b) { return a > b; }, false},
        {"the complement of less", [](auto a, auto b) { return !(a < b); }, false},
        {"the complement of greater", [](auto a, auto b) { return !(a > b); }, true},
    };
    std::mt19937_64 random(11);
    for (const Shape& shape : kShapes) {
        for (const std::uint64_t count : kCounts) {
            const Rows rows = make(shape, count, random);
            for (const Direction& direction : directions) {
                SCOPED_TRACE(std::string(shape.name) + ", " + std::to_string(count) + ", " + direction.name);
                std::uint64_t comparisons = 0;
                const Rows result = sorted(rows, direction.before, &comparisons);
                EXPECT_TRUE(holdsEachRowOnce(result, rows)) << "the pair moves whole";
                std::vector<std::uint64_t> expected = words(rows);
                std::sort(expected.begin(), expected.end());
                if (!direction.ascending) {
                    std::reverse(expected.begin(), expected.end());
                }
                EXPECT_TRUE(expected == words(result));
                EXPECT_LE(comparisons, comparisonLimit(count));
            }
        }
    }
}

TEST(TolerantSorting, StaysInItsRangeWhateverThePredicateAnswers) {
    std::mt19937_64 random(23);
    struct Liar {
        const char* name;
        Predicate before;
    };
    std::uint64_t calls = 0;
    const Liar liars[] = {
        {"always", [](auto, auto) { return true; }},
        {"never", [](auto, auto) { return false; }},
        {"by chance", [&](auto, auto) { return random() % 2 == 0; }},
        {"mostly", [&](auto, auto) { return random() % 16 != 0; }},
        {"seldom", [&](auto, auto) { return random() % 16 == 0; }},
        {"in turn", [&](auto, auto) { return ++calls % 2 == 0; }},
        {"round in a circle", [](auto a, auto b) { return (a % 3 + 1) % 3 == b % 3; }},
        {"less, wrong now and then", [&](auto a, auto b) { return (random() % 50 == 0) != (a < b); }},
        {"not less, wrong now and then", [&](auto a, auto b) { return (random() % 50 == 0) == (a < b); }},
    };
    for (const Liar& liar : liars) {
        for (const Shape& shape : kShapes) {
            for (const std::uint64_t count : kCounts) {
                SCOPED_TRACE(std::string(liar.name) + ", " + shape.name + ", " + std::to_string(count));
                const Rows rows = make(shape, count, random);
                EXPECT_TRUE(holdsEachRowOnce(sorted(rows, liar.before), rows));
            }
        }
    }
}

TEST(TolerantSorting, LeavesWhatLiesOutsideItsRangeAlone) {
    std::mt19937_64 random(31);
    for (const std::uint64_t count : kCounts) {
        Rows rows = make(kShapes[0], count + 200, random);
        const Rows original = rows;
        const auto first = rows.begin() + 100;
        const auto last = rows.end() - 100;
        TolerantSort::sort(first, last, [](const Row& a, const Row& b) { return !(a.first < b.first); });
        EXPECT_TRUE(std::equal(rows.begin(), first, original.begin()));
        EXPECT_TRUE(std::equal(last, rows.end(), original.end() - 100));
        EXPECT_TRUE(std::is_sorted(first, last, [](const Row& a, const Row& b) { return a.first > b.first; }));
    }
}

TEST(TolerantSorting, IsNotLedIntoQuadraticCostByAnAdversary) {
    // The antiquicksort of McIlroy (A Killer Adversary for Quicksort, 1999): values are decided as they are compared,
    // always so that the pivot turns out to be among the smallest.
    constexpr int kCount = 20000;
    constexpr int kGas = kCount;
    std::vector<int> value(kCount, kGas);
    int solid = 0;
    int candidate = 0;
    std::uint64_t comparisons = 0;
    const auto before = [&](int a, int b) {
        ++comparisons;
        if (value[static_cast<std::size_t>(a)] == kGas && value[static_cast<std::size_t>(b)] == kGas) {
            value[static_cast<std::size_t>(a == candidate ? a : b)] = solid++;
        }
        if (value[static_cast<std::size_t>(a)] == kGas) {
            candidate = a;
        } else if (value[static_cast<std::size_t>(b)] == kGas) {
            candidate = b;
        }
        return value[static_cast<std::size_t>(a)] < value[static_cast<std::size_t>(b)];
    };
    std::vector<int> items(kCount);
    std::iota(items.begin(), items.end(), 0);
    TolerantSort::sort(items.begin(), items.end(), before);
    EXPECT_TRUE(std::is_sorted(items.begin(), items.end(), [&](int a, int b) {
        return value[static_cast<std::size_t>(a)] < value[static_cast<std::size_t>(b)];
    }));
    // The depth budget is the element count, so the adversary has some levels before the heap sort takes over.
    EXPECT_LT(comparisons, static_cast<std::uint64_t>(kCount) * 200);
}
