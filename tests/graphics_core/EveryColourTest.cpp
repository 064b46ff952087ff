// Each of the 16.7 million colours, there and back, beside fractions in whole numbers.
#include <gtest/gtest.h>

#include <algorithm>

#include "ColorArithmetic.h"

using ColorArithmetic::Hsl;

namespace {

constexpr std::uint32_t kColors = 1U << 24;

std::uint32_t rgb(int red, int green, int blue) {
    return static_cast<std::uint32_t>(red | green << 8 | blue << 16);
}

std::string describe(const Hsl& hsl) {
    return std::to_string(hsl.hue) + ' ' + std::to_string(hsl.saturation) + ' ' + std::to_string(hsl.lightness);
}

/// Whether `whole` is the exact fraction without what follows the point. Floating point may fall short of a fraction
/// that is a whole number, and of no other.
bool isTruncated(int whole, int numerator, int denominator) {
    return whole == numerator / denominator || (numerator % denominator == 0 && whole == numerator / denominator - 1);
}

struct Fraction {
    int numerator;
    int denominator;
};

/// 255 times the hue of a colour that is no grey.
Fraction exactHue(int red, int green, int blue) {
    const int most = std::max({red, green, blue});
    const int range = most - std::min({red, green, blue});
    const int sixths = red == most ? green - blue : green == most ? blue - red + 2 * range : red - green + 4 * range;
    return {255 * (sixths < 0 ? sixths + 6 * range : sixths), 6 * range};
}

/// 255 times a component of a colour, by thirds of a 255th of the hue's circle.
Fraction exactComponent(int hueThirds, int saturation, int lightness) {
    constexpr int circle = 765;
    const int greatest =
        2 * lightness < 255 ? (255 + saturation) * lightness : 255 * (saturation + lightness) - saturation * lightness;
    const int least = 510 * lightness - greatest;
    const int turned = (hueThirds + circle) % circle;
    int value = circle * least;
    if (6 * turned < circle) {
        value = (greatest - least) * 6 * turned + circle * least;
    } else if (2 * turned < circle) {
        value = circle * greatest;
    } else if (3 * turned < 2 * circle) {
        value = (greatest - least) * (510 - turned) * 6 + circle * least;
    }
    return {value, circle * 255};
}

bool isTruncated(int whole, const Fraction& exact) {
    return isTruncated(whole, exact.numerator, exact.denominator);
}

} // namespace

TEST(EveryColour, HasTheTruncatedFractionsAsItsHsl) {
    for (std::uint32_t color = 0; color < kColors; ++color) {
        const int red = static_cast<int>(color & 255);
        const int green = static_cast<int>(color >> 8 & 255);
        const int blue = static_cast<int>(color >> 16);
        const int most = std::max({red, green, blue});
        const int least = std::min({red, green, blue});
        const int sum = most + least;
        const Hsl hsl = ColorArithmetic::toHsl(color);
        bool right = isTruncated(hsl.lightness, sum, 2);
        if (most == least) {
            right = right && hsl.hue == 0 && hsl.saturation == 0;
        } else {
            right = right && isTruncated(hsl.saturation, 255 * (most - least), sum < 255 ? sum : 510 - sum) &&
                    isTruncated(hsl.hue, exactHue(red, green, blue));
        }
        ASSERT_TRUE(right) << red << ' ' << green << ' ' << blue << " gives " << describe(hsl);
    }
}

TEST(EveryHsl, HasTheTruncatedFractionsAsItsColour) {
    for (std::uint32_t index = 0; index < kColors; ++index) {
        const Hsl hsl{static_cast<std::uint8_t>(index), static_cast<std::uint8_t>(index >> 8),
                      static_cast<std::uint8_t>(index >> 16)};
        const std::uint32_t color = ColorArithmetic::toColor(hsl);
        bool right = color < kColors;
        if (hsl.saturation == 0) {
            right = color == rgb(hsl.lightness, hsl.lightness, hsl.lightness);
        } else {
            for (int place = 0; place < 3; ++place) {
                right = right &&
                        isTruncated(static_cast<int>(color >> 8 * place & 255),
                                    exactComponent(3 * hsl.hue + 255 * (1 - place), hsl.saturation, hsl.lightness));
            }
        }
        ASSERT_TRUE(right) << describe(hsl) << " gives " << std::hex << color;
    }
}
