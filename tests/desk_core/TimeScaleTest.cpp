#include "core/chart/TimeScale.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "core/SeededRandom.h"

using namespace Desk;

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

} // namespace

TEST(ChartRange, MovesAndStopsAtTheEnds) {
    EXPECT_EQ(moved({0.25, 0.5}, 0.125), (ChartRange{0.375, 0.625}));
    EXPECT_EQ(moved({0.25, 0.5}, -1.0), (ChartRange{0.0, 0.25}));
    EXPECT_EQ(moved({0.25, 0.5}, 1.0), (ChartRange{0.75, 1.0}));
    EXPECT_EQ(moved({0.0, 1.0}, 0.5), (ChartRange{0.0, 1.0}));
}

TEST(ChartRange, DoesNotMoveByWhatIsNoNumberAndStopsAtTheEndsOfInfinity) {
    EXPECT_EQ(moved({0.25, 0.5}, NotANumber), (ChartRange{0.25, 0.5}));
    EXPECT_EQ(moved({0.25, 0.5}, Infinity), (ChartRange{0.75, 1.0}));
    EXPECT_EQ(moved({0.25, 0.5}, -Infinity), (ChartRange{0.0, 0.25}));
}

TEST(ChartRange, ZoomsAroundThePointThatStays) {
    EXPECT_EQ(zoomed({0.25, 0.75}, 0.5, 0.5, 1000), (ChartRange{0.375, 0.625}));
    EXPECT_EQ(zoomed({0.25, 0.75}, 0.0, 0.5, 1000), (ChartRange{0.25, 0.5}));
    EXPECT_EQ(zoomed({0.25, 0.75}, 1.0, 0.5, 1000), (ChartRange{0.5, 0.75}));
}

TEST(ChartRange, ZoomsOutToAllAndStopsAtTheEnds) {
    EXPECT_EQ(zoomed({0.25, 0.75}, 0.5, 10.0, 1000), (ChartRange{0.0, 1.0}));
    EXPECT_EQ(zoomed({0.0, 0.25}, 1.0, 2.0, 1000), (ChartRange{0.0, 0.5}));
    EXPECT_EQ(zoomed({0.75, 1.0}, 0.0, 2.0, 1000), (ChartRange{0.5, 1.0}));
}

TEST(ChartRange, ZoomsInToEightCandlesAtMost) {
    EXPECT_EQ(zoomed({0.0, 1.0}, 0.5, 0.0, 64), (ChartRange{0.4375, 0.5625}));
    EXPECT_EQ(zoomed({0.0, 1.0}, 0.5, -3.0, 64), (ChartRange{0.4375, 0.5625}));
}

TEST(ChartRange, OfEightCandlesOrFewerIsAlwaysWhole) {
    for (const std::size_t candles : {0u, 1u, 7u, 8u})
        EXPECT_EQ(zoomed({0.25, 0.5}, 0.5, 0.5, candles), (ChartRange{0.0, 1.0})) << candles;
}

TEST(ChartRange, DoesNotZoomByWhatIsNoNumber) {
    EXPECT_EQ(zoomed({0.25, 0.5}, NotANumber, 0.5, 100), (ChartRange{0.25, 0.5}));
    EXPECT_EQ(zoomed({0.25, 0.5}, 0.5, NotANumber, 100), (ChartRange{0.25, 0.5}));
}

TEST(ChartRange, StaysInItsBoundsOverRandomMovesAndZooms) {
    SeededRandom random(11);
    for (int series = 0; series < 200; ++series) {
        const std::size_t candles = 1 + random.below(100'000);
        const double least = std::min(1.0, 8.0 / static_cast<double>(candles));
        ChartRange range;
        for (int step = 0; step < 500; ++step) {
            const double width = range.end - range.start;
            const double anchor = random.between(-0.2, 1.2);
            if (random.below(2) == 0) {
                range = moved(range, random.between(-0.4, 0.4));
                ASSERT_NEAR(range.end - range.start, width, 1e-12);
            } else {
                const double fixed = range.start + std::min(1.0, std::max(0.0, anchor)) * width;
                range = zoomed(range, anchor, std::exp(random.between(-2.0, 2.0)), candles);
                const double share = std::min(1.0, std::max(0.0, anchor)) * (range.end - range.start);
                // Only an end of the series may have kept the point from staying.
                if (range.start > 0.0 && range.end < 1.0) {
                    ASSERT_NEAR(range.start + share, fixed, 1e-12);
                }
            }
            ASSERT_GE(range.start, 0.0);
            ASSERT_LE(range.end, 1.0);
            ASSERT_GE(range.end - range.start, least - 1e-12);
        }
    }
}

TEST(TimeScale, FillsItsPixelsWithTheRange) {
    const TimeScale scale({0.25, 0.75}, 400, 10, 810);
    EXPECT_EQ(scale.xOf(100.0), 10.0);
    EXPECT_EQ(scale.xOf(300.0), 810.0);
    EXPECT_EQ(scale.candleWidth(), 4.0);
    EXPECT_EQ(scale.first(), 100u);
    EXPECT_EQ(scale.last(), 300u);
}

TEST(TimeScale, SeesCandlesThatAreCutByItsEdges) {
    const TimeScale scale({0.105, 0.205}, 100, 0, 100);
    EXPECT_EQ(scale.first(), 10u);
    EXPECT_EQ(scale.last(), 21u);
}

TEST(TimeScale, SeesNoCandleThatIsThereByRoundingAlone) {
    const TimeScale scale({0.1 + 0.2, 0.7 + 1e-12}, 10, 0, 100);
    EXPECT_EQ(scale.first(), 3u);
    EXPECT_EQ(scale.last(), 7u);
}

TEST(TimeScale, FindsBackEachPixelAndPlace) {
    SeededRandom random(5);
    for (int round = 0; round < 2000; ++round) {
        const double start = random.between(0.0, 0.9);
        const ChartRange range{start, random.between(start + 0.01, 1.0)};
        const std::size_t candles = 1 + random.below(100'000);
        const int left = static_cast<int>(random.below(50));
        const TimeScale scale(range, candles, left, left + 1 + static_cast<int>(random.below(3000)));
        const double place = random.between(-10.0, static_cast<double>(candles) + 10.0);
        const double x = random.between(-10.0, 3000.0);
        ASSERT_NEAR(scale.placeAt(scale.xOf(place)), place, 1e-8);
        ASSERT_NEAR(scale.xOf(scale.placeAt(x)), x, 1e-6);
        ASSERT_NEAR(scale.xOf(range.end * static_cast<double>(candles)), scale.right(), 1e-6);
        ASSERT_LT(scale.first(), scale.last());
        ASSERT_LE(scale.last(), candles);
    }
}

TEST(TimeScale, SeesNothingWithoutCandlesPixelsOrRange) {
    const TimeScale scales[]{
        TimeScale({0.0, 1.0}, 0, 0, 100),         TimeScale({0.0, 1.0}, 10, 100, 100),
        TimeScale({0.0, 1.0}, 10, 100, 0),        TimeScale({0.5, 0.5}, 10, 0, 100),
        TimeScale({0.75, 0.5}, 10, 0, 100),       TimeScale({NotANumber, 1.0}, 10, 0, 100),
        TimeScale({0.0, NotANumber}, 10, 0, 100), TimeScale({-Infinity, 1.0}, 10, 0, 100),
    };
    for (const TimeScale& scale : scales) {
        EXPECT_EQ(scale.first(), scale.last());
        EXPECT_TRUE(std::isfinite(scale.xOf(3.0)) && std::isfinite(scale.placeAt(3.0)));
    }
}
