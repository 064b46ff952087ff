#pragma once

#include <memory>

#include <OrtinControls/Export.h>
#include <OrtinControls/IContextMenuBase.h>
#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/ITableView.h>
#include <OrtinFoundation/UniqueMessage.h>
#include <afxwin.h>

class TableHeaderCtrl;
class TableList;
struct TableCtrlState;

/// The minimum width of a column in pixels: 16 at 96 DPI.
extern ORTIN_CONTROLS_API const int kMinColumnWidth;

/// A list of owner-drawn rows under a header of resizable, movable, hideable columns.
///
/// It holds no cell text: a row is one opaque word of the host and a height. Drawing, selection, comparing, searching
/// and copying belong to the host's `ITableHandler`. The control owns its header and its body; it points to the handler
/// and shares the context menu. Sizes are device pixels; rows and columns are told apart as in `ITableView`.
///
/// A host constructs it as a value member, calls `Create`, then `SetTableHandler`, then the configuration in any order,
/// then sets columns and rows. Nothing throws but where `ITableView` says so.
class ORTIN_CONTROLS_API TableCtrl : public CWnd, public ITableView {
public:
    TableCtrl();
    ~TableCtrl() override;
    TableCtrl(const TableCtrl&) = delete;
    TableCtrl& operator=(const TableCtrl&) = delete;

    using CWnd::Create;
    /// Makes the control's windows. With `replaceDialogItem` the dialog item `id` of `parent` gives rectangle and
    /// visibility and is destroyed. Gives 0 if `parent` is null, if the item is missing or if a window cannot be made.
    int Create(int id, CWnd* parent, bool replaceDialogItem);
    /// Ignores null. The handler is not owned and outlives the control. No row may be added before this.
    void SetTableHandler(ITableHandler* handler);
    void SetContextMenuHandler(std::shared_ptr<IContextMenuBase> contextMenu);

    void EnableSortingOnColumnHeaderClick(bool enable);
    /// Column borders can be dragged in the body too.
    void EnableColumnWidthTracking(bool enable);
    /// False takes all column resizing by the mouse away; true gives back that of the header only.
    void EnableColumnWidthResizing(bool enable);
    void EnableMouseMovingColumns(bool enable);
    void HideHeader(bool hide);
    /// Takes effect at the next scroll bar update.
    void SetVScrollAlwaysVisible();
    /// Gives the tool tips the colours of the current theme.
    void RefreshProgramStyleColors();

    static int GetHeaderCtrlId();
    /// 0 without a window or while hidden.
    int GetHeaderHeight() const;
    /// The width below which the columns cannot be laid out.
    int GetMinWidth();
    /// The same for the visible columns, with the vertical scroll bar if it is needed.
    int GetMinWidthVisibleColumns();
    void UpdateMinWidth();
    /// Takes the display order from the header.
    void UpdateOrderArray();
    /// The host calls it when a sizing loop ends: the handler's `OnColumnWidthChanged` follows if the size has changed.
    void OnEndSize();
    /// Repaints at once, but not between `BeginUpdate` and `FinishUpdate`.
    void Redraw();

    /// One step of a column's resizing by the mouse, the last with `end`. Gives 0, or -1 if the width is refused.
    int TrackColumnWidthChange(int id, int width, bool end);
    /// Fits the column to its content. -1 without a handler or if the width is refused.
    int TrackColumnWidthChangeBorderDblClk(int id);
    /// Proportional mode: gives the column `id` the width and shares the rest among the later ones; -1 refits all.
    /// False if the change is refused; nothing has changed then.
    bool UpdateColumnWidths(int id, int width);

    // ITableView
    void NotifyTableViewDataChange() override;
    bool SetItemHeight(unsigned __int64 index, int height) override;
    int GetColumnWidth(int id) const override;
    bool GetColumnVisibility(int id) const override;
    double GetColumnRealWidth(int id) const override;
    int GetItemHeight(unsigned __int64 index) const override;
    int GetColumnId(int position) const override;
    int GetColumnIdxFromId(int id) const override;
    int GetColumnCount() const override;
    int GetVisibleColumnCount() const override;
    unsigned __int64 GetItemData(int row) const override;
    int GetItemCount() const override;
    int GetSelectedItem() const override;
    void SelectItem(int row, bool redraw) override;
    int GetSelectedItemStart() const override;
    int AddColumn(const wchar_t* title, ITableView::EColumnAddType type) override;
    void SetColumns(const std::vector<std::pair<std::wstring, double>>& columns) override;
    void SetColumnWidth(int id, int width, bool redraw) override;
    void UpdateColumns() override;
    void UpdateColumns(const std::deque<double>& widths) override;
    void LockColumns(bool lock) override;
    bool AreColumnsLocked() const override;
    void RemoveColumn(unsigned int id) override;
    void AddItem(unsigned __int64 data) override;
    void InsertItem(unsigned __int64 data, int row) override;
    void InsertItems(const std::vector<std::pair<unsigned __int64, int>>& items, int row, int scrollDelta) override;
    void DeleteItem(unsigned __int64 data) override;
    void DeleteItems(const std::vector<unsigned __int64>& items) override;
    void DeleteAllItems() override;
    void Select(unsigned __int64 data, int ensureVisible, int extra) override;
    CPoint GetSelectedPosition(int asId) override;
    CPoint GetSelectedPositionStart(int asId) override;
    void SetColumnHeader(int id, std::wstring_view text) override;
    void InvalidateView(unsigned __int64 data) override;
    void SetCarretIndex(int row) override;
    void SwitchColumnOrder(int positionA, int positionB, int newSelectedColumn) override;
    void UpdateAllHeights() override;
    int GetAllItemsHeight() const override;
    int GetListCtrlHeight() override;
    void Sort() override;
    void SortAsc() override;
    void SortDesc() override;
    void SortSwitch() override;
    bool IsSortAsc() const override;
    void UpdateSortDirection(bool ascending) override;
    void SetSortRowColumnId(int row, int column) override;
    void MoveElementAt(unsigned __int64 data, int row) override;
    void MoveElement(unsigned __int64 data, int row) override;
    void ShowColumn(int id, bool show) override;
    bool ShowScrollbar() const override;
    void ShowScrollbar(bool show) override;
    void UpdateVScroll() override;
    ITableHandler* GetHandler() override;
    int GetWidth() const override;
    int ItemFromCursor(CPoint& cell) override;
    void BeginUpdate() override;
    void FinishUpdate() override;

    // CWnd
    BOOL PreTranslateMessage(MSG* message) override;

    /// The width of the visible columns, with the vertical scroll bar if it is needed.
    virtual double GetTableRealWidth() const;
    /// An estimate from the row heights and the client height of the whole control; it does not ask the bar.
    virtual bool IsVScrollVisible() const;
    /// Replaces a row's word; ignored out of range.
    virtual void SetItemData(int row, unsigned __int64 data);
    /// From now on the view keeps its distance from the last row when rows or the height change.
    virtual void KeepVScrollToBottomSide();
    virtual void SetVScrollMaxPos();
    virtual void SetVScrollMinPos();

    /// Registered under "TableCtrl_TableViewDataChanged_message".
    static UniqueMessage Sm_tableViewDataChangedMessage;

protected:
    BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
    /// Places the body under the header.
    virtual void UpdateListPos();
    /// The window that is told of the content width: the parent.
    virtual CWnd* GetCtrlOwner();

    void UpdateHeaderPos();
    void OnResizeInLockedColumnsMode();
    bool OnColumnsWidthChanged(int id, int width);
    void ComputeNewOrderArrayOnMoveColumn(int from, int to, std::vector<int>& order);

    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnSetFocus(CWnd* oldWindow);
    afx_msg LRESULT OnTrackColumnWidth(WPARAM column, LPARAM width);
    afx_msg LRESULT OnEndTrackColumnWidth(WPARAM, LPARAM);
    afx_msg LRESULT OnTrackColumnWidthBorderDblclk(WPARAM column, LPARAM);
    afx_msg LRESULT OnCanMoveColumn(WPARAM from, LPARAM to);
    afx_msg LRESULT OnMoveColumn(WPARAM from, LPARAM to);
    afx_msg void OnHdnTrack(NMHDR* notification, LRESULT* result);
    afx_msg void OnHdnEndtrack(NMHDR* notification, LRESULT* result);
    afx_msg void OnHdnItemdblclick(NMHDR* notification, LRESULT* result);
    afx_msg void OnHdnItemclick(NMHDR* notification, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    friend class TableCtrlPrintable;

    bool createChildren();
    void createHeaderFont();
    void refreshOrderIfDirty() const;
    /// What follows a change of columns: a refit, and in locked mode the owner is told the new content width.
    void addedOrRemovedColumns();
    void keepSelectionOffHiddenColumns();

    std::unique_ptr<TableCtrlState> m_state;
};
