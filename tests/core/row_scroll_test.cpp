#include <gtest/gtest.h>

#include <limits>

#include "RowScroll.h"

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

} // namespace

TEST(ScrollingIntoView, MovesNoFartherThanTheRowNeeds) {
    struct Case {
        const char* what;
        RowSpan span;
        int viewTop;
        int viewHeight;
        RowScroll::Margins margins;
        std::optional<int> position;
    };
    const Case cases[] = {
        {"in the middle of the view", {3, 60, 80}, 20, 100, {}, std::nullopt},
        {"above the view: one pixel above the row", {0, 0, 20}, 20, 100, {}, -1},
        {"at the very top of the view: the line above shows", {1, 20, 40}, 20, 100, {}, 19},
        {"one pixel under the top stays", {1, 21, 41}, 20, 100, {}, std::nullopt},
        {"its bottom is that of the view", {5, 100, 120}, 20, 100, {}, std::nullopt},
        {"one pixel too low: one more than needed", {5, 101, 121}, 20, 100, {}, 22},
        {"far below", {50, 1000, 1020}, 20, 100, {}, 921},
        {"far above", {50, 1000, 1020}, 2000, 100, {}, 999},
        {"a margin above", {5, 100, 120}, 80, 100, {-20, 0}, 79},
        {"a margin above that is there", {5, 101, 121}, 80, 100, {-20, 0}, std::nullopt},
        {"a margin below", {5, 100, 120}, 20, 100, {0, -10}, 31},
        {"taller than the view: the top wins", {1, 20, 400}, 30, 100, {}, 19},
        {"taller than the view, from above: the bottom", {1, 20, 400}, 10, 100, {}, 301},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.position, RowScroll::intoView(c.span, c.viewTop, c.viewHeight, c.margins)) << c.what;
    }
}

TEST(ScrollingIntoView, SurvivesMarginsThatAreNotMeantSeriously) {
    for (const int top : {kLeast, 0, kMost}) {
        for (const int bottom : {kLeast, 0, kMost}) {
            const auto position = RowScroll::intoView({9, 90, 100}, 50, 100, {top, bottom});
            EXPECT_EQ(top == kLeast || bottom == kLeast, position.has_value()) << top << ' ' << bottom;
        }
    }
}

TEST(ScrollBarCommands, MoveByLinesPagesAndEnds) {
    struct Case {
        const char* what;
        unsigned int command;
        std::optional<int> position;
    };
    const RowScroll::BarState bar{300, 120, 777, 1001};
    const Case cases[] = {
        {"line up", 0, 292},
        {"line down", 1, 308},
        {"page up", 2, 180},
        {"page down", 3, 420},
        {"thumb set", 4, 777},
        {"thumb moving", 5, 777},
        {"top", 6, 0},
        {"bottom", 7, 1001},
        {"end", 8, std::nullopt},
        {"no command", 99, std::nullopt},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.position, RowScroll::afterCommand(c.command, bar)) << c.what;
    }
}

TEST(ScrollBarCommands, MayLeadPastTheEndsWhichTheBarItselfClamps) {
    EXPECT_EQ(-5, RowScroll::afterCommand(0, {3, 120, 0, 1000}));
    EXPECT_EQ(-117, RowScroll::afterCommand(2, {3, 120, 0, 1000}));
}

TEST(ScrollBarCommands, SaturateInAHugeContent) {
    EXPECT_EQ(kMost, RowScroll::afterCommand(1, {kMost - 3, 120, 0, kMost}));
    EXPECT_EQ(kMost, RowScroll::afterCommand(3, {kMost - 3, 120, 0, kMost}));
    EXPECT_EQ(kMost, RowScroll::afterWheel(kMost - 3, -120, kMost));
}

TEST(TheWheel, MovesByAnEighthOfItsTurnWithinTheRange) {
    struct Case {
        const char* what;
        int position;
        int delta;
        int maximum;
        int after;
    };
    const Case cases[] = {
        {"a notch up", 100, 120, 1000, 85},
        {"a notch down", 100, -120, 1000, 115},
        {"part of a notch is rounded toward nothing", 100, 7, 1000, 100},
        {"part of a notch down too", 100, -7, 1000, 100},
        {"a little more", 100, -9, 1000, 101},
        {"not above the top", 10, 120, 1000, 0},
        {"not below the range", 995, -120, 1000, 1000},
        {"no range", 0, -120, 0, 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.after, RowScroll::afterWheel(c.position, c.delta, c.maximum)) << c.what;
    }
}

TEST(KeepingToTheBottom, AsksForNothingTheFirstTime) {
    RowScroll::BottomKeeper keeper;
    EXPECT_EQ(std::nullopt, keeper.update(50, 100, 400));
}

TEST(KeepingToTheBottom, RowsOf32MoveThePositionBy32) {
    RowScroll::BottomKeeper keeper;
    keeper.update(300, 100, 400);
    EXPECT_EQ(332, keeper.update(300, 100, 432));
    EXPECT_EQ(432, keeper.update(332, 100, 532));
}

TEST(KeepingToTheBottom, AViewThatShrinksShowsTheSameLastRow) {
    RowScroll::BottomKeeper keeper;
    keeper.update(300, 100, 400);
    EXPECT_EQ(330, keeper.update(300, 70, 400));
}

TEST(KeepingToTheBottom, SaturatesInAHugeContent) {
    RowScroll::BottomKeeper keeper;
    keeper.update(0, 0, kMost);
    EXPECT_EQ(kLeast, keeper.update(0, 100, 0));
    EXPECT_EQ(kMost, keeper.update(kMost, 50, kMost));
}

TEST(KeepingToTheBottom, IsOffUntilItIsAskedFor) {
    EXPECT_FALSE(RowScroll::BottomKeeper().enabled);
}
