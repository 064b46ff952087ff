#include "RangeWindow.h"

#include <cmath>

#include <gtest/gtest.h>

namespace {

RangeWindow windowOf(double start, double end) {
    RangeWindow window;
    window.start = start;
    window.end = end;
    return window;
}

void expectWindow(double start, double end, const RangeWindow& window) {
    EXPECT_DOUBLE_EQ(start, window.start);
    EXPECT_DOUBLE_EQ(end, window.end);
}

} // namespace

TEST(RangeWindow, BeginsAsTheWholeRange) {
    expectWindow(0.0, 1.0, RangeWindow());
}

TEST(RangeWindow, KeepsItsWidthAgainstTheWallThatItHits) {
    struct Case {
        const char* what;
        double by;
        double start;
        double end;
    };
    const Case cases[] = {
        {"room enough", 0.25, 0.5, 0.75},
        {"just as far as there is room", 0.5, 0.75, 1.0},
        {"more than there is room", 0.6, 0.75, 1.0},
        {"far too much", 1e300, 0.75, 1.0},
        {"the other way", -0.25, 0.0, 0.25},
        {"too much the other way", -0.3, 0.0, 0.25},
        {"nothing", 0.0, 0.25, 0.5},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        RangeWindow window = windowOf(0.25, 0.5);
        window.move(c.by);
        expectWindow(c.start, c.end, window);
        EXPECT_EQ(0.25, window.width());
    }
}

TEST(RangeWindow, OfTheWholeRangeDoesNotMove) {
    for (const double by : {0.1, -0.1, 7.0, -7.0}) {
        RangeWindow window;
        window.move(by);
        expectWindow(0.0, 1.0, window);
    }
}

TEST(RangeWindow, WiderThanTheRangeKeepsItsWidthAtTheEnd) {
    RangeWindow window = windowOf(-0.5, 1.5);
    window.move(0.25);
    expectWindow(-1.0, 1.0, window);
}

TEST(RangeWindow, EdgesStopAtTheRangeAndAtTheOtherEdge) {
    RangeWindow window = windowOf(0.25, 0.5);
    window.moveStart(-1.0);
    expectWindow(0.0, 0.5, window);
    window.moveStart(0.75);
    expectWindow(0.5 - 1e-06, 0.5, window);
    window.moveEnd(5.0);
    expectWindow(0.5 - 1e-06, 1.0, window);
    window.moveEnd(-5.0);
    EXPECT_NEAR(1e-06, window.width(), 1e-15);
}

TEST(RangeWindow, EdgesBesideTheEndsOfTheRangeStayInside) {
    RangeWindow window = windowOf(0.0, 0.001);
    window.startBeforeEnd(0.01);
    expectWindow(0.0, 0.001, window);
    window = windowOf(0.0, 1e-07);
    window.moveStart(0.5);
    expectWindow(0.0, 1e-07, window);
    window = windowOf(0.999, 1.0);
    window.endAfterStart(0.01);
    expectWindow(0.999, 1.0, window);
}

TEST(RangeWindow, OutsideTheRangeIsNotTurnedInsideOut) {
    RangeWindow window = windowOf(-0.5, -0.25);
    window.startBeforeEnd(0.1);
    EXPECT_LE(window.start, window.end);
    window = windowOf(1.5, 2.0);
    window.endAfterStart(0.1);
    EXPECT_LE(window.start, window.end);
}

TEST(RangeWindow, TogglesBetweenTheWholeRangeAndTheLastWindow) {
    RangeWindow window = windowOf(0.25, 0.5);
    window.toggleFull();
    expectWindow(0.0, 1.0, window);
    window.toggleFull();
    expectWindow(0.25, 0.5, window);
    window.move(0.25);
    window.toggleFull();
    window.toggleFull();
    expectWindow(0.5, 0.75, window);
}

TEST(RangeWindow, StaysWholeWhereThereWasNoOtherWindow) {
    RangeWindow window;
    window.toggleFull();
    expectWindow(0.0, 1.0, window);
    window.toggleFull();
    expectWindow(0.0, 1.0, window);
}

TEST(RangeWindow, ForgetsTheLastWindowOnceItIsBack) {
    RangeWindow window = windowOf(0.25, 0.5);
    window.toggleFull();
    window.toggleFull();
    window.start = 0.0;
    window.end = 1.0;
    window.toggleFull();
    expectWindow(0.0, 1.0, window);
}

TEST(RangeWindow, AlmostWholeIsAWindowLikeAnyOther) {
    RangeWindow window = windowOf(0.0, std::nextafter(1.0, 0.0));
    window.toggleFull();
    EXPECT_EQ(1.0, window.end);
    window.toggleFull();
    EXPECT_EQ(std::nextafter(1.0, 0.0), window.end);
}
