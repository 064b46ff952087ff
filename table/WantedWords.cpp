#include "WantedWords.h"

#include <algorithm>
#include <array>
#include <bit>

namespace {

constexpr std::size_t kFilterBitsPerEntry = 16;
constexpr std::size_t kBitsPerWord = 64;
constexpr std::size_t kSmallestTable = 16;
/// Rows looked at before the table is asked about those that may be wanted.
constexpr std::size_t kBlock = 1024;

/// The multiplier of Fibonacci hashing, 2^64 divided by the golden ratio (Knuth, The Art of Computer Programming,
/// volume 3, section 6.4); the high half is mixed down, where the masks look.
std::uint64_t hashOf(std::uint64_t word) {
    const std::uint64_t product = word * 0x9E3779B97F4A7C15U;
    return product ^ (product >> 32);
}

std::size_t filterBit(std::uint64_t word, std::size_t filterWords) {
    return hashOf(word) & (filterWords * kBitsPerWord - 1);
}

} // namespace

WantedWords::WantedWords(std::span<const std::uint64_t> list)
    : m_entries(std::bit_ceil(std::max(kSmallestTable, list.size() + list.size() / 2))),
      m_filter(m_entries.size() * kFilterBitsPerEntry / kBitsPerWord) {
    for (const std::uint64_t word : list) {
        const std::size_t bit = filterBit(word, m_filter.size());
        m_filter[bit / kBitsPerWord] |= std::uint64_t{1} << (bit % kBitsPerWord);
        Entry& entry = entryOf(word);
        entry.word = word;
        ++entry.wanted;
    }
}

std::vector<std::uint32_t> WantedWords::takeRows(const std::vector<Row>& rows) {
    std::vector<std::uint32_t> taken;
    std::array<std::uint32_t, kBlock> candidates{};
    for (std::size_t block = 0; block < rows.size(); block += kBlock) {
        const std::size_t blockEnd = std::min(rows.size(), block + kBlock);
        std::size_t count = 0;
        for (std::size_t row = block; row < blockEnd; ++row) {
            candidates[count] = static_cast<std::uint32_t>(row);
            count += mayWant(rows[row].first);
        }
        for (std::size_t candidate = 0; candidate < count; ++candidate) {
            Entry& entry = entryOf(rows[candidates[candidate]].first);
            if (entry.taken < entry.wanted) {
                ++entry.taken;
                taken.push_back(candidates[candidate]);
            }
        }
    }
    return taken;
}

std::size_t WantedWords::firstMissing(std::span<const std::uint64_t> list) {
    const auto missing = std::find_if(list.begin(), list.end(), [this](std::uint64_t word) {
        Entry& entry = entryOf(word);
        const bool found = entry.taken > 0;
        entry.taken -= found ? 1 : 0;
        return !found;
    });
    return static_cast<std::size_t>(missing - list.begin());
}

std::size_t WantedWords::firstFound(std::span<const std::uint64_t> rest) {
    const auto found =
        std::find_if(rest.begin(), rest.end(), [this](std::uint64_t word) { return entryOf(word).taken > 0; });
    return static_cast<std::size_t>(found - rest.begin());
}

std::size_t WantedWords::mayWant(std::uint64_t word) const {
    const std::size_t bit = filterBit(word, m_filter.size());
    return m_filter[bit / kBitsPerWord] >> (bit % kBitsPerWord) & 1;
}

WantedWords::Entry& WantedWords::entryOf(std::uint64_t word) {
    const std::size_t mask = m_entries.size() - 1;
    // Other bits of the hash than those of the filter, so that what passes the filter by chance is spread here.
    std::size_t index = (hashOf(word) >> 20) & mask;
    while (m_entries[index].wanted != 0 && m_entries[index].word != word) {
        index = (index + 1) & mask;
    }
    return m_entries[index];
}
