#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include <OrtinControls/IContextMenuBase.h>
#include <XTToolkitPro.h>
#include <afxwin.h>

#include "Pagination.h"
#include "RepaintState.h"
#include "RowScroll.h"
#include "RowStore.h"

class ITableHandler;
class ITableView;

/// The body of a table: the window under the header. It owns the rows, the back buffer and the vertical scrolling, and
/// turns mouse and keys into calls to the handler. It draws no row itself. Client coordinates are pixels; content
/// coordinates are these plus the scroll position.
class TableList : public CWnd {
public:
    static constexpr int kWindowId = 11112;

    /// The dragging of column borders in the body.
    struct MousePosTracker {
        virtual ~MousePosTracker() = default;

        bool enabled = false;
        bool overBorder = false;
        /// Counts display positions, though who is told takes it for an id: the two agree until columns are reordered.
        int column = -1;
        int startWidth = -1;
        int startX = -1;
        CWnd* target = nullptr;
        HCURSOR trackCursor = nullptr;
        HCURSOR savedCursor = nullptr;
    };

    explicit TableList(ITableView* view);
    ~TableList() override;

    BOOL createIn(CWnd* parent);
    void setHandler(ITableHandler* handler) { m_handler = handler; }
    void setContextMenu(std::shared_ptr<IContextMenuBase> contextMenu) { m_contextMenu = std::move(contextMenu); }
    void enableColumnWidthTracking(bool enable);
    void refreshToolTipColors();

    // Rows. What the host is told beyond heights and find mode is the table's part.
    RowStore& rows() { return m_rows; }
    const RowStore& rows() const { return m_rows; }
    void insertRow(std::uint64_t data, int row);
    void insertRows(const std::vector<RowStore::Row>& rows, int row);
    /// Each entry in order takes the first row with its data. An entry without a row ends find mode.
    void removeRows(const std::vector<std::uint64_t>& list);
    void removeAllRows();
    void updateAllHeights();

    // Printing: the pages of a height in pixels.
    std::vector<int> pagesOfRows(int pageHeight, Pagination::RowRange range) const;
    Pagination::VisiblePages pagesOfVisibleRows(int pageHeight) const;

    // Painting.
    void requestFullRedraw() { m_repaint.requestFullRedraw(); }
    bool isDrawn(std::uint64_t data) const { return m_repaint.isDrawn(data); }
    /// Marks a row, or all with 0, and lets the handler decide on the repaint.
    void markAndRefresh(std::uint64_t data);
    void repaintNow();

    // Scrolling.
    void markScrollDirty() { m_scrollDirty = true; }
    void updateScroll();
    void scrollIntoView(int row);
    /// Repaints nothing by itself; the next paint is full if the position is another one.
    void scrollTo(int position);
    int clientHeight() const;
    int rangeMaximum() const;
    /// The content coordinate of a client coordinate of this window.
    int contentY(int clientY) const;

    bool vScrollAlwaysVisible = false;
    bool showScrollbar = true;
    RowScroll::BottomKeeper bottomKeeper;

    BOOL PreTranslateMessage(MSG* message) override;
    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* toolInfo) const override;

protected:
    afx_msg int OnCreate(LPCREATESTRUCT createStruct);
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnVScroll(UINT command, UINT position, CScrollBar* bar);
    afx_msg BOOL OnMouseWheel(UINT flags, short delta, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hitTest, UINT message);
    afx_msg void OnContextMenu(CWnd* window, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnKeyUp(UINT key, UINT repeat, UINT flags);
    DECLARE_MESSAGE_MAP()

private:
    enum class PaintResult { Done, Stopped, HeightChanged };

    struct SelectedRow {
        int row;
        CRect rect;
    };

    /// Scroll bar and picture wait for the rows. Before the host is called, because it may throw, and after it, because
    /// it may paint.
    void noteMovedRows();
    /// Stores the height that the handler has for the row. Needs a handler.
    void askHeight(int row);

    bool mayPaint() const;
    void paint(CDC& target);
    bool paintUntilHeightsSettle(CDC& target);
    PaintResult paintOnce(CDC& target, bool showAnyway);
    bool fitBackBuffer(CDC& target, CSize size);
    int prepareRows();
    void switchAutoscroll(int scrollPosition, int total, std::int64_t now);
    bool drawRunning(CDC& dc, CSize view, int total, std::int64_t now, int& bottom);
    bool drawNormal(CDC& dc, CSize view, int scrollPosition, const std::set<std::uint64_t>* dirty, int& bottom,
                    std::optional<SelectedRow>& selected);
    CRect rectBelow(int top, int row, int width) const;
    bool drawRow(CDC& dc, int row, const CRect& rect);
    bool autoscrollIsOn() const { return m_autoscrollPos != std::numeric_limits<double>::infinity(); }
    int effectiveScrollPos() const;
    std::int64_t readTickFrequency() const;

    void clickRow(CPoint point, bool extend, UINT flags);
    bool tracksBorder() const;
    void searchBorder(int x);
    bool trackBorder(UINT flags, CPoint point);
    void dragRow(UINT flags, CPoint point);

    ITableView* m_view;
    ITableHandler* m_handler = nullptr;
    RowStore m_rows;
    RepaintState m_repaint;
    CBitmap m_backBuffer;
    CSize m_backBufferSize;
    std::shared_ptr<IContextMenuBase> m_contextMenu;
    MousePosTracker m_tracker;
    std::unique_ptr<CXTPToolTipContext> m_toolTip;
    double m_autoscrollPos = std::numeric_limits<double>::infinity();
    std::int64_t m_lastTick = 0;
    std::int64_t m_tickFrequency;
    bool m_scrollDirty = true;
    bool m_updatingScroll = false;
    bool m_painting = false;
    /// The host asked for a paint from inside one.
    bool m_paintAgain = false;
    /// What was invalidated during a paint with new heights is being painted.
    bool m_catchingUp = false;
    bool m_mouseDown = false;
    CPoint m_dragOrigin;
    bool m_dragArmed = false;
};
