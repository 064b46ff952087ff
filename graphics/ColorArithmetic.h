#pragma once

#include <cstdint>

/// Arithmetic on colours 0x00BBGGRR, whose high byte is ignored and comes back as 0. Fractions are always cut off,
/// never rounded. No windows.
namespace ColorArithmetic {

/// Each component, the hue too, is a byte.
struct Hsl {
    std::uint8_t hue;
    std::uint8_t saturation;
    std::uint8_t lightness;

    friend bool operator==(const Hsl&, const Hsl&) = default;
};

Hsl toHsl(std::uint32_t color);
std::uint32_t toColor(const Hsl& hsl);

/// A component of a colour from its hue, whole turns of which do not matter; the other two are the least and the
/// greatest component. All are parts of one.
double componentOfHue(double hue, double least, double greatest);

/// `percent` is the share of `first`.
std::uint32_t mixed(std::uint32_t first, std::uint32_t second, int percent);

/// The same hue with a lightness that is `amount`, at most 127, nearer to the middle.
std::uint32_t highlighted(std::uint32_t color, int amount);

} // namespace ColorArithmetic
