#include "PriceScale.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

/// Beyond it differences of two values leave the numbers that there are.
constexpr double GreatestValue = 1e300;
/// A span that is smaller beside its values could not be divided into different numbers.
constexpr double LeastShare = 1e-9;
constexpr double LeastSpan = 1e-290;
constexpr double MostGridLines = 1000.0;
/// The only digit of a step that has a decimal of its own.
constexpr double HalfOfFive = 2.5;

double sane(double value, double otherwise) {
    return std::isnan(value) ? otherwise : std::clamp(value, -GreatestValue, GreatestValue);
}

/// `multiplier` times the power of ten, the nearest number there is to it.
double scaledByTen(double multiplier, int exponent) {
    return exponent < 0 ? multiplier / std::pow(10.0, -exponent) : multiplier * std::pow(10.0, exponent);
}

struct GridStep {
    double digit; ///< 1, 2, 2.5 or 5
    int exponent; ///< of ten
};

/// The least step that is not below `least`, but for rounding.
GridStep stepNotBelow(double least) {
    constexpr double Rounding = 1.0 - 1e-9;
    int exponent = static_cast<int>(std::floor(std::log10(least)));
    for (;; ++exponent)
        for (const double digit : {1.0, 2.0, HalfOfFive, 5.0})
            if (scaledByTen(digit, exponent) >= least * Rounding)
                return {digit, exponent};
}

} // namespace

PriceScale::PriceScale(double low, double high, int top, int bottom)
    : m_low(sane(low, 0.0)),
      m_high(sane(high, m_low + 1.0)),
      m_top(top),
      m_bottom(bottom) {
    if (m_high < m_low)
        std::swap(m_low, m_high);
    const double magnitude = std::max(std::fabs(m_low), std::fabs(m_high));
    if (m_high - m_low < std::max(magnitude * LeastShare, LeastSpan)) {
        const double half = magnitude * 0.01 < LeastSpan ? 0.5 : magnitude * 0.01;
        m_low -= half;
        m_high += half;
    }
    m_pixels = std::max(1.0, static_cast<double>(bottom) - top) / (m_high - m_low);
}

PriceGrid priceGrid(const PriceScale& scale, int leastDistance) {
    const double span = scale.high() - scale.low();
    const double height = std::max(1.0, static_cast<double>(scale.bottom()) - scale.top());
    const double least = std::max(span / height * std::max(1, leastDistance), span / (MostGridLines - 1.0));
    const GridStep step = stepNotBelow(least);

    PriceGrid grid;
    grid.decimals = std::max(0, (step.digit == HalfOfFive ? 1 : 0) - step.exponent);
    const double size = scaledByTen(step.digit, step.exponent);
    const double last = std::floor(scale.high() / size + 0.5);
    for (double multiple = std::ceil(scale.low() / size - 0.5); multiple <= last; ++multiple) {
        const double value = scaledByTen(multiple * step.digit, step.exponent);
        if (value >= scale.low() && value <= scale.high())
            grid.values.push_back(value);
    }
    return grid;
}

} // namespace Desk
