#include "ChartOnHost.h"

using namespace Desk;

namespace {

using ChartOfAHost = ChartOnHost;

/// A model that shows one instrument, on whose chart a line is selected.
class LineOnAChart : public ChartOnHost {
protected:
    LineOnAChart() {
        const Instrument instrument = named("A");
        model.show(&instrument);
        model.addLine({});
        model.gestures().select(lineObject(0));
    }

    ChartModel model{CandleSource(CandleBook{{"A", wavingCandles(50)}}), ChartMemory()};
};

} // namespace

TEST_F(ChartOfAHost, KeepsTheLinesOfEachInstrumentApart) {
    SystemColors::SetThemeColor(EThemeColor::WhiteTheme);
    ChartModel model(CandleSource(CandleBook{{"A", wavingCandles(50)}, {"B", wavingCandles(60)}}), ChartMemory());
    const Instrument a = named("A");
    const Instrument b = named("B");
    EXPECT_TRUE(model.show(&a));
    EXPECT_FALSE(model.show(&a));
    model.addLine({{1, 100}, {20, 120}});
    EXPECT_TRUE(model.show(&b));
    EXPECT_EQ(model.lines().lineCount(), 0u);
    model.addLine({{2, 101}, {30, 121}});
    EXPECT_EQ(model.memory().lines.size(), 2u);
    model.show(&a);
    ASSERT_EQ(model.lines().lineCount(), 1u);
    EXPECT_EQ(model.lines().line(0), (TrendLine{{1, 100}, {20, 120}}));
    model.show(nullptr);
    EXPECT_EQ(model.memory().lines.size(), 2u);
    EXPECT_TRUE(model.candles().empty());
    EXPECT_TRUE(model.missing().empty());
}

TEST_F(ChartOfAHost, LinesOfAnInstrumentWithoutCandlesAreNotLost) {
    ChartMemory memory;
    memory.lines.push_back({"X", {{std::chrono::sys_days(), 1, 2}, {std::chrono::sys_days(), 3, 4}}, {}});
    ChartModel model(CandleSource(CandleBook{{"A", wavingCandles(50)}}), memory);
    const Instrument x = named("X");
    model.show(&x);
    EXPECT_EQ(model.lines().lineCount(), 0u);
    ASSERT_EQ(model.memory().lines.size(), 1u);
    EXPECT_EQ(model.memory().lines[0].line, memory.lines[0].line);
}

TEST_F(ChartOfAHost, AStyleChangesTheSelectedObjectOfTheThemeOnly) {
    open(200);
    ChartModel model(CandleSource(CandleBook{{"A", wavingCandles(50)}}), ChartMemory());
    const Instrument a = named("A");
    model.show(&a);
    model.gestures().select(objectOf(ChartPart::Average));
    ChartStyle style = model.styleOf(ChartPart::Average);
    style.pen.Color(RGB(1, 2, 3));
    model.setSelectedStyle(style);
    EXPECT_EQ(model.styleOf(ChartPart::Average).pen.Color(), RGB(1, 2, 3));
    model.setTheme(DeskTheme::Black);
    EXPECT_NE(model.styleOf(ChartPart::Average).pen.Color(), RGB(1, 2, 3));
    model.addLine({});
    model.gestures().select(lineObject(0));
    model.setSelectedStyle(style);
    EXPECT_EQ(model.styleOfLine(0).pen.Color(), RGB(1, 2, 3));
    model.gestures().select({});
    model.setSelectedStyle({});
    EXPECT_EQ(model.styleOfLine(0).pen.Color(), RGB(1, 2, 3));
}

TEST_F(LineOnAChart, GivesItsLooksToTheNextOneWhenItIsStyled) {
    ChartStyle style = model.styleOfLine(0);
    style.pen = GdiPenWrapper(PS_DOT, 4, RGB(1, 2, 3));
    model.setSelectedStyle(style);
    model.addLine({});
    EXPECT_EQ(model.styleOfLine(1).pen.Color(), RGB(1, 2, 3));
    EXPECT_EQ(model.styleOfLine(1).pen.Width(), 4);
    model.setTheme(DeskTheme::Black);
    model.addLine({});
    EXPECT_NE(model.styleOfLine(2).pen.Color(), RGB(1, 2, 3));
}

TEST_F(LineOnAChart, HasDashesOfNoPenOfTheSystemWhereItIsWide) {
    ChartContexts contexts;
    for (const auto& [dashes, count] : {std::pair(PS_DASH, 2), {PS_DOT, 2}, {PS_DASHDOT, 4}, {PS_DASHDOTDOT, 6}}) {
        ChartStyle style = model.styleOfLine(0);
        style.pen.FromDescription(static_cast<unsigned int>(dashes), 3, RGB(1, 2, 3));
        model.setSelectedStyle(style);
        contexts.updateLine(model, 0);
        EXPECT_EQ(contexts.line.GetLOGPEN().lopnStyle, UINT{PS_SOLID});
        EXPECT_EQ(contexts.line.GetPen().GetDashPatternCount(), count);
    }
    ChartStyle style = model.styleOfLine(0);
    style.pen.LineStyle(PS_SOLID);
    model.setSelectedStyle(style);
    contexts.updateLine(model, 0);
    EXPECT_EQ(contexts.line.GetPen().GetDashStyle(), Gdiplus::DashStyleSolid);
}

TEST_F(ChartOfAHost, ThePanelGoesWhereThereIsNoRoomForItAndTheCanvasTakesItsPlace) {
    open(200);
    CWnd& panel = *m_pane->GetDlgItem(ChartPane::PanelId);
    CRect canvasArea;
    canvas().GetClientRect(&canvasArea);
    EXPECT_TRUE((panel.GetStyle() & WS_VISIBLE) != 0);
    EXPECT_EQ(canvasArea.Width(), scaled(900) - StylePanel::width());
    m_pane->MoveWindow(0, 0, scaled(500), scaled(340));
    canvas().GetClientRect(&canvasArea);
    EXPECT_FALSE((panel.GetStyle() & WS_VISIBLE) != 0);
    EXPECT_EQ(canvasArea.Width(), scaled(500));
}

TEST_F(ChartOfAHost, ALostCaptureEndsADragAndKeepsWhatItDid) {
    open(2000);
    const ChartRange before = state().range;
    const CPoint from = emptyPixel();
    mouse(WM_LBUTTONDOWN, from, MK_LBUTTON);
    mouse(WM_MOUSEMOVE, from + CPoint(60, 0), MK_LBUTTON);
    const ChartRange moved = state().range;
    EXPECT_LT(moved.start, before.start);
    ::ReleaseCapture();
    EXPECT_FALSE(m_pane->gestures().isDragging());
    mouse(WM_MOUSEMOVE, from + CPoint(200, 0));
    EXPECT_EQ(state().range, moved);
}

TEST_F(ChartOfAHost, EndsWithItsWindowInADrag) {
    open(2000);
    mouse(WM_LBUTTONDOWN, emptyPixel(), MK_LBUTTON);
    m_pane->DestroyWindow();
    m_pane.reset();
    EXPECT_EQ(::GetCapture(), nullptr);
}
