#include "ColorArithmetic.h"

#include <algorithm>
#include <cmath>

namespace ColorArithmetic {

namespace {

constexpr double kFull = 255.0;
constexpr int kGreenShift = 8;
constexpr int kBlueShift = 16;

std::uint8_t component(std::uint32_t color, int shift) {
    return static_cast<std::uint8_t>(color >> shift);
}

std::uint32_t colorOf(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return red | std::uint32_t{green} << kGreenShift | std::uint32_t{blue} << kBlueShift;
}

/// Parts of one as a byte.
std::uint8_t truncated(double part) {
    return static_cast<std::uint8_t>(static_cast<int>(part * kFull));
}

} // namespace

Hsl toHsl(std::uint32_t color) {
    const double red = component(color, 0) / kFull;
    const double green = component(color, kGreenShift) / kFull;
    const double blue = component(color, kBlueShift) / kFull;
    const double most = std::max({red, green, blue});
    const double least = std::min({red, green, blue});
    const double sum = most + least;
    const double lightness = sum * 0.5;
    if (most == least) {
        return {0, 0, truncated(lightness)};
    }
    const double range = most - least;
    const double saturation = lightness < 0.5 ? range / sum : range / (2.0 - most - least);
    double hue = 0.0;
    if (red == most) {
        hue = (green - blue) / range;
    } else if (green == most) {
        hue = (blue - red) / range + 2.0;
    } else {
        hue = (red - green) / range + 4.0;
    }
    hue /= 6.0;
    if (hue < 0.0) {
        hue += 1.0;
    }
    return {truncated(hue), truncated(saturation), truncated(lightness)};
}

double componentOfHue(double hue, double least, double greatest) {
    const double turned = hue < 0.0 || hue > 1.0 ? hue - std::floor(hue) : hue;
    if (6.0 * turned < 1.0) {
        return (greatest - least) * 6.0 * turned + least;
    }
    if (2.0 * turned < 1.0) {
        return greatest;
    }
    if (3.0 * turned < 2.0) {
        return (greatest - least) * (2.0 / 3.0 - turned) * 6.0 + least;
    }
    return least;
}

std::uint32_t toColor(const Hsl& hsl) {
    if (hsl.saturation == 0) {
        return colorOf(hsl.lightness, hsl.lightness, hsl.lightness);
    }
    const double hue = hsl.hue / kFull;
    const double saturation = hsl.saturation / kFull;
    const double lightness = hsl.lightness / kFull;
    const double greatest =
        lightness < 0.5 ? (1.0 + saturation) * lightness : saturation + lightness - saturation * lightness;
    const double least = 2.0 * lightness - greatest;
    return colorOf(truncated(componentOfHue(hue + 1.0 / 3.0, least, greatest)),
                   truncated(componentOfHue(hue, least, greatest)),
                   truncated(componentOfHue(hue - 1.0 / 3.0, least, greatest)));
}

std::uint32_t mixed(std::uint32_t first, std::uint32_t second, int percent) {
    const auto mix = [&](int shift) {
        const std::int64_t share = percent;
        return static_cast<std::uint8_t>((component(second, shift) * (100 - share) + component(first, shift) * share) /
                                         100);
    };
    return colorOf(mix(0), mix(kGreenShift), mix(kBlueShift));
}

std::uint32_t highlighted(std::uint32_t color, int amount) {
    constexpr int middle = 128;
    Hsl hsl = toHsl(color);
    const auto step = static_cast<std::uint8_t>(amount < middle ? amount : middle - 1);
    hsl.lightness = static_cast<std::uint8_t>(hsl.lightness < middle ? hsl.lightness + step : hsl.lightness - step);
    return toColor(hsl);
}

} // namespace ColorArithmetic
