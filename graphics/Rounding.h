#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
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

/// The nearest int: a sum of what a host gave may leave the range.
inline int saturateToInt(std::int64_t value) {
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}
