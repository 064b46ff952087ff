// What the user has made of the chart is there when the desk starts again.
#include <gtest/gtest.h>

#include "DeskProcess.h"
#include "chart/ChartPalette.h"
#include "chart/ChartPane.h"
#include "support/RealInput.h"

namespace {

constexpr int ChartId = 5;
/// Nothing of a new chart has these colours.
const COLORREF Pink = Desk::paletteColor(Desk::PaletteColor::Pink);
const COLORREF Teal = Desk::paletteColor(Desk::PaletteColor::Teal);
constexpr int WidthCells = 5;

class ChartKept : public DeskOnScreen {
protected:
    HWND chart() const { return ::GetDlgItem(desk(), ChartId); }
    HWND canvas() const { return ::GetDlgItem(chart(), Desk::ChartPane::CanvasId); }
    HWND control(Desk::StylePanel::Control which) const {
        return ::GetDlgItem(::GetDlgItem(chart(), Desk::ChartPane::PanelId), which);
    }

    void pressCell(Desk::StylePanel::Control which, int cell, int cells) const {
        RECT area{};
        ::GetClientRect(control(which), &area);
        support::click(onScreen(control(which), area.right * (2 * cell + 1) / (2 * cells), area.bottom / 2));
        settle();
    }
    void chooseColour(Desk::StylePanel::Control which, Desk::PaletteColor colour) const {
        pressCell(which, static_cast<int>(colour), static_cast<int>(Desk::PaletteSize));
    }
    std::size_t inCanvas(COLORREF colour) const { return pixelsOf(canvas()).count(colour); }

    /// A point inside the body of a candle below the legend and left of the labels; (-1, -1) if there is none.
    POINT bodyOf(COLORREF colour) const {
        const support::Pixels pixels = pixelsOf(canvas());
        for (int y = scaled(40); y < pixels.height() / 2; ++y)
            for (int x = 1; x < pixels.width() - scaled(100); ++x)
                if (pixels.onlyColour({x - 1, y - 1, x + 2, y + 2}) == colour)
                    return {x, y};
        return {-1, -1};
    }

    /// From the left of the plot of prices to its middle, as a user draws it.
    void drawLine() const {
        support::click(onScreen(canvas(), scaled(60), scaled(60)));
        support::typeKey('L');
        drag(onScreen(canvas(), scaled(80), scaled(50)), onScreen(canvas(), scaled(400), scaled(90)));
    }
};

} // namespace

TEST_F(ChartKept, ADrawnLineWithItsStyleIsThereAfterARestart) {
    start();
    ASSERT_NE(control(Desk::StylePanel::Width), nullptr);
    ASSERT_EQ(inCanvas(Pink), 0u);
    drawLine();
    ASSERT_TRUE(::IsWindowVisible(control(Desk::StylePanel::Width))) << "the new line is selected";
    chooseColour(Desk::StylePanel::LineColor, Desk::PaletteColor::Pink);
    pressCell(Desk::StylePanel::Width, WidthCells - 1, WidthCells);
    EXPECT_TRUE(eventually([&] { return inCanvas(Pink) > 500; }));
    close();
    const std::string pen = R"("pen":"0 5 )" + std::to_string(Pink) + '"';
    EXPECT_NE(settings().find(pen), std::string::npos) << settings();

    start();
    EXPECT_TRUE(eventually([&] { return inCanvas(Pink) > 500; }));
}

TEST_F(ChartKept, AStyleIsThereAfterARestartInItsThemeOnly) {
    start();
    const COLORREF risen = Desk::defaultStyles(Desk::DeskTheme::White)[0].fill;
    ASSERT_EQ(inCanvas(Teal), 0u);
    const POINT body = bodyOf(risen);
    ASSERT_NE(body.x, -1) << "a rising candle is seen";
    support::click(onScreen(canvas(), body.x, body.y));
    settle();
    ASSERT_TRUE(::IsWindowVisible(control(Desk::StylePanel::FillColor))) << "the candles are selected";
    chooseColour(Desk::StylePanel::FillColor, Desk::PaletteColor::Teal);
    EXPECT_TRUE(eventually([&] { return inCanvas(Teal) > 50; }));
    close();

    start();
    EXPECT_TRUE(eventually([&] { return inCanvas(Teal) > 50; }));
    support::typeKey(VK_F8);
    EXPECT_TRUE(eventually([&] { return inCanvas(Teal) == 0; }));
}
