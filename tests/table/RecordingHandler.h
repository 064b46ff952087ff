#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <OrtinControls/ITableHandler.h>
#include <OrtinControls/ITableView.h>

/// A host that writes down what it is called with, in order, and answers as a test sets it up. Rows are single colours,
/// made from their words.
class RecordingHandler : public ITableHandler {
public:
    // What the host holds.
    int caret = -1;
    /// The anchor follows the caret as long as this is empty.
    std::optional<int> anchor;
    CPoint position{0, 0};
    std::optional<CPoint> positionStart;
    /// Says that it draws printed pages itself.
    bool printsItself = false;
    int rowHeight = 20;
    std::map<unsigned __int64, int> heights;

    // What it answers.
    bool canPaint = true;
    bool paintEnabled = true;
    bool optimised = false;
    bool autoscroll = false;
    int keyRow = -1;
    int optimalWidth = -1;
    int toCompare = -1;
    bool orderPossible = true;
    bool sortAvailable = false;
    std::vector<std::pair<unsigned __int64, int>> sorted;
    std::function<bool(unsigned __int64 a, unsigned __int64 b, int column)> before = [](auto a, auto b, int) {
        return a < b;
    };
    CPoint cell{0, 0};
    int marginTop = 0;
    int marginBottom = 0;
    __int64 tipId = -1;
    CString tipText;
    std::optional<CRect> tipRect;

    /// Draws over a row, or over the finished picture.
    std::function<void(CDC& dc, int row, const CRect& rect)> drawMore;
    std::function<void(CDC& dc)> drawFinally;

    /// Runs after a callback was written down: this is where a host misbehaves.
    std::function<void(const std::string& callback)> onCall;

    // What it was given.
    ITableView* view = nullptr;
    CWnd* list = nullptr;

    /// What was called since the last time, separated by blanks.
    std::string takeLog();
    /// Only these callbacks are written down from now on.
    void record(std::set<std::string> callbacks);
    /// All are, but these.
    void recordAllBut(std::set<std::string> callbacks);
    /// All that may change or show something; what only asks is left out.
    void recordActions();

    int heightOf(int row) const;
    static COLORREF colourOf(unsigned __int64 data);

    void OnSizeTableListCtrl() override;
    void OnMoveColumn() override;
    void OnDrawFinished(CDC& dc) override;
    int DrawItem(CDC& dc, int row, const CRect& rect) override;
    bool DrawPrintRequestedItems(int firstRow, int lastRow, const CRect& rect, const PrintInfo& printInfo,
                                 const std::vector<std::pair<unsigned __int64, int>>& rows, CDC& dc) override;
    void SetTableView(ITableView* tableView) override;
    int OnKey(unsigned int key, int pageRows) override;
    int OnKey(unsigned int key) override;
    void OnItemClick(int row, const CPoint& local, bool extend, unsigned int flags) override;
    int GetSelectedItem() const override;
    int GetSelectedItemStart() const override;
    void OnColumnWidthChanged() override;
    void OnColumnWidthChanging(int id, int width) override;
    void PrepareDraw() override;
    void TableHandlerReservedA() override;
    int ComputeItemHeight(int row) override;
    void SetSelectedItem(int row, bool followsRowChange) override;
    void SelectPosition(int column, int row) override;
    CPoint GetSelectedPosition() override;
    CPoint GetSelectedPositionStart() override;
    std::pair<CPoint, CPoint> GetSelectedPositionStartEnd() override;
    void TableHandlerReservedB() override;
    void RefreshView() override;
    void SetListCtrl(CWnd* body) override;
    void SetFindMode(int mode) override;
    void CancelFindMode() override;
    void UpdateItemPosition(int row) override;
    int GetOptimalColumnWidth(int id) override;
    std::vector<std::pair<unsigned __int64, int>> SortElements(bool descending) override;
    int ElementsToCompareCount() const override;
    bool CompareElementsViaColumn(unsigned __int64 a, unsigned __int64 b, int column) const override;
    void OnElementsSorted() override;
    bool IsAutoscrollEnabled() override;
    void OnDblClick() override;
    void SetCursor() override;
    CPoint GetCell(int row, const CPoint& local) override;
    bool IsColumnOrderPossible(const std::vector<int>& order) const override;
    void BeginDrag() override;
    void GetCarretOffset(int& top, int& bottom) override;
    bool UseOptimalisation() const override;
    void OnSortByColumn(int column) override;
    bool SortColumnAvailable(int column) const override;
    void OnTableViewDataChanged() override;
    __int64 GetToolTip(CRect& rect, CString& text) override;
    bool IsPaintEnabled() override;
    bool CanPaint() override;

private:
    template <typename... Arguments>
    void note(const char* callback, const Arguments&... arguments) const;

    mutable std::string m_log;
    std::set<std::string> m_named = kQuestions;
    bool m_namedAreRecorded = false;

    static const std::set<std::string> kQuestions;
};
