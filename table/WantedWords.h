#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

/// Which rows a list of words takes: each entry of the list takes the first row with its word that no earlier entry has
/// taken. One pass over the rows, however long the list. No windows.
class WantedWords {
public:
    using Row = std::pair<std::uint64_t, int>;

    explicit WantedWords(std::span<const std::uint64_t> list);

    /// The indexes of the rows that are taken, in ascending order.
    std::vector<std::uint32_t> takeRows(const std::vector<Row>& rows);
    /// The index of the first entry that found no row, the length of the list if there is none. After `takeRows`.
    std::size_t firstMissing(std::span<const std::uint64_t> list);
    /// The index of the first entry of `rest`, which begins where `firstMissing` ended, that has a row; else its
    /// length.
    std::size_t firstFound(std::span<const std::uint64_t> rest);

private:
    struct Entry {
        std::uint64_t word = 0;
        std::uint32_t wanted = 0;
        std::uint32_t taken = 0;
    };

    /// Most words that are looked up are not wanted. A few bits a word, which stay in the fastest cache, say so before
    /// the table is touched: 0 if the word is not wanted for sure, else 1.
    std::size_t mayWant(std::uint64_t word) const;
    /// The entry of a word, with nothing wanted of it if it is not in the list.
    Entry& entryOf(std::uint64_t word);

    std::vector<Entry> m_entries;
    std::vector<std::uint64_t> m_filter;
};
