#include <OrtinControls/ITableHandler.h>

#include <algorithm>
#include <utility>

ITableHandler::ITableHandler() = default;
ITableHandler::ITableHandler(const ITableHandler& other) = default;
ITableHandler& ITableHandler::operator=(const ITableHandler& other) = default;
ITableHandler::~ITableHandler() = default;

ITableHandler::ITableHandler(ITableHandler&& other) noexcept : m_caption(std::exchange(other.m_caption, {})) {}

ITableHandler& ITableHandler::operator=(ITableHandler&& other) noexcept {
    if (this != &other) {
        m_caption = std::exchange(other.m_caption, {});
    }
    return *this;
}

void ITableHandler::OnSizeTableListCtrl() {}

void ITableHandler::OnMoveColumn() {}

void ITableHandler::OnDrawFinished(CDC& /*dc*/) {}

bool ITableHandler::DrawPrintRequestedItems(int /*firstRow*/, int /*lastRow*/, const CRect& /*rect*/,
                                            const PrintInfo& /*printInfo*/,
                                            const std::vector<std::pair<unsigned __int64, int>>& /*rows*/,
                                            CDC& /*dc*/) {
    return false;
}

int ITableHandler::OnKey(unsigned int key, int /*pageRows*/) {
    return OnKey(key);
}

int ITableHandler::GetSelectedItemStart() const {
    return GetSelectedItem();
}

void ITableHandler::OnColumnWidthChanged() {}

void ITableHandler::OnColumnWidthChanging(int /*id*/, int /*width*/) {}

int ITableHandler::IsActive() const {
    return 0;
}

void ITableHandler::SelectPosition(int /*column*/, int /*row*/) {}

CPoint ITableHandler::GetSelectedPosition() {
    return CPoint(0, 0);
}

CPoint ITableHandler::GetSelectedPositionStart() {
    return GetSelectedPosition();
}

std::pair<CPoint, CPoint> ITableHandler::GetSelectedPositionStartEnd() {
    const CPoint start = GetSelectedPositionStart();
    return {start, GetSelectedPosition()};
}

void ITableHandler::SetListCtrl(CWnd* /*list*/) {}

void ITableHandler::SetFindMode(int /*mode*/) {}

bool ITableHandler::IsFindMode() const {
    return false;
}

void ITableHandler::CancelFindMode() {}

int ITableHandler::SearchPhrase(const wchar_t* /*phrase*/, int /*option*/) {
    return 0;
}

int ITableHandler::SearchNextPrev(int /*direction*/) {
    return -1;
}

bool ITableHandler::SelectCurrentFound() {
    return false;
}

void ITableHandler::UpdateItemPosition(int /*row*/) {}

std::vector<std::pair<unsigned __int64, int>> ITableHandler::SortElements(bool /*descending*/) {
    return {};
}

int ITableHandler::ElementsToCompareCount() const {
    return -1;
}

bool ITableHandler::CompareElementsViaColumn(unsigned __int64 /*a*/, unsigned __int64 /*b*/, int /*column*/) const {
    return false;
}

bool ITableHandler::IsAutoscrollEnabled() {
    return false;
}

bool ITableHandler::CopySelectionToClipboard(bool /*option*/) {
    return false;
}

void ITableHandler::OnDblClick() {}

void ITableHandler::SetCursor() {}

CPoint ITableHandler::GetCell(int /*row*/, const CPoint& /*local*/) {
    return CPoint(0, 0);
}

bool ITableHandler::IsColumnOrderPossible(const std::vector<int>& /*order*/) const {
    return true;
}

void ITableHandler::BeginDrag() {}

void ITableHandler::GetCarretOffset(int& top, int& bottom) {
    top = 0;
    bottom = 0;
}

bool ITableHandler::UseOptimalisation() const {
    return false;
}

void ITableHandler::OnSortByColumn(int /*column*/) {}

bool ITableHandler::SortColumnAvailable(int /*column*/) const {
    return false;
}

const std::wstring& ITableHandler::Caption() const {
    return m_caption;
}

void ITableHandler::OnTableViewDataChanged() {}

__int64 ITableHandler::GetToolTip(CRect& /*rect*/, CString& /*text*/) {
    return -1;
}

void ITableHandler::DrawCursor(CDC& dc, CRect rect, int thickness, unsigned long colour) {
    constexpr int kLeastRings = 2;
    for (int ring = std::max(thickness, kLeastRings); ring > 0; --ring) {
        dc.Draw3dRect(&rect, colour, colour);
        rect.DeflateRect(1, 1);
    }
}

std::pair<int, int> ITableHandler::GetSelectedItemStartEnd() {
    return std::minmax({GetSelectedItemStart(), GetSelectedItem()});
}
