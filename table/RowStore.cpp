#include "RowStore.h"

#include <algorithm>

#include "Rounding.h"

namespace {

/// How often each of a set of words is wanted. Most words that are looked up are not wanted, so a bit a word, which
/// stays in the fastest cache, answers before the table is touched.
class WantedWords {
public:
    struct Entry {
        std::uint64_t word = 0;
        std::uint32_t wanted = 0;
        std::uint32_t matched = 0;
    };

    explicit WantedWords(std::size_t count) {
        std::size_t capacity = 16;
        while (capacity < count * 2) {
            capacity *= 2;
        }
        m_entries.resize(capacity);
        m_filter.resize(capacity * kFilterBitsPerEntry / 64);
    }

    Entry& want(std::uint64_t word) {
        const std::uint64_t hash = hashOf(word);
        const std::uint64_t bit = hash & filterMask();
        m_filter[bit / 64] |= std::uint64_t{1} << (bit % 64);
        Entry& entry = slot(word, hash);
        entry.word = word;
        return entry;
    }

    Entry* find(std::uint64_t word) {
        const std::uint64_t hash = hashOf(word);
        const std::uint64_t bit = hash & filterMask();
        if ((m_filter[bit / 64] >> (bit % 64) & 1) == 0) {
            return nullptr;
        }
        Entry& entry = slot(word, hash);
        return entry.wanted == 0 ? nullptr : &entry;
    }

private:
    static constexpr std::size_t kFilterBitsPerEntry = 8;

    /// The multiplier of Fibonacci hashing, 2^64 divided by the golden ratio (Knuth, The Art of Computer Programming,
    /// volume 3, section 6.4); the high half is mixed down, where the masks look.
    static std::uint64_t hashOf(std::uint64_t word) {
        const std::uint64_t product = word * 0x9E3779B97F4A7C15U;
        return product ^ (product >> 32);
    }

    std::uint64_t filterMask() const { return m_entries.size() * kFilterBitsPerEntry - 1; }

    Entry& slot(std::uint64_t word, std::uint64_t hash) {
        const std::uint64_t mask = m_entries.size() - 1;
        std::uint64_t index = (hash >> 20) & mask;
        while (m_entries[index].wanted != 0 && m_entries[index].word != word) {
            index = (index + 1) & mask;
        }
        return m_entries[index];
    }

    std::vector<Entry> m_entries;
    std::vector<std::uint64_t> m_filter;
};

} // namespace

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

const RowStore::Data* RowStore::removeUntilMissing(const Data* first, const Data* last) {
    if (last - first == 1) {
        return remove(*first) ? last : first;
    }
    WantedWords words(static_cast<std::size_t>(last - first));
    for (const Data* entry = first; entry != last; ++entry) {
        ++words.want(*entry).wanted;
    }
    std::vector<std::size_t> matches;
    matches.reserve(static_cast<std::size_t>(last - first));
    for (std::size_t index = 0; index < m_rows.size(); ++index) {
        WantedWords::Entry* const word = words.find(m_rows[index].first);
        if (word != nullptr && word->matched < word->wanted) {
            ++word->matched;
            matches.push_back(index);
        }
    }

    const Data* missing = first;
    if (matches.size() == static_cast<std::size_t>(last - first)) {
        missing = last;
    } else {
        // The entries before the first that has no row left are served; what later ones would have taken stays.
        for (; missing != last; ++missing) {
            WantedWords::Entry& word = *words.find(*missing);
            if (word.matched == 0) {
                break;
            }
            --word.matched;
        }
        for (const Data* served = first; served != last; ++served) {
            words.find(*served)->matched = 0;
        }
        for (const Data* served = first; served != missing; ++served) {
            ++words.find(*served)->matched;
        }
        std::erase_if(matches, [&](std::size_t index) {
            WantedWords::Entry& word = *words.find(m_rows[index].first);
            if (word.matched == 0) {
                return true;
            }
            --word.matched;
            return false;
        });
    }
    if (matches.empty()) {
        return missing;
    }

    auto kept = m_rows.begin() + static_cast<std::ptrdiff_t>(matches.front());
    for (std::size_t match = 0; match < matches.size(); ++match) {
        m_totalHeight -= m_rows[matches[match]].second;
        const std::size_t next = match + 1 < matches.size() ? matches[match + 1] : m_rows.size();
        kept = std::move(m_rows.begin() + static_cast<std::ptrdiff_t>(matches[match]) + 1,
                         m_rows.begin() + static_cast<std::ptrdiff_t>(next), kept);
    }
    m_rows.erase(kept, m_rows.end());
    changed();
    return missing;
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
