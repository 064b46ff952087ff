#include "HslColor.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <ostream>

#include <gtest/gtest.h>

namespace HslColor {

void PrintTo(const Hsl& hsl, std::ostream* out) {
    *out << hsl.hue << ',' << hsl.saturation << ',' << hsl.lightness;
}

} // namespace HslColor

using HslColor::Hsl;

namespace {

/// 0x00BBGGRR of the bytes as they are usually told.
constexpr std::uint32_t rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return red | green << 8 | blue << 16;
}

/// Not negative.
struct Fraction {
    int dividend;
    int divisor;

    /// Binary fractions may fall just below a whole number, so that it is cut off to the one before.
    bool cutOff(int whole) const {
        const int exact = dividend / divisor;
        return whole == exact || (whole == exact - 1 && dividend % divisor == 0);
    }
};

struct ExactHsl {
    Fraction hue;
    Fraction saturation;
    Fraction lightness;
};

ExactHsl exactHsl(std::uint32_t color) {
    const int red = static_cast<int>(color & 0xFF);
    const int green = static_cast<int>(color >> 8 & 0xFF);
    const int blue = static_cast<int>(color >> 16 & 0xFF);
    const int most = std::max({red, green, blue});
    const int least = std::min({red, green, blue});
    const int range = most - least;
    const Fraction lightness{(most + least) * 100, 510};
    if (range == 0) {
        return {{0, 1}, {0, 1}, lightness};
    }
    const int divisor = most + least < 255 ? most + least : 510 - most - least;
    int hue = 0;
    if (blue == most) {
        hue = 60 * (red - green) + 240 * range;
    } else if (green == most) {
        hue = 60 * (blue - red) + 120 * range;
    } else {
        hue = 60 * (green - blue);
    }
    return {{hue < 0 ? hue + 360 * range : hue, range}, {range * 100, divisor}, lightness};
}

} // namespace

TEST(HslColor, IsTakenFromAColourInWholeDegreesAndPercent) {
    struct Case {
        const char* what;
        std::uint32_t color;
        Hsl hsl;
    };
    const Case cases[] = {
        {"black", 0, {0, 0, 0}},
        {"white", rgb(255, 255, 255), {0, 0, 100}},
        {"grey: 50.2 percent", rgb(128, 128, 128), {0, 0, 50}},
        {"grey: 49.8 percent", rgb(127, 127, 127), {0, 0, 49}},
        {"red", rgb(255, 0, 0), {0, 100, 50}},
        {"green", rgb(0, 255, 0), {120, 100, 50}},
        {"blue", rgb(0, 0, 255), {240, 100, 50}},
        {"yellow: red and green are equal, the later test decides", rgb(255, 255, 0), {60, 100, 50}},
        {"cyan", rgb(0, 255, 255), {180, 100, 50}},
        {"magenta: red and blue are equal, the later test decides", rgb(255, 0, 255), {300, 100, 50}},
        {"a red with some blue, below 0 degrees", rgb(255, 0, 1), {359, 100, 50}},
        {"a dark red: its sum divides", rgb(100, 50, 50), {0, 33, 29}},
        {"a bright red: what is left of 2 divides", rgb(200, 150, 150), {0, 31, 68}},
        {"the high byte is no colour", 0xFF000000, {0, 0, 0}},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.hsl, HslColor::fromColor(c.color)) << c.what;
    }
}

TEST(HslColor, BecomesAColourThroughWholePercent) {
    struct Case {
        const char* what;
        Hsl hsl;
        std::uint32_t color;
    };
    const Case cases[] = {
        {"black", {0, 0, 0}, 0},
        {"white", {0, 0, 100}, rgb(255, 255, 255)},
        {"half grey", {77, 0, 50}, rgb(127, 127, 127)},
        {"0.29 times 100 is a little less than 29", {0, 0, 29}, rgb(71, 71, 71)},
        {"red", {0, 100, 50}, rgb(255, 0, 0)},
        {"green", {120, 100, 50}, rgb(0, 255, 0)},
        {"blue", {240, 100, 50}, rgb(0, 0, 255)},
        {"black in any hue", {240, 100, 0}, 0},
        {"white in any hue", {240, 100, 100}, rgb(255, 255, 255)},
        {"yellow: red reaches past its third, which is short", {60, 20, 50}, rgb(153, 153, 102)},
        {"magenta: blue does not reach a short third", {300, 20, 50}, rgb(150, 102, 150)},
        {"green that is pale: both its neighbours are off their thirds", {120, 20, 80}, rgb(191, 214, 193)},
        {"violet", {255, 20, 30}, rgb(66, 61, 91)},
        {"lime: red falls from two thirds, which are short", {75, 20, 50}, rgb(137, 153, 102)},
        {"azure: green falls from two thirds", {195, 60, 60}, rgb(91, 181, 214)},
        {"leaf green", {135, 60, 40}, rgb(38, 163, 71)},
        {"pink", {315, 40, 70}, rgb(209, 145, 191)},
        {"the last degree", {359, 100, 50}, rgb(255, 0, 2)},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.color, HslColor::toColor(c.hsl)) << c.what;
    }
}

TEST(HslColor, LosesAFewStepsOnTheWayThereAndBackAndNoMore) {
    int greatest = 0;
    for (std::uint32_t color = 0; color <= 0xFFFFFF; color += 7) {
        const std::uint32_t back = HslColor::toColor(HslColor::fromColor(color));
        ASSERT_EQ(0U, back >> 24);
        for (const int shift : {0, 8, 16}) {
            const int lost = static_cast<int>(color >> shift & 0xFF) - static_cast<int>(back >> shift & 0xFF);
            greatest = std::max(greatest, std::abs(lost));
        }
    }
    EXPECT_GT(greatest, 2) << "whole percent lose something";
    EXPECT_LE(greatest, 12);
}

TEST(HslColor, OfEachColourIsTheExactFractionCutOff) {
    for (std::uint32_t color = 0; color <= 0xFFFFFF; ++color) {
        const Hsl hsl = HslColor::fromColor(color);
        const ExactHsl exact = exactHsl(color);
        ASSERT_TRUE(exact.hue.cutOff(hsl.hue) && exact.saturation.cutOff(hsl.saturation) &&
                    exact.lightness.cutOff(hsl.lightness))
            << std::hex << color << " gives " << testing::PrintToString(hsl);
        ASSERT_TRUE(hsl.hue >= 0 && hsl.hue <= 359) << std::hex << color;
    }
}

TEST(HslColor, IsModifiedInPercentOfWhatItIs) {
    const std::uint32_t color = rgb(200, 150, 150); // 0, 31, 68
    EXPECT_EQ(HslColor::toColor({0, 31, 68}), HslColor::ModifyIntensityAndSaturation(color, 100, 100));
    EXPECT_EQ(HslColor::toColor({0, 15, 34}), HslColor::ModifyIntensityAndSaturation(color, 50, 50)) << "truncated";
    EXPECT_EQ(HslColor::toColor({0, 62, 100}), HslColor::ModifyIntensityAndSaturation(color, 200, 200)) << "capped";
    EXPECT_EQ(0U, HslColor::ModifyIntensityAndSaturation(color, 0, 100));
    EXPECT_EQ(HslColor::toColor({0, 0, 68}), HslColor::ModifyIntensityAndSaturation(color, 100, 0));
    EXPECT_EQ(HslColor::toColor({0, 100, 100}), HslColor::ModifyIntensityAndSaturation(color, 0xFFFFFFFF, 0xFFFFFFFF));
}

TEST(HslColor, IsDesaturatedDownToALimit) {
    const std::uint32_t color = rgb(200, 150, 150);
    EXPECT_EQ(HslColor::toColor({0, 20, 68}), HslColor::Desaturate(color, 20));
    EXPECT_EQ(HslColor::toColor({0, 31, 68}), HslColor::Desaturate(color, 31));
    EXPECT_EQ(HslColor::toColor({0, 31, 68}), HslColor::Desaturate(color, 0xFFFFFFFF));
    EXPECT_EQ(HslColor::toColor({0, 0, 68}), HslColor::Desaturate(color, 0));
}

TEST(HslColor, IsLightenedUpToALimit) {
    const std::uint32_t color = rgb(200, 150, 150);
    EXPECT_EQ(HslColor::toColor({0, 31, 90}), HslColor::Lighten(color, 90));
    EXPECT_EQ(HslColor::toColor({0, 31, 68}), HslColor::Lighten(color, 68));
    EXPECT_EQ(HslColor::toColor({0, 31, 68}), HslColor::Lighten(color, 0));
    EXPECT_EQ(rgb(255, 255, 255), HslColor::Lighten(color, 100));
    EXPECT_EQ(0U, HslColor::Lighten(color, 0xFFFFFFFF) >> 24) << "no limit leads out of the colours";
}
