#include "ReferenceColumns.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <set>
#include <string>

namespace {

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

int clampToInt(long long value) {
    return static_cast<int>(std::clamp<long long>(value, kIntMin, kIntMax));
}

/// Toward zero. A hidden column that was shared nothing may be infinite; the header then gets all it can hold.
int whole(double value) {
    if (std::isnan(value)) {
        return 0;
    }
    return clampToInt(static_cast<long long>(std::clamp(value, -1e15, 1e15)));
}

template <typename Values>
void list(std::ostream& out, const char* name, const Values& values) {
    out << ' ' << name;
    for (const auto value : values) {
        out << ' ' << value;
    }
}

} // namespace

std::ostream& operator<<(std::ostream& out, const ColumnSnapshot& columns) {
    out.precision(17);
    list(out, "order", columns.order);
    list(out, "inverse", columns.inverse);
    list(out, "widths", columns.widths);
    list(out, "visible", columns.visible);
    list(out, "real", columns.realWidths);
    list(out, "header", columns.headerWidths);
    return out << " visible count " << columns.visibleCount << " minimum " << columns.minWidth << " locked "
               << columns.locked;
}

void ReferenceColumns::setWindows(int bodyWindow, int bodyClient, int headerClient) {
    m_bodyWindow = bodyWindow;
    m_bodyClient = bodyClient;
    m_headerClient = headerClient;
}

void ReferenceColumns::updateOrder() {
    m_order = m_headerOrder;
    m_inverse.assign(m_order.size(), 0);
    for (std::size_t position = 0; position < m_order.size(); ++position) {
        m_inverse.at(static_cast<std::size_t>(m_order[position])) = static_cast<int>(position);
    }
}

void ReferenceColumns::writeOrder(const std::vector<int>& order) {
    const std::set<int> ids(order.begin(), order.end());
    const std::set<int> wanted(m_headerOrder.begin(), m_headerOrder.end());
    if (order.size() == m_headerOrder.size() && ids == wanted) {
        m_headerOrder = order;
    }
}

double ReferenceColumns::widthBefore(int position) const {
    double sum = 0.0;
    for (int before = 0; before <= position - 1; ++before) {
        const Column& column = m_columns.at(static_cast<std::size_t>(m_order.at(static_cast<std::size_t>(before))));
        if (column.visible) {
            sum += column.width;
        }
    }
    return sum;
}

double ReferenceColumns::widthAfter(int position) const {
    double sum = 0.0;
    for (std::size_t after = static_cast<std::size_t>(position + 1); after < m_order.size(); ++after) {
        const Column& column = m_columns.at(static_cast<std::size_t>(m_order[after]));
        if (column.visible) {
            sum += column.width;
        }
    }
    return sum;
}

int ReferenceColumns::positionOf(int id) const {
    for (std::size_t position = 0; position < m_order.size(); ++position) {
        if (m_order[position] == id) {
            return static_cast<int>(position);
        }
    }
    return -1;
}

int ReferenceColumns::lastVisibleId() const {
    int last = 0;
    for (const int id : m_order) {
        if (m_columns.at(static_cast<std::size_t>(id)).visible) {
            last = id;
        }
    }
    return last;
}

bool ReferenceColumns::blocked(int position, double available, double sumAfter) const {
    for (std::size_t after = static_cast<std::size_t>(position + 1); after < m_order.size(); ++after) {
        const double width = m_columns.at(static_cast<std::size_t>(m_order[after])).width;
        if (width * available / sumAfter >= m_minimum) {
            return false;
        }
    }
    return true;
}

bool ReferenceColumns::updateWidths(int id, int width) {
    if (width < m_minimum && id >= 0) {
        return false;
    }
    int last = lastVisibleId();
    double target = width;
    int position = -1;
    if (id != -1) {
        position = positionOf(id);
        if (id == last) {
            return false;
        }
        target += widthBefore(position);
    }
    const double sumAfter = widthAfter(position);
    const double available = m_bodyWindow - target;
    if (id != -1 && width > m_columns.at(static_cast<std::size_t>(id)).width &&
        blocked(position, available, sumAfter)) {
        return false;
    }
    double pixelSum = width;
    double realSum = width;
    for (std::size_t after = static_cast<std::size_t>(position + 1); after < m_order.size(); ++after) {
        const int c = m_order[after];
        Column& column = m_columns.at(static_cast<std::size_t>(c));
        const double scaled = column.width * available / sumAfter;
        column.width = scaled > m_minimum ? scaled : m_minimum;
        if (column.visible) {
            const int pixels = whole(column.width);
            pixelSum += pixels;
            realSum += column.width;
            m_headerWidths.at(static_cast<std::size_t>(c)) = pixels;
            last = c;
        }
    }
    if (id >= 0) {
        m_headerWidths.at(static_cast<std::size_t>(id)) = width;
        m_columns.at(static_cast<std::size_t>(id)).width = width;
    }
    if (last < static_cast<int>(m_headerWidths.size())) {
        int& item = m_headerWidths[static_cast<std::size_t>(last)];
        item = clampToInt(static_cast<long long>(item) + whole(std::ceil(std::fabs(realSum - pixelSum) + 4.0)));
    }
    return true;
}

bool ReferenceColumns::widthsChanged(int id, int width) {
    if (id >= 0 && width < m_minimum) {
        return false;
    }
    if (id >= 0) {
        m_headerWidths.at(static_cast<std::size_t>(id)) = width;
        m_columns.at(static_cast<std::size_t>(id)).width = width;
    }
    long long total = 0;
    for (std::size_t item = 0; item < m_columns.size(); ++item) {
        total += m_columns[item].visible ? m_headerWidths.at(item) : 0;
    }
    updateMinWidth();
    m_widthChangedByUser = true;
    m_ownerWidth = clampToInt(total);
    return true;
}

void ReferenceColumns::fitLocked() {
    double sum = 0.0;
    double lastWidth = 0.0;
    int last = -1;
    for (const int id : m_order) {
        const Column& column = m_columns.at(static_cast<std::size_t>(id));
        if (column.visible) {
            sum += column.width;
            last = id;
            lastWidth = column.width;
        }
    }
    if (last == -1) {
        return;
    }
    const double rest = sum - lastWidth;
    const double fit = m_bodyClient - rest;
    if (std::isnan(fit) || m_minimum > fit) {
        return;
    }
    m_columns[static_cast<std::size_t>(last)].width = fit;
    m_headerWidths[static_cast<std::size_t>(last)] =
        clampToInt(static_cast<long long>(m_headerClient) - whole(rest) + 4);
    updateMinWidth();
}

void ReferenceColumns::updateMinWidth() {
    if (m_columns.empty()) {
        m_minWidth = m_minimum;
        return;
    }
    double sum = 0.0;
    double lastWidth = 0.0;
    for (const int id : m_order) {
        const Column& column = m_columns.at(static_cast<std::size_t>(id));
        if (column.visible) {
            sum += column.width;
            lastWidth = column.width;
        }
    }
    m_minWidth = clampToInt(static_cast<long long>(whole(sum - lastWidth + m_minimum)) - m_bodyClient + m_bodyWindow);
}

void ReferenceColumns::setColumns(const std::vector<double>& widths) {
    m_headerWidths.clear();
    m_headerOrder.clear();
    m_columns.clear();
    for (const double width : widths) {
        m_headerOrder.push_back(static_cast<int>(m_headerWidths.size()));
        m_headerWidths.push_back(whole(width));
        m_columns.push_back({std::fabs(width), width > 0.0});
    }
    updateOrder();
}

int ReferenceColumns::addColumn(int type, int selectedPosition) {
    const int index = static_cast<int>(m_headerWidths.size());
    const double width = m_columns.empty() ? m_minimum : m_columns[0].width;
    m_headerWidths.push_back(whole(width));
    m_headerOrder.push_back(index);
    m_columns.push_back({width, true});

    std::vector<int> order = m_headerOrder;
    order.pop_back();
    const int before = static_cast<int>(order.size());
    int position = 0;
    bool placed = true;
    switch (type) {
    case 0:
        position = std::min(before, selectedPosition + 1);
        break;
    case 1:
        position = selectedPosition;
        break;
    case 2:
        position = before;
        break;
    case 3:
        position = 0;
        break;
    default:
        placed = false;
    }
    if (placed) {
        order.insert(order.begin() + position, index);
    }
    writeOrder(order);
    updateOrder();
    if (m_locked) {
        widthsChanged(-1, 0);
    }
    updateWidths(-1, 0);
    return position;
}

void ReferenceColumns::removeColumn(int id) {
    m_headerWidths.erase(m_headerWidths.begin() + id);
    std::vector<int> order;
    for (const int entry : m_headerOrder) {
        if (entry != id) {
            order.push_back(entry > id ? entry - 1 : entry);
        }
    }
    m_headerOrder = order;
    m_columns.erase(m_columns.begin() + id);
    updateOrder();
    if (m_locked) {
        widthsChanged(-1, 0);
    }
    updateWidths(-1, 0);
}

void ReferenceColumns::showColumn(int id, bool show) {
    Column& column = m_columns.at(static_cast<std::size_t>(id));
    if (column.visible != show) {
        m_headerWidths.at(static_cast<std::size_t>(id)) = show ? whole(column.width) : 0;
        column.visible = show;
    }
    updateOrder();
    if (m_locked) {
        widthsChanged(-1, 0);
    } else {
        updateWidths(-1, 0);
    }
}

void ReferenceColumns::setColumnWidth(int id, int width) {
    if (!m_locked) {
        updateWidths(id, width);
        return;
    }
    if (id < 0 || id >= static_cast<int>(m_headerWidths.size())) {
        return;
    }
    m_headerWidths[static_cast<std::size_t>(id)] = width;
    m_columns[static_cast<std::size_t>(id)].width = width;
}

bool ReferenceColumns::restore(const std::deque<double>& widths) {
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (i >= m_order.size() || m_order[i] >= static_cast<int>(widths.size())) {
            return false;
        }
    }
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const auto id = static_cast<std::size_t>(m_order[i]);
        const double width = widths[id] > m_minimum ? widths[id] : m_minimum;
        m_columns.at(id) = {static_cast<double>(std::abs(whole(width))), true};
        m_headerWidths.at(id) = whole(width);
    }
    if (m_locked) {
        widthsChanged(-1, 0);
    }
    return true;
}

bool ReferenceColumns::trackWidth(int id, int width) {
    return m_locked ? widthsChanged(id, width) : updateWidths(id, width);
}

void ReferenceColumns::switchOrder(int positionA, int positionB) {
    std::vector<int> order = m_headerOrder;
    std::swap(order.at(static_cast<std::size_t>(positionA)), order.at(static_cast<std::size_t>(positionB)));
    writeOrder(order);
    updateOrder();
    updateWidths(-1, 0);
}

void ReferenceColumns::moveColumn(int from, int to) {
    std::vector<int> order = m_headerOrder;
    if (from < to) {
        std::rotate(order.begin() + from, order.begin() + from + 1, order.begin() + to + 1);
    } else if (to < from) {
        std::rotate(order.begin() + to, order.begin() + from, order.begin() + from + 1);
    }
    writeOrder(order);
    updateOrder();
    updateWidths(-1, 0);
}

void ReferenceColumns::resize(int width) {
    setWindows(width, width, width);
    if (!m_locked) {
        updateWidths(-1, 0);
    } else if (!m_widthChangedByUser) {
        fitLocked();
    }
    m_widthChangedByUser = false;
}

ColumnSnapshot ReferenceColumns::snapshot() const {
    ColumnSnapshot shot;
    shot.order = m_order;
    shot.inverse = m_inverse;
    shot.headerWidths = m_headerWidths;
    for (const Column& column : m_columns) {
        const double shown = column.width > m_minimum ? column.width : m_minimum;
        shot.widths.push_back(column.visible ? whole(shown) : 0);
        shot.visible.push_back(column.visible);
        shot.realWidths.push_back(column.width);
        shot.visibleCount += column.visible ? 1 : 0;
    }
    shot.minWidth = m_minWidth;
    shot.locked = m_locked;
    return shot;
}
