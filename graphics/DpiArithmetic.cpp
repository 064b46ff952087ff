#include "DpiArithmetic.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

#include "Rounding.h"

namespace DpiArithmetic {

double scaleFactor(int pixelsPerInch) {
    return std::max(1.0, pixelsPerInch / 96.0);
}

int scalingTier(double factor, int tierCount, double step) {
    if (factor <= 1.0) {
        return 0;
    }
    return truncateToInt(std::min(tierCount - 1.0, std::ceil((factor - 1.0) * step)));
}

double heightAtScale(double factor, double height) {
    return std::round(factor * height);
}

double heightWithoutScale(double factor, double height) {
    return std::round(height / factor);
}

std::size_t pictureIndex(double factor) {
    constexpr std::array<double, 7> limits{1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 3.5};
    return static_cast<std::size_t>(std::upper_bound(limits.begin(), limits.end(), factor) - limits.begin());
}

IconEdges ribbonIconEdges(double factor) {
    struct Step {
        double below;
        IconEdges edges;
    };
    constexpr Step steps[] = {
        {1.25, {16, 32}}, {1.5, {16, 40}}, {1.75, {24, 56}}, {2.0, {32, 64}},
        {2.25, {32, 72}}, {2.5, {40, 72}}, {3.0, {48, 96}},
    };
    const auto* step =
        std::find_if(std::begin(steps), std::end(steps), [factor](const Step& each) { return factor < each.below; });
    if (step != std::end(steps)) {
        return step->edges;
    }
    return factor == 3.0 ? IconEdges{56, 112} : IconEdges{64, 128};
}

std::optional<std::size_t> iconStripIndex(int width) {
    constexpr std::array<int, 11> widths{16, 24, 32, 40, 48, 56, 64, 72, 96, 112, 128};
    const auto* found = std::find(widths.begin(), widths.end(), width);
    return found != widths.end() ? std::optional(static_cast<std::size_t>(found - widths.begin())) : std::nullopt;
}

} // namespace DpiArithmetic
