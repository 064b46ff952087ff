#include <gtest/gtest.h>

#include <limits>

#include "ColorArithmetic.h"

using ColorArithmetic::Hsl;

namespace ColorArithmetic {

static void PrintTo(const Hsl& hsl, std::ostream* out) {
    *out << int{hsl.hue} << ' ' << int{hsl.saturation} << ' ' << int{hsl.lightness};
}

} // namespace ColorArithmetic

namespace {

constexpr std::uint32_t kColors = 1U << 24;

std::uint32_t rgb(int red, int green, int blue) {
    return static_cast<std::uint32_t>(red | green << 8 | blue << 16);
}

} // namespace

TEST(HslOfAColour, OfAGreyHasNeitherHueNorSaturationAndItsOwnLightness) {
    for (int level = 0; level < 256; ++level) {
        EXPECT_EQ((Hsl{0, 0, static_cast<std::uint8_t>(level)}), ColorArithmetic::toHsl(rgb(level, level, level)));
    }
}

TEST(HslOfAColour, LetsRedWinATieAndThenGreen) {
    EXPECT_EQ((Hsl{42, 255, 127}), ColorArithmetic::toHsl(rgb(255, 255, 0))) << "a sixth, of red's part";
    EXPECT_EQ((Hsl{212, 255, 127}), ColorArithmetic::toHsl(rgb(255, 0, 255))) << "five sixths, not minus one sixth";
    EXPECT_EQ((Hsl{127, 255, 127}), ColorArithmetic::toHsl(rgb(0, 255, 255))) << "a half, of green's part";
}

TEST(HslOfAColour, TakesNoHeedOfTheHighByte) {
    EXPECT_EQ(ColorArithmetic::toHsl(0x123456), ColorArithmetic::toHsl(0xFF123456));
    EXPECT_EQ(0x654321U, ColorArithmetic::mixed(0xFF654321, 0xAA000000, 100));
}

TEST(ComponentOfAHue, HasFourPartsOnTheCircle) {
    struct Case {
        const char* what;
        double hue;
        double component;
    };
    const Case cases[] = {
        {"the start", 0.0, 0.25},     {"on the way up", 1.0 / 12.0, 0.5},   {"the top begins", 1.0 / 6.0, 0.75},
        {"the top", 0.4, 0.75},       {"on the way down", 7.0 / 12.0, 0.5}, {"the bottom", 0.9, 0.25},
        {"the end", 1.0, 0.25},       {"a turn back", -0.6, 0.75},          {"a turn on", 1.4, 0.75},
        {"many turns", 1000.4, 0.75},
    };
    for (const Case& c : cases) {
        EXPECT_NEAR(c.component, ColorArithmetic::componentOfHue(c.hue, 0.25, 0.75), 1e-12) << c.what;
    }
    for (const double noHue : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(0.25, ColorArithmetic::componentOfHue(noHue, 0.25, 0.75));
    }
}

TEST(MixedColour, IsTheFirstAtAHundredPercentAndTheSecondAtNone) {
    for (std::uint32_t color = 0; color < kColors; color += 4099) {
        EXPECT_EQ(color, ColorArithmetic::mixed(color, kColors - 1 - color, 100));
        EXPECT_EQ(color, ColorArithmetic::mixed(kColors - 1 - color, color, 0));
    }
}

TEST(MixedColour, TruncatesEachComponentForEveryShare) {
    for (int percent = 0; percent <= 100; ++percent) {
        const auto mix = [percent](int first, int second) { // the way from the second to the first, in hundredths
            return (second * 100 + (first - second) * percent) / 100;
        };
        for (int first = 0; first < 256; ++first) {
            for (int second = 0; second < 256; ++second) {
                ASSERT_EQ(rgb(mix(first, second), mix(second, first), mix(255 - first, second)),
                          ColorArithmetic::mixed(rgb(first, second, 255 - first), rgb(second, first, second), percent))
                    << first << ' ' << second << ' ' << percent;
            }
        }
    }
}

TEST(MixedColour, ExtrapolatesWithComponentsCutToAByte) {
    EXPECT_EQ(rgb(300 & 255, 0, 0), ColorArithmetic::mixed(rgb(200, 0, 0), rgb(100, 0, 0), 200));
    EXPECT_EQ(rgb(-100 & 255, 0, 0), ColorArithmetic::mixed(rgb(200, 0, 0), rgb(100, 0, 0), -200));
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(rgb(static_cast<int>(255LL * kMost / 100 & 255), 0, 0),
              ColorArithmetic::mixed(rgb(255, 0, 0), rgb(0, 0, 0), kMost))
        << "no overflow on the way";
}

TEST(HighlightedColour, MovesTheLightnessTowardTheMiddle) {
    struct Case {
        const char* what;
        int grey;
        int amount;
        int expected;
    };
    const Case cases[] = {
        {"white gets darker", 255, 20, 235},
        {"black gets lighter", 0, 20, 20},
        {"the last dark one", 127, 20, 147},
        {"the first light one", 128, 20, 108},
        {"an amount beyond the middle is cut to it", 255, 128, 128},
        {"a great amount too", 0, 1000000, 127},
        {"a negative amount is cut to a byte", 10, -1, (10 + 255) & 255},
        {"and so is what it gives", 200, -1, (200 - 255) & 255},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(rgb(c.expected, c.expected, c.expected),
                  ColorArithmetic::highlighted(rgb(c.grey, c.grey, c.grey), c.amount))
            << c.what;
    }
}

TEST(HighlightedColour, KeepsHueAndSaturation) {
    for (std::uint32_t color = 0; color < kColors; color += 997) {
        Hsl hsl = ColorArithmetic::toHsl(color);
        hsl.lightness = static_cast<std::uint8_t>(hsl.lightness < 128 ? hsl.lightness + 40 : hsl.lightness - 40);
        ASSERT_EQ(ColorArithmetic::toColor(hsl), ColorArithmetic::highlighted(color, 40)) << std::hex << color;
    }
}
