#include "core/chart/IsoDate.h"

#include <gtest/gtest.h>

using namespace Desk;
using std::chrono::days;
using std::chrono::sys_days;

TEST(IsoDate, ReadsWhatItWrites) {
    for (int day = -719528; day <= 2932896; day += 97) {
        const std::optional<std::string> text = formatIsoDate(sys_days(days(day)));
        ASSERT_TRUE(text) << day;
        ASSERT_EQ(parseIsoDate(*text), sys_days(days(day))) << *text;
    }
}

TEST(IsoDate, HasFourDigitsOfTheYearAndZerosInFront) {
    EXPECT_EQ(formatIsoDate(sys_days(days(0))), "1970-01-01");
    EXPECT_EQ(formatIsoDate(sys_days(days(2932896))), "9999-12-31");
    EXPECT_EQ(formatIsoDate(sys_days(days(-719528))), "0000-01-01");
    EXPECT_EQ(formatIsoDate(sys_days(days(2932897))), std::nullopt);
    EXPECT_EQ(formatIsoDate(sys_days(days(-719529))), std::nullopt);
}

TEST(IsoDate, RefusesEverythingElse) {
    for (const char* text :
         {"", "2015", "2015-1-2", "2015-01-2 ", " 2015-01-02", "2015-01-02x", "2015/01/02", "-015-01-02", "2015--1-02",
          "2015-01-+2", "2015-02-29", "2015-13-01", "2015-00-01", "2015-01-00"})
        EXPECT_EQ(parseIsoDate(text), std::nullopt) << text;
}
