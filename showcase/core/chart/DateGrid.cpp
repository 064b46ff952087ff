#include "DateGrid.h"

#include <algorithm>
#include <array>
#include <optional>

namespace Desk {

namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::array<const wchar_t*, 12> ShortMonths{L"sty", L"lut", L"mar", L"kwi", L"maj", L"cze",
                                                     L"lip", L"sie", L"wrz", L"paź", L"lis", L"gru"};

struct Division {
    int months;       ///< 0: parts of a month
    int days;         ///< of such a part: a day, or a week that begins on Monday
    double leastDays; ///< how long it is at least, but for gaps in the series; a week may have a holiday
};

constexpr Division yearsOf(int count) {
    return {12 * count, 0, 364.0 * count};
}

constexpr std::array Divisions{
    Division{0, 1, 1.0}, Division{0, 7, 5.6}, Division{1, 0, 28.0}, Division{3, 0, 89.0}, yearsOf(1),
    yearsOf(2),          yearsOf(5),          yearsOf(10),          yearsOf(20),          yearsOf(50),
    yearsOf(100),        yearsOf(200),        yearsOf(500),         yearsOf(1000),
};

int floorDivided(int value, int divisor) {
    return value / divisor - (value % divisor < 0 ? 1 : 0);
}

/// The first day of the division after that of `date`.
sys_days nextStart(sys_days date, const Division& division) {
    constexpr int MondayOffset = 3; // 1970 began on a Thursday
    if (division.months == 0) {
        const int offset = division.days == 7 ? MondayOffset : 0;
        const int count = static_cast<int>(date.time_since_epoch().count()) + offset;
        return sys_days(days((floorDivided(count, division.days) + 1) * division.days - offset));
    }
    const year_month_day day(date);
    const int month = static_cast<int>(day.year()) * 12 + static_cast<int>(static_cast<unsigned>(day.month())) - 1;
    const int next = (floorDivided(month, division.months) + 1) * division.months;
    const int year = floorDivided(next, 12);
    return std::chrono::year(year) / std::chrono::month(static_cast<unsigned>(next - year * 12) + 1) / 1;
}

/// How wide the division usually is at least.
double widthOf(const Division& division, const Candles& candles, double candleWidth) {
    const double daysOfCandles = static_cast<double>((candles.back().date - candles.front().date).count());
    if (daysOfCandles <= 0.0)
        return candleWidth;
    const double candlesOfDay = static_cast<double>(candles.size() - 1) / daysOfCandles;
    return candleWidth * std::max(1.0, division.leastDays * candlesOfDay);
}

std::size_t firstFrom(const Candles& candles, std::size_t begin, sys_days date) {
    const auto found = std::lower_bound(candles.begin() + static_cast<std::ptrdiff_t>(begin), candles.end(), date,
                                        [](const Candle& candle, sys_days day) { return candle.date < day; });
    return static_cast<std::size_t>(found - candles.begin());
}

std::chrono::year yearOf(const Candle& candle) {
    return year_month_day(candle.date).year();
}

std::wstring labelOf(const Candles& candles, std::size_t candle, const Division& division) {
    const year_month_day date(candles[candle].date);
    std::wstring year = std::to_wstring(static_cast<int>(date.year()));
    const std::wstring month = ShortMonths[static_cast<unsigned>(date.month()) - 1];
    if (division.months == 0)
        return std::to_wstring(static_cast<unsigned>(date.day())) + L' ' + month;
    if (division.months >= 12)
        return year;
    const bool beginsYear = candle == 0 || yearOf(candles[candle - 1]) != date.year();
    return beginsYear ? month + L' ' + year : month;
}

} // namespace

std::vector<DateMark> dateGrid(const Candles& candles, const TimeScale& scale, int leastDistance) {
    const std::size_t end = std::min(scale.last(), candles.size());
    std::vector<DateMark> marks;
    if (scale.first() >= end)
        return marks;
    const auto fits = [&](const Division& division) {
        return widthOf(division, candles, scale.candleWidth()) >= leastDistance;
    };
    const auto finest = std::find_if(Divisions.begin(), Divisions.end(), fits);
    if (finest == Divisions.end())
        return marks;

    const double leastPlaces = leastDistance / scale.candleWidth();
    const double firstSeen = scale.placeAt(scale.left() - 0.5);
    std::size_t candle = scale.first();
    if (candle > 0)
        candle = firstFrom(candles, candle, nextStart(candles[candle - 1].date, *finest));
    for (; candle < end; candle = firstFrom(candles, candle, nextStart(candles[candle].date, *finest))) {
        const auto place = static_cast<double>(candle);
        if (place < firstSeen)
            continue;
        // The series may begin just before a division does: that mark is the better one.
        if (!marks.empty() && marks.back().place == 0.0 && place < leastPlaces)
            marks.pop_back();
        if (marks.empty() || place - marks.back().place >= leastPlaces)
            marks.push_back({place, labelOf(candles, candle, *finest)});
    }
    return marks;
}

std::wstring formatShortDate(sys_days date) {
    const auto twoDigits = [](unsigned number) { return (number < 10 ? L"0" : L"") + std::to_wstring(number); };
    const year_month_day day(date);
    return twoDigits(static_cast<unsigned>(day.day())) + L'.' + twoDigits(static_cast<unsigned>(day.month())) + L'.' +
           std::to_wstring(static_cast<int>(day.year()));
}

} // namespace Desk
