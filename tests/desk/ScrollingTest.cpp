#include "DeskProcess.h"
#include "support/RealInput.h"

using Scrolling = DeskOnScreen;

namespace {

constexpr int NotchPixels = WHEEL_DELTA / 8;

support::Pixels lowered(const support::Pixels& view, int by) {
    return view.part({0, by, view.width(), view.height()});
}

support::Pixels raised(const support::Pixels& view, int by) {
    return view.part({0, 0, view.width(), view.height() - by});
}

} // namespace

TEST_F(Scrolling, ANotchOfTheWheelMovesTheRowsOnceByAnEighthOfItsTurn) {
    start();
    support::moveMouse(cell(5, 1));
    const support::Pixels before = pixelsOf(body());
    support::turnWheel(cell(5, 1), -WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != before; }));
    EXPECT_TRUE(eventually([&] { return raised(pixelsOf(body()), NotchPixels) == lowered(before, NotchPixels); }));
    support::turnWheel(cell(5, 1), WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) == before; }));
}

TEST_F(Scrolling, TheWheelWorksOverTheStripToo) {
    start();
    const support::Pixels before = pixelsOf(body());
    support::turnWheel(onScreen(strip(), scaled(500), scaled(10)), -WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return raised(pixelsOf(body()), NotchPixels) == lowered(before, NotchPixels); }));
}

TEST_F(Scrolling, DraggingTheThumbToTheEndShowsTheLastRow) {
    start();
    const support::Pixels bar = pixelsOf(scrollBar());
    const int middle = bar.width() / 2;
    drag(onScreen(scrollBar(), middle, scaled(10)), onScreen(scrollBar(), middle, bar.height() + 40));
    const support::Pixels view = pixelsOf(body());
    support::click(onScreen(body(), scaled(100), view.height() - 4));
    EXPECT_EQ(copiedSymbols(), "S59");
}

TEST_F(Scrolling, TheThumbFollowsTheKeys) {
    start();
    support::click(cell(1, 1));
    const support::Pixels before = pixelsOf(scrollBar());
    support::typeKey(VK_END);
    EXPECT_TRUE(eventually([&] { return pixelsOf(scrollBar()) != before; }));
    support::typeKey(VK_HOME);
    EXPECT_TRUE(eventually([&] { return pixelsOf(scrollBar()) == before; }));
}

TEST_F(Scrolling, APressBesideTheThumbTurnsAPage) {
    start();
    const support::Pixels before = pixelsOf(body());
    const support::Pixels bar = pixelsOf(scrollBar());
    support::click(onScreen(scrollBar(), bar.width() / 2, bar.height() - 4));
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != before; }));
    support::click(onScreen(scrollBar(), bar.width() / 2, 4));
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) == before; }));
}
