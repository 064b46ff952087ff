#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "Rounding.h"

TEST(Truncation, GoesTowardZeroAndStaysInTheRangeOfInt) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    struct Case {
        const char* what;
        double value;
        int whole;
    };
    const Case cases[] = {
        {"nothing", 0.0, 0},
        {"just under one", 0.9999999, 0},
        {"a fraction", 80.5, 80},
        {"a negative fraction goes up", -80.5, -80},
        {"just above minus one", -0.9999999, 0},
        {"a whole number", 17.0, 17},
        {"the largest int", 2147483647.0, kMost},
        {"the largest int with a fraction", 2147483646.75, kMost - 1},
        {"past the range", 2147483648.0, kMost},
        {"the smallest int", -2147483648.0, kLeast},
        {"past the range below", -1e300, kLeast},
        {"infinity", kInfinity, kMost},
        {"minus infinity", -kInfinity, kLeast},
        {"not a number", std::numeric_limits<double>::quiet_NaN(), 0},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.whole, truncateToInt(c.value)) << c.what;
    }
}

TEST(Saturation, KeepsWhatIsInTheRangeOfIntAndEndsAtItsBorders) {
    constexpr std::int64_t kMost = std::numeric_limits<int>::max();
    constexpr std::int64_t kLeast = std::numeric_limits<int>::min();
    for (const std::int64_t kept : {std::int64_t{0}, std::int64_t{-80}, kMost, kLeast}) {
        EXPECT_EQ(kept, saturateToInt(kept));
    }
    EXPECT_EQ(kMost, saturateToInt(kMost + 1));
    EXPECT_EQ(kMost, saturateToInt(std::numeric_limits<std::int64_t>::max()));
    EXPECT_EQ(kLeast, saturateToInt(kLeast - 1));
    EXPECT_EQ(kLeast, saturateToInt(std::numeric_limits<std::int64_t>::min()));
}
