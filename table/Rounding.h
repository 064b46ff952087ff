#pragma once

#include <cmath>
#include <limits>

/// Truncates toward zero. A value outside the range of int saturates and NaN gives 0, where a bare conversion would be
/// undefined: a width that was divided by nothing may be either.
inline int truncateToInt(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= static_cast<double>(std::numeric_limits<int>::max())) {
        return std::numeric_limits<int>::max();
    }
    if (value <= static_cast<double>(std::numeric_limits<int>::min())) {
        return std::numeric_limits<int>::min();
    }
    return static_cast<int>(value);
}
