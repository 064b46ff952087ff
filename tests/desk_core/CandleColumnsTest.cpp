#include "core/chart/CandleColumns.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "core/SeededRandom.h"

using namespace Desk;
using namespace std::chrono_literals;

namespace {

constexpr std::chrono::sys_days LastDay = 2024y / 5 / 31;

std::vector<CandleColumn> columnsOf(const Candles& candles, const TimeScale& scale) {
    std::vector<CandleColumn> columns;
    candleColumns(candles, scale, columns);
    return columns;
}

/// A range in which a candle has about `candleWidth` pixels.
TimeScale scaleWith(double candleWidth, std::size_t candles, double start, int left, int width) {
    const double share = std::min(1.0, width / candleWidth / static_cast<double>(candles));
    const double begin = start * (1.0 - share);
    return TimeScale({begin, begin + share}, candles, left, left + width);
}

/// The candle that stands for several, summed up slowly.
Candle together(const Candles& candles, std::size_t first, std::size_t last) {
    Candle sum = candles.at(first);
    sum.close = candles.at(last - 1).close;
    sum.volume = 0.0;
    for (std::size_t at = first; at < last; ++at) {
        sum.high = std::max(sum.high, candles.at(at).high);
        sum.low = std::min(sum.low, candles.at(at).low);
        sum.volume += candles.at(at).volume;
    }
    return sum;
}

void expectGoodColumns(const Candles& candles, const TimeScale& scale) {
    const std::vector<CandleColumn> columns = columnsOf(candles, scale);
    const double width = scale.candleWidth();
    std::size_t next = scale.first();
    for (std::size_t at = 0; at < columns.size(); ++at) {
        const CandleColumn& column = columns[at];
        ASSERT_EQ(column.first, next) << "each candle is in just one column";
        ASSERT_GT(column.last, column.first);
        next = column.last;
        ASSERT_EQ(column.candle, together(candles, column.first, column.last));
        for (std::size_t candle = column.first; candle < column.last; ++candle) {
            const double middle = scale.xOf(static_cast<double>(candle) + 0.5);
            ASSERT_GT(middle, column.middle - 1e-4) << "column " << at << " of width " << width;
            ASSERT_LT(middle, column.middle + 1 + 1e-4) << "column " << at << " of width " << width;
        }
        if (width >= 1.0) {
            ASSERT_EQ(column.last, column.first + 1) << "nothing is conflated that has a pixel";
        }

        const int body = column.right - column.left;
        ASSERT_EQ(body, columns.front().right - columns.front().left) << "all are equally wide";
        ASSERT_TRUE(body % 2 == 1 || body == 2) << body;
        ASSERT_EQ(column.middle, column.left + body / 2);
        if (at == 0)
            continue;
        const CandleColumn& before = columns[at - 1];
        ASSERT_GE(column.left, before.right + (width >= 2.0 ? 1 : 0)) << "of width " << width;
        if (width >= 1.0) {
            ASSERT_LT(std::fabs(column.middle - before.middle - width), 1.0 + 1e-6) << "evenly spread";
        }
    }
    ASSERT_EQ(next, scale.last());
    ASSERT_LE(columns.size(), static_cast<std::size_t>(scale.right() - scale.left()) + 2);
}

} // namespace

TEST(CandleColumns, OfWideCandlesHaveGapsAndMiddles) {
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 4);
    const auto columns = columnsOf(candles, TimeScale({0.0, 1.0}, 4, 100, 140));
    std::string text;
    for (const CandleColumn& column : columns)
        text += std::to_string(column.left) + '-' + std::to_string(column.middle) + '-' + std::to_string(column.right) +
                ' ';
    EXPECT_EQ(text, "102-105-109 112-115-119 122-125-129 132-135-139 ");
}

struct WidthCase {
    double candle;
    int body;
};

TEST(CandleColumns, HaveBodiesThatGrowWithTheirCandles) {
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 2000);
    for (const WidthCase& width : {WidthCase{0.01, 1},
                                   {0.5, 1},
                                   {1.0, 1},
                                   {1.9, 1},
                                   {2.0, 1},
                                   {2.9, 1},
                                   {3.0, 2},
                                   {3.9, 2},
                                   {4.0, 3},
                                   {5.0, 3},
                                   {6.0, 5},
                                   {8.0, 5},
                                   {9.0, 7},
                                   {20.0, 15},
                                   {100.0, 75}}) {
        const auto columns = columnsOf(candles, scaleWith(width.candle, 2000, 0.0, 0, 600));
        EXPECT_EQ(columns.front().right - columns.front().left, width.body) << width.candle;
    }
}

TEST(CandleColumns, OfOneTwoAndThreePixelsFollowOneAnotherWithoutAHole) {
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 600);
    for (const int width : {1, 2, 3}) {
        const auto columns = columnsOf(candles, TimeScale({0.0, 1.0}, 600, 7, 7 + 600 * width));
        ASSERT_EQ(columns.size(), 600u);
        for (std::size_t at = 0; at < columns.size(); ++at)
            ASSERT_EQ(columns[at].middle, 7 + static_cast<int>(at) * width + width / 2) << width;
    }
}

TEST(CandleColumns, AgreeWithSlowOnesOnAZoomFromEightCandlesToAHundredThousand) {
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 100'000);
    ChartRange range{0.4, 0.4 + 8.0 / 100'000};
    for (int step = 0; range.end - range.start < 1.0; ++step) {
        ASSERT_NO_FATAL_FAILURE(expectGoodColumns(candles, TimeScale(range, candles.size(), 3, 1003)))
            << "step " << step;
        range = zoomed(range, 0.37, 1.13, candles.size());
    }
    ASSERT_NO_FATAL_FAILURE(expectGoodColumns(candles, TimeScale(range, candles.size(), 3, 1003)));
}

TEST(CandleColumns, AgreeWithSlowOnesOverRandomScales) {
    SeededRandom random(29);
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 3000);
    for (int round = 0; round < 3000; ++round) {
        const std::size_t count = 1 + random.below(candles.size());
        const Candles part(candles.begin(), candles.begin() + static_cast<std::ptrdiff_t>(count));
        const double width = std::exp(random.between(-4.0, 5.0));
        const int pixels = 1 + static_cast<int>(random.below(900));
        const TimeScale scale =
            scaleWith(width, count, random.between(0.0, 1.0), static_cast<int>(random.below(60)), pixels);
        ASSERT_NO_FATAL_FAILURE(expectGoodColumns(part, scale)) << "round " << round << " width " << width;
    }
}

TEST(CandleColumns, OfWholePixelWidthsAgreeOverRandomPans) {
    SeededRandom random(31);
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 3000);
    for (int round = 0; round < 2000; ++round) {
        const int width = 1 + static_cast<int>(random.below(12));
        const TimeScale scale = scaleWith(width, candles.size(), random.between(0.0, 1.0), 0, 840);
        ASSERT_NO_FATAL_FAILURE(expectGoodColumns(candles, scale)) << "round " << round << " width " << width;
    }
}

TEST(CandleColumns, KeepTheirGapsWhereRoundingDecidesOnThePixel) {
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 3000);
    for (int first = 0; first < 500; ++first) {
        // The middles lie a millionth before a pixel's edge, where the last bit of a product turns it over.
        const double start = (first + 0.5 + 1e-6 / 3.0) / 3000.0;
        const TimeScale scale({start, start + 280.0 / 3000.0}, candles.size(), 0, 840);
        ASSERT_NO_FATAL_FAILURE(expectGoodColumns(candles, scale)) << first;
    }
}

TEST(CandleColumns, StayTheSameWhenTheChartIsPannedByWholePixels) {
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 50'000);
    // A twentieth of a pixel for each candle: what falls together must not change while the chart is dragged.
    const double places = 20'000.0;
    const auto at = [&](int pixels) {
        const double start = (5'000.3 + pixels * 20.0) / 50'000.0;
        return columnsOf(candles, TimeScale({start, start + places / 50'000.0}, candles.size(), 0, 1000));
    };
    const auto before = at(0);
    const auto after = at(37);
    for (std::size_t column = 40; column < 900; ++column) {
        ASSERT_EQ(after[column].candle, before[column + 37].candle) << column;
        ASSERT_EQ(after[column].middle, before[column + 37].middle - 37) << column;
    }
}

TEST(CandleColumns, AreNoneWithoutCandlesAndStayFiniteForOneCandleOfManyPixels) {
    EXPECT_TRUE(columnsOf({}, TimeScale({0.0, 1.0}, 0, 0, 100)).empty());
    EXPECT_TRUE(columnsOf({}, TimeScale({0.0, 1.0}, 10, 0, 100)).empty()) << "the scale of another series";
    const Candles candles = sampleCandles("ABC", 50.0, LastDay, 10);
    const auto columns = columnsOf(candles, TimeScale({0.5, 0.5 + 1e-15}, 10, 0, 1000));
    EXPECT_LE(columns.size(), 2u);
    for (const CandleColumn& column : columns)
        EXPECT_LT(column.left, column.right);
}

TEST(CandleColumns, TellTheSpanOfPricesWithAMarginAndTheGreatestVolume) {
    std::vector<CandleColumn> columns(2);
    columns[0].candle = {{}, 12, 15, 11, 13, 700};
    columns[1].candle = {{}, 12, 14, 10, 13, 900};
    EXPECT_EQ(priceSpan(columns, 0.0).low, 10.0);
    EXPECT_EQ(priceSpan(columns, 0.0).high, 15.0);
    EXPECT_EQ(priceSpan(columns, 0.1).low, 9.5);
    EXPECT_EQ(priceSpan(columns, 0.1).high, 15.5);
    EXPECT_EQ(greatestVolume(columns), 900.0);
    EXPECT_EQ(priceSpan({}, 0.1).high, 1.0);
    EXPECT_EQ(greatestVolume({}), 0.0);
}
