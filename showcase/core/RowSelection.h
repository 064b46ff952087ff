#pragma once

#include <vector>

namespace Desk {

/// Rows from `first` up to, but without, `end`.
struct RowRange {
    int first = 0;
    int end = 0;

    bool operator==(const RowRange&) const = default;
};

/// What a navigation key asks for.
enum class RowStep { Up, Down, PageUp, PageDown, First, Last };

/// Where a step leads from `row`, within 0 to `rowCount` - 1. From no row (-1) it leads to an end; -1 without rows.
int rowAfterStep(RowStep step, int row, int pageRows, int rowCount);

/// Which rows of a list are selected: the caret, the anchor from which a range grows, and rows kept from before.
/// Rows are indexes of the list; -1 is no row.
class RowSelection {
public:
    int caret() const { return m_caret; }
    int anchor() const { return m_anchor; }
    bool contains(int row) const;
    int count() const;
    /// Ascending, apart from each other by at least one row.
    std::vector<RowRange> ranges() const;

    /// That row alone, or nothing with -1.
    void select(int row);
    /// The range from the anchor to the row, and nothing else. Without an anchor the row alone.
    void extendTo(int row);
    /// Turns one row over, keeps the others, and starts the next range there.
    void toggle(int row);
    /// As `extendTo`, but keeps the rows selected before the anchor was set.
    void extendKeepingTo(int row);
    /// These rows, in any order, with a caret that may stand outside of them.
    void selectRows(std::vector<int> rows, int caret);
    /// All rows; the caret stays where it is.
    void selectAll(int rowCount);
    /// The caret's row alone.
    void collapse() { select(m_caret); }

private:
    RowRange activeRange() const;

    int m_caret = -1;
    int m_anchor = -1;
    /// Whether the range between anchor and caret is selected or, after a row was turned off, left out.
    bool m_activeIsSelected = true;
    /// Sorted, disjoint; where it meets the active range, the active range decides.
    std::vector<RowRange> m_kept;
};

} // namespace Desk
