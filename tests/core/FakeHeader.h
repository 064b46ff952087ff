#pragma once

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "HeaderItems.h"

/// A header control without a window: a width an item and the display order. It refuses a wrong order as the native
/// control does.
class FakeHeader : public HeaderItems {
public:
    int itemCount() const override { return static_cast<int>(m_widths.size()); }

    std::optional<int> itemWidth(int id) const override {
        return holds(id) ? std::optional(m_widths[static_cast<std::size_t>(id)]) : std::nullopt;
    }

    void setItemWidth(int id, int width) override {
        if (holds(id)) {
            m_widths[static_cast<std::size_t>(id)] = width;
        }
    }

    std::vector<int> itemOrder() const override { return m_order; }

    void setItemOrder(const std::vector<int>& order) override {
        if (std::is_permutation(order.begin(), order.end(), m_order.begin(), m_order.end())) {
            m_order = order;
        } else {
            ++refusedOrders;
        }
    }

    void appendItem(int width) {
        m_order.push_back(itemCount());
        m_widths.push_back(width);
    }

    void deleteItem(int id) {
        m_widths.erase(m_widths.begin() + id);
        std::erase(m_order, id);
        for (int& later : m_order) {
            later -= later > id ? 1 : 0;
        }
    }

    const std::vector<int>& widths() const { return m_widths; }

    int refusedOrders = 0;

private:
    bool holds(int id) const { return id >= 0 && id < itemCount(); }

    std::vector<int> m_widths;
    std::vector<int> m_order;
};
