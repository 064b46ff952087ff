#include "RecordingHandler.h"

#include <type_traits>

namespace {

template <typename Value>
void write(std::ostream& out, const Value& value) {
    if constexpr (std::is_same_v<Value, bool>) {
        out << (value ? "true" : "false");
    } else if constexpr (std::is_same_v<Value, CPoint>) {
        out << value.x << ':' << value.y;
    } else if constexpr (std::is_same_v<Value, std::vector<int>>) {
        for (const int entry : value) {
            out << entry;
        }
    } else {
        out << value;
    }
}

} // namespace

const std::set<std::string> RecordingHandler::kQuestions{
    "CanPaint",
    "CompareElementsViaColumn",
    "ElementsToCompareCount",
    "GetCarretOffset",
    "GetSelectedItem",
    "GetSelectedItemStart",
    "GetSelectedPosition",
    "GetSelectedPositionStart",
    "GetSelectedPositionStartEnd",
    "IsAutoscrollEnabled",
    "IsColumnOrderPossible",
    "IsPaintEnabled",
    "SortColumnAvailable",
    "UpdateItemPosition",
    "UseOptimalisation",
};

template <typename... Arguments>
void RecordingHandler::note(const char* callback, const Arguments&... arguments) const {
    if (m_named.contains(callback) == m_namedAreRecorded) {
        std::ostringstream text;
        text << (m_log.empty() ? "" : " ") << callback;
        if constexpr (sizeof...(arguments) > 0) {
            const char* separator = "(";
            ((text << std::exchange(separator, ","), write(text, arguments)), ...);
            text << ')';
        }
        m_log += text.str();
    }
    if (onCall) {
        onCall(callback);
    }
}

std::string RecordingHandler::takeLog() {
    return std::exchange(m_log, {});
}

void RecordingHandler::record(std::set<std::string> callbacks) {
    m_named = std::move(callbacks);
    m_namedAreRecorded = true;
    m_log.clear();
}

void RecordingHandler::recordAllBut(std::set<std::string> callbacks) {
    m_named = std::move(callbacks);
    m_namedAreRecorded = false;
    m_log.clear();
}

void RecordingHandler::recordActions() {
    recordAllBut(kQuestions);
}

int RecordingHandler::heightOf(int row) const {
    const auto own = heights.find(view == nullptr ? 0 : view->GetItemData(row));
    return own == heights.end() ? rowHeight : own->second;
}

COLORREF RecordingHandler::colourOf(unsigned __int64 data) {
    const auto mixed = static_cast<unsigned int>(data * 0x9E3779B1U);
    return RGB(64 + (mixed >> 8) % 128, 64 + (mixed >> 16) % 128, 64 + (mixed >> 24) % 128);
}

void RecordingHandler::OnSizeTableListCtrl() {
    note("OnSizeTableListCtrl");
}

void RecordingHandler::OnMoveColumn() {
    note("OnMoveColumn");
}

void RecordingHandler::OnDrawFinished(CDC& dc) {
    if (drawFinally) {
        drawFinally(dc);
    }
    note("OnDrawFinished");
}

int RecordingHandler::DrawItem(CDC& dc, int row, const CRect& rect) {
    dc.FillSolidRect(&rect, colourOf(view->GetItemData(row)));
    if (drawMore) {
        drawMore(dc, row, rect);
    }
    const int height = heightOf(row);
    note("DrawItem", row, rect.top, rect.bottom);
    return height;
}

bool RecordingHandler::DrawPrintRequestedItems(int firstRow, int lastRow, const CRect& rect, const PrintInfo&,
                                               const std::vector<std::pair<unsigned __int64, int>>& rows, CDC&) {
    note("DrawPrintRequestedItems", firstRow, lastRow, rect.left, rect.top, rect.right, rect.bottom, rows.size());
    return printsItself;
}

void RecordingHandler::SetTableView(ITableView* tableView) {
    view = tableView;
    note("SetTableView");
}

int RecordingHandler::OnKey(unsigned int key, int pageRows) {
    note("OnKey", key, pageRows);
    return keyRow;
}

int RecordingHandler::OnKey(unsigned int key) {
    note("OnKey", key);
    return keyRow;
}

void RecordingHandler::OnItemClick(int row, const CPoint& local, bool extend, unsigned int flags) {
    caret = row;
    note("OnItemClick", row, local, extend, flags);
}

int RecordingHandler::GetSelectedItem() const {
    note("GetSelectedItem");
    return caret;
}

int RecordingHandler::GetSelectedItemStart() const {
    note("GetSelectedItemStart");
    return anchor.value_or(caret);
}

void RecordingHandler::OnColumnWidthChanged() {
    note("OnColumnWidthChanged");
}

void RecordingHandler::OnColumnWidthChanging(int id, int width) {
    note("OnColumnWidthChanging", id, width);
}

void RecordingHandler::PrepareDraw() {
    note("PrepareDraw");
}

void RecordingHandler::TableHandlerReservedA() {
    note("TableHandlerReservedA");
}

int RecordingHandler::ComputeItemHeight(int row) {
    const int height = heightOf(row);
    note("ComputeItemHeight", row);
    return height;
}

void RecordingHandler::SetSelectedItem(int row, bool followsRowChange) {
    caret = row;
    note("SetSelectedItem", row, followsRowChange);
}

void RecordingHandler::SelectPosition(int column, int row) {
    position = {column, row};
    note("SelectPosition", column, row);
}

CPoint RecordingHandler::GetSelectedPosition() {
    note("GetSelectedPosition");
    return position;
}

CPoint RecordingHandler::GetSelectedPositionStart() {
    note("GetSelectedPositionStart");
    return positionStart.value_or(position);
}

std::pair<CPoint, CPoint> RecordingHandler::GetSelectedPositionStartEnd() {
    note("GetSelectedPositionStartEnd");
    return {positionStart.value_or(position), position};
}

void RecordingHandler::TableHandlerReservedB() {
    note("TableHandlerReservedB");
}

void RecordingHandler::RefreshView() {
    note("RefreshView");
}

void RecordingHandler::SetListCtrl(CWnd* body) {
    list = body;
    note("SetListCtrl");
}

void RecordingHandler::SetFindMode(int mode) {
    note("SetFindMode", mode);
}

void RecordingHandler::CancelFindMode() {
    note("CancelFindMode");
}

void RecordingHandler::UpdateItemPosition(int row) {
    note("UpdateItemPosition", row);
}

int RecordingHandler::GetOptimalColumnWidth(int id) {
    note("GetOptimalColumnWidth", id);
    return optimalWidth;
}

std::vector<std::pair<unsigned __int64, int>> RecordingHandler::SortElements(bool descending) {
    note("SortElements", descending);
    return sorted;
}

int RecordingHandler::ElementsToCompareCount() const {
    note("ElementsToCompareCount");
    return toCompare;
}

bool RecordingHandler::CompareElementsViaColumn(unsigned __int64 a, unsigned __int64 b, int column) const {
    note("CompareElementsViaColumn", a, b, column);
    return before(a, b, column);
}

void RecordingHandler::OnElementsSorted() {
    note("OnElementsSorted");
}

bool RecordingHandler::IsAutoscrollEnabled() {
    note("IsAutoscrollEnabled");
    return autoscroll;
}

void RecordingHandler::OnDblClick() {
    note("OnDblClick");
}

void RecordingHandler::SetCursor() {
    note("SetCursor");
}

CPoint RecordingHandler::GetCell(int row, const CPoint& local) {
    note("GetCell", row, local);
    return cell;
}

bool RecordingHandler::IsColumnOrderPossible(const std::vector<int>& order) const {
    note("IsColumnOrderPossible", order);
    return orderPossible;
}

void RecordingHandler::BeginDrag() {
    note("BeginDrag");
}

void RecordingHandler::GetCarretOffset(int& top, int& bottom) {
    note("GetCarretOffset", top, bottom);
    top = marginTop;
    bottom = marginBottom;
}

bool RecordingHandler::UseOptimalisation() const {
    note("UseOptimalisation");
    return optimised;
}

void RecordingHandler::OnSortByColumn(int column) {
    note("OnSortByColumn", column);
}

bool RecordingHandler::SortColumnAvailable(int column) const {
    note("SortColumnAvailable", column);
    return sortAvailable;
}

void RecordingHandler::OnTableViewDataChanged() {
    note("OnTableViewDataChanged");
}

__int64 RecordingHandler::GetToolTip(CRect& rect, CString& text) {
    note("GetToolTip", rect.left, rect.top, rect.right, rect.bottom);
    rect = tipRect.value_or(rect);
    text = tipText;
    return tipId;
}

bool RecordingHandler::IsPaintEnabled() {
    note("IsPaintEnabled");
    return paintEnabled;
}

bool RecordingHandler::CanPaint() {
    note("CanPaint");
    return canPaint;
}
