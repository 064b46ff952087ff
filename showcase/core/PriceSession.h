#pragma once

#include <algorithm>

namespace Desk {

/// What has become of an instrument's price since the desk was opened.
struct PriceSession {
    explicit PriceSession(double price) : first(price), last(price), highest(price), lowest(price) {}

    void take(double price) {
        last = price;
        highest = std::max(highest, price);
        lowest = std::min(lowest, price);
    }
    bool operator==(const PriceSession&) const = default;

    double first; ///< before the first tick
    double last;
    double highest;
    double lowest;
};

} // namespace Desk
