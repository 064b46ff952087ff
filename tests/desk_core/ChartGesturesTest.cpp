#include "core/chart/ChartGestures.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

#include "core/chart/MovingAverage.h"

using namespace Desk;

namespace {

constexpr std::size_t CandleCount = 200;

class PlainLines : public ChartLines {
public:
    std::size_t lineCount() const override { return m_lines.size(); }
    const TrendLine& line(std::size_t index) const override { return m_lines.at(index); }
    void setLine(std::size_t index, const TrendLine& line) override { m_lines.at(index) = line; }
    void addLine(const TrendLine& line) override { m_lines.push_back(line); }
    void removeLine(std::size_t index) override {
        ASSERT_LT(index, m_lines.size());
        m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(index));
    }

private:
    std::vector<TrendLine> m_lines;
};

Candles steadyCandles(std::size_t count) {
    Candles candles(count);
    for (std::size_t at = 0; at < count; ++at) {
        candles[at].date = std::chrono::sys_days(std::chrono::days(16000 + at));
        candles[at].open = 100;
        candles[at].high = 110;
        candles[at].low = 90;
        candles[at].close = 105;
        candles[at].volume = 1000;
    }
    return candles;
}

std::string textOf(const ChartObject& object) {
    switch (object.kind) {
    case ChartObject::Kind::Part:
        return "part " + std::to_string(object.index);
    case ChartObject::Kind::Line:
        return "line " + std::to_string(object.index);
    case ChartObject::Kind::LineTool:
        return "tool";
    case ChartObject::Kind::Nothing:
        break;
    }
    return "nothing";
}

/// A chart of 100 visible candles of 10 pixels each, in the middle of 200, with prices on the pixels 0 to 300.
class Gestures : public testing::Test {
protected:
    Gestures() {
        m_gestures.startSeries(CandleCount);
        m_gestures.setRange({0.25, 0.75});
        layOut();
    }

    void layOut() {
        ChartMeasures measures;
        measures.width = 1000;
        measures.height = 400;
        measures.priceDistance = 30;
        measures.dateDistance = 60;
        layOutFrame(m_frame, m_candles, m_average, m_state.range, measures);
    }

    void note(const ChartChange& change) {
        m_changes |= change;
        layOut();
    }
    void press(int x, int y, const ChartObject& over = {}, bool shift = false) {
        note(m_gestures.press({{x, y}, over, shift}, m_frame));
    }
    void move(int x, int y, const ChartObject& over = {}) { note(m_gestures.move({{x, y}, over, false}, m_frame)); }
    void release() { note(m_gestures.release()); }
    void key(ChartKey key) { note(m_gestures.key(key)); }
    void drag(int fromX, int fromY, int toX, int toY, const ChartObject& over = {}, bool shift = false) {
        press(fromX, fromY, over, shift);
        move(toX, toY, over);
        release();
    }
    void drawLine(int fromX, int fromY, int toX, int toY) {
        key(ChartKey::LineTool);
        drag(fromX, fromY, toX, toY);
    }

    /// "picture range" and so on, since the last time.
    std::string changes() {
        std::string text;
        for (const auto& [is, name] :
             {std::pair(m_changes.picture, "picture "), std::pair(m_changes.crossHair, "cross "),
              std::pair(m_changes.range, "range "), std::pair(m_changes.selection, "selection ")})
            text += is ? name : "";
        m_changes = {};
        return text;
    }
    /// The first and the last visible candle, the selection, the lines by the pixels of their ends.
    std::string describe() const {
        std::string text = std::to_string(std::lround(m_state.range.start * CandleCount)) + "-" +
                           std::to_string(std::lround(m_state.range.end * CandleCount));
        if (m_state.span)
            text += " | span " + std::to_string(m_state.span->first) + "-" + std::to_string(m_state.span->last);
        if (m_state.selected != ChartObject{})
            text += " | selected " + textOf(m_state.selected);
        if (m_state.drawsLine)
            text += " | tool";
        for (std::size_t index = 0; index < m_lines.lineCount(); ++index) {
            text += " |";
            for (const ChartPoint& point : {m_lines.line(index).from, m_lines.line(index).to}) {
                const ChartPixel pixel = pixelOf(point, m_frame.time, m_frame.prices);
                text += " " + std::to_string(std::lround(pixel.x)) + "," + std::to_string(std::lround(pixel.y));
            }
        }
        return text;
    }

    Candles m_candles = steadyCandles(CandleCount);
    std::vector<double> m_average = movingAverage(m_candles, AveragePeriod);
    ChartState m_state;
    PlainLines m_lines;
    ChartGestures m_gestures{m_state, m_lines};
    ChartFrame m_frame;
    ChartChange m_changes;
};

} // namespace

TEST_F(Gestures, ADragOnTheEmptyPlotMovesTheCandlesWithTheMouse) {
    press(500, 100);
    move(450, 120);
    EXPECT_EQ(describe(), "55-155");
    EXPECT_EQ(changes(), "picture cross range ");
    move(600, 100);
    EXPECT_EQ(describe(), "40-140");
    release();
    move(200, 100);
    EXPECT_EQ(describe(), "40-140");
}

TEST_F(Gestures, ADragStopsAtTheEndsOfTheSeriesAndComesBackWithTheMouse) {
    press(500, 100);
    move(-2000, 100);
    EXPECT_EQ(describe(), "100-200");
    move(500, 100);
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, EscapeInADragTakesItBack) {
    press(500, 100);
    move(300, 100);
    key(ChartKey::Leave);
    EXPECT_EQ(describe(), "50-150");
    move(100, 100);
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, APressSelectsTheObjectUnderItAndAPressBesideItLetsGo) {
    press(500, 100, objectOf(ChartPart::Average));
    EXPECT_EQ(changes(), "picture selection ");
    EXPECT_EQ(describe(), "50-150 | selected part 3");
    release();
    press(500, 100);
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, AnObjectThatCannotBeMovedMovesTheChart) {
    drag(500, 100, 400, 100, objectOf(ChartPart::RisingCandles));
    EXPECT_EQ(describe(), "60-160 | selected part 0");
}

TEST_F(Gestures, APressOnTheLabelsSelectsThemAndMovesNothing) {
    drag(500, 399 + 50, 400, 100, objectOf(ChartPart::Labels));
    EXPECT_EQ(describe(), "50-150 | selected part 5");
}

TEST_F(Gestures, MovingOverAnObjectAsksForAPictureOnlyWhenTheObjectIsAnother) {
    move(100, 100);
    EXPECT_EQ(changes(), "cross ");
    move(101, 100, objectOf(ChartPart::Grid));
    EXPECT_EQ(changes(), "picture cross ");
    move(102, 100, objectOf(ChartPart::Grid));
    EXPECT_EQ(changes(), "cross ");
    move(102, 100, objectOf(ChartPart::Grid));
    EXPECT_EQ(changes(), "");
    note(m_gestures.leave());
    EXPECT_EQ(changes(), "picture cross ");
    EXPECT_FALSE(m_state.crossHair);
}

TEST_F(Gestures, TheToolDrawsALineFromPressToReleaseAndIsDone) {
    key(ChartKey::LineTool);
    EXPECT_EQ(describe(), "50-150 | tool");
    drag(100, 200, 300, 50);
    EXPECT_EQ(describe(), "50-150 | selected line 0 | 100,200 300,50");
    drag(100, 200, 200, 200);
    EXPECT_EQ(describe(), "40-140 | 200,200 400,50");
}

TEST_F(Gestures, TheButtonTakesTheToolAndPutsItBack) {
    const ChartObject button{ChartObject::Kind::LineTool, 0};
    press(900, 2, button);
    release();
    EXPECT_EQ(describe(), "50-150 | tool");
    press(900, 2, button);
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, APressWithTheToolThatHardlyMovesDrawsNothing) {
    drawLine(100, 200, 102, 203);
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, EscapePutsTheToolBackAndEndsALineBeingDrawn) {
    key(ChartKey::LineTool);
    key(ChartKey::Leave);
    EXPECT_EQ(describe(), "50-150");
    key(ChartKey::LineTool);
    press(100, 200);
    move(300, 50);
    key(ChartKey::Leave);
    EXPECT_EQ(describe(), "50-150");
    EXPECT_FALSE(m_gestures.isDragging());
}

TEST_F(Gestures, AnEndOfALineFollowsTheMouseAndTheOtherStays) {
    drawLine(100, 200, 300, 50);
    drag(298, 52, 398, 102, lineObject(0));
    EXPECT_EQ(describe(), "50-150 | selected line 0 | 100,200 400,100");
}

TEST_F(Gestures, AnEndThatIsDraggedIsUnderTheMouseWhenThePricesHaveMovedOnMeanwhile) {
    drawLine(100, 200, 300, 50);
    press(302, 52, lineObject(0));
    m_candles[100].high = 180;
    layOut();
    move(402, 150, lineObject(0));
    const ChartPixel end = pixelOf(m_lines.line(0).to, m_frame.time, m_frame.prices);
    EXPECT_NEAR(end.x, 400, 1e-6);
    EXPECT_NEAR(end.y, 150, 2) << "as near as it was taken";
}

TEST_F(Gestures, ALineIsDraggedAsAWholeByItsMiddle) {
    drawLine(100, 200, 300, 50);
    drag(200, 125, 250, 145, lineObject(0));
    EXPECT_EQ(describe(), "50-150 | selected line 0 | 150,220 350,70");
}

TEST_F(Gestures, EscapeInADragOfALinePutsItBackAndKeepsItSelected) {
    drawLine(100, 200, 300, 50);
    press(200, 125, lineObject(0));
    move(700, 10, lineObject(0));
    key(ChartKey::Leave);
    EXPECT_EQ(describe(), "50-150 | selected line 0 | 100,200 300,50");
    key(ChartKey::Leave);
    EXPECT_EQ(describe(), "50-150 | 100,200 300,50");
    EXPECT_FALSE(m_gestures.canLeave());
}

TEST_F(Gestures, ALineThatIsGoneIsNotDragged) {
    drag(200, 125, 250, 145, lineObject(7));
    EXPECT_EQ(describe(), "45-145");
}

TEST_F(Gestures, ALineStaysAtItsCandlesWhenTheChartIsZoomed) {
    drawLine(100, 200, 300, 50);
    const TrendLine before = m_lines.line(0);
    key(ChartKey::ZoomIn);
    EXPECT_EQ(m_lines.line(0), before);
    EXPECT_NE(describe(), "50-150 | selected line 0 | 100,200 300,50");
}

TEST_F(Gestures, ShiftAndADragSelectWholeCandlesInEitherDirection) {
    drag(205, 100, 395, 100, {}, true);
    EXPECT_EQ(describe(), "50-150 | span 70-90 | selected part 6");
    drag(395, 100, 205, 100, {}, true);
    EXPECT_EQ(describe(), "50-150 | span 70-90 | selected part 6");
    drag(205, 100, 205, 100, {}, true);
    EXPECT_EQ(describe(), "50-150 | span 70-71 | selected part 6");
}

TEST_F(Gestures, ARangeThatLeavesTheSeriesEndsWithIt) {
    note(m_gestures.setRange({0, 1}));
    drag(500, 100, 5000, 100, {}, true);
    EXPECT_EQ(describe(), "0-200 | span 100-200 | selected part 6");
    drag(500, 100, -5000, 100, {}, true);
    EXPECT_EQ(describe(), "0-200 | span 0-101 | selected part 6");
}

TEST_F(Gestures, EscapeWhileARangeIsSelectedBringsTheOneBeforeBack) {
    drag(205, 100, 395, 100, {}, true);
    press(600, 100, {}, true);
    move(800, 100);
    key(ChartKey::Leave);
    EXPECT_EQ(describe(), "50-150 | span 70-90 | selected part 6");
}

TEST_F(Gestures, DeleteRemovesTheSelectedLineOrRangeAndNothingElse) {
    drawLine(100, 200, 300, 50);
    drag(205, 100, 395, 100, {}, true);
    key(ChartKey::Remove);
    EXPECT_EQ(describe(), "50-150 | 100,200 300,50");
    note(m_gestures.select(objectOf(ChartPart::Average)));
    key(ChartKey::Remove);
    EXPECT_EQ(describe(), "50-150 | selected part 3 | 100,200 300,50");
    note(m_gestures.select(lineObject(0)));
    key(ChartKey::Remove);
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, ArrowsMoveByATenthAndHomeAndEndToTheEnds) {
    key(ChartKey::Right);
    EXPECT_EQ(describe(), "60-160");
    key(ChartKey::Left);
    key(ChartKey::Left);
    EXPECT_EQ(describe(), "40-140");
    key(ChartKey::Start);
    EXPECT_EQ(describe(), "0-100");
    EXPECT_EQ(changes(), "picture range ");
    key(ChartKey::Start);
    EXPECT_EQ(changes(), "");
    key(ChartKey::End);
    EXPECT_EQ(describe(), "100-200");
}

TEST_F(Gestures, TheWheelZoomsAroundTheMouse) {
    note(m_gestures.zoomAt(250, 0.5, m_frame));
    EXPECT_EQ(describe(), "63-113");
    note(m_gestures.zoomAt(0, 0.0001, m_frame));
    EXPECT_NEAR((m_state.range.end - m_state.range.start) * CandleCount, LeastVisibleCandles, 1e-6);
    note(m_gestures.zoomAt(500, 1e6, m_frame));
    EXPECT_EQ(describe(), "0-200");
}

TEST_F(Gestures, NothingElseChangesTheChartInADrag) {
    press(500, 100);
    for (const ChartKey other : {ChartKey::Left, ChartKey::End, ChartKey::ZoomIn, ChartKey::Remove, ChartKey::LineTool})
        key(other);
    note(m_gestures.zoomAt(250, 0.5, m_frame));
    note(m_gestures.setRange({0, 0.1}));
    press(100, 100, objectOf(ChartPart::Grid));
    EXPECT_EQ(describe(), "50-150");
}

TEST_F(Gestures, TheBarCannotMakeTheRangeNarrowerThanTheFewestCandles) {
    note(m_gestures.setRange({0.5, 0.5001}));
    EXPECT_NEAR((m_state.range.end - m_state.range.start) * CandleCount, LeastVisibleCandles, 1e-6);
}

TEST_F(Gestures, AnotherSeriesOfTheSameLengthIsSeenAtTheSamePartWithoutWhatBelongedToTheOld) {
    drag(205, 100, 395, 100, {}, true);
    press(500, 100, objectOf(ChartPart::Range));
    note(m_gestures.startSeries(CandleCount));
    EXPECT_EQ(describe(), "50-150");
    EXPECT_FALSE(m_gestures.isDragging());
    note(m_gestures.select(objectOf(ChartPart::Volume)));
    note(m_gestures.startSeries(CandleCount));
    EXPECT_EQ(describe(), "50-150 | selected part 2");
}

TEST_F(Gestures, ALongSeriesIsSeenAtItsEndAndAShortOneAsAWhole) {
    EXPECT_EQ(firstRange(0), (ChartRange{0, 1}));
    EXPECT_EQ(firstRange(120), (ChartRange{0, 1}));
    EXPECT_EQ(firstRange(1200), (ChartRange{0.9, 1}));
}

TEST_F(Gestures, WithoutCandlesNothingCanBeDone) {
    m_candles.clear();
    m_average.clear();
    note(m_gestures.startSeries(0));
    for (const ChartKey any : {ChartKey::Left, ChartKey::Start, ChartKey::ZoomIn, ChartKey::LineTool, ChartKey::Remove})
        key(any);
    note(m_gestures.zoomAt(10, 0.5, m_frame));
    note(m_gestures.setRange({0.1, 0.2}));
    drag(100, 100, 300, 200, {}, true);
    drag(100, 100, 300, 200);
    EXPECT_EQ(describe(), "0-200");
    EXPECT_FALSE(m_state.crossHair);
}

TEST_F(Gestures, KeysAreKnownByTheirNumbers) {
    EXPECT_EQ(chartKeyOf('L'), ChartKey::LineTool);
    EXPECT_EQ(chartKeyOf(0x25), ChartKey::Left);
    EXPECT_EQ(chartKeyOf(0xBB), ChartKey::ZoomIn);
    EXPECT_EQ(chartKeyOf(0x6D), ChartKey::ZoomOut);
    EXPECT_EQ(chartKeyOf('K'), std::nullopt);
}

/// Whatever is done in whatever order: the range lies in the series, what is selected is there.
TEST_F(Gestures, KeepOrderThroughRandomOperations) {
    std::mt19937 random(11);
    const auto below = [&random](int limit) { return static_cast<int>(random() % static_cast<unsigned int>(limit)); };
    const auto anything = [&]() -> ChartObject {
        switch (below(4)) {
        case 0:
            return objectOf(static_cast<ChartPart>(below(static_cast<int>(ChartPartCount))));
        case 1:
            return lineObject(static_cast<std::size_t>(below(4)));
        case 2:
            return {ChartObject::Kind::LineTool, 0};
        default:
            return {};
        }
    };
    for (int step = 0; step < 20'000; ++step) {
        const int x = below(1400) - 200;
        const int y = below(600) - 100;
        switch (below(8)) {
        case 0:
            press(x, y, anything(), below(3) == 0);
            break;
        case 1:
        case 2:
            move(x, y, anything());
            break;
        case 3:
            release();
            break;
        case 4:
            key(static_cast<ChartKey>(below(9)));
            break;
        case 5:
            note(m_gestures.zoomAt(x, 0.25 + below(8) * 0.25, m_frame));
            break;
        case 6:
            note(m_gestures.leave());
            break;
        default:
            note(m_gestures.setRange({below(100) * 0.01, 1}));
        }
        ASSERT_GE(m_state.range.start, 0) << step;
        ASSERT_LE(m_state.range.end, 1) << step;
        ASSERT_GE((m_state.range.end - m_state.range.start) * CandleCount, LeastVisibleCandles - 1e-6) << step;
        for (const ChartObject& object : {m_state.selected, m_state.hovered}) {
            if (object.kind == ChartObject::Kind::Line) {
                ASSERT_LT(object.index, m_lines.lineCount()) << step;
            }
        }
        if (m_state.span) {
            ASSERT_LT(m_state.span->first, m_state.span->last) << step;
            ASSERT_LE(m_state.span->last, CandleCount) << step;
        }
    }
}
