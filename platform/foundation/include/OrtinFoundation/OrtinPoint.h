#pragma once

/// A point of two numbers, x then y. The unit is the user's.
template <typename Number>
struct OrtinPoint {
    Number x{};
    Number y{};

    friend constexpr OrtinPoint operator+(const OrtinPoint& left, const OrtinPoint& right) {
        return {left.x + right.x, left.y + right.y};
    }
    friend constexpr bool operator==(const OrtinPoint&, const OrtinPoint&) = default;
};
