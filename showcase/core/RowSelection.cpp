#include "RowSelection.h"

#include <algorithm>

namespace Desk {

namespace {

std::vector<RowRange> without(const std::vector<RowRange>& ranges, RowRange removed) {
    std::vector<RowRange> left;
    for (const RowRange& range : ranges) {
        const RowRange before{range.first, std::min(range.end, removed.first)};
        const RowRange after{std::max(range.first, removed.end), range.end};
        if (before.first < before.end)
            left.push_back(before);
        if (after.first < after.end)
            left.push_back(after);
    }
    return left;
}

/// `added` must not overlap any of the ranges; neighbours grow together.
std::vector<RowRange> with(std::vector<RowRange> ranges, RowRange added) {
    const auto place = std::lower_bound(ranges.begin(), ranges.end(), added,
                                        [](const RowRange& a, const RowRange& b) { return a.first < b.first; });
    ranges.insert(place, added);
    std::vector<RowRange> joined;
    for (const RowRange& range : ranges) {
        if (!joined.empty() && joined.back().end == range.first)
            joined.back().end = range.end;
        else
            joined.push_back(range);
    }
    return joined;
}

} // namespace

int rowAfterStep(RowStep step, int row, int pageRows, int rowCount) {
    if (rowCount <= 0)
        return -1;
    const int last = rowCount - 1;
    switch (step) {
    case RowStep::First:
        return 0;
    case RowStep::Last:
        return last;
    case RowStep::Up:
        return row < 0 ? last : std::clamp(row - 1, 0, last);
    case RowStep::Down:
        return std::clamp(row + 1, 0, last);
    case RowStep::PageUp:
        return row < 0 ? last : std::clamp(row - pageRows, 0, last);
    case RowStep::PageDown:
        return row < 0 ? 0 : std::min(last - row, pageRows) + row;
    }
    return row;
}

bool RowSelection::contains(int row) const {
    const RowRange active = activeRange();
    if (row >= active.first && row < active.end)
        return m_activeIsSelected;
    const auto after = std::upper_bound(m_kept.begin(), m_kept.end(), row,
                                        [](int value, const RowRange& range) { return value < range.first; });
    return after != m_kept.begin() && row < std::prev(after)->end;
}

int RowSelection::count() const {
    int rows = 0;
    for (const RowRange& range : ranges())
        rows += range.end - range.first;
    return rows;
}

std::vector<RowRange> RowSelection::ranges() const {
    const RowRange active = activeRange();
    if (active.first == active.end)
        return m_kept;
    std::vector<RowRange> others = without(m_kept, active);
    return m_activeIsSelected ? with(std::move(others), active) : others;
}

void RowSelection::select(int row) {
    m_kept.clear();
    m_activeIsSelected = true;
    m_caret = m_anchor = std::max(row, -1);
}

void RowSelection::extendTo(int row) {
    if (m_anchor < 0 || row < 0) {
        select(row);
        return;
    }
    m_kept.clear();
    m_activeIsSelected = true;
    m_caret = row;
}

void RowSelection::toggle(int row) {
    if (row < 0)
        return;
    const bool wasSelected = contains(row);
    m_kept = ranges();
    m_activeIsSelected = !wasSelected;
    m_caret = m_anchor = row;
}

void RowSelection::extendKeepingTo(int row) {
    if (m_anchor < 0 || row < 0)
        select(row);
    else
        m_caret = row;
}

void RowSelection::selectRows(std::vector<int> rows, int caret) {
    std::sort(rows.begin(), rows.end());
    m_kept.clear();
    for (const int row : rows) {
        if (!m_kept.empty() && m_kept.back().end == row)
            ++m_kept.back().end;
        else
            m_kept.push_back({row, row + 1});
    }
    m_activeIsSelected = std::binary_search(rows.begin(), rows.end(), caret);
    m_caret = m_anchor = std::max(caret, -1);
}

void RowSelection::selectAll(int rowCount) {
    m_kept.clear();
    if (rowCount > 0)
        m_kept.push_back({0, rowCount});
    m_activeIsSelected = true;
    m_anchor = m_caret;
}

RowRange RowSelection::activeRange() const {
    if (m_caret < 0 || m_anchor < 0)
        return {0, 0};
    return {std::min(m_caret, m_anchor), std::max(m_caret, m_anchor) + 1};
}

} // namespace Desk
