#include "core/chart/TrendLine.h"

#include <cmath>

#include <gtest/gtest.h>

#include "core/SeededRandom.h"

using namespace Desk;
using namespace std::chrono_literals;

namespace {

/// Ten pixels a candle, one pixel a unit of the price.
const TimeScale Time({0.1, 0.2}, 1000, 0, 1000);
const PriceScale Prices(100.0, 500.0, 0, 400);
const TrendLine Line{{110.0, 200.0}, {150.0, 300.0}};

TrendLine draggedByPixels(const TrendLine& line, LineGrip grip, const ChartPixel& start, const ChartPixel& now) {
    return dragged(line, grip, pointAt(start, Time, Prices), pointAt(now, Time, Prices));
}

} // namespace

TEST(TrendLine, LiesWhereItsPlacesAndPricesAre) {
    EXPECT_EQ(pixelOf(Line.from, Time, Prices), (ChartPixel{100.0, 300.0}));
    EXPECT_EQ(pixelOf(Line.to, Time, Prices), (ChartPixel{500.0, 200.0}));
    EXPECT_EQ(pointAt({500.0, 200.0}, Time, Prices), Line.to);
}

TEST(TrendLine, IsDraggedByAnEndOrWhole) {
    EXPECT_EQ(draggedByPixels(Line, LineGrip::From, {100, 300}, {120, 290}), (TrendLine{{112.0, 210.0}, Line.to}));
    EXPECT_EQ(draggedByPixels(Line, LineGrip::To, {500, 200}, {480, 210}), (TrendLine{Line.from, {148.0, 290.0}}));
    EXPECT_EQ(draggedByPixels(Line, LineGrip::All, {300, 250}, {310, 270}),
              (TrendLine{{111.0, 180.0}, {151.0, 280.0}}));
}

TEST(TrendLine, IsDraggedByTheMouseWayThoughItWasTakenBesideTheEnd) {
    EXPECT_EQ(draggedByPixels(Line, LineGrip::From, {103, 304}, {123, 294}), (TrendLine{{112.0, 210.0}, Line.to}));
}

TEST(TrendLine, ComesBackExactlyWhenTheMouseDoes) {
    SeededRandom random(43);
    for (int round = 0; round < 2000; ++round) {
        const TrendLine line{{random.between(-50, 1500), random.between(0.001, 900)},
                             {random.between(-50, 1500), random.between(0.001, 900)}};
        const ChartPixel start{random.between(0, 1000), random.between(0, 400)};
        const ChartPixel away{random.between(-500, 2000), random.between(-500, 900)};
        for (const LineGrip grip : {LineGrip::From, LineGrip::To, LineGrip::All}) {
            ASSERT_EQ(draggedByPixels(line, grip, start, start), line);
            const TrendLine moved = draggedByPixels(line, grip, start, away);
            const ChartPixel end = pixelOf(grip == LineGrip::To ? line.to : line.from, Time, Prices);
            const ChartPixel now = pixelOf(grip == LineGrip::To ? moved.to : moved.from, Time, Prices);
            ASSERT_NEAR(now.x - end.x, away.x - start.x, 1e-7);
            ASSERT_NEAR(now.y - end.y, away.y - start.y, 1e-7);
            if (grip == LineGrip::From) {
                ASSERT_EQ(moved.to, line.to);
            }
            if (grip == LineGrip::To) {
                ASSERT_EQ(moved.from, line.from);
            }
        }
    }
}

TEST(TrendLine, IsTakenByTheNearerEndWithinReach) {
    EXPECT_EQ(gripAt(Line, {103, 304}, 5.0, Time, Prices), LineGrip::From) << "just at the reach";
    EXPECT_EQ(gripAt(Line, {104, 304}, 5.0, Time, Prices), LineGrip::All);
    EXPECT_EQ(gripAt(Line, {498, 201}, 5.0, Time, Prices), LineGrip::To);
    EXPECT_EQ(gripAt(Line, {200, 275}, 500.0, Time, Prices), LineGrip::From);
    EXPECT_EQ(gripAt(Line, {400, 225}, 500.0, Time, Prices), LineGrip::To);
}

TEST(TrendLine, WithoutLengthIsTakenByItsSecondEnd) {
    EXPECT_EQ(gripAt({Line.from, Line.from}, {100, 300}, 5.0, Time, Prices), LineGrip::To);
}

TEST(AnchoredLine, FindsItsPlaceBackInTheSameSeries) {
    const Candles candles = sampleCandles("ABC", 50.0, 2024y / 5 / 31, 400);
    SeededRandom random(47);
    for (int round = 0; round < 5000; ++round) {
        const TrendLine line{{random.between(-60, 480), random.between(-10, 90)},
                             {random.between(-60, 480), random.between(-10, 90)}};
        const TrendLine back = placed(anchored(line, candles), candles);
        ASSERT_NEAR(back.from.place, line.from.place, 1e-12);
        ASSERT_NEAR(back.to.place, line.to.place, 1e-12);
        ASSERT_EQ(back.from.price, line.from.price);
        ASSERT_EQ(back.to.price, line.to.price);
        ASSERT_EQ(anchored(back, candles), anchored(line, candles));
    }
}

TEST(AnchoredLine, StaysOnItsDaysWhenTheSeriesBeginsOnAnother) {
    const Candles candles = sampleCandles("ABC", 50.0, 2024y / 5 / 31, 400);
    const Candles later(candles.begin() + 100, candles.end());
    const TrendLine line{{120.25, 40.0}, {399.75, 45.0}};
    EXPECT_EQ(placed(anchored(line, candles), later), (TrendLine{{20.25, 40.0}, {299.75, 45.0}}));
    EXPECT_EQ(placed(anchored(line, later), candles), (TrendLine{{220.25, 40.0}, {499.75, 45.0}}));
}

TEST(AnchoredLine, KeepsToTheEndsBeyondTheSeries) {
    const Candles candles{{2015y / 1 / 2, 1, 1, 1, 1, 0}, {2015y / 1 / 5, 1, 1, 1, 1, 0}};
    const AnchoredLine line = anchored({{-3.5, 1.0}, {7.25, 2.0}}, candles);
    EXPECT_EQ(line.from, (AnchoredPoint{2015y / 1 / 2, -3.5, 1.0}));
    EXPECT_EQ(line.to, (AnchoredPoint{2015y / 1 / 5, 6.25, 2.0}));
}

TEST(AnchoredLine, TakesTheNextDayForOneThatIsNotThereOrElseTheLast) {
    const Candles candles{{2015y / 1 / 2, 1, 1, 1, 1, 0}, {2015y / 1 / 5, 1, 1, 1, 1, 0}};
    const AnchoredLine line{{2015y / 1 / 3, 0.5, 1.0}, {2016y / 1 / 1, 0.25, 2.0}};
    EXPECT_EQ(placed(line, candles), (TrendLine{{1.5, 1.0}, {1.25, 2.0}}));
    EXPECT_EQ(placed({{2014y / 1 / 3, 0.5, 1.0}, line.to}, candles).from, (ChartPoint{0.5, 1.0}));
}

TEST(AnchoredLine, WithAPlaceThatIsNoNumberStaysInTheSeries) {
    const Candles candles{{2015y / 1 / 2, 1, 1, 1, 1, 0}};
    EXPECT_EQ(anchored({{std::nan(""), 1.0}, {1.0, 1.0}}, candles).from.date, candles.front().date);
}
