#include "HslColor.h"

#include <algorithm>

#include "../graphics/Rounding.h"

namespace HslColor {

namespace {

// Short of a third and of two on purpose: colours that were computed before stay what they are.
constexpr double kThird = 0.33333;
constexpr double kTwoThirds = 0.66666;

double component(std::uint32_t color, int shift) {
    return ((color >> shift) & 0xFFU) / 255.0;
}

double channelOf(double t, double p, double q) {
    if (6.0 * t < 1.0) {
        return (q - p) * 6.0 * t + p;
    }
    if (2.0 * t < 1.0) {
        return q;
    }
    if (3.0 * t < 2.0) {
        return (q - p) * (kTwoThirds - t) * 6.0 + p;
    }
    return p;
}

/// Through whole percent: the loss is part of the arithmetic.
std::uint32_t byteOf(double channel) {
    const int percent = truncateToInt(channel * 100.0);
    return static_cast<std::uint32_t>(truncateToInt(percent / 100.0 * 255.0)) & 0xFFU;
}

std::uint32_t colorOf(double red, double green, double blue) {
    return byteOf(red) | byteOf(green) << 8 | byteOf(blue) << 16;
}

int inPercent(int value, unsigned percent) {
    return static_cast<int>(std::min<std::int64_t>(std::int64_t{value} * percent / 100, 100));
}

} // namespace

Hsl fromColor(std::uint32_t color) {
    const double red = component(color, 0);
    const double green = component(color, 8);
    const double blue = component(color, 16);
    const double most = std::max({red, green, blue});
    const double least = std::min({red, green, blue});
    const double lightness = (most + least) / 2.0;
    double saturation = 0.0;
    double hue = 0.0;
    if (most != least) {
        const double range = most - least;
        saturation = range / (lightness < 0.5 ? most + least : 2.0 - most - least);
        if (most == red) {
            hue = (green - blue) / range;
        }
        if (most == green) {
            hue = (blue - red) / range + 2.0;
        }
        if (most == blue) {
            hue = (red - green) / range + 4.0;
        }
        hue *= 60.0;
        if (hue < 0.0) {
            hue += 360.0;
        }
    }
    return {truncateToInt(hue), truncateToInt(saturation * 100.0), truncateToInt(lightness * 100.0)};
}

std::uint32_t toColor(const Hsl& hsl) {
    const double hue = hsl.hue / 360.0;
    const double saturation = hsl.saturation / 100.0;
    const double lightness = hsl.lightness / 100.0;
    if (hsl.saturation == 0) {
        return colorOf(lightness, lightness, lightness);
    }
    const double q = lightness < 0.5 ? (saturation + 1.0) * lightness : saturation + lightness - saturation * lightness;
    const double p = 2.0 * lightness - q;
    const double red = hue + kThird > 1.0 ? hue + kThird - 1.0 : hue + kThird;
    const double blue = hue - kThird < 0.0 ? hue - kThird + 1.0 : hue - kThird;
    return colorOf(channelOf(red, p, q), channelOf(hue, p, q), channelOf(blue, p, q));
}

std::uint32_t ModifyIntensityAndSaturation(std::uint32_t color, unsigned intensity, unsigned saturation) {
    const Hsl hsl = fromColor(color);
    return toColor({hsl.hue, inPercent(hsl.saturation, saturation), inPercent(hsl.lightness, intensity)});
}

std::uint32_t Desaturate(std::uint32_t color, unsigned limit) {
    Hsl hsl = fromColor(color);
    hsl.saturation = std::min(hsl.saturation, saturateToInt(limit));
    return toColor(hsl);
}

std::uint32_t Lighten(std::uint32_t color, unsigned limit) {
    Hsl hsl = fromColor(color);
    hsl.lightness = std::max(hsl.lightness, saturateToInt(limit));
    return toColor(hsl);
}

} // namespace HslColor
