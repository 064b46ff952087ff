#pragma once

#include <deque>
#include <optional>
#include <vector>

#include "HeaderItems.h"

/// The columns of a table: widths as real numbers, visibility, display order. No windows.
///
/// The real widths are the source of truth and outlive hiding; the whole widths of the header items are only a
/// projection of them. Columns are named by id (creation index) or by position (place in display order).
/// Widths are pixels; every conversion to whole pixels truncates toward zero.
class ColumnModel {
public:
    explicit ColumnModel(int minColumnWidth);

    // Accessors by id.
    int GetColumnCount() const;
    int GetVisibleColumnCount() const;
    int GetColumnWidth(int id) const;
    bool GetColumnVisibility(int id) const;
    double GetColumnRealWidth(int id) const;
    /// The sum of the visible widths, each at least the minimum.
    double totalRealWidth() const;

    // Display order.
    bool orderIsDirty() const;
    void UpdateOrderArray(const HeaderItems& header);
    int GetColumnId(int position) const;
    int GetColumnIdxFromId(int id) const;
    int GetCurrentResizedColumnPosition(int id) const;
    /// Despite its name the id of the visible column with the highest position; 0 if none is visible.
    int GetLastVisibleColumnPosition() const;
    double GetWidthBeforeColumn(int position) const;
    double GetWidthAfterColumn(int position) const;

    // Changes of the set of columns. The header items are made and deleted by the caller.
    void clear();
    void append(double width, bool visible);
    void erase(int id);
    void setVisible(int id, bool visible);
    /// The width that a column added now gets.
    double widthOfNewColumn() const;
    /// Saved widths by id: see `ITableView::UpdateColumns`.
    void restore(const std::deque<double>& widths, HeaderItems& header);

    // Proportional mode.
    /// Gives the column `id` the width and shares what is left of `bodyWindowWidth` among the later ones in their
    /// proportions; -1 refits all. False if refused, with nothing changed.
    bool UpdateColumnWidths(int id, int width, int bodyWindowWidth, HeaderItems& header);
    /// True if no later column would keep the minimum width.
    bool BlockResize(int position, double available, double sumAfter) const;

    // Locked mode.
    /// Sets the width of a column and of its header item as it is.
    void setWidth(int id, int width, HeaderItems& header);
    /// The same with the minimum heeded; an id of -1 changes no width. False if it is refused.
    bool setLockedWidth(int id, int width, HeaderItems& header);
    /// The content width as the header shows it.
    int visibleHeaderWidth(const HeaderItems& header) const;
    /// Stretches or shrinks the last visible column to the body; leaves it where the body is too narrow for that.
    /// True if it was fitted.
    bool fitLastColumn(int bodyClientWidth, int headerClientWidth, HeaderItems& header);
    /// The width at which a minimal last column just fits, with the body's frame and scroll bar.
    void UpdateMinWidth(int bodyClientWidth, int bodyWindowWidth);
    int minWidth() const;

    bool columnsLocked = true;
    /// Suppresses the refit of locked mode until the next size change of the window.
    bool widthChangedByUser = false;

private:
    struct Column {
        double width;
        bool visible;
    };

    const Column& GetColumnWithAndVisibility(int position) const;
    double atLeastMinimum(double width) const;

    std::vector<Column> m_columns;
    std::vector<int> m_order;
    std::vector<int> m_inverse;
    int m_minColumnWidth;
    int m_minWidth;
    bool m_orderDirty = true;
};
