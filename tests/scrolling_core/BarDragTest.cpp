#include "BarDrag.h"

#include <algorithm>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "ReferenceBar.h"

using BarDrag::Part;

namespace {

constexpr BarSize kClient{400, 24}; // edges of 12, a track of 376

/// A window and the bar that shows it.
struct Bar {
    Bar(double start, double end) : Bar(kClient, start, end) {}
    Bar(BarSize client, double start, double end) {
        window.start = start;
        window.end = end;
        layout = BarLayout::of(client, window);
    }

    RangeWindow window;
    BarLayout layout;
};

} // namespace

TEST(APress, TakesTheEdgesBeforeTheThumbAndTheTrackLast) {
    // Thumb 106 to 294: the left edge is pressed from 88 to 118, the thumb to 282, the right edge to 312.
    const Bar wide(0.25, 0.75);
    struct Case {
        int x;
        int y;
        Part part;
    };
    for (const Case& c : {Case{87, 12, Part::Track}, Case{88, 12, Part::LeftEdge}, Case{117, 12, Part::LeftEdge},
                          Case{118, 12, Part::Thumb}, Case{281, 12, Part::Thumb}, Case{282, 12, Part::RightEdge},
                          Case{311, 12, Part::RightEdge}, Case{312, 12, Part::Track}, Case{0, 0, Part::Track},
                          Case{399, 23, Part::Track}, Case{200, 2, Part::Track}, Case{200, 21, Part::Track},
                          Case{400, 12, Part::None}, Case{-1, 12, Part::None}, Case{200, 24, Part::None}}) {
        EXPECT_EQ(c.part, BarDrag::pressed(wide.layout, c.x, c.y)) << c.x << ',' << c.y;
    }
    // Thumb 200 to 205: all three overlap, and each point goes to the left edge while it can.
    const Bar narrow(0.5, 0.5 + 5.0 / 376);
    EXPECT_EQ(Part::LeftEdge, BarDrag::pressed(narrow.layout, 211, 12));
    EXPECT_EQ(Part::RightEdge, BarDrag::pressed(narrow.layout, 212, 12));
}

TEST(TheMouse, IsOverTheThumbBeforeTheEdges) {
    const Bar narrow(0.5, 0.5 + 5.0 / 376); // its place is 194 to 211
    EXPECT_EQ(Part::LeftEdge, BarDrag::under(narrow.layout, 193, 12));
    EXPECT_EQ(Part::Thumb, BarDrag::under(narrow.layout, 194, 12));
    EXPECT_EQ(Part::Thumb, BarDrag::under(narrow.layout, 210, 12));
    EXPECT_EQ(Part::LeftEdge, BarDrag::under(narrow.layout, 211, 12));
    EXPECT_EQ(Part::RightEdge, BarDrag::under(narrow.layout, 212, 12));
    EXPECT_EQ(Part::None, BarDrag::under(narrow.layout, 50, 12));
    EXPECT_EQ(Part::None, BarDrag::under(narrow.layout, 500, 12));
}

TEST(AClickInTheTrack, StepsByTheThumbAndInsideItToItsMiddle) {
    constexpr BarRect thumb{100, 3, 141, 21}; // its middle is 120
    EXPECT_EQ(-41, BarDrag::trackStep(thumb, 99));
    EXPECT_EQ(-41, BarDrag::trackStep(thumb, -500));
    EXPECT_EQ(-20, BarDrag::trackStep(thumb, 100));
    EXPECT_EQ(0, BarDrag::trackStep(thumb, 120));
    EXPECT_EQ(20, BarDrag::trackStep(thumb, 140));
    EXPECT_EQ(41, BarDrag::trackStep(thumb, 141));
    EXPECT_EQ(41, BarDrag::trackStep(thumb, 5000));
}

TEST(TheLeftEdge, FollowsTheMouse) {
    Bar bar(0.25, 0.75);
    EXPECT_EQ(109, BarDrag::dragLeftEdge(bar.window, bar.layout, kClient, 4, 109));
    EXPECT_EQ(0.25 + 4.0 / 376, bar.window.start);
    EXPECT_EQ(110, bar.layout.thumb.left);
    EXPECT_EQ(0.75, bar.window.end);
}

TEST(TheLeftEdge, StopsAtTheBeginningAndWaitsForTheMouse) {
    Bar bar(0.25, 0.75);
    EXPECT_EQ(-300, BarDrag::dragLeftEdge(bar.window, bar.layout, kClient, -400, -300));
    EXPECT_EQ(0.0, bar.window.start);
}

TEST(TheLeftEdge, DraggedIntoTheRightOneFallsBackToTwoPixels) {
    Bar bar(0.25, 0.75); // the right edge begins at 294
    const int from = BarDrag::dragLeftEdge(bar.window, bar.layout, kClient, 250, 356);
    EXPECT_EQ(0.75 - 2.0 / 376, bar.window.start);
    EXPECT_EQ(293, from) << "where the edge stood before it fell back";
}

TEST(TheLeftEdge, KeepsThreePixelsAsTheyAre) {
    Bar bar(0.25, 0.75);
    BarDrag::dragLeftEdge(bar.window, bar.layout, kClient, 185, 291);
    EXPECT_EQ(3, bar.layout.gap());
    EXPECT_EQ(0.25 + 185.0 / 376, bar.window.start);
}

TEST(TheLeftEdge, OfAWindowAtTheBeginningStaysInTheRange) {
    Bar bar(0.0, 0.001);
    BarDrag::dragLeftEdge(bar.window, bar.layout, kClient, 3, 15);
    EXPECT_EQ(0.0, bar.window.start);
    EXPECT_EQ(0.001, bar.window.end);
}

TEST(TheRightEdge, FollowsTheMouseToTheEnd) {
    Bar bar(0.25, 0.75);
    EXPECT_EQ(304, BarDrag::dragRightEdge(bar.window, bar.layout, kClient, 4, 304));
    EXPECT_EQ(0.75 + 4.0 / 376, bar.window.end);
    EXPECT_EQ(900, BarDrag::dragRightEdge(bar.window, bar.layout, kClient, 600, 900));
    EXPECT_EQ(1.0, bar.window.end);
    EXPECT_EQ(0.25, bar.window.start);
}

TEST(TheRightEdge, DraggedIntoTheLeftOneFallsBackToTwoPixels) {
    Bar bar(0.25, 0.75); // the left edge ends at 106
    const int from = BarDrag::dragRightEdge(bar.window, bar.layout, kClient, -250, 50);
    EXPECT_EQ(0.25 + 2.0 / 376, bar.window.end);
    EXPECT_EQ(106, from);
}

TEST(TheRightEdge, OfAWindowAtTheEndStaysInTheRange) {
    Bar bar(0.999, 1.0);
    BarDrag::dragRightEdge(bar.window, bar.layout, kClient, -3, 380);
    EXPECT_EQ(0.999, bar.window.start);
    EXPECT_EQ(1.0, bar.window.end);
}

TEST(AnEdge, IsLaidOutInTheSizeThatTheBarHasNow) {
    Bar bar(0.25, 0.75);
    BarDrag::dragLeftEdge(bar.window, bar.layout, {800, 24}, 0, 100);
    EXPECT_EQ(776.0, bar.layout.trackLength);
}

TEST(AnEdge, OfABarWithoutATrackChangesNothing) {
    for (const BarSize client : {BarSize{24, 24}, BarSize{10, 100}, BarSize{0, 0}}) {
        Bar bar(client, 0.25, 0.75);
        BarDrag::dragLeftEdge(bar.window, bar.layout, client, 50, 60);
        BarDrag::dragRightEdge(bar.window, bar.layout, client, -50, 60);
        EXPECT_EQ(0.25, bar.window.start);
        EXPECT_EQ(0.75, bar.window.end);
    }
}

TEST(ADrag, IsRebasedWhereTheBarWasSetAwayFromUnderTheMouse) {
    const Bar bar(0.25, 0.75); // the thumb is pressed from 118 to 282; strips 94 to 106 and 294 to 306
    struct Case {
        Part part;
        int x;
        std::optional<int> base;
    };
    for (const Case& c :
         {Case{Part::Thumb, 117, 118}, Case{Part::Thumb, 118, std::nullopt}, Case{Part::Thumb, 282, std::nullopt},
          Case{Part::Thumb, 283, 282}, Case{Part::LeftEdge, 93, 94}, Case{Part::LeftEdge, 94, std::nullopt},
          Case{Part::LeftEdge, 399, std::nullopt}, Case{Part::RightEdge, 307, 306},
          Case{Part::RightEdge, 306, std::nullopt}, Case{Part::RightEdge, 0, std::nullopt},
          Case{Part::Track, 0, std::nullopt}, Case{Part::None, 0, std::nullopt}}) {
        EXPECT_EQ(c.base, BarDrag::rebased(bar.layout, c.part, c.x)) << static_cast<int>(c.part) << " at " << c.x;
    }
}

TEST(RandomDrags, AgreeWithTheReferenceAndKeepTheWindowInTheRange) {
    std::mt19937 random(52);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int life = 0; life < 4000; ++life) {
        constexpr int kWidths[] = {0, 1, 2, 20'000};
        const BarSize client{below(10) == 0 ? kWidths[below(4)] : 20 + below(700), below(65)};
        ReferenceBar reference(client.width, client.height);
        Bar bar(client, 0.0, 1.0);
        // The gesture itself is the window's; the reference has one of its own, so that only its arithmetic is used.
        int from = 0;
        for (int step = 0; step < 60; ++step) {
            const int x = below(client.width + 200) - 100;
            const int part = 1 + below(3);
            reference.layOut();
            reference.drag = 0;
            reference.press(from, -1); // outside: it only notes where the drag begins
            reference.drag = part;
            reference.move(1, x, client.height / 2);
            bar.layout = BarLayout::of(client, bar.window);
            int last = x;
            if (part == 1) {
                bar.window.move(bar.layout.fraction(x - from));
            } else if (part == 2) {
                last = BarDrag::dragLeftEdge(bar.window, bar.layout, client, x - from, x);
            } else {
                last = BarDrag::dragRightEdge(bar.window, bar.layout, client, x - from, x);
            }
            from = std::clamp(last, 0, client.width);
            ASSERT_EQ(reference.start, bar.window.start) << "life " << life << " step " << step;
            ASSERT_EQ(reference.end, bar.window.end) << "life " << life << " step " << step;
            ASSERT_GE(bar.window.start, 0.0);
            ASSERT_LE(bar.window.end, 1.0);
            ASSERT_GE(bar.window.width(), 0.99e-06);
        }
    }
}
