#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Desk {

/// A found piece of a text, in characters.
struct FoundPiece {
    std::size_t begin = 0;
    std::size_t length = 0;

    bool operator==(const FoundPiece&) const = default;
};

/// All pieces of `text` that match `phrase`, from the left, without overlaps. Capitals do not matter. A plain letter of
/// the phrase also finds the letter with a diacritic ("lodz" finds "Łódź"), not the other way round. A space finds a
/// no-break space.
std::vector<FoundPiece> findPieces(std::wstring_view text, std::wstring_view phrase);

/// True if `findPieces` would find something.
bool containsPhrase(std::wstring_view text, std::wstring_view phrase);

/// The state of a search over the rows of a list: the phrase, the rows that hold it, and the way from one to the next.
/// Whoever owns the list searches again when its content or order changes.
class FindModel {
public:
    const std::wstring& phrase() const { return m_phrase; }
    bool isActive() const { return m_active && !m_phrase.empty(); }
    /// While not active nothing counts as found; the phrase is kept for the next time.
    void setActive(bool active) { m_active = active; }

    /// Takes the phrase, turns active, and asks for each row whether it holds the phrase.
    void search(std::wstring phrase, int rowCount, const std::function<bool(int row)>& holdsPhrase);

    int count() const { return static_cast<int>(m_rows.size()); }
    /// 1 for the first found row, 0 if `row` is not among them.
    int ordinalOf(int row) const;
    /// The first found row at or after `row`, round the end to the start.
    std::optional<int> firstFrom(int row) const;
    /// The found row after `row`, round the end to the start.
    std::optional<int> nextAfter(int row) const { return firstFrom(row + 1); }
    /// The found row before `row`, round the start to the end.
    std::optional<int> previousBefore(int row) const;

private:
    std::wstring m_phrase;
    bool m_active = false;
    /// Ascending.
    std::vector<int> m_rows;
};

} // namespace Desk
