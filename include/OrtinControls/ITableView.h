#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <OrtinControls/Export.h>
#include <afxwin.h>

class ITableHandler;

/// What a host may ask of a table and tell it. `TableCtrl` implements it.
///
/// Three index spaces meet here and are told apart by their names:
/// - a column's `id` is its creation index, which is the index of its header item;
/// - a column's `position` is its place in display order, from 0;
/// - a `row` is a place in the row store, from 0, while `data` is the host's own word for that row.
/// Widths and heights are device pixels. Accessors answer an index past the end with 0 or false and throw nothing,
/// but where an operation says otherwise. All operations belong to the window's thread, but for
/// `NotifyTableViewDataChange`.
class ORTIN_CONTROLS_API ITableView {
public:
    /// Where `AddColumn` puts the new column in display order.
    enum EColumnAddType : int {
        AddAfterSelected = 0, ///< right after the selected column, at most at the end
        AddAtSelected = 1,    ///< at the selected column's position, which moves one to the right
        AddAtEnd = 2,
        AddAtFront = 3,
    };

    virtual ~ITableView();

    /// Posts the registered message of `TableCtrl::Sm_tableViewDataChangedMessage` to the control's window; the
    /// handler's `OnTableViewDataChanged` follows on the window's thread, once for each call. May be called from any
    /// thread.
    virtual void NotifyTableViewDataChange() = 0;

    /// Stores the height of the row with index `index` (an index despite its width). False if out of range.
    virtual bool SetItemHeight(unsigned __int64 index, int height) = 0;
    /// Whole pixels, at least the minimum column width; 0 for a hidden column or an id past the end.
    /// A negative id throws `std::out_of_range`.
    virtual int GetColumnWidth(int id) const = 0;
    virtual bool GetColumnVisibility(int id) const = 0;
    /// The stored width with its fraction, also of a hidden column; 0.0 past the end.
    virtual double GetColumnRealWidth(int id) const = 0;
    virtual int GetItemHeight(unsigned __int64 index) const = 0;
    /// The id of the column at `position`; 0 if there is none.
    virtual int GetColumnId(int position) const = 0;
    /// The position of the column `id`; 0 without columns, else throws `std::out_of_range` for an id past the end.
    virtual int GetColumnIdxFromId(int id) const = 0;
    virtual int GetColumnCount() const = 0;
    virtual int GetVisibleColumnCount() const = 0;
    virtual unsigned __int64 GetItemData(int row) const = 0;
    virtual int GetItemCount() const = 0;

    /// The handler's caret row, -1 for none and without a handler.
    virtual int GetSelectedItem() const = 0;
    /// Tells the handler to select `row` and scrolls it into view; `redraw` invalidates the body.
    virtual void SelectItem(int row, bool redraw) = 0;
    /// The handler's anchor row, -1 for none and without a handler.
    virtual int GetSelectedItemStart() const = 0;

    /// Gives the display position that the new column got; 0 for a type outside `EColumnAddType`.
    virtual int AddColumn(const wchar_t* title, ITableView::EColumnAddType type) = 0;
    /// Replaces all columns by pairs of title and width. A width of 0 or less declares a hidden column with the real
    /// width `fabs(width)`. Nothing is refitted: the caller follows with `UpdateColumns`.
    virtual void SetColumns(const std::vector<std::pair<std::wstring, double>>& columns) = 0;
    /// Locked columns take any width, else a refused width changes nothing. `redraw` repaints at once.
    virtual void SetColumnWidth(int id, int width, bool redraw) = 0;
    /// Refits the columns to the window, in the way of the current mode.
    virtual void UpdateColumns() = 0;
    /// Restores saved widths, indexed by id, and makes each listed column visible. Throws `std::out_of_range` when
    /// `widths` lists more columns than there are or when the display order names an id that it does not list.
    virtual void UpdateColumns(const std::deque<double>& widths) = 0;
    /// True: pixel widths stay and only the last visible column follows the window. False: all keep their proportions.
    virtual void LockColumns(bool lock) = 0;
    virtual bool AreColumnsLocked() const = 0;
    /// The ids behind `id` move down by one; the handler's selected column goes one to the left. Ignored past the end.
    virtual void RemoveColumn(unsigned int id) = 0;

    /// Appends a row. The first row of a table becomes selected.
    virtual void AddItem(unsigned __int64 data) = 0;
    /// Inserts before `row`; -1 appends. A row past the end appends too.
    virtual void InsertItem(unsigned __int64 data, int row) = 0;
    /// Inserts pairs of data and height before `row`, without asking the handler for heights. A `scrollDelta` above 0
    /// (pixels) keeps the view on the rows it shows when rows are put before them.
    virtual void InsertItems(const std::vector<std::pair<unsigned __int64, int>>& items, int row, int scrollDelta) = 0;
    /// Deletes the first row with that data (not by index).
    virtual void DeleteItem(unsigned __int64 data) = 0;
    virtual void DeleteItems(const std::vector<unsigned __int64>& items) = 0;
    virtual void DeleteAllItems() = 0;
    /// Selects the first row with `data`; `ensureVisible` scrolls to it; `extra` goes to `SetSelectedItem` as its bool.
    virtual void Select(unsigned __int64 data, int ensureVisible, int extra) = 0;
    /// x column, y row, as the handler has them: (0, 0) without a handler. With `asId` not 0, x is an id instead of a
    /// display position; a negative x stays as it is here.
    virtual CPoint GetSelectedPosition(int asId) = 0;
    /// The same for the anchor; here a negative x becomes an id as well.
    virtual CPoint GetSelectedPositionStart(int asId) = 0;
    virtual void SetColumnHeader(int id, std::wstring_view text) = 0;
    /// Asks for a repaint of the row with `data`, or of all with 0. Does nothing for a row that is not on screen.
    virtual void InvalidateView(unsigned __int64 data) = 0;
    /// Scrolls the row into view.
    virtual void SetCarretIndex(int row) = 0;
    /// Ignored if one of the positions is out of range.
    virtual void SwitchColumnOrder(int positionA, int positionB, int newSelectedColumn) = 0;
    /// Asks the handler for the height of each row again.
    virtual void UpdateAllHeights() = 0;
    virtual int GetAllItemsHeight() const = 0;
    /// The client height of the body, 0 if it has no window.
    virtual int GetListCtrlHeight() = 0;

    /// Sorts through the handler's `SortElements`, in the current direction.
    virtual void Sort() = 0;
    virtual void SortAsc() = 0;
    virtual void SortDesc() = 0;
    virtual void SortSwitch() = 0;
    virtual bool IsSortAsc() const = 0;
    /// Stores the direction only.
    virtual void UpdateSortDirection(bool ascending) = 0;
    /// Stores where the sort arrow goes at the next `Sort`; a `row` that is not 0 means a sort by row, without arrow.
    virtual void SetSortRowColumnId(int row, int column) = 0;

    /// `MoveElement` followed by `UpdateAllHeights`.
    virtual void MoveElementAt(unsigned __int64 data, int row) = 0;
    /// Moves the first row with `data` to `row`. Its height reads 0 until the host sets it. Does not repaint.
    virtual void MoveElement(unsigned __int64 data, int row) = 0;
    /// Hiding keeps the real width and moves the handler's selected column off hidden ones. Ignored out of range.
    virtual void ShowColumn(int id, bool show) = 0;
    /// The stored wish, not the bar's actual state.
    virtual bool ShowScrollbar() const = 0;
    virtual void ShowScrollbar(bool show) = 0;
    virtual void UpdateVScroll() = 0;
    virtual ITableHandler* GetHandler() = 0;
    /// The client width of the control window.
    virtual int GetWidth() const = 0;
    /// The row under the mouse cursor, or -1; writes the handler's cell to `cell` if there is a row.
    virtual int ItemFromCursor(CPoint& cell) = 0;

    /// Between the two, rows change without selection changes and without paints. They do not nest.
    virtual void BeginUpdate() = 0;
    virtual void FinishUpdate() = 0;
};
