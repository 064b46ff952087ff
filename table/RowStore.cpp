#include "RowStore.h"

#include <algorithm>

#include "../graphics/Rounding.h"
#include "WantedWords.h"

int RowStore::totalHeight() const {
    return saturateToInt(m_totalHeight);
}

std::optional<int> RowStore::find(Data data) const {
    const auto found = std::find_if(m_rows.begin(), m_rows.end(), [data](const Row& row) { return row.first == data; });
    if (found == m_rows.end()) {
        return std::nullopt;
    }
    return static_cast<int>(found - m_rows.begin());
}

std::optional<RowSpan> RowStore::rowAt(int y) const {
    std::int64_t top = 0;
    for (int row = 0; row < count(); ++row) {
        const std::int64_t bottom = top + m_rows[static_cast<std::size_t>(row)].second;
        if (top <= y && y < bottom) {
            return RowSpan{row, saturateToInt(top), saturateToInt(bottom)};
        }
        top = bottom;
    }
    return std::nullopt;
}

std::optional<RowSpan> RowStore::spanOf(int row) const {
    if (row < 0 || m_rows.empty()) {
        return std::nullopt;
    }
    const int spanned = std::min(row, count() - 1);
    std::int64_t top = 0;
    for (int before = 0; before < spanned; ++before) {
        top += m_rows[static_cast<std::size_t>(before)].second;
    }
    return RowSpan{spanned, saturateToInt(top), saturateToInt(top + m_rows[static_cast<std::size_t>(spanned)].second)};
}

void RowStore::setData(int row, Data data) {
    if (contains(row)) {
        m_rows[static_cast<std::size_t>(row)].first = data;
        changed();
    }
}

bool RowStore::setHeight(int row, int height) {
    if (!contains(row)) {
        return false;
    }
    int& stored = m_rows[static_cast<std::size_t>(row)].second;
    if (stored != height) {
        m_totalHeight += static_cast<std::int64_t>(height) - stored;
        stored = height;
        changed();
    }
    return true;
}

int RowStore::insert(Data data, int row) {
    const std::size_t index = clampedIndex(row);
    if (index == m_rows.size()) {
        m_rows.emplace_back(data, kHeightUntilKnown);
    } else {
        m_rows.emplace(m_rows.begin() + static_cast<std::ptrdiff_t>(index), data, kHeightUntilKnown);
    }
    m_totalHeight += kHeightUntilKnown;
    changed();
    return static_cast<int>(index);
}

void RowStore::insert(const std::vector<Row>& rows, int row) {
    m_rows.insert(m_rows.begin() + static_cast<std::ptrdiff_t>(clampedIndex(row)), rows.begin(), rows.end());
    for (const Row& inserted : rows) {
        m_totalHeight += inserted.second;
    }
    changed();
}

bool RowStore::remove(Data data) {
    const std::optional<int> row = find(data);
    if (!row) {
        return false;
    }
    m_totalHeight -= height(*row);
    m_rows.erase(m_rows.begin() + *row);
    changed();
    return true;
}

RowStore::Removal RowStore::removeUntilMissing(std::span<const Data> list) {
    if (list.size() == 1) {
        return remove(list.front()) ? Removal{1, 0} : Removal{0, 1};
    }
    WantedWords words(list);
    const std::vector<std::uint32_t> taken = words.takeRows(m_rows);
    if (taken.size() == list.size()) {
        erase(taken);
        return {list.size(), 0};
    }
    const std::size_t found = words.firstMissing(list);
    const std::size_t missing = words.firstFound(list.subspan(found));
    if (found > 0) {
        removeUntilMissing(list.first(found));
    }
    return {found, missing};
}

void RowStore::erase(const std::vector<std::uint32_t>& taken) {
    if (taken.empty()) {
        return;
    }
    auto kept = m_rows.begin() + taken.front();
    for (std::size_t gap = 0; gap < taken.size(); ++gap) {
        m_totalHeight -= m_rows[taken[gap]].second;
        const auto next = gap + 1 < taken.size() ? m_rows.begin() + taken[gap + 1] : m_rows.end();
        kept = std::move(m_rows.begin() + taken[gap] + 1, next, kept);
    }
    m_rows.erase(kept, m_rows.end());
    changed();
}

void RowStore::move(Data data, int row) {
    const std::optional<int> from = find(data);
    if (!from) {
        return;
    }
    m_totalHeight -= height(*from);
    m_rows.erase(m_rows.begin() + *from);
    m_rows.emplace(m_rows.begin() + static_cast<std::ptrdiff_t>(clampedIndex(row)), data, 0);
    changed();
}

void RowStore::replace(std::vector<Row> rows) {
    m_rows = std::move(rows);
    m_totalHeight = 0;
    for (const Row& row : m_rows) {
        m_totalHeight += row.second;
    }
    changed();
}

void RowStore::clear() {
    m_rows.clear();
    m_totalHeight = 0;
    changed();
}

std::size_t RowStore::clampedIndex(int row) const {
    return contains(row) ? static_cast<std::size_t>(row) : m_rows.size();
}
