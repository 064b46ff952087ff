#include <gtest/gtest.h>

#include <limits>

#include "PageRange.h"

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(PageRange, OfAWholeDocumentIsFromItsFirstPageToItsLast) {
    struct Case {
        int pages;
        int first;
        int last;
        int count;
    };
    const Case cases[] = {{10, 1, 10, 10}, {1, 1, 1, 1}, {0, 0, 0, 0}, {-1, 0, 0, 0}, {kMost, 1, kMost, kMost}};
    for (const Case& c : cases) {
        const PageRange range = PageRange::wholeDocument(c.pages);
        EXPECT_EQ(c.first, range.first) << c.pages;
        EXPECT_EQ(c.last, range.last) << c.pages;
        EXPECT_EQ(c.count, range.count()) << c.pages;
        EXPECT_EQ(1, range.step()) << c.pages;
    }
}

TEST(PageRange, ThatWasRequestedIsCutAtTheEndOfTheDocument) {
    struct Case {
        const char* what;
        int pages;
        int from;
        int to;
        int first;
        int last;
        int step;
        int count;
    };
    const Case cases[] = {
        {"in order", 10, 2, 5, 2, 5, 1, 4},
        {"one page", 10, 3, 3, 3, 3, 1, 1},
        {"backwards", 10, 5, 2, 5, 2, -1, 4},
        {"all beyond the document", 3, 7, 9, 3, 3, 1, 1},
        {"all beyond the document, backwards", 3, 9, 7, 3, 3, 1, 1},
        {"the end beyond the document", 10, 8, 12, 8, 10, 1, 3},
        {"the beginning beyond the document", 10, 12, 8, 10, 8, -1, 3},
        {"no pages at all", 0, 1, 1, 0, 0, 1, 0},
        {"no pages at all, some wanted", 0, 5, 2, 0, 0, 1, 0},
        {"less than no pages", -3, 1, 4, 0, 0, 1, 0},
        {"page 0 alone counts as none", 10, 0, 0, 0, 0, 1, 0},
        {"from page 0", 10, 0, 2, 0, 2, 1, 3},
        {"down to page 0", 10, 2, 0, 2, 0, -1, 3},
        {"negative pages stay", 10, -2, -1, -2, -1, 1, 2},
        {"one negative page", 10, -4, -4, -4, -4, 1, 1},
        {"the widest range upwards", kMost, kLeast, kMost, kLeast, kMost, 1, kMost},
        {"the widest range downwards", kMost, kMost, kLeast, kMost, kLeast, -1, kMost},
    };
    for (const Case& c : cases) {
        const PageRange range = PageRange::requested(c.pages, c.from, c.to);
        EXPECT_EQ(c.first, range.first) << c.what;
        EXPECT_EQ(c.last, range.last) << c.what;
        EXPECT_EQ(c.step, range.step()) << c.what;
        EXPECT_EQ(c.count, range.count()) << c.what;
    }
}

TEST(PageRange, CountsAsManyPagesAsAWalkMeets) {
    for (int pages = 0; pages <= 6; ++pages) {
        for (int from = -3; from <= 8; ++from) {
            for (int to = -3; to <= 8; ++to) {
                const PageRange range = PageRange::requested(pages, from, to);
                int met = 0;
                for (int page = range.first; page != range.last + range.step(); page += range.step()) {
                    ++met;
                }
                const bool isPageZeroAlone = range.first == 0 && range.last == 0;
                EXPECT_EQ(isPageZeroAlone ? 0 : met, range.count()) << pages << ": " << from << " to " << to;
            }
        }
    }
}

} // namespace
