#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <OrtinControls/OrtinControls.h>
#include <support/TopLevelWindow.h>

/// One picture drawn in three ways: by the table, by the platform's list view, and by the bare calls that no control
/// can do without.
namespace scene {

inline constexpr int kWidth = 1180;
inline constexpr int kHeight = 760;
inline constexpr int kRowHeight = 14;
inline constexpr int kColumns = 8;
inline constexpr int kColumnWidth = 144;

/// The text of a cell, the same in each of the three; `row` counts from 0.
const std::wstring& cellText(std::uint64_t row, int column);

/// A font whose rows are as high as they are here.
class Font {
public:
    Font();
    HFONT handle() { return static_cast<HFONT>(m_font.GetSafeHandle()); }

private:
    CFont m_font;
};

/// The calls that draw a row: one a cell.
void drawRow(HDC dc, std::uint64_t row, const RECT& rect);

/// A host that does the least.
class Host : public ITableHandler {
public:
    explicit Host(HFONT font) : m_font(font) {}

    int caret = -1;
    bool optimised = false;
    /// The word whose strip `RefreshView` invalidates, 0 for none.
    std::uint64_t ticked = 0;
    std::vector<std::pair<unsigned __int64, int>> sorted;
    const std::vector<std::uint32_t>* keys = nullptr;

    int DrawItem(CDC& dc, int row, const CRect& rect) override;
    void SetTableView(ITableView* view) override { m_view = view; }
    void SetListCtrl(CWnd* list) override { m_list = list; }
    using ITableHandler::OnKey;
    int OnKey(unsigned int) override { return -1; }
    void OnItemClick(int row, const CPoint&, bool, unsigned int) override { caret = row; }
    int GetSelectedItem() const override { return caret; }
    void PrepareDraw() override {}
    void TableHandlerReservedA() override {}
    void TableHandlerReservedB() override {}
    int ComputeItemHeight(int) override { return kRowHeight; }
    void SetSelectedItem(int row, bool) override { caret = row; }
    void RefreshView() override;
    int GetOptimalColumnWidth(int) override { return -1; }
    void OnElementsSorted() override {}
    bool UseOptimalisation() const override { return optimised; }
    bool IsPaintEnabled() override { return true; }
    bool CanPaint() override { return true; }
    std::vector<std::pair<unsigned __int64, int>> SortElements(bool) override { return sorted; }
    bool CompareElementsViaColumn(unsigned __int64 a, unsigned __int64 b, int) const override {
        return (*keys)[a - 1] < (*keys)[b - 1];
    }

private:
    HFONT m_font;
    ITableView* m_view = nullptr;
    CWnd* m_list = nullptr;
};

/// A table of the size that is measured, in a window on the screen. Row words are the row index plus 1.
class Table {
public:
    explicit Table(int rows);
    ~Table();

    void fill(int rows);
    void repaint();

    Font font;
    Host host{font.handle()};
    TableCtrl table;
    CWnd& body() { return *table.GetDlgItem(11112); }

private:
    support::ScopedTopLevelWindow m_window;
};

/// The platform's list view with the same rows, told on demand.
class ListView {
public:
    /// `stored`: the control keeps the items, else the owner does.
    explicit ListView(int rows, bool stored = false);

    void repaint();
    HWND handle() const { return m_list; }

private:
    Font m_font;
    support::ScopedTopLevelWindow m_window;
    HWND m_list;
    std::wstring m_text;
};

/// The bare calls on a memory bitmap, copied to a window.
class BareSurface {
public:
    BareSurface();
    ~BareSurface();
    BareSurface(const BareSurface&) = delete;
    BareSurface& operator=(const BareSurface&) = delete;

    void drawAll(std::uint64_t firstRow = 0);
    void drawOne(std::uint64_t row, int top);

private:
    Font m_font;
    support::ScopedTopLevelWindow m_window;
    HDC m_windowDC;
    HDC m_memoryDC;
    HBITMAP m_bitmap;
};

} // namespace scene
