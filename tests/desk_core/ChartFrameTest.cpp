#include "core/chart/ChartFrame.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "core/PolishFormat.h"
#include "core/chart/CandleSource.h"
#include "core/chart/ChartObject.h"
#include "core/chart/ChartTexts.h"
#include "core/chart/MovingAverage.h"

using namespace Desk;

namespace {

Candles risingCandles(std::size_t count) {
    Candles candles(count);
    for (std::size_t at = 0; at < count; ++at) {
        const double price = 10 + static_cast<double>(at);
        candles[at].date = std::chrono::sys_days(std::chrono::days(16000 + at));
        candles[at].open = price;
        candles[at].high = price + 2;
        candles[at].low = price - 1;
        candles[at].close = price + 1;
        candles[at].volume = 100 + static_cast<double>(at % 7);
    }
    return candles;
}

ChartFrame frameOf(const Candles& candles, const ChartRange& range, int width = 500, int height = 300) {
    ChartMeasures measures;
    measures.width = width;
    measures.height = height;
    measures.parts = {.legend = 20, .priceAxis = 50, .dateAxis = 20, .gap = 4};
    measures.lineTool.width = 80;
    measures.lineTool.margin = 6;
    measures.priceDistance = 30;
    measures.dateDistance = 60;
    ChartFrame frame;
    layOutFrame(frame, candles, movingAverage(candles, AveragePeriod), range, measures);
    return frame;
}

std::string textOf(const std::optional<ClippedLine>& line) {
    if (!line)
        return "none";
    const auto text = [](double value) { return std::to_string(std::lround(value)); };
    return text(line->from.x) + "," + text(line->from.y) + " " + text(line->to.x) + "," + text(line->to.y);
}

} // namespace

TEST(ChartFrame, MarksTheFirstColumnWithTheGreatestHighAndThatWithTheGreatestVolume) {
    Candles candles = risingCandles(50);
    candles[30].high = candles[20].high = 500;
    candles[12].volume = candles[40].volume = 9000;
    const ChartFrame frame = frameOf(candles, {});
    EXPECT_EQ(frame.highest, 20u);
    EXPECT_EQ(frame.busiest, 12u);
}

TEST(ChartFrame, VolumesOfNothingHaveNoHeightNoGridAndNoAlert) {
    Candles candles = risingCandles(50);
    for (Candle& candle : candles)
        candle.volume = 0;
    const ChartFrame frame = frameOf(candles, {});
    EXPECT_EQ(frame.volumes.yOf(0), frame.layout.volumes.bottom);
    EXPECT_TRUE(frame.volumeGrid.values.empty());
    EXPECT_FALSE(frame.busiest);
}

TEST(ChartFrame, OfASeriesWithoutCandlesHasNothingToShow) {
    const ChartFrame frame = frameOf({}, {});
    EXPECT_TRUE(frame.columns.empty());
    EXPECT_TRUE(frame.average.empty());
    EXPECT_FALSE(frame.highest);
    EXPECT_FALSE(frame.columnAt(10));
}

TEST(ChartFrame, HasAnAverageFromTheTwentiethCandleOn) {
    EXPECT_TRUE(frameOf(risingCandles(19), {}).average.empty());
    const ChartFrame frame = frameOf(risingCandles(25), {});
    ASSERT_EQ(frame.average.size(), 6u);
    EXPECT_EQ(frame.average.front().x, frame.columns[19].middle);
    // The closes 11 to 30.
    EXPECT_NEAR(frame.prices.valueAt(frame.average.front().y), 20.5, 1e-9);
}

TEST(ChartFrame, OfMoreCandlesThanPixelsHasOneAverageForEachColumn) {
    const Candles candles = risingCandles(10'000);
    const ChartFrame frame = frameOf(candles, {});
    EXPECT_LE(frame.columns.size(), 450u);
    EXPECT_EQ(frame.average.size(), frame.columns.size());
    EXPECT_NEAR(frame.prices.valueAt(frame.average.back().y), candles.back().close - 9.5, 1e-6);
}

TEST(ChartFrame, KnowsTheColumnAtEachPixel) {
    for (const std::size_t count : {10u, 100u, 449u, 10'000u}) {
        const ChartFrame frame = frameOf(risingCandles(count), {});
        EXPECT_EQ(frame.columnAt(-100), 0u);
        EXPECT_EQ(frame.columnAt(10'000), frame.columns.size() - 1);
        for (const CandleColumn& column : frame.columns)
            EXPECT_EQ(frame.columnAt(column.middle), static_cast<std::size_t>(&column - frame.columns.data()))
                << count << " candles, pixel " << column.middle;
    }
}

TEST(ChartFrame, PutsTheToolAtTheRightEndOfTheLegend) {
    EXPECT_EQ(frameOf(risingCandles(50), {}).lineTool, (ChartArea{414, 3, 494, 17}));
    const ChartArea narrow = frameOf(risingCandles(50), {}, 40, 300).lineTool;
    EXPECT_GE(narrow.left, 0);
    EXPECT_GE(narrow.width(), 0);
}

TEST(ChartFrame, OfACanvasWithoutRoomTurnsNothingInsideOut) {
    for (const int size : {0, 1, 5, 19, 21, 60})
        for (const ChartArea& area : {frameOf(risingCandles(50), {}, size, size).lineTool,
                                      frameOf(risingCandles(50), {}, size, size).layout.prices}) {
            EXPECT_GE(area.width(), 0) << size;
            EXPECT_GE(area.height(), 0) << size;
        }
}

TEST(ClippedLines, KeepTheirCourseWithinTheArea) {
    const ChartArea area{0, 0, 100, 50};
    EXPECT_EQ(textOf(clipped({10, 10}, {90, 40}, area, 0)), "10,10 90,40");
    EXPECT_EQ(textOf(clipped({-100, 25}, {200, 25}, area, 0)), "0,25 100,25");
    EXPECT_EQ(textOf(clipped({-100, 25}, {200, 25}, area, 8)), "-8,25 108,25");
    EXPECT_EQ(textOf(clipped({-50, -50}, {150, 150}, area, 0)), "0,0 50,50");
    EXPECT_EQ(textOf(clipped({50, 1e9}, {50, -1e9}, area, 0)), "50,50 50,0");
    EXPECT_EQ(textOf(clipped({20, 20}, {20, 20}, area, 0)), "20,20 20,20");
}

TEST(ClippedLines, ThatPassByAreNone) {
    const ChartArea area{0, 0, 100, 50};
    EXPECT_EQ(textOf(clipped({-10, 10}, {-1, 40}, area, 0)), "none");
    EXPECT_EQ(textOf(clipped({0, 60}, {100, 51}, area, 0)), "none");
    EXPECT_EQ(textOf(clipped({-60, 0}, {60, 120}, area, 0)), "none");
}

TEST(ChartIds, AreDifferentFor24BitsAndLeadBack) {
    std::map<unsigned int, ChartObject> ids;
    std::vector<ChartObject> objects{{ChartObject::Kind::LineTool, 0}};
    for (std::size_t part = 0; part < ChartPartCount; ++part)
        objects.push_back(objectOf(static_cast<ChartPart>(part)));
    for (std::size_t line = 0; line < 1000; ++line)
        objects.push_back(lineObject(line));
    for (const ChartObject& object : objects) {
        const unsigned int id = idOf(object);
        EXPECT_GT(id, 0u);
        EXPECT_LT(id, 0x1000000u);
        EXPECT_TRUE(ids.emplace(id, object).second);
        EXPECT_EQ(objectWithId(id), object);
    }
    EXPECT_EQ(idOf({}), 0u);
    EXPECT_EQ(objectWithId(0), ChartObject{});
    EXPECT_EQ(objectWithId(0x1000000), ChartObject{});
    EXPECT_EQ(idOf(lineObject(0xFFFFFF)), 0u);
}

TEST(ObjectNear, TakesTheLineWithinReachBeforeWhatLiesRightUnderTheMouse) {
    const auto at = [](int x, int y) -> unsigned int {
        if (x == 12)
            return idOf(lineObject(3));
        return y == 20 ? idOf(objectOf(ChartPart::Grid)) : 0;
    };
    EXPECT_EQ(objectNear(10, 20, 3, at), lineObject(3));
    EXPECT_EQ(objectNear(10, 20, 1, at), objectOf(ChartPart::Grid));
    EXPECT_EQ(objectNear(50, 22, 3, at), objectOf(ChartPart::Grid));
    EXPECT_EQ(objectNear(50, 24, 3, at), ChartObject{});
}

TEST(ChartTexts, TellTheValuesOfACandleAsPolesWriteThem) {
    const auto values = legendOf({{}, 1111.39, 1200, 0.5, 1101.5, 53204626}, 1105.25, 0);
    std::wstring text;
    for (const LegendValue& value : values)
        text += value.name + L"=" + value.value + L";";
    EXPECT_EQ(text,
              L"O=1\u00A0111,39;H=1\u00A0200,00;L=0,50;C=1\u00A0101,50;Wol.=53,20\u00A0mln;Śr. 20=1\u00A0105,25;");
    EXPECT_EQ(legendOf({}, std::nullopt, 0).back().value, Dash);
}

TEST(ChartTexts, TellPricesMoreFinelyThanAGridThatNeedsMoreThanTwoDecimals) {
    const auto values = legendOf({{}, 1.09421, 1.0951, 1.0938, 1.09452, 1}, 1.09438, 3);
    EXPECT_EQ(values[0].value, L"1,0942");
    EXPECT_EQ(values[3].value, L"1,0945");
    EXPECT_EQ(values[5].value, L"1,0944");
    EXPECT_EQ(singlePriceText(1234.5, 2), L"1\u00A0234,50");
    EXPECT_EQ(singlePriceText(0.000142, 5), L"0,000142");
    EXPECT_EQ(singlePriceText(0.000142, 0), L"0,00014");
    EXPECT_EQ(singlePriceText(1e-300, 302), L"0,000000000000000") << "no more than there is room for";
    EXPECT_EQ(priceText(1e-300, 302), L"0,000000000000000");
}

TEST(ChartTexts, TellHowARangeChanged) {
    const Candle first{{}, 100, 120, 90, 110, 1};
    const Candle last{{}, 100, 120, 90, 103.21, 1};
    EXPECT_EQ(spanText(first, last, 24), L"+3,21%   24\u00A0świece");
    EXPECT_EQ(spanText({{}, 150, 0, 0, 0, 0}, last, 1), L"-31,19%   1\u00A0świeca");
    EXPECT_EQ(spanText(first, first, 5), L"+10,00%   5\u00A0świec");
}

TEST(ChartTexts, SayWhichSymbolsTheFileHas) {
    EXPECT_EQ(missingText(L"MMM", {L"AAPL", L"COKE"}), L"Brak świec dla MMM; w pliku są: AAPL, COKE");
    EXPECT_EQ(missingText(L"MMM", {}), L"Brak świec dla MMM; w pliku nie ma żadnych");
    const std::wstring many = missingText(L"MMM", std::vector<std::wstring>(13, L"A"));
    EXPECT_TRUE(many.ends_with(L"A, A …")) << std::string(many.begin(), many.end());
}

TEST(CandleSources, InventTheCandlesOfEachInstrumentUpToItsPrice) {
    CandleSource source(std::nullopt);
    const Candles first = source.candlesOf("A", 55.5);
    EXPECT_EQ(first.size(), 1500u);
    EXPECT_DOUBLE_EQ(first.back().close, 55.5);
    EXPECT_NE(source.candlesOf("B", 55.5), first);
    EXPECT_EQ(source.candlesOf("A", 55.5), first);
    EXPECT_EQ(source.candlesOf("unknown price", {}).size(), 1500u);
    EXPECT_TRUE(source.knows("anything"));
}

TEST(CandleSources, OfAFileKnowItsSymbolsOnly) {
    CandleSource source(CandleBook{{"A", risingCandles(3)}, {"B", risingCandles(4)}});
    EXPECT_EQ(source.candlesOf("B", {}).size(), 4u);
    EXPECT_TRUE(source.candlesOf("C", {}).empty());
    EXPECT_FALSE(source.knows("C"));
    EXPECT_EQ(source.symbols(), (std::vector<std::string>{"A", "B"}));
}
