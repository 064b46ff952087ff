#include "core/chart/MovingAverage.h"

#include <cmath>

#include <gtest/gtest.h>

#include "core/SeededRandom.h"

using namespace Desk;

namespace {

Candles withCloses(const std::vector<double>& closes) {
    Candles candles(closes.size());
    for (std::size_t at = 0; at < closes.size(); ++at)
        candles[at].close = closes[at];
    return candles;
}

} // namespace

TEST(MovingAverage, BeginsWhenAWholePeriodIsThere) {
    const Candles candles = withCloses({1, 2, 6, 4, 5, 9, 7});
    EXPECT_EQ(movingAverage(candles, 3), (std::vector<double>{3, 4, 5, 6, 7}));
    EXPECT_EQ(movingAverage(candles, 7).size(), 1u);
    EXPECT_EQ(movingAverage(candles, 1), (std::vector<double>{1, 2, 6, 4, 5, 9, 7}));
}

TEST(MovingAverage, IsNotThereForAShorterSeriesOrNoPeriod) {
    EXPECT_TRUE(movingAverage(withCloses({1, 2}), 3).empty());
    EXPECT_TRUE(movingAverage({}, 1).empty());
    EXPECT_TRUE(movingAverage(withCloses({1, 2}), 0).empty());
}

TEST(MovingAverage, IsRenewedAtItsEndAlone) {
    Candles candles = withCloses({1, 2, 6, 4, 5, 9, 7});
    std::vector<double> averages = movingAverage(candles, 3);
    candles.back().close = 1;
    renewLastAverage(averages, candles, 3);
    EXPECT_EQ(averages, movingAverage(candles, 3));
    averages = movingAverage(candles, 7);
    candles.back().close = 8;
    renewLastAverage(averages, candles, 7);
    EXPECT_EQ(averages, movingAverage(candles, 7));
    std::vector<double> none;
    renewLastAverage(none, candles, 8);
    EXPECT_TRUE(none.empty());
}

TEST(MovingAverage, AgreesWithLongSumsOverAHundredThousandCandles) {
    SeededRandom random(23);
    std::vector<double> closes(100'000);
    for (double& close : closes)
        close = std::pow(10.0, random.between(-3.0, 6.0));
    for (const std::size_t period : {1u, 2u, 20u, 251u}) {
        const std::vector<double> averages = movingAverage(withCloses(closes), period);
        ASSERT_EQ(averages.size(), closes.size() - period + 1);
        for (std::size_t at = 0; at < averages.size(); ++at) {
            long double sum = 0.0L;
            for (std::size_t of = 0; of < period; ++of)
                sum += closes[at + of];
            const double expected = static_cast<double>(sum / period);
            ASSERT_NEAR(averages[at], expected, expected * 1e-14 * static_cast<double>(period)) << period << ' ' << at;
        }
    }
}

TEST(MovingAverage, ForgetsAHugePriceOnceItHasPassed) {
    std::vector<double> closes(60, 0.1);
    closes[5] = 1e300;
    const std::vector<double> averages = movingAverage(withCloses(closes), 4);
    for (std::size_t at = 6; at < averages.size(); ++at)
        ASSERT_DOUBLE_EQ(averages[at], 0.1) << at;
}

TEST(MovingAverage, OfAllLengthsAgreesWithPlainSums) {
    SeededRandom random(2);
    for (std::size_t count = 0; count < 40; ++count) {
        std::vector<double> closes(count);
        for (double& close : closes)
            close = static_cast<double>(random.below(1000));
        for (std::size_t period = 1; period < 45; ++period) {
            std::vector<double> expected;
            for (std::size_t first = 0; first + period <= count; ++first) {
                double sum = 0.0;
                for (std::size_t at = first; at < first + period; ++at)
                    sum += closes[at];
                expected.push_back(sum / static_cast<double>(period));
            }
            ASSERT_EQ(movingAverage(withCloses(closes), period), expected) << count << ' ' << period;
        }
    }
}
