#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "PreviewLayout.h"

namespace {

constexpr int kMost = std::numeric_limits<int>::max();

std::string visible(int pageHeight, int pageCount, int clientHeight, int position) {
    const PreviewLayout::VisiblePages pages =
        PreviewLayout::visiblePages(pageHeight, pageCount, clientHeight, position);
    return std::to_string(pages.first) + " to " + std::to_string(pages.last);
}

} // namespace

TEST(PreviewLayout, TruncatesScaledExtents) {
    EXPECT_EQ(99, PreviewLayout::scaled(199, 0.5));
    EXPECT_EQ(0, PreviewLayout::scaled(99, 0.01));
    EXPECT_EQ(1 << 30, PreviewLayout::scaled(6822, 1e9));
}

TEST(PreviewLayout, TheTotalHeightCountsGapsBetweenPagesAndBothMargins) {
    EXPECT_EQ(310, PreviewLayout::totalHeight(300, 1));
    EXPECT_EQ(940, PreviewLayout::totalHeight(300, 3));
    EXPECT_EQ(-5, PreviewLayout::totalHeight(300, 0));
    EXPECT_EQ(kMost, PreviewLayout::totalHeight(kMost, kMost));
    EXPECT_EQ(kMost, PreviewLayout::totalWidth(kMost, 5));
    EXPECT_EQ(300, PreviewLayout::totalWidth(200, 50));
}

TEST(PreviewLayout, CentresPagesButNeverCloserThanFivePixels) {
    EXPECT_EQ(50, PreviewLayout::leftMargin(301, 200));
    EXPECT_EQ(5, PreviewLayout::leftMargin(205, 200));
    EXPECT_EQ(5, PreviewLayout::leftMargin(100, kMost));
}

TEST(PreviewLayout, AShadowIsTwoToFourPixels) {
    EXPECT_EQ(2, PreviewLayout::shadowOffset(0));
    EXPECT_EQ(2, PreviewLayout::shadowOffset(149));
    EXPECT_EQ(3, PreviewLayout::shadowOffset(150));
    EXPECT_EQ(4, PreviewLayout::shadowOffset(200));
    EXPECT_EQ(4, PreviewLayout::shadowOffset(kMost));
}

TEST(PreviewLayout, FindsThePagesInView) {
    EXPECT_EQ("-1 to -1", visible(300, 0, 400, 0)) << "no pages";
    EXPECT_EQ("0 to 0", visible(300, 3, 319, 0)) << "the second page begins at 320";
    EXPECT_EQ("0 to 1", visible(300, 3, 320, 0));
    EXPECT_EQ("0 to 2", visible(300, 3, 400, 61)) << "the first page ends where the view begins";
    EXPECT_EQ("1 to 2", visible(300, 3, 400, 62));
    EXPECT_EQ("0 to 2", visible(300, 3, 2000, 0)) << "all of them";
    EXPECT_EQ("-1 to 2", visible(300, 3, 400, 1000)) << "all of them lie above";
    EXPECT_EQ("0 to -1", visible(300, 3, 4, 0)) << "the view ends above the first page";
    EXPECT_EQ("0 to 26", visible(0, 27, 400, 0)) << "pages too small to be seen";
    EXPECT_EQ("0 to 1", visible(kMost, 3, 400, kMost / 5));
}

TEST(PreviewLayout, AgreesWithASlowSearchForThePagesInView) {
    std::mt19937 random(7);
    const auto number = [&](int least, int most) { return std::uniform_int_distribution<int>(least, most)(random); };
    for (int one = 0; one < 100'000; ++one) {
        const int pageHeight = number(0, 300);
        const int pageCount = number(0, 12);
        const int clientHeight = number(0, 700);
        const int position = number(0, 500);
        int first = -1;
        int last = -1;
        for (int place = pageCount - 1; place >= 0; --place) {
            const int top = 5 + place * (pageHeight + 15) - 5 * position;
            first = top + pageHeight >= 0 ? place : first;
            last = last < 0 && top <= clientHeight ? place : last;
        }
        const PreviewLayout::VisiblePages pages =
            PreviewLayout::visiblePages(pageHeight, pageCount, clientHeight, position);
        ASSERT_EQ(first, pages.first) << "case " << one;
        ASSERT_EQ(last, pages.last) << "case " << one;
    }
}

TEST(PreviewLayout, PutsPagesUnderEachOther) {
    EXPECT_EQ(5, PreviewLayout::topOfPage(0, 300, 0));
    EXPECT_EQ(620, PreviewLayout::topOfPage(2, 300, 3));
    EXPECT_EQ(kMost, PreviewLayout::topOfPage(kMost, kMost, 0));
    EXPECT_EQ(-45, PreviewLayout::leftOfPages(5, 10));
}

TEST(PreviewLayout, BarsCountInUnitsOfFivePixels) {
    const PreviewLayout::BarExtent scrolling = PreviewLayout::barExtent(400, 940);
    EXPECT_EQ(189, scrolling.maximum);
    EXPECT_EQ(81, scrolling.page);
    EXPECT_TRUE(scrolling.shown);
    const PreviewLayout::BarExtent whole = PreviewLayout::barExtent(400, 400);
    EXPECT_EQ(0, whole.maximum);
    EXPECT_EQ(0, whole.page);
    EXPECT_FALSE(whole.shown);
}

TEST(PreviewLayout, FollowsTheCommandsOfABar) {
    const PreviewLayout::BarState bar{50, 1, 189};
    const std::optional<int> expected[] = {45, 55, -30, 130, 77, 77, 1, 189, std::nullopt, std::nullopt};
    for (unsigned int command = 0; command < std::size(expected); ++command) {
        EXPECT_EQ(expected[command], PreviewLayout::afterCommand(command, 77, bar, 400)) << command;
    }
}

TEST(PreviewLayout, PutsTheButtonsInTheLowerMiddle) {
    const PreviewLayout::Buttons buttons = PreviewLayout::buttons(300, 400);
    EXPECT_EQ((PreviewLayout::Box{105, 360, 145, 380}), buttons.increase);
    EXPECT_EQ((PreviewLayout::Box{155, 360, 195, 380}), buttons.decrease);
    EXPECT_EQ((PreviewLayout::Box{85, 340, 215, 400}), buttons.hot);
    EXPECT_EQ(105, PreviewLayout::buttons(301, 400).increase.left) << "truncated";
}
