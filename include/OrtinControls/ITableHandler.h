#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <OrtinControls/Export.h>
#include <afxwin.h>

class ITableView;
class PrintInfo;

/// The host's half of a table: it owns the content, the selection, the drawing, the comparing and the searching.
///
/// Rows are row indexes, columns are display positions unless a parameter is named `id`. The handler is not owned by
/// the control and outlives it. It may delete rows, sort, change columns or destroy the window inside any operation.
/// `docs/hosting.md` tells in which order the operations are called.
class ORTIN_CONTROLS_API ITableHandler {
public:
    ITableHandler();
    ITableHandler(const ITableHandler& other);
    ITableHandler(ITableHandler&& other) noexcept;
    ITableHandler& operator=(const ITableHandler& other);
    ITableHandler& operator=(ITableHandler&& other) noexcept;
    virtual ~ITableHandler();

    /// After each size change of the body.
    virtual void OnSizeTableListCtrl();
    /// First thing on a finished column move, before the new order is computed.
    virtual void OnMoveColumn();
    /// After a paint that changed no height, with the memory context, before the copy to the screen.
    virtual void OnDrawFinished(CDC& dc);
    /// Draws a row into `rect`: full client width, y relative to the view. Gives the height that the row needs.
    virtual int DrawItem(CDC& dc, int row, const CRect& rect) = 0;
    /// Draws the rows `firstRow` to `lastRow` of a printed page into `rect`, the sheet within the margins in the
    /// logical units of `dc`. `rows` are all rows of the table, data and height: the two ends may lie outside of them,
    /// and the last may lie before the first. False lets the table draw the rows itself through `DrawItem`.
    virtual bool DrawPrintRequestedItems(int firstRow, int lastRow, const CRect& rect, const PrintInfo& printInfo,
                                         const std::vector<std::pair<unsigned __int64, int>>& rows, CDC& dc);
    virtual void SetTableView(ITableView* view) = 0;
    /// A navigation key with the number of rows of a page. A result not negative is the row to scroll into view.
    virtual int OnKey(unsigned int key, int pageRows);
    virtual int OnKey(unsigned int key) = 0;
    /// A press on a row; `local` is relative to the row's left and top.
    virtual void OnItemClick(int row, const CPoint& local, bool extend, unsigned int flags) = 0;
    /// The caret row, -1 for none.
    virtual int GetSelectedItem() const = 0;
    /// The anchor row of a range selection.
    virtual int GetSelectedItemStart() const;
    /// End of a width change, also of one that was refused; end of a sizing loop; after saved widths were restored.
    virtual void OnColumnWidthChanged();
    /// A step of a width change, also one that was refused.
    virtual void OnColumnWidthChanging(int id, int width);
    /// At each paint, after the back buffer is ready and before the row heights are summed.
    virtual void PrepareDraw() = 0;
    /// Kept for the hosts' own use; no control calls it.
    virtual void TableHandlerReservedA() = 0;
    virtual int IsActive() const;
    virtual int ComputeItemHeight(int row) = 0;
    /// Where the control moves the selection; -1 means none. `followsRowChange` is true after inserts and deletes.
    virtual void SetSelectedItem(int row, bool followsRowChange) = 0;
    /// Where the control moves the selected column. `row` is -1 after the removal of a column.
    virtual void SelectPosition(int column, int row);
    virtual CPoint GetSelectedPosition();
    virtual CPoint GetSelectedPositionStart();
    virtual std::pair<CPoint, CPoint> GetSelectedPositionStartEnd();
    /// Kept for the hosts' own use; no control calls it.
    virtual void TableHandlerReservedB() = 0;
    /// The host decides here whether to repaint. After each mouse move over the body and from `InvalidateView`.
    virtual void RefreshView() = 0;
    virtual void SetListCtrl(CWnd* list);
    /// The control only ends find mode: `mode` is always 0.
    virtual void SetFindMode(int mode);
    virtual bool IsFindMode() const;
    virtual void CancelFindMode();
    virtual int SearchPhrase(const wchar_t* phrase, int option);
    virtual int SearchNextPrev(int direction);
    virtual bool SelectCurrentFound();
    /// For each row, at each paint and in `UpdateAllHeights`: keep it cheap.
    virtual void UpdateItemPosition(int row);
    /// The width that fits the content of the column `id`; -1 means no change.
    virtual int GetOptimalColumnWidth(int id) = 0;
    /// The full new row vector, pairs of data and height.
    virtual std::vector<std::pair<unsigned __int64, int>> SortElements(bool descending);
    /// The number of leading rows that a header click sorts; negative means all.
    virtual int ElementsToCompareCount() const;
    /// True if `a` comes before `b` in the column at display position `column`.
    virtual bool CompareElementsViaColumn(unsigned __int64 a, unsigned __int64 b, int column) const;
    /// After either sort, before the heights are asked again.
    virtual void OnElementsSorted() = 0;
    virtual bool IsAutoscrollEnabled();
    virtual bool CopySelectionToClipboard(bool option);
    virtual void OnDblClick();
    virtual void SetCursor();
    /// The cell under `local`, which is relative to the row's left and top.
    virtual CPoint GetCell(int row, const CPoint& local);
    /// `order` lists ids by display position.
    virtual bool IsColumnOrderPossible(const std::vector<int>& order) const;
    virtual void BeginDrag();
    /// Margins of the scroll-into-view rule, in pixels.
    virtual void GetCarretOffset(int& top, int& bottom);
    /// True: a paint redraws only the rows that were named by `ITableView::InvalidateView`, and the selected row.
    virtual bool UseOptimalisation() const;
    virtual void OnSortByColumn(int column);
    virtual bool SortColumnAvailable(int column) const;
    virtual const std::wstring& Caption() const;
    virtual void OnTableViewDataChanged();
    /// `rect` comes in as a small square at the mouse, in client coordinates of the body; the handler may set it to the
    /// area for which the tip holds. Gives the id of the tip, or -1 for none.
    virtual __int64 GetToolTip(CRect& rect, CString& text);
    /// The second and the first of the two paint gates.
    virtual bool IsPaintEnabled() = 0;
    virtual bool CanPaint() = 0;

    /// Draws `max(thickness, 2)` rings of one pixel, from `rect` inwards.
    void DrawCursor(CDC& dc, CRect rect, int thickness, unsigned long colour);
    /// Anchor and caret row, the smaller first.
    std::pair<int, int> GetSelectedItemStartEnd();

protected:
    std::wstring m_caption;
};
