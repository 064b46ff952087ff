#include "ColumnModel.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <stdexcept>

#include "../graphics/Rounding.h"

namespace {

/// A header item must show this much more than the truncated widths need, so that its divider stays within reach.
constexpr double kLastItemMargin = 4.0;

bool isIndex(int value, std::size_t count) {
    return value >= 0 && static_cast<std::size_t>(value) < count;
}

} // namespace

ColumnModel::ColumnModel(int minColumnWidth) : m_minColumnWidth(minColumnWidth), m_minWidth(minColumnWidth) {}

int ColumnModel::GetColumnCount() const {
    return static_cast<int>(m_columns.size());
}

int ColumnModel::GetVisibleColumnCount() const {
    return static_cast<int>(
        std::count_if(m_columns.begin(), m_columns.end(), [](const Column& column) { return column.visible; }));
}

int ColumnModel::GetColumnWidth(int id) const {
    if (id >= GetColumnCount()) {
        return 0;
    }
    const Column& column = m_columns.at(static_cast<std::size_t>(id));
    return column.visible ? truncateToInt(atLeastMinimum(column.width)) : 0;
}

bool ColumnModel::GetColumnVisibility(int id) const {
    return isIndex(id, m_columns.size()) && m_columns[static_cast<std::size_t>(id)].visible;
}

double ColumnModel::GetColumnRealWidth(int id) const {
    return isIndex(id, m_columns.size()) ? m_columns[static_cast<std::size_t>(id)].width : 0.0;
}

double ColumnModel::totalRealWidth() const {
    double total = 0.0;
    for (const Column& column : m_columns) {
        if (column.visible) {
            total += atLeastMinimum(column.width);
        }
    }
    return total;
}

bool ColumnModel::orderIsDirty() const {
    return m_orderDirty;
}

void ColumnModel::UpdateOrderArray(const HeaderItems& header) {
    m_order = header.itemOrder();
    m_inverse.assign(m_order.size(), 0);
    for (std::size_t position = 0; position < m_order.size(); ++position) {
        m_inverse.at(static_cast<std::size_t>(m_order[position])) = static_cast<int>(position);
    }
    m_orderDirty = false;
}

int ColumnModel::GetColumnId(int position) const {
    return isIndex(position, m_order.size()) ? m_order[static_cast<std::size_t>(position)] : 0;
}

int ColumnModel::GetColumnIdxFromId(int id) const {
    return m_inverse.empty() ? 0 : m_inverse.at(static_cast<std::size_t>(id));
}

int ColumnModel::GetCurrentResizedColumnPosition(int id) const {
    const auto found = std::find(m_order.begin(), m_order.end(), id);
    return found == m_order.end() ? -1 : static_cast<int>(found - m_order.begin());
}

int ColumnModel::GetLastVisibleColumnPosition() const {
    const auto found =
        std::find_if(m_order.rbegin(), m_order.rend(), [this](int id) { return GetColumnVisibility(id); });
    return found == m_order.rend() ? 0 : *found;
}

double ColumnModel::GetWidthBeforeColumn(int position) const {
    double sum = 0.0;
    for (int before = 0; before < position; ++before) {
        const Column& column = GetColumnWithAndVisibility(before);
        sum += column.visible ? column.width : 0.0;
    }
    return sum;
}

double ColumnModel::GetWidthAfterColumn(int position) const {
    double sum = 0.0;
    for (int after = position + 1; after < static_cast<int>(m_order.size()); ++after) {
        const Column& column = GetColumnWithAndVisibility(after);
        sum += column.visible ? column.width : 0.0;
    }
    return sum;
}

void ColumnModel::clear() {
    m_columns.clear();
}

void ColumnModel::append(double width, bool visible) {
    m_columns.push_back({width, visible});
}

void ColumnModel::erase(int id) {
    m_columns.erase(m_columns.begin() + id);
}

void ColumnModel::setVisible(int id, bool visible) {
    m_columns.at(static_cast<std::size_t>(id)).visible = visible;
}

double ColumnModel::widthOfNewColumn() const {
    return m_columns.empty() ? m_minColumnWidth : m_columns.front().width;
}

void ColumnModel::restore(const std::deque<double>& widths, HeaderItems& header) {
    if (widths.size() > m_order.size()) {
        throw std::out_of_range("invalid vector<T> subscript");
    }
    const auto listed = m_order.begin() + static_cast<std::ptrdiff_t>(widths.size());
    if (std::any_of(m_order.begin(), listed, [&](int id) { return !isIndex(id, widths.size()); })) {
        throw std::out_of_range("invalid deque<T> subscript");
    }
    std::for_each(m_order.begin(), listed, [&](int id) {
        const auto index = static_cast<std::size_t>(id);
        const int width = truncateToInt(atLeastMinimum(widths[index]));
        m_columns.at(index) = {std::fabs(static_cast<double>(width)), true};
        header.setItemWidth(id, width);
    });
}

bool ColumnModel::UpdateColumnWidths(int id, int width, int bodyWindowWidth, HeaderItems& header) {
    if (width < m_minColumnWidth && id >= 0) {
        return false;
    }
    int last = GetLastVisibleColumnPosition();
    double target = width;
    int position = -1;
    if (id != -1) {
        position = GetCurrentResizedColumnPosition(id);
        if (position == -1 || id == last) {
            return false; // the last visible column takes what is left and cannot be dragged
        }
        target += GetWidthBeforeColumn(position);
    }
    const double sumAfter = GetWidthAfterColumn(position);
    const double available = bodyWindowWidth - target;
    if (id != -1 && width > GetColumnRealWidth(id) && BlockResize(position, available, sumAfter)) {
        return false;
    }

    double pixelSum = width;
    double realSum = width;
    for (int after = position + 1; after < static_cast<int>(m_order.size()); ++after) {
        const int afterId = m_order[static_cast<std::size_t>(after)];
        Column& column = m_columns.at(static_cast<std::size_t>(afterId));
        // Hidden columns are scaled too, so that they come back in proportion. With nothing visible behind the column
        // the division is by 0, and the minimum takes what is not a number.
        column.width = atLeastMinimum(column.width * available / sumAfter);
        if (column.visible) {
            const int pixels = truncateToInt(column.width);
            pixelSum += pixels;
            realSum += column.width;
            header.setItemWidth(afterId, pixels);
            last = afterId;
        }
    }
    if (id >= 0) {
        setWidth(id, width, header);
    }
    // Only the last header item takes up what truncation lost; its real width stays, so that repeated refits do not
    // drift.
    if (const std::optional<int> lastWidth = header.itemWidth(last)) {
        header.setItemWidth(last,
                            truncateToInt(*lastWidth + std::ceil(std::fabs(realSum - pixelSum) + kLastItemMargin)));
    }
    return true;
}

bool ColumnModel::BlockResize(int position, double available, double sumAfter) const {
    for (int after = position + 1; after < static_cast<int>(m_order.size()); ++after) {
        // Visibility is not asked: a hidden column that keeps its width allows the change as well.
        if (GetColumnWithAndVisibility(after).width * available / sumAfter >= m_minColumnWidth) {
            return false;
        }
    }
    return true;
}

void ColumnModel::setWidth(int id, int width, HeaderItems& header) {
    header.setItemWidth(id, width);
    m_columns.at(static_cast<std::size_t>(id)).width = width;
}

bool ColumnModel::setLockedWidth(int id, int width, HeaderItems& header) {
    if (id < 0) {
        return true;
    }
    if (width < m_minColumnWidth || !isIndex(id, m_columns.size())) {
        return false;
    }
    setWidth(id, width, header);
    return true;
}

int ColumnModel::visibleHeaderWidth(const HeaderItems& header) const {
    std::int64_t total = 0;
    for (int id = 0; id < GetColumnCount(); ++id) {
        if (GetColumnVisibility(id)) {
            total += header.itemWidth(id).value_or(0);
        }
    }
    return saturateToInt(total);
}

bool ColumnModel::fitLastColumn(int bodyClientWidth, int headerClientWidth, HeaderItems& header) {
    if (GetVisibleColumnCount() == 0) {
        return false;
    }
    const int last = GetLastVisibleColumnPosition();
    const double rest = GetWidthAfterColumn(-1) - GetColumnRealWidth(last);
    const double fit = bodyClientWidth - rest;
    if (!(fit >= m_minColumnWidth)) {
        return false; // too narrow, or no number because a column is infinitely wide
    }
    m_columns.at(static_cast<std::size_t>(last)).width = fit;
    header.setItemWidth(last, truncateToInt(headerClientWidth - std::trunc(rest) + kLastItemMargin));
    return true;
}

void ColumnModel::UpdateMinWidth(int bodyClientWidth, int bodyWindowWidth) {
    if (m_columns.empty()) {
        m_minWidth = m_minColumnWidth;
        return;
    }
    const double sum = GetWidthAfterColumn(-1);
    const double lastWidth = GetVisibleColumnCount() == 0 ? 0.0 : GetColumnRealWidth(GetLastVisibleColumnPosition());
    m_minWidth = truncateToInt(std::trunc(sum - lastWidth + m_minColumnWidth) - bodyClientWidth + bodyWindowWidth);
}

int ColumnModel::minWidth() const {
    return m_minWidth;
}

const ColumnModel::Column& ColumnModel::GetColumnWithAndVisibility(int position) const {
    return m_columns.at(static_cast<std::size_t>(m_order.at(static_cast<std::size_t>(position))));
}

double ColumnModel::atLeastMinimum(double width) const {
    return std::max(static_cast<double>(m_minColumnWidth), width);
}
