#include <algorithm>
#include <cstdlib>
#include <functional>

#include "DeskProcess.h"
#include "chart/ChartPane.h"
#include "chart/ChartStyles.h"
#include "support/Pump.h"
#include "support/RealInput.h"

namespace {

constexpr int ChartId = 5;

/// A desk with the chart of S00, whose invented candles are always the same.
class ChartByMouse : public DeskOnScreen {
protected:
    HWND canvas() const { return ::GetDlgItem(::GetDlgItem(desk(), ChartId), Desk::ChartPane::CanvasId); }
    HWND bar() const { return ::GetDlgItem(::GetDlgItem(desk(), ChartId), Desk::ChartPane::BarId); }
    HWND panel() const { return ::GetDlgItem(::GetDlgItem(desk(), ChartId), Desk::ChartPane::PanelId); }

    SIZE sizeOf(HWND window) const {
        RECT area{};
        ::GetClientRect(window, &area);
        return {area.right, area.bottom};
    }
    /// A point of the canvas by its shares of the width and the height.
    POINT at(double x, double y) const {
        const SIZE size = sizeOf(canvas());
        return onScreen(canvas(), static_cast<int>(size.cx * x), static_cast<int>(size.cy * y));
    }
    /// Where the mouse lies on nothing of the chart.
    void park() const {
        // Wine tells of a mouse that has left after its time for hovering.
        constexpr auto Hovering = std::chrono::milliseconds(600);
        support::moveMouse(onScreen(statusLine(), scaled(300), 4));
        support::pumpFor(Hovering);
        settle();
    }
    support::Pixels chart() const {
        park();
        return pixelsOf(canvas());
    }
    /// The rows of the thumb's ends in the bar, as its colours tell them.
    std::pair<int, int> thumb() const {
        const support::Pixels shown = pixelsOf(bar());
        const int y = shown.height() / 2;
        const COLORREF track = shown.at(1, y);
        int left = 1;
        while (left < shown.width() && shown.at(left, y) == track)
            ++left;
        int right = shown.width() - 1;
        while (right > left && shown.at(right, y) == track)
            --right;
        return {left, right};
    }
    void dragBar(int from, int to, const std::function<bool()>& hasFollowed) const {
        const int middle = sizeOf(bar()).cy / 2;
        EXPECT_TRUE(dragUntil(onScreen(bar(), from, middle), onScreen(bar(), to, middle), hasFollowed))
            << "from " << from << " to " << to << ", at " << thumb().first;
        settle();
    }
    /// With the focus in the chart, but on none of its objects.
    void takeTool() const { support::typeKey('L'); }
    COLORREF lineColour() const {
        return Desk::defaultStyles(Desk::DeskTheme::White)[static_cast<std::size_t>(Desk::ChartPart::NewLine)]
            .pen.Color();
    }
    std::size_t linePixels() const { return chart().count(lineColour()); }
    /// Puts the focus into the chart by a press on its tool, twice.
    void focusChart() const {
        const SIZE size = sizeOf(canvas());
        const POINT tool = onScreen(canvas(), size.cx - scaled(30), scaled(14));
        support::click(tool);
        support::pumpFor(std::chrono::milliseconds(::GetDoubleClickTime() + 50));
        support::click(tool);
        settle();
    }
    HWND focus() const {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        ::GetGUIThreadInfo(::GetWindowThreadProcessId(desk(), nullptr), &info);
        return info.hwndFocus;
    }
    /// The list that has dropped down; null if none has.
    HWND droppedList() const {
        HWND list = nullptr;
        while ((list = ::FindWindowExW(nullptr, list, L"ComboLBox", nullptr)))
            if (::IsWindowVisible(list) &&
                ::GetWindowThreadProcessId(list, nullptr) == ::GetWindowThreadProcessId(desk(), nullptr))
                return list;
        return nullptr;
    }
    void drawLine() const {
        takeTool();
        drag(at(0.2, 0.5), at(0.6, 0.3));
    }
};

} // namespace

TEST_F(ChartByMouse, ALineIsDrawnDraggedByItsEndSelectedAndDeleted) {
    start();
    focusChart();
    const support::Pixels without = chart();
    ASSERT_EQ(linePixels(), 0u);
    drawLine();
    const support::Pixels drawn = chart();
    const std::size_t pixels = drawn.count(lineColour());
    EXPECT_GT(pixels, 50u);
    const std::optional<RECT> before = drawn.boundsOf(lineColour());

    // Longer by its right end; the left one stays.
    drag(at(0.6, 0.3), at(0.7, 0.45));
    const support::Pixels dragged = chart();
    const std::optional<RECT> after = dragged.boundsOf(lineColour());
    ASSERT_TRUE(before && after);
    EXPECT_NEAR(after->left, before->left, 3);
    EXPECT_NEAR(after->right, before->right + sizeOf(canvas()).cx * 0.1, 4);

    // Let go, taken again by its middle, removed.
    support::typeKey(VK_ESCAPE);
    settle();
    const support::Pixels nothingSelected = pixelsOf(panel());
    support::click(at(0.45, 0.475));
    EXPECT_TRUE(eventually([&] { return pixelsOf(panel()) != nothingSelected; }));
    support::typeKey(VK_DELETE);
    EXPECT_TRUE(eventually([&] { return chart() == without; }));
}

TEST_F(ChartByMouse, TabGoesFromTheSearchToTheRowsToTheChartAndRoundAgain) {
    start();
    support::chord({VK_CONTROL, 'F'});
    EXPECT_TRUE(eventually([&] { return focus() == findBox(); }));
    for (const HWND next : {body(), canvas(), findBox(), body()}) {
        support::typeKey(VK_TAB);
        EXPECT_TRUE(eventually([&] { return focus() == next; }));
    }
    for (const HWND next : {findBox(), canvas(), body()}) {
        support::chord({VK_SHIFT, VK_TAB});
        EXPECT_TRUE(eventually([&] { return focus() == next; }));
    }
}

TEST_F(ChartByMouse, EscapeInADragPutsTheLineBack) {
    start();
    focusChart();
    drawLine();
    const support::Pixels drawn = chart();
    support::moveMouse(at(0.6, 0.3));
    support::pressButton();
    support::moveMouse(at(0.4, 0.6));
    settle();
    support::typeKey(VK_ESCAPE);
    settle();
    support::releaseButton();
    EXPECT_TRUE(samePixels(chart(), drawn));
}

TEST_F(ChartByMouse, TheListOfTypefacesIsScrolledByItsBarInTheThemeAndAClickOnAFaceTakesIt) {
    start({L"--theme", L"black"});
    const SIZE size = sizeOf(canvas());
    const HWND face = ::GetDlgItem(panel(), Desk::StylePanel::Face);
    // The labels of prices are somewhere along the axis.
    for (int y = size.cy / 4; y < size.cy * 3 / 4 && !::IsWindowVisible(face); y += scaled(5)) {
        support::click(onScreen(canvas(), size.cx - scaled(20), y));
        settle();
    }
    ASSERT_TRUE(::IsWindowVisible(face));
    const support::Pixels labels = chart();
    const support::Pixels before = pixelsOf(face);
    support::click(onScreen(face, sizeOf(face).cx / 2, sizeOf(face).cy / 2));
    ASSERT_TRUE(eventually([&] { return droppedList() != nullptr; }));
    const HWND list = droppedList();
    settle();
    const support::Pixels top = pixelsOf(list);
    EXPECT_LT(top.shareBrighterThan(0xA0), 0.12) << "letters only";

    const int barX = sizeOf(list).cx - scaled(7);
    EXPECT_TRUE(dragUntil(onScreen(list, barX, scaled(10)), onScreen(list, barX, sizeOf(list).cy - scaled(4)),
                          [&] { return pixelsOf(list) != top; }));
    settle();
    EXPECT_EQ(droppedList(), list) << "it stays";
    const support::Pixels bottom = pixelsOf(list);
    EXPECT_TRUE(bottom.part({0, 0, barX - scaled(10), bottom.height()}) !=
                top.part({0, 0, barX - scaled(10), top.height()}));
    support::click(onScreen(list, scaled(30), sizeOf(list).cy - scaled(12)));
    EXPECT_TRUE(eventually([&] { return droppedList() == nullptr; }));
    settle();
    EXPECT_TRUE(pixelsOf(face) != before);
    EXPECT_TRUE(chart() != labels);
}

TEST_F(ChartByMouse, ShiftAndADragSelectARangeAndDeleteRemovesIt) {
    start();
    focusChart();
    const support::Pixels without = chart();
    {
        support::moveMouse(at(0.3, 0.4));
        settle();
        const support::HeldKey shift(VK_SHIFT);
        support::pressButton();
        support::moveMouse(at(0.45, 0.4));
        support::moveMouse(at(0.5, 0.4));
        support::releaseButton();
        settle();
    }
    const support::Pixels with = chart();
    const std::optional<support::Difference> changed = support::difference(with, without);
    ASSERT_TRUE(changed);
    EXPECT_NEAR(changed->bounds.left, with.width() * 0.3, scaled(16));
    EXPECT_NEAR(changed->bounds.right, with.width() * 0.5, scaled(16));
    support::typeKey(VK_DELETE);
    EXPECT_TRUE(eventually([&] { return chart() == without; }));
}

TEST_F(ChartByMouse, ADragOnThePlotMovesTheChartAndTheBar) {
    start();
    const auto [left, right] = thumb();
    drag(at(0.3, 0.2), at(0.7, 0.2));
    EXPECT_LT(thumb().first, left);
    EXPECT_NEAR(thumb().second - thumb().first, right - left, 1);
}

TEST_F(ChartByMouse, TheWheelMovesAndWithCtrlZooms) {
    start();
    const std::pair<int, int> before = thumb();
    const int width = before.second - before.first;
    support::turnWheel(at(0.5, 0.3), -WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return thumb().first < before.first; }));
    EXPECT_NEAR(thumb().second - thumb().first, width, 1);
    support::turnWheel(at(0.5, 0.3), WHEEL_DELTA);
    EXPECT_TRUE(eventually([&] { return thumb() == before; }));
    {
        const support::HeldKey control(VK_CONTROL);
        for (int notch = 0; notch < 4; ++notch)
            support::turnWheel(at(0.5, 0.3), -WHEEL_DELTA);
        EXPECT_TRUE(eventually([&] { return thumb().second - thumb().first > width * 5 / 4; }));
    }
}

TEST_F(ChartByMouse, TheBarDrivesTheChartAndAnEdgeOfItZooms) {
    start();
    const support::Pixels before = chart();
    const auto [left, right] = thumb();
    dragBar((left + right) / 2, (left + right) / 2 - scaled(100),
            [&, wanted = left - scaled(100)] { return std::abs(thumb().first - wanted) <= 2; });
    EXPECT_NEAR(thumb().second - thumb().first, right - left, 1);
    const support::Pixels moved = chart();
    EXPECT_TRUE(moved != before);
    const auto [movedLeft, movedRight] = thumb();
    dragBar(movedLeft - 2, movedLeft - scaled(80),
            [&, wanted = movedLeft - scaled(80)] { return std::abs(thumb().first - wanted) <= 4; });
    EXPECT_NEAR(thumb().second, movedRight, 2);
    EXPECT_TRUE(chart() != moved);
}

TEST_F(ChartByMouse, ShowsTheInstrumentOfTheCaretRow) {
    start();
    support::click(cell(0, 1));
    const support::Pixels first = chart();
    support::typeKey(VK_DOWN);
    EXPECT_TRUE(eventually([&] { return chart() != first; }));
    support::typeKey(VK_UP);
    EXPECT_TRUE(eventually([&] { return chart() == first; }));
}

TEST_F(ChartByMouse, KeysOfTheChartMoveItAndEscapeGoesBackToTheRows) {
    start();
    focusChart();
    const auto first = thumb();
    support::typeKey(VK_HOME);
    EXPECT_TRUE(eventually([&] { return thumb().first < first.first; }));
    support::typeKey(VK_END);
    EXPECT_TRUE(eventually([&] { return thumb() == first; }));
    support::typeKey(VK_ESCAPE);
    settle();
    support::typeKey(VK_END);
    EXPECT_EQ(copiedSymbols(), "S59");
}

TEST_F(ChartByMouse, TheCrossHairFollowsTheMouseAndGoesWithIt) {
    start();
    const support::Pixels without = chart();
    support::moveMouse(at(0.5, 0.2));
    EXPECT_TRUE(eventually([&] { return pixelsOf(canvas()) != without; }));
    EXPECT_TRUE(samePixels(chart(), without));
}

TEST_F(ChartByMouse, AnInstrumentThatTheFileDoesNotHaveIsASentenceAndTheStartIsAtOneThatItHas) {
    const auto file = m_folder.write(L"candles.csv", "Symbol,Date,Open,High,Low,Close,Volume\n"
                                                     "S07,2015-01-02,10,12,9,11,100\n"
                                                     "S07,2015-01-05,11,13,10,12,100\n");
    start({L"--candles", file.wstring()});
    support::click(onScreen(statusLine(), scaled(300), 4));
    EXPECT_EQ(copiedSymbols(), "S07");
    const support::Pixels candles = chart();
    support::typeKey(VK_UP);
    EXPECT_TRUE(eventually([&] { return chart() != candles; }));
    // Nothing but the sentence.
    const support::Pixels sentence = chart();
    EXPECT_TRUE(sentence.onlyColour({0, 0, sentence.width(), sentence.height() / 3}));
    EXPECT_FALSE(sentence.onlyColour({0, sentence.height() / 3, sentence.width(), sentence.height() * 2 / 3}));
}

TEST_F(ChartByMouse, ALineIsThereAgainAtTheNextStart) {
    start();
    focusChart();
    drawLine();
    const std::size_t pixels = linePixels();
    EXPECT_GT(pixels, 50u);
    close();
    start();
    EXPECT_NEAR(static_cast<double>(linePixels()), static_cast<double>(pixels), 40);
}

TEST(BadCandles, EndWithCode2AndOneLineThatNamesThePlace) {
    const TemporaryFolder folder;
    const auto file = folder.write(L"bad.csv", "Symbol,Date,Open,High,Low,Close,Volume\nA,2015-01-02,10,9,8,8.5,100\n");
    const DeskRun run = runDesk({L"--candles", file.wstring()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_NE(run.errors.find("bad.csv"), std::string::npos) << run.errors;
    EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 1) << run.errors;
    EXPECT_EQ(run.output, "");
}
