#include "core/chart/DateGrid.h"

#include <cmath>

#include <gtest/gtest.h>

#include "core/SeededRandom.h"

using namespace Desk;
using namespace std::chrono_literals;

namespace {

/// A candle on each working day.
Candles workingDays(std::chrono::sys_days first, std::chrono::sys_days last) {
    Candles candles;
    for (std::chrono::sys_days day = first; day <= last; day += std::chrono::days(1)) {
        const std::chrono::weekday weekday(day);
        if (weekday != std::chrono::Saturday && weekday != std::chrono::Sunday)
            candles.push_back({day, 1, 1, 1, 1, 0});
    }
    return candles;
}

/// Each label with the date of its candle.
std::wstring describe(const Candles& candles, const TimeScale& scale, int leastDistance) {
    std::wstring text;
    for (const DateMark& mark : dateGrid(candles, scale, leastDistance))
        text += mark.label + L'@' + formatShortDate(candles.at(static_cast<std::size_t>(mark.place)).date) + L' ';
    return text;
}

TimeScale wholeSeries(const Candles& candles, double candleWidth) {
    return TimeScale({0.0, 1.0}, candles.size(), 0,
                     static_cast<int>(std::lround(candleWidth * static_cast<double>(candles.size()))));
}

} // namespace

TEST(DateGrid, MarksDaysOfWideCandles) {
    const Candles candles = workingDays(2015y / 1 / 29, 2015y / 2 / 3);
    EXPECT_EQ(describe(candles, wholeSeries(candles, 60), 60),
              L"29 sty@29.01.2015 30 sty@30.01.2015 2 lut@02.02.2015 3 lut@03.02.2015 ");
}

TEST(DateGrid, MarksWeeksAtTheirFirstCandle) {
    Candles candles = workingDays(2015y / 1 / 28, 2015y / 2 / 20);
    // The Monday of the second week is a holiday.
    std::erase_if(candles, [](const Candle& candle) { return candle.date == std::chrono::sys_days(2015y / 2 / 9); });
    EXPECT_EQ(describe(candles, wholeSeries(candles, 20), 70),
              L"2 lut@02.02.2015 10 lut@10.02.2015 16 lut@16.02.2015 ");
}

TEST(DateGrid, MarksMonthsWithTheYearInTheFirst) {
    const Candles candles = workingDays(2014y / 11 / 3, 2015y / 3 / 31);
    EXPECT_EQ(describe(candles, wholeSeries(candles, 4), 70),
              L"lis 2014@03.11.2014 gru@01.12.2014 sty 2015@01.01.2015 lut@02.02.2015 mar@02.03.2015 ");
}

TEST(DateGrid, MarksQuarters) {
    const Candles candles = workingDays(2014y / 7 / 1, 2015y / 8 / 31);
    EXPECT_EQ(describe(candles, wholeSeries(candles, 1), 55),
              L"lip 2014@01.07.2014 paź@01.10.2014 sty 2015@01.01.2015 kwi@01.04.2015 lip@01.07.2015 ");
}

TEST(DateGrid, MarksYearsAndSeveralOfThem) {
    const Candles candles = workingDays(1996y / 5 / 6, 2012y / 3 / 30);
    EXPECT_EQ(describe(candles, wholeSeries(candles, 0.04), 20),
              L"1998@01.01.1998 2000@03.01.2000 2002@01.01.2002 2004@01.01.2004 2006@02.01.2006 "
              L"2008@01.01.2008 2010@01.01.2010 2012@02.01.2012 ");
    EXPECT_EQ(describe(candles, wholeSeries(candles, 0.04), 50), L"2000@03.01.2000 2005@03.01.2005 2010@01.01.2010 ");
}

TEST(DateGrid, PrefersAMonthToTheSeriesBeginningJustBeforeIt) {
    const Candles candles = workingDays(2014y / 11 / 27, 2015y / 1 / 30);
    EXPECT_EQ(describe(candles, wholeSeries(candles, 4), 70), L"gru@01.12.2014 sty 2015@01.01.2015 ");
}

TEST(DateGrid, LeavesOutWhatIsTooNearBecauseOfAGap) {
    Candles candles = workingDays(2015y / 1 / 1, 2015y / 5 / 29);
    std::erase_if(candles, [](const Candle& candle) {
        return candle.date > std::chrono::sys_days(2015y / 2 / 3) && candle.date < std::chrono::sys_days(2015y / 3 / 2);
    });
    EXPECT_EQ(describe(candles, wholeSeries(candles, 5), 70),
              L"sty 2015@01.01.2015 lut@02.02.2015 kwi@01.04.2015 maj@01.05.2015 ");
}

TEST(DateGrid, NamesTheYearAfterAGapOverItsFirstMonth) {
    Candles candles = workingDays(2014y / 11 / 3, 2014y / 12 / 5);
    for (const Candle& candle : workingDays(2015y / 2 / 16, 2015y / 4 / 30))
        candles.push_back(candle);
    EXPECT_EQ(describe(candles, wholeSeries(candles, 5), 10), L"3 lis@03.11.2014 10 lis@10.11.2014 17 lis@17.11.2014 "
                                                              L"24 lis@24.11.2014 1 gru@01.12.2014 16 lut@16.02.2015 "
                                                              L"23 lut@23.02.2015 2 mar@02.03.2015 9 mar@09.03.2015 "
                                                              L"16 mar@16.03.2015 23 mar@23.03.2015 30 mar@30.03.2015 "
                                                              L"6 kwi@06.04.2015 13 kwi@13.04.2015 20 kwi@20.04.2015 "
                                                              L"27 kwi@27.04.2015 ");
    EXPECT_EQ(describe(candles, wholeSeries(candles, 5), 25),
              L"lis 2014@03.11.2014 gru@01.12.2014 lut 2015@16.02.2015 mar@02.03.2015 kwi@01.04.2015 ");
}

TEST(DateGrid, MarksTheDayOfEachCandleOfASeriesOfWeeks) {
    Candles candles;
    for (int week = 0; week < 4; ++week)
        candles.push_back({std::chrono::sys_days(2015y / 1 / 9) + std::chrono::days(7 * week), 1, 1, 1, 1, 0});
    EXPECT_EQ(describe(candles, wholeSeries(candles, 50), 50),
              L"9 sty@09.01.2015 16 sty@16.01.2015 23 sty@23.01.2015 30 sty@30.01.2015 ");
}

TEST(DateGrid, KeepsDistancesAndMarksOnlyWhatIsSeenOverRandomRanges) {
    SeededRandom random(41);
    const Candles candles = workingDays(1950y / 2 / 7, 2024y / 5 / 31);
    for (int round = 0; round < 5000; ++round) {
        const double width = std::exp(random.between(std::log(8.0 / static_cast<double>(candles.size())), 0.0));
        const double start = random.between(0.0, 1.0 - width);
        const TimeScale scale({start, start + width}, candles.size(), 20, 21 + static_cast<int>(random.below(1900)));
        const int distance = 20 + static_cast<int>(random.below(100));
        const auto marks = dateGrid(candles, scale, distance);
        for (std::size_t at = 0; at < marks.size(); ++at) {
            ASSERT_EQ(marks[at].place, std::floor(marks[at].place));
            ASSERT_GE(scale.xOf(marks[at].place), scale.left() - 1.0);
            ASSERT_LT(scale.xOf(marks[at].place), scale.right());
            ASSERT_FALSE(marks[at].label.empty());
            if (at > 0) {
                ASSERT_GE(scale.xOf(marks[at].place) - scale.xOf(marks[at - 1].place), distance - 1e-6);
            }
        }
        // The next finer division is at most five times as fine (a day and a week, a week and a month).
        const double seen = scale.right() - scale.left();
        if (seen > 16.0 * distance) {
            ASSERT_GE(static_cast<double>(marks.size()), std::floor(seen / (16.0 * distance))) << round;
        }
    }
}

TEST(DateGrid, StaysWhereItIsWhenTheChartIsPanned) {
    const Candles candles = workingDays(2000y / 1 / 3, 2024y / 5 / 31);
    const auto placesFrom = [&](std::size_t first) {
        const auto count = static_cast<double>(candles.size());
        const double start = static_cast<double>(first) / count;
        std::vector<double> places;
        for (const DateMark& mark :
             dateGrid(candles, TimeScale({start, start + 200 / count}, candles.size(), 0, 1000), 70))
            if (mark.place >= 1100 && mark.place < 1200)
                places.push_back(mark.place);
        return places;
    };
    const std::vector<double> places = placesFrom(1000);
    EXPECT_GT(places.size(), 3u);
    for (std::size_t first = 1001; first < 1100; ++first)
        ASSERT_EQ(placesFrom(first), places) << first;
}

TEST(DateGrid, IsEmptyWithoutCandlesAndForDistancesThatNothingKeeps) {
    EXPECT_TRUE(dateGrid({}, TimeScale({0.0, 1.0}, 0, 0, 100), 50).empty());
    EXPECT_TRUE(dateGrid({}, TimeScale({0.0, 1.0}, 5, 0, 100), 50).empty()) << "the scale of another series";
    const Candles one{{2015y / 1 / 2, 1, 1, 1, 1, 0}};
    EXPECT_EQ(describe(one, wholeSeries(one, 100), 50), L"2 sty@02.01.2015 ");
    EXPECT_TRUE(dateGrid(one, wholeSeries(one, 100), 5000).empty());
}

TEST(DateGrid, DatesAreWrittenInThePolishOrder) {
    EXPECT_EQ(formatShortDate(2015y / 1 / 7), L"07.01.2015");
    EXPECT_EQ(formatShortDate(2024y / 12 / 31), L"31.12.2024");
}
