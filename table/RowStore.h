#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

/// Where a row lies in the content, in pixels: `top` inclusive, `bottom` exclusive.
struct RowSpan {
    int row;
    int top;
    int bottom;
};

/// The rows of a table in display order: the host's word and the cached height of each. No windows.
/// Heights are pixels; sums saturate at the range of int.
class RowStore {
public:
    using Data = std::uint64_t;
    using Row = std::pair<Data, int>;

    static constexpr int kHeightUntilKnown = 16;

    int count() const { return static_cast<int>(m_rows.size()); }
    bool contains(int row) const { return row >= 0 && row < count(); }
    const std::vector<Row>& rows() const { return m_rows; }
    /// 0 out of range.
    Data data(int row) const { return contains(row) ? m_rows[static_cast<std::size_t>(row)].first : 0; }
    int height(int row) const { return contains(row) ? m_rows[static_cast<std::size_t>(row)].second : 0; }
    int totalHeight() const;
    /// Grows with every change of rows or heights: what was computed at one revision holds until the next.
    std::uint64_t revision() const { return m_revision; }

    std::optional<int> find(Data data) const;
    /// The row whose span holds the content coordinate `y`.
    std::optional<RowSpan> rowAt(int y) const;
    /// The span of `row`; a row past the end means the last, none without rows.
    std::optional<RowSpan> spanOf(int row) const;

    void setData(int row, Data data);
    bool setHeight(int row, int height);
    /// Places a row of unknown height before `row`, at the end if that is no row. Gives its index.
    int insert(Data data, int row);
    void insert(const std::vector<Row>& rows, int row);
    /// Erases the first row with that data. False if there is none.
    bool remove(Data data);
    /// How far a list was gone through: entries that found their row, and entries right behind them that found none.
    struct Removal {
        std::size_t removed = 0;
        std::size_t missing = 0;
    };
    /// Erases, for each entry of the list in order, the first row with that data, until an entry has no row any more.
    /// One pass over the rows, however many entries.
    Removal removeUntilMissing(std::span<const Data> list);
    /// Moves the first row with that data to `row`, with height 0 until it is known again.
    void move(Data data, int row);
    void replace(std::vector<Row> rows);
    void clear();

private:
    void changed() { ++m_revision; }
    /// `taken` lists row indexes in ascending order.
    void erase(const std::vector<std::uint32_t>& taken);
    std::size_t clampedIndex(int row) const;

    std::vector<Row> m_rows;
    std::int64_t m_totalHeight = 0;
    std::uint64_t m_revision = 0;
};
