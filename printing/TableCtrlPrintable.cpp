#include <OrtinControls/TableCtrlPrintable.h>

#include <algorithm>
#include <cstdint>

#include <OrtinControls/PrintInfo.h>
#include <OrtinFoundation/DeletableDC.h>
#include <XTToolkitPro.h>

#include "../graphics/Rounding.h"
#include "../table/TableCtrlState.h"

namespace {

constexpr unsigned int kVisibleAreaId = 0;
constexpr wchar_t kVisibleAreaText[] = L"Widoczny obszar";
constexpr COLORREF kPaper = 0xFFFFFF;

std::int64_t distance(int from, int to) {
    return std::int64_t{to} - from;
}

} // namespace

TableCtrlPrintable::TableCtrlPrintable() = default;

TableCtrlPrintable::~TableCtrlPrintable() = default;

const std::wstring& TableCtrlPrintable::PrintTitle() const {
    static const std::wstring none;
    return m_state->handler == nullptr ? none : m_state->handler->Caption();
}

int TableCtrlPrintable::OnPreparePrinting(PrintInfo* info) {
    if (info != nullptr) {
        info->EnablePrintOption(PrintOptionSelection, isSelectionPrintable());
        info->EnablePrintOption(PrintOptionPages, true);
        info->AddPrintOption(kVisibleAreaId, kVisibleAreaText);
    }
    return 1;
}

bool TableCtrlPrintable::isSelectionPrintable() {
    ITableHandler* const handler = m_state->handler;
    if (handler == nullptr) {
        return false;
    }
    const auto [firstRow, lastRow] = handler->GetSelectedItemStartEnd();
    const auto [start, end] = handler->GetSelectedPositionStartEnd();
    // Meant: a block counts only as far as it reaches to the right or down.
    return distance(firstRow, lastRow) >= 1 || distance(start.x, end.x) >= 1 || distance(start.y, end.y) >= 1;
}

void TableCtrlPrintable::OnPrepareDC(CDC* dc, PrintInfo* info) {
    if (dc != nullptr && info != nullptr) {
        PrepareBasicDCParams(dc, info);
    }
}

void TableCtrlPrintable::PrepareBasicDCParams(CDC* dc, PrintInfo* info) {
    CRect object = CXTPClientRect(this);
    object.InflateRect(m_marginLeft, m_marginTop, m_marginRight, m_marginBottom);
    object.MoveToXY(dc->GetWindowOrg());
    info->PrepareDCAndPrintArea(false, dc, object);
}

void TableCtrlPrintable::OnBeginPrinting(CDC* dc, PrintInfo* info) {
    if (dc == nullptr || info == nullptr) {
        return;
    }
    PrepareBasicDCParams(dc, info);
    m_lastPrintRow = 0;
    m_pageFirstRows.clear();
    const CRect area = info->PrintAreaInObjectUnits();
    paginate(*info, area.bottom - m_marginBottom - (area.top + m_marginTop));
    info->Update(static_cast<int>(m_pageFirstRows.size()));
}

void TableCtrlPrintable::paginate(const PrintInfo& info, int pageHeight) {
    const TableList& list = m_state->list;
    const auto paginateRows = [&](Pagination::RowRange range) {
        m_pageFirstRows = list.pagesOfRows(pageHeight, range);
        m_lastPrintRow = range.last;
    };
    switch (info.PrintOption()) {
    case PrintOptionAll:
    case PrintOptionPages: // the run picks its pages from those of the whole table
        paginateRows({0, list.rows().count() - 1});
        break;
    case PrintOptionSelection:
        if (m_state->handler != nullptr) {
            const auto [firstRow, lastRow] = m_state->handler->GetSelectedItemStartEnd();
            paginateRows({firstRow, lastRow});
        }
        break;
    case PrintOptionCustom:
        if (info.CustomPrintOptionId() == kVisibleAreaId) {
            Pagination::VisiblePages pages = list.pagesOfVisibleRows(pageHeight);
            m_pageFirstRows = std::move(pages.firstRows);
            m_lastPrintRow = pages.lastRow;
        }
        break;
    default:
        break;
    }
}

void TableCtrlPrintable::OnPrint(CDC* dc, PrintInfo* info) {
    if (dc == nullptr || info == nullptr) {
        return;
    }
    const int page = info->CurrentPage();
    const int pages = static_cast<int>(m_pageFirstRows.size());
    if (page < 1 || page > pages) {
        return;
    }
    const auto index = static_cast<std::size_t>(page - 1);
    const int firstRow = m_pageFirstRows[index];
    const int lastRow = page == pages ? m_lastPrintRow : m_pageFirstRows[index + 1] - 1;
    CRect area = info->PrintAreaInObjectUnits();
    area.DeflateRect(m_marginLeft, m_marginTop, m_marginRight, m_marginBottom);
    if (m_blackWhitePrinting) {
        printBlackWhite(*dc, *info, area, firstRow, lastRow);
    } else {
        PrintPage(dc, info, area, firstRow, lastRow);
    }
}

void TableCtrlPrintable::printBlackWhite(CDC& dc, PrintInfo& info, const CRect& area, int firstRow, int lastRow) {
    DeletableDC picture(&dc, true);
    if (picture.GetSafeHdc() == nullptr || !fitPrintBitmap(dc, area.Size())) {
        PrintPage(&dc, &info, area, firstRow, lastRow);
        return;
    }
    const CXTPBitmapDC selected(&picture, &m_printBitmap);
    const CRect whole(CPoint(0, 0), area.Size());
    picture.FillSolidRect(&whole, kPaper);
    // Meant: the rows go to the page itself, not into the picture, and the white picture covers them.
    PrintPage(&dc, &info, area, firstRow, lastRow);
    XTPImageManager()->BlackWhiteBitmap(picture, whole, std::clamp(m_blackWhiteContrast, 0, 255));
    dc.BitBlt(area.left, area.top, area.Width(), area.Height(), &picture, 0, 0, SRCCOPY);
}

bool TableCtrlPrintable::fitPrintBitmap(CDC& dc, CSize size) {
    if (m_printBitmap.GetSafeHandle() != nullptr && m_printBitmap.GetBitmapDimension() == size) {
        return true;
    }
    m_printBitmap.DeleteObject();
    if (size.cx <= 0 || size.cy <= 0 || !m_printBitmap.CreateCompatibleBitmap(&dc, size.cx, size.cy)) {
        return false;
    }
    m_printBitmap.SetBitmapDimension(size.cx, size.cy);
    return true;
}

void TableCtrlPrintable::PrintPage(CDC* dc, PrintInfo* info, const CRect& area, int firstRow, int lastRow) {
    const RowStore& rows = m_state->list.rows();
    ITableHandler* const handler = m_state->handler;
    if (handler == nullptr || handler->DrawPrintRequestedItems(firstRow, lastRow, area, *info, rows.rows(), *dc)) {
        return;
    }
    CRect rect = area;
    // The host may change the rows while it draws one.
    for (int row = std::max(firstRow, 0); row <= lastRow && rows.contains(row); ++row) {
        rect.bottom = saturateToInt(std::int64_t{rect.top} + rows.height(row));
        rect.top = saturateToInt(std::int64_t{rect.top} + handler->DrawItem(*dc, row, rect));
    }
}

void TableCtrlPrintable::OnEndPrinting(CDC* /*dc*/, PrintInfo* /*info*/) {
    m_pageFirstRows.clear();
    if (GetSafeHwnd() != nullptr) { // without a window the system would repaint all of them
        InvalidateRect(nullptr, TRUE);
    }
}

void TableCtrlPrintable::OnPrintingFinished() {}

bool TableCtrlPrintable::IsPrintAborted() const {
    return false;
}

CWnd* TableCtrlPrintable::AssociatedWindow() const {
    return CWnd::FromHandle(::GetParent(m_hWnd));
}
