#pragma once

#include <cstddef>
#include <optional>

/// What follows from the scale factor: logical pixels an inch of the screen / 96. No windows.
namespace DpiArithmetic {

/// Never below 1.
double scaleFactor(int pixelsPerInch);

/// `step` tiers for each whole factor above 1, rounded up, at most the last of `tierCount`; 0 up to factor 1.
int scalingTier(double factor, int tierCount, double step);

/// Heights at the factor and at 96 pixels an inch, rounded half away from zero.
double heightAtScale(double factor, double height);
double heightWithoutScale(double factor, double height);

/// Which of eight pictures, drawn for growing factors, fits.
std::size_t pictureIndex(double factor);

/// Edges of square icons, in pixels.
struct IconEdges {
    int small;
    int large;

    friend bool operator==(const IconEdges&, const IconEdges&) = default;
};
IconEdges ribbonIconEdges(double factor);

/// Which of the eleven icon strips has icons of that width, empty if none has.
std::optional<std::size_t> iconStripIndex(int width);

} // namespace DpiArithmetic
