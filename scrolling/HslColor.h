#pragma once

#include <cstdint>

/// Colours 0x00BBGGRR by hue, saturation and lightness as whole numbers: hue in degrees from 0 to 359, the others in
/// percent. Fractions are cut off at every step, and what is lost by it stays lost. No windows.
namespace HslColor {

struct Hsl {
    int hue;
    int saturation;
    int lightness;

    friend bool operator==(const Hsl&, const Hsl&) = default;
};

Hsl fromColor(std::uint32_t color);
std::uint32_t toColor(const Hsl& hsl);

/// Lightness and saturation in percent of what they are, each at most 100.
std::uint32_t ModifyIntensityAndSaturation(std::uint32_t color, unsigned intensity, unsigned saturation);
/// The saturation is at most `limit`.
std::uint32_t Desaturate(std::uint32_t color, unsigned limit);
/// The lightness is at least `limit`.
std::uint32_t Lighten(std::uint32_t color, unsigned limit);

} // namespace HslColor
