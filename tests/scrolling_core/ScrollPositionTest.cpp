#include "ScrollPosition.h"

#include <algorithm>
#include <limits>
#include <random>

#include <gtest/gtest.h>

using ScrollPosition::Axis;

namespace {

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

constexpr unsigned kLineBack = 0;
constexpr unsigned kLineForward = 1;
constexpr unsigned kPageBack = 2;
constexpr unsigned kPageForward = 3;
constexpr unsigned kThumbPosition = 4;
constexpr unsigned kThumbTrack = 5;

/// A display of 1000 in a window of 200.
constexpr Axis at(int position) {
    return {1000, 200, position};
}

} // namespace

TEST(RequestedPosition, EndsWhereTheLastPageBeginsAndIsRefusedWhereNothingScrolls) {
    struct Case {
        const char* what;
        Axis axis;
        int wanted;
        std::optional<int> position;
    };
    const Case cases[] = {
        {"within", at(0), 300, 300},
        {"where it is", at(300), 300, 300},
        {"the last one", at(0), 800, 800},
        {"past the last one", at(0), 801, 800},
        {"far past it", at(0), kMost, 800},
        {"the origin", at(300), 0, 0},
        {"before the origin", at(300), -1, std::nullopt},
        {"no display", {0, 200, 0}, 10, std::nullopt},
        {"a display less than nothing", {-5, 200, 0}, 10, std::nullopt},
        {"no page: the display fits", {1000, 0, 0}, 10, std::nullopt},
        {"a page less than nothing", {1000, -1, 0}, 10, std::nullopt},
        {"a page as large as the display", {200, 200, 0}, 10, std::nullopt},
        {"a page larger than the display", {199, 200, 0}, 10, std::nullopt},
        {"a page one less than the display", {201, 200, 0}, 10, 1},
        {"the greatest display", {kMost, 1, 0}, kMost, kMost - 1},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.position, ScrollPosition::requested(c.axis, c.wanted)) << c.what;
    }
}

TEST(ScrollStep, FollowsEachCommandInsideTheDisplay) {
    struct Case {
        const char* what;
        unsigned command;
        Axis axis;
        int line;
        int track;
        int step;
    };
    const Case cases[] = {
        {"a line back", kLineBack, at(300), 60, 0, -60},
        {"a line forward", kLineForward, at(300), 60, 0, 60},
        {"a page back", kPageBack, at(300), 60, 0, -200},
        {"a page forward", kPageForward, at(300), 60, 0, 200},
        {"the thumb let go", kThumbPosition, at(300), 60, 450, 150},
        {"the thumb on its way", kThumbTrack, at(300), 60, 20, -280},
        {"the thumb where it was", kThumbTrack, at(300), 60, 300, 0},
        {"a position of more than 16 bits", kThumbPosition, {1'000'000, 200, 5}, 60, 70'000, 69'995},
        {"the upper end", 6, at(300), 60, 0, 0},
        {"the lower end", 7, at(300), 60, 0, 0},
        {"the end of a scroll", 8, at(300), 60, 0, 0},
        {"cut at the origin", kLineBack, at(20), 60, 0, -20},
        {"at the origin", kLineBack, at(0), 60, 0, 0},
        {"cut at the end", kPageForward, at(700), 60, 0, 100},
        {"at the end", kLineForward, at(800), 60, 0, 0},
        {"a thumb before the origin", kThumbTrack, at(300), 60, -50, -300},
        {"a thumb past the end", kThumbTrack, at(300), 60, kMost, 500},
        {"a line offset that turns round", kLineForward, at(300), -60, 0, -60},
        {"no line offset", kLineForward, at(300), 0, 0, 0},
        {"the greatest line offset", kLineForward, at(300), kMost, 0, 500},
        {"the least line offset", kLineBack, at(300), kLeast, 0, 500},
        {"no display yet", kLineForward, {0, 0, 0}, 60, 0, 0},
        {"no page: the content still moves", kLineForward, {100, 0, 0}, 60, 0, 60},
        {"no page, as far as the display", kLineForward, {100, 0, 60}, 60, 0, 40},
        {"a display that has shrunk below the page", kLineForward, {100, 200, 50}, 60, 0, -50},
        {"a position past the end of a display that has shrunk", kLineForward, {500, 200, 700}, 60, 0, -400},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.step, ScrollPosition::step(c.command, c.axis, c.line, c.track)) << c.what;
    }
}

TEST(WheelSteps, AreThirdsOfTheSystemsLinesButAtLeastOne) {
    struct Case {
        const char* what;
        int delta;
        int lines;
        int steps;
    };
    const Case cases[] = {
        {"a notch", 120, 3, 1},
        {"a notch back", -120, 3, 1},
        {"two notches", 240, 3, 2},
        {"nothing at all", 0, 3, 1},
        {"half a notch", 60, 3, 1},
        {"one and a half", 180, 3, 1},
        {"one line a notch", 120, 1, 1},
        {"one line, two notches: 2 / 3", 240, 1, 1},
        {"one line, three notches", 360, 1, 1},
        {"one line, six notches", 720, 1, 2},
        {"two lines, three notches: not rounded up", 360, 2, 2},
        {"five lines", 120, 5, 1},
        {"six lines", 120, 6, 2},
        {"no lines", 1200, 0, 1},
        {"less than no lines", 1200, -2, 1},
        {"the greatest turn", -32768, 3, 273},
        {"as many lines as there are", 32767, kMost, kMost},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.steps, ScrollPosition::wheelSteps(c.delta, c.lines)) << c.what;
    }
}

TEST(FittedBar, KeepsThePositionInProportionToThePage) {
    struct Case {
        const char* what;
        Axis axis;
        int extent;
        ScrollPosition::Bar bar;
    };
    const Case cases[] = {
        {"first fit", {1000, 0, 0}, 200, {200, 0, 999}},
        {"the window grows", {1000, 200, 100}, 300, {300, 150, 999}},
        {"the window shrinks", {1000, 200, 100}, 100, {100, 50, 999}},
        {"truncated", {1000, 200, 101}, 199, {199, 100, 999}},
        {"multiplied first: 58 / 200 is a little less than 0.29", {1000, 200, 58}, 100, {100, 29, 999}},
        {"not in proportion from the origin", {1000, 200, 0}, 300, {300, 0, 999}},
        {"not in proportion without a page", {1000, 0, 100}, 300, {300, 100, 999}},
        {"one pixel less than what scrolling reaches", {1000, 200, 800}, 200, {200, 799, 999}},
        {"in proportion, then cut", {1000, 200, 700}, 400, {400, 599, 999}},
        {"one pixel does not fit", {201, 0, 0}, 200, {200, 0, 200}},
        {"one pixel does not fit, scrolled", {201, 0, 50}, 200, {200, 0, 200}},
        {"the display just fits", {200, 150, 30}, 200, {0, 0, 0}},
        {"the display fits easily", {100, 150, 30}, 200, {0, 0, 0}},
        {"no display", {0, 0, 0}, 200, {0, 0, 0}},
        {"no window", {1000, 200, 300}, 0, {0, 0, 999}},
        {"no window and no display", {0, 0, 0}, 0, {0, 0, 0}},
        {"beyond 32 bits on the way", {kMost, 1, kMost - 1}, 2000, {2000, kMost - 2001, kMost - 1}},
    };
    for (const Case& c : cases) {
        const ScrollPosition::Bar bar = ScrollPosition::fitted(c.axis, c.extent);
        EXPECT_EQ(c.bar.page, bar.page) << c.what;
        EXPECT_EQ(c.bar.position, bar.position) << c.what;
        EXPECT_EQ(c.bar.maximum, bar.maximum) << c.what;
    }
}

TEST(ExtentWithoutBar, TakesTheRoomOfABarThatShows) {
    EXPECT_EQ(300, ScrollPosition::extentWithoutBar(300, 300, 17)) << "no bar";
    EXPECT_EQ(300, ScrollPosition::extentWithoutBar(300, 283, 17)) << "a bar";
    EXPECT_EQ(283, ScrollPosition::extentWithoutBar(299, 283, 17)) << "a frame of 16 pixels";
    EXPECT_EQ(300, ScrollPosition::extentWithoutBar(305, 283, 17)) << "a bar and a frame";
}

TEST(ScrollPositions, StayInTheDisplayOverRandomLives) {
    std::mt19937 random(51);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    Axis axis{0, 0, 0};
    for (int round = 0; round < 200'000; ++round) {
        switch (below(4)) {
        case 0:
            axis.display = below(100'000);
            [[fallthrough]];
        case 1: {
            const int extent = below(2000);
            const ScrollPosition::Bar bar = ScrollPosition::fitted(axis, extent);
            ASSERT_EQ(extent >= axis.display ? 0 : extent, bar.page);
            axis.page = bar.page;
            axis.position = bar.position;
            ASSERT_LE(axis.position, std::max(0, axis.display - extent - 1));
            break;
        }
        case 2:
            axis.position = ScrollPosition::requested(axis, below(120'000) - 10'000).value_or(axis.position);
            break;
        default:
            axis.position += ScrollPosition::step(static_cast<unsigned>(below(8)), axis, below(500), below(120'000));
            break;
        }
        ASSERT_GE(axis.position, 0);
        ASSERT_LE(axis.position, std::max(0, axis.display - axis.page));
    }
}
