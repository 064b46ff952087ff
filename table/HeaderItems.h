#pragma once

#include <optional>
#include <vector>

/// What the column arithmetic needs of a header: one whole width an item, and the display order of the items.
/// Items are named by id, their creation index.
class HeaderItems {
public:
    virtual ~HeaderItems() = default;

    virtual int itemCount() const = 0;
    /// Empty if there is no such item.
    virtual std::optional<int> itemWidth(int id) const = 0;
    virtual void setItemWidth(int id, int width) = 0;
    /// The ids by display position.
    virtual std::vector<int> itemOrder() const = 0;
    /// An order that lists fewer or more ids than there are items is refused by the header.
    virtual void setItemOrder(const std::vector<int>& order) = 0;
};
