#pragma once

#include <algorithm>
#include <vector>

namespace Desk {

/// Sorts stably so that unknown values stand last in either direction, in the order they had.
/// `isKnown(item)`, and `isBefore(a, b)` for known items in ascending order.
template <class Item, class IsKnown, class IsBefore>
void sortKnownFirst(std::vector<Item>& items, bool descending, IsKnown isKnown, IsBefore isBefore) {
    const auto unknown = std::stable_partition(items.begin(), items.end(), isKnown);
    if (descending)
        std::stable_sort(items.begin(), unknown, [&](const Item& a, const Item& b) { return isBefore(b, a); });
    else
        std::stable_sort(items.begin(), unknown, isBefore);
}

} // namespace Desk
