#include "TableScene.h"

#include <stdexcept>

#include <commctrl.h>

namespace scene {

namespace {

constexpr int kTexts = 1000;

std::vector<std::array<std::wstring, kColumns>> makeTexts() {
    std::vector<std::array<std::wstring, kColumns>> texts(kTexts);
    for (int row = 0; row < kTexts; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            texts[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] =
                std::to_wstring(row * 7 + column) + L"," + std::to_wstring(10 + (row * 31 + column * 17) % 90);
        }
    }
    return texts;
}

} // namespace

const std::wstring& cellText(std::uint64_t row, int column) {
    static const auto texts = makeTexts();
    return texts[row % kTexts][static_cast<std::size_t>(column)];
}

Font::Font() {
    LOGFONTW description{};
    description.lfHeight = -11;
    ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
    m_font.CreateFontIndirect(&description);
}

void drawRow(HDC dc, std::uint64_t row, const RECT& rect) {
    for (int column = 0; column < kColumns; ++column) {
        const RECT cell{rect.left + column * kColumnWidth, rect.top, rect.left + (column + 1) * kColumnWidth,
                        rect.bottom};
        const std::wstring& text = cellText(row, column);
        ::ExtTextOutW(dc, cell.left + 2, cell.top, ETO_OPAQUE | ETO_CLIPPED, &cell, text.c_str(),
                      static_cast<UINT>(text.size()), nullptr);
    }
}

int Host::DrawItem(CDC& dc, int row, const CRect& rect) {
    ::SelectObject(dc.GetSafeHdc(), m_font);
    drawRow(dc.GetSafeHdc(), m_view->GetItemData(row) - 1, rect);
    return kRowHeight;
}

void Host::RefreshView() {
    if (ticked != 0) {
        const int top = static_cast<int>(ticked - 1) * kRowHeight - m_list->GetScrollPos(SB_VERT);
        const CRect strip(0, top, kWidth, top + kRowHeight);
        m_list->InvalidateRect(&strip, FALSE);
    }
}

Table::Table(int rows) : m_window(CSize(kWidth, kHeight + 100)) {
    if (!table.Create(1, &m_window, false)) {
        throw std::runtime_error("the table cannot be created");
    }
    table.SetTableHandler(&host);
    table.SetColumns(std::vector<std::pair<std::wstring, double>>(kColumns, {L"Kolumna", kColumnWidth}));
    table.MoveWindow(0, 0, kWidth, kHeight + table.GetHeaderHeight());
    table.MoveWindow(0, 0, kWidth, kHeight + table.GetHeaderHeight());
    fill(rows);
    repaint();
}

Table::~Table() {
    table.DestroyWindow();
}

void Table::fill(int rows) {
    table.BeginUpdate();
    table.DeleteAllItems();
    for (int row = 1; row <= rows; ++row) {
        table.AddItem(static_cast<unsigned __int64>(row));
    }
    table.FinishUpdate();
    table.UpdateVScroll();
}

void Table::repaint() {
    body().InvalidateRect(nullptr, FALSE);
    body().UpdateWindow();
}

ListView::ListView(int rows, bool stored) : m_window(CSize(kWidth, kHeight + 100)) {
    m_window.onMessage = [](UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
        const auto* const header = reinterpret_cast<const NMHDR*>(lParam);
        if (message == WM_NOTIFY && header->code == LVN_GETDISPINFOW) {
            LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(lParam)->item;
            if ((item.mask & LVIF_TEXT) != 0) {
                item.pszText =
                    const_cast<wchar_t*>(cellText(static_cast<std::uint64_t>(item.iItem), item.iSubItem).c_str());
            }
            return 0;
        }
        return std::nullopt;
    };
    const DWORD style = WS_CHILD | WS_VISIBLE | LVS_REPORT | (stored ? 0U : LVS_OWNERDATA);
    m_list = ::CreateWindowExW(0, WC_LISTVIEWW, L"", style, 0, 0, kWidth, kHeight + 18, m_window.m_hWnd, nullptr,
                               nullptr, nullptr);
    if (m_list == nullptr) {
        throw std::runtime_error("the list view cannot be created");
    }
    ListView_SetExtendedListViewStyle(m_list, LVS_EX_DOUBLEBUFFER);
    ::SendMessageW(m_list, WM_SETFONT, reinterpret_cast<WPARAM>(m_font.handle()), FALSE);
    for (int column = 0; column < kColumns; ++column) {
        LVCOLUMNW description{};
        description.mask = LVCF_WIDTH | LVCF_TEXT;
        description.cx = kColumnWidth;
        description.pszText = const_cast<wchar_t*>(L"Kolumna");
        ListView_InsertColumn(m_list, column, &description);
    }
    if (!stored) {
        ListView_SetItemCountEx(m_list, rows, LVSICF_NOINVALIDATEALL);
    }
    repaint();
}

void ListView::repaint() {
    ::InvalidateRect(m_list, nullptr, FALSE);
    ::UpdateWindow(m_list);
}

BareSurface::BareSurface()
    : m_window(CSize(kWidth, kHeight)),
      m_windowDC(::GetDC(m_window.m_hWnd)),
      m_memoryDC(::CreateCompatibleDC(m_windowDC)),
      m_bitmap(::CreateCompatibleBitmap(m_windowDC, kWidth, kHeight)) {
    ::SelectObject(m_memoryDC, m_bitmap);
    ::SelectObject(m_memoryDC, m_font.handle());
}

BareSurface::~BareSurface() {
    ::DeleteDC(m_memoryDC);
    ::DeleteObject(m_bitmap);
    ::ReleaseDC(m_window.m_hWnd, m_windowDC);
}

void BareSurface::drawAll(std::uint64_t firstRow) {
    for (int top = 0; top < kHeight; top += kRowHeight) {
        drawRow(m_memoryDC, firstRow++, RECT{0, top, kWidth, top + kRowHeight});
    }
    ::BitBlt(m_windowDC, 0, 0, kWidth, kHeight, m_memoryDC, 0, 0, SRCCOPY);
}

void BareSurface::drawOne(std::uint64_t row, int top) {
    drawRow(m_memoryDC, row, RECT{0, top, kWidth, top + kRowHeight});
    ::BitBlt(m_windowDC, 0, top, kWidth, kRowHeight, m_memoryDC, 0, top, SRCCOPY);
}

} // namespace scene
