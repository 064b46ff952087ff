#include <chrono>

#include "DeskProcess.h"
#include "chart/ChartPane.h"
#include "support/Pump.h"
#include "support/RealInput.h"

using LiveQuotes = DeskOnScreen;

namespace {

constexpr int ChartId = 5;
constexpr std::size_t Sector = 2;
constexpr std::size_t Price = 3;

RECT columnArea(int left, int right, const support::Pixels& view) {
    return {left, 0, right, view.height()};
}

} // namespace

TEST_F(LiveQuotes, TickedPricesFlashAndNothingElseOfTheirRowChanges) {
    start({L"--ticks", L"40"});
    const support::Pixels before = pixelsOf(body());
    const RECT prices = columnArea(columnRight(Sector), columnRight(Price), before);
    const RECT others = columnArea(0, columnRight(Sector), before);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).part(prices) != before.part(prices); }));
    EXPECT_TRUE(eventually([&] {
        // A cell that rises has a green ground, one that falls a red one.
        const support::Pixels now = pixelsOf(body()).part(prices);
        std::size_t green = 0;
        std::size_t red = 0;
        for (int y = 0; y < now.height(); ++y) {
            const COLORREF ground = now.at(2, y);
            green += GetGValue(ground) > GetRValue(ground) + 20 ? 1 : 0;
            red += GetRValue(ground) > GetGValue(ground) + 20 ? 1 : 0;
        }
        return green > 10 && red > 10;
    }));
    EXPECT_EQ(pixelsOf(body()).part(others), before.part(others));
}

TEST_F(LiveQuotes, TheChartFollowsThePriceOfTheRowWithTheCaret) {
    start({L"--ticks", L"400"});
    const HWND canvas = ::GetDlgItem(::GetDlgItem(desk(), ChartId), Desk::ChartPane::CanvasId);
    support::moveMouse(onScreen(statusLine(), scaled(300), 4));
    const support::Pixels first = pixelsOf(canvas);
    EXPECT_TRUE(eventually([&] {
        const auto changed = support::difference(pixelsOf(canvas), first);
        return changed && changed->bounds.right > first.width() * 9 / 10;
    }));
    support::Pixels before = pixelsOf(canvas);
    for (int change = 0; change < 3; ++change) {
        EXPECT_TRUE(eventually([&] { return pixelsOf(canvas) != before; })) << change;
        before = pixelsOf(canvas);
    }
}

TEST_F(LiveQuotes, WithoutTicksNothingChanges) {
    start();
    const support::Pixels before = pixelsOf(desk());
    support::pumpFor(std::chrono::seconds(1));
    EXPECT_EQ(pixelsOf(desk()), before);
}

TEST_F(LiveQuotes, AClickOnRunningRowsSelectsTheRowUnderIt) {
    start();
    const POINT autoscroll = onScreen(strip(), pixelsOf(strip()).width() - scaled(400), scaled(20));
    support::click(autoscroll);
    // At 20 pixels a second the first row has left the view by now.
    support::pumpFor(std::chrono::seconds(3));
    support::click(onScreen(body(), scaled(100), 2));
    support::click(autoscroll);
    support::chord({VK_CONTROL, 'F'});
    support::typeKey(VK_ESCAPE);
    const std::string symbol = copiedSymbols();
    EXPECT_GT(symbol, "S00");
    EXPECT_LT(symbol, "S07");
}

TEST_F(LiveQuotes, F6SwitchesAutoscroll) {
    start();
    const support::Pixels before = pixelsOf(body());
    support::typeKey(VK_F6);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != before; }));
    support::typeKey(VK_F6);
    settle();
    const support::Pixels after = pixelsOf(body());
    support::pumpFor(std::chrono::milliseconds(500));
    EXPECT_EQ(pixelsOf(body()), after);
}

TEST_F(LiveQuotes, AutoscrollRunsTheRowsUntilItIsSwitchedOff) {
    start();
    // The switch stands third from the right; its knob is found by its track's place in the strip.
    const support::Pixels before = pixelsOf(body());
    const POINT autoscroll = onScreen(strip(), pixelsOf(strip()).width() - scaled(400), scaled(20));
    support::click(autoscroll);
    support::moveMouse(onScreen(statusLine(), scaled(300), 4));
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != before; }));
    const support::Pixels during = pixelsOf(body());
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()) != during; }));
    support::click(autoscroll);
    support::pumpFor(std::chrono::milliseconds(300));
    const support::Pixels after = pixelsOf(body());
    support::pumpFor(std::chrono::milliseconds(500));
    EXPECT_EQ(pixelsOf(body()), after);
}
