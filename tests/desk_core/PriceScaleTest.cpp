#include "core/chart/PriceScale.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>

#include <gtest/gtest.h>

#include "core/PolishFormat.h"
#include "core/SeededRandom.h"

using namespace Desk;

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double Greatest = std::numeric_limits<double>::max();

std::wstring labels(const PriceGrid& grid) {
    std::wstring text;
    for (const double value : grid.values)
        text += formatNumber(value, grid.decimals) + L'|';
    return text;
}

/// Whether the distance of neighbours is 1, 2, 2.5 or 5 times a power of ten.
bool isRound(double step) {
    const double digit = step / std::pow(10.0, std::floor(std::log10(step) + 1e-6));
    constexpr std::array Digits{1.0, 2.0, 2.5, 5.0};
    return std::any_of(Digits.begin(), Digits.end(), [digit](double round) { return std::fabs(digit - round) < 1e-4; });
}

void expectGoodGrid(const PriceScale& scale, int leastDistance) {
    const PriceGrid grid = priceGrid(scale, leastDistance);
    ASSERT_LE(grid.values.size(), 1000u);
    std::set<std::wstring> different;
    for (std::size_t at = 0; at < grid.values.size(); ++at) {
        ASSERT_GE(grid.values[at], scale.low());
        ASSERT_LE(grid.values[at], scale.high());
        different.insert(formatNumber(grid.values[at], grid.decimals));
        if (at == 0)
            continue;
        ASSERT_GE(scale.yOf(grid.values[at - 1]) - scale.yOf(grid.values[at]), leastDistance - 1e-3);
        if (scale.high() - scale.low() > 1e-6 * std::max(std::fabs(scale.high()), std::fabs(scale.low()))) {
            ASSERT_TRUE(isRound(grid.values[at] - grid.values[at - 1])) << grid.values[at] - grid.values[at - 1];
        }
    }
    ASSERT_EQ(different.size(), grid.values.size()) << "neighbours read alike";
    // The next step is at most twice as great, so that a high plot always has lines.
    const int height = scale.bottom() - scale.top();
    if (height >= 5 * leastDistance && height / leastDistance < 400) {
        ASSERT_GE(grid.values.size(), static_cast<std::size_t>(height / (2.0 * leastDistance)) - 1);
    }
}

} // namespace

TEST(PriceScale, PutsTheLowOnTheBottomAndTheHighOnTheTop) {
    const PriceScale scale(100.0, 200.0, 20, 420);
    EXPECT_EQ(scale.yOf(100.0), 420.0);
    EXPECT_EQ(scale.yOf(200.0), 20.0);
    EXPECT_EQ(scale.yOf(150.0), 220.0);
    EXPECT_EQ(scale.valueAt(220.0), 150.0);
}

TEST(PriceScale, FindsBackEachPixelAndValue) {
    SeededRandom random(3);
    for (int round = 0; round < 5000; ++round) {
        const double low = random.between(-1e4, 1e4);
        const PriceScale scale(low, low + std::exp(random.between(-5.0, 9.0)), 10,
                               11 + static_cast<int>(random.below(2000)));
        const double span = scale.high() - scale.low();
        const double value = low + random.between(-1.0, 2.0) * span;
        ASSERT_NEAR(scale.valueAt(scale.yOf(value)), value, span * 1e-9);
        const double y = random.between(-100.0, 2000.0);
        ASSERT_NEAR(scale.yOf(scale.valueAt(y)), y, 1e-3);
    }
}

TEST(PriceScale, IsThereForAnyNumbers) {
    const double values[]{0.0,       -0.0,     1.0,       100.0,      -100.0,
                          1e-320,    -1e-320,  1e-300,    1e300,      Greatest,
                          -Greatest, Infinity, -Infinity, NotANumber, std::nextafter(100.0, 200.0)};
    for (const double low : values)
        for (const double high : values)
            for (const int bottom : {300, 20, 0}) {
                const PriceScale scale(low, high, 20, bottom);
                ASSERT_LT(scale.low(), scale.high()) << low << ' ' << high;
                ASSERT_TRUE(std::isfinite(scale.high() - scale.low())) << low << ' ' << high;
                ASSERT_EQ(scale.yOf(scale.low()), bottom) << low << ' ' << high;
                ASSERT_TRUE(std::isfinite(scale.yOf(scale.high()))) << low << ' ' << high;
                ASSERT_TRUE(std::isfinite(scale.valueAt(5.0))) << low << ' ' << high;
            }
}

TEST(PriceScale, HasAFlatPriceInItsMiddle) {
    const PriceScale scale(50.0, 50.0, 0, 200);
    EXPECT_EQ(scale.yOf(50.0), 100.0);
    EXPECT_EQ(scale.low(), 49.5);
}

TEST(PriceScale, TurnsSwappedEndsRound) {
    const PriceScale scale(7.0, 5.0, 0, 100);
    EXPECT_EQ(scale.low(), 5.0);
    EXPECT_EQ(scale.high(), 7.0);
}

TEST(PriceGrid, TakesTheFinestRoundStepThatTheDistanceAllows) {
    EXPECT_EQ(labels(priceGrid(PriceScale(103.0, 121.0, 0, 180), 20)), L"104|106|108|110|112|114|116|118|120|");
    EXPECT_EQ(labels(priceGrid(PriceScale(103.0, 121.0, 0, 180), 21)), L"105,0|107,5|110,0|112,5|115,0|117,5|120,0|");
    EXPECT_EQ(labels(priceGrid(PriceScale(103.0, 121.0, 0, 180), 26)), L"105|110|115|120|");
    EXPECT_EQ(labels(priceGrid(PriceScale(103.0, 121.0, 0, 180), 51)), L"110|120|");
    EXPECT_EQ(labels(priceGrid(PriceScale(0.0, 1.0, 0, 100), 20)), L"0,0|0,2|0,4|0,6|0,8|1,0|");
    EXPECT_EQ(labels(priceGrid(PriceScale(0.0, 1.0, 0, 100), 21)), L"0,00|0,25|0,50|0,75|1,00|");
    EXPECT_EQ(labels(priceGrid(PriceScale(930.0, 1080.0, 0, 300), 50)),
              L"950|975|1\u00A0000|1\u00A0025|1\u00A0050|1\u00A0075|");
    EXPECT_EQ(labels(priceGrid(PriceScale(-0.03, 0.03, 0, 300), 50)), L"-0,03|-0,02|-0,01|0,00|0,01|0,02|0,03|");
    EXPECT_EQ(labels(priceGrid(PriceScale(0.0, 25'000'000.0, 0, 100), 30)),
              L"0|10\u00A0000\u00A0000|20\u00A0000\u00A0000|");
}

TEST(PriceGrid, HasTheNearestNumbersThereAre) {
    const PriceGrid grid = priceGrid(PriceScale(0.0, 1.0, 0, 100), 10);
    EXPECT_EQ(grid.values, (std::vector<double>{0.0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1.0}));
}

TEST(PriceGrid, KeepsItsDistancesOverRandomScales) {
    SeededRandom random(17);
    for (int round = 0; round < 20'000; ++round) {
        const double span = std::pow(10.0, random.between(-8.0, 12.0));
        const double low = random.between(-1.0, 1.0) * span * std::pow(10.0, random.between(0.0, 5.0));
        const PriceScale scale(low, low + span, 30, 31 + static_cast<int>(random.below(1500)));
        ASSERT_NO_FATAL_FAILURE(expectGoodGrid(scale, 1 + static_cast<int>(random.below(120)))) << low << ' ' << span;
    }
}

TEST(PriceGrid, IsGoodForAnyNumbers) {
    const double values[]{0.0,
                          1.0,
                          100.0,
                          -100.0,
                          1e-320,
                          1e-300,
                          -1e-12,
                          1e300,
                          Greatest,
                          -Greatest,
                          Infinity,
                          NotANumber,
                          std::nextafter(100.0, 200.0)};
    for (const double low : values)
        for (const double high : values)
            for (const int bottom : {400, 1, 0, -50})
                for (const int distance : {-1, 0, 1, 40, 100'000}) {
                    const PriceGrid grid = priceGrid(PriceScale(low, high, 0, bottom), distance);
                    ASSERT_LE(grid.values.size(), 1000u);
                    if (bottom == 400 && distance == 40) {
                        ASSERT_NO_FATAL_FAILURE(expectGoodGrid(PriceScale(low, high, 0, bottom), distance))
                            << low << ' ' << high;
                    }
                }
}

TEST(PriceGrid, HasAThousandLinesAtMost) {
    const PriceGrid grid = priceGrid(PriceScale(0.0, 1e9, 0, 1'000'000), 1);
    EXPECT_GT(grid.values.size(), 400u);
    EXPECT_LE(grid.values.size(), 1000u);
}
