#pragma once

#include <string>
#include <vector>

namespace Desk {

/// A linear axis that grows upwards: prices or volumes on the pixels of a plot.
class PriceScale {
public:
    /// `low` lies on the lower edge, the pixel line `bottom`, `high` on `top`, which is less. A span of nothing, or of
    /// hardly anything beside its values, is widened, so that there is always a scale, whatever the numbers are.
    PriceScale(double low, double high, int top, int bottom);

    double yOf(double value) const { return m_bottom - (value - m_low) * m_pixels; }
    double valueAt(double y) const { return m_low + (m_bottom - y) / m_pixels; }
    double low() const { return m_low; }
    double high() const { return m_high; }
    int top() const { return m_top; }
    int bottom() const { return m_bottom; }

private:
    double m_low;
    double m_high;
    int m_top;
    int m_bottom;
    double m_pixels;
};

/// The values of grid lines: whole multiples of 1, 2, 2.5 or 5 times a power of ten, at least `leastDistance` pixels
/// from each other, all within the scale. At most a thousand.
struct PriceGrid {
    std::vector<double> values;
    int decimals = 0; ///< with which neighbours read differently
};
PriceGrid priceGrid(const PriceScale& scale, int leastDistance);

} // namespace Desk
