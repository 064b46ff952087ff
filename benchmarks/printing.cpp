// How fast a table is divided into pages, and a preview scrolls.
#include "Scenario.h"
#include "TableScene.h"

#include <cstdint>
#include <optional>
#include <stdexcept>

#include "support/ImportPatch.h"

namespace {

constexpr int kManyRows = 1'000'000;
constexpr int kRowsOfAPage = 60;
constexpr int kMargin = 10;
constexpr int kPages = 40;
constexpr CSize kSheet(794, 1123);
constexpr CSize kView(900, 760);
constexpr int kPreviewId = 5;

int WINAPI capsOfTheSheet(HDC, int index) {
    return index == HORZRES ? kSheet.cx : index == VERTRES ? kSheet.cy : 96;
}

/// A table in a window, and what a run of it takes.
struct Printed {
    explicit Printed(int count) {
        table.Create(1, &window, false);
        table.SetTableHandler(&host);
        table.MoveWindow(0, 0, scene::kWidth, scene::kHeight);
        for (int row = 1; row <= count; ++row) {
            rows.emplace_back(static_cast<unsigned __int64>(row), scene::kRowHeight);
        }
        table.InsertItems(rows, 0, 0);
        dc.CreateCompatibleDC(nullptr);
    }
    ~Printed() { table.DestroyWindow(); }
    Printed(const Printed&) = delete;
    Printed& operator=(const Printed&) = delete;

    std::vector<std::pair<unsigned __int64, int>> rows;
    scene::Font font;
    scene::Host host{font.handle()};
    support::ScopedTopLevelWindow window{kView};
    TableCtrlPrintable table;
    PrintDialogContext context;
    PrintInfoEx info{&context};
    CDC dc;
};

void divide(bench::Results& results) {
    Printed printed(kManyRows);
    volatile std::int64_t sink = 0;
    results.measure({.what = "pages of 1,000,000 rows (limit: one pass over the heights)",
                     .ours = {.run = [&] { printed.table.OnBeginPrinting(&printed.dc, &printed.info); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    std::int64_t sum = 0;
                                                    for (const auto& row : printed.rows) {
                                                        sum += row.second;
                                                    }
                                                    sink = sum;
                                                }},
                     .goals = {.toLimit = 3}});
}

void page(bench::Results& results) {
    const support::ImportPatch caps(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "GetDeviceCaps",
                                    capsOfTheSheet);
    Printed printed(kRowsOfAPage);
    CBitmap sheet;
    CClientDC screen(&printed.window);
    sheet.CreateCompatibleBitmap(&screen, kSheet.cx, kSheet.cy);
    const CXTPBitmapDC selected(&printed.dc, &sheet);
    TableCtrlPrintable& table = printed.table;
    PrintInfoEx& info = printed.info;
    CDC& dc = printed.dc;
    table.OnBeginPrinting(&dc, &info);
    if (info.TotalPageCount() != 1) {
        throw std::logic_error("the rows are to fill one page");
    }
    info.SetCurrentPage(1);
    const CRect area = info.PrintAreaInObjectUnits();
    results.measure({.what = "a printed page of 60 rows (limit: its text calls)",
                     .ours = {.run = [&] { table.OnPrint(&dc, &info); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    ::SelectObject(dc, printed.font.handle());
                                                    for (int row = 0; row < kRowsOfAPage; ++row) {
                                                        const int top = area.top + kMargin + row * scene::kRowHeight;
                                                        scene::drawRow(dc, static_cast<std::uint64_t>(row),
                                                                       CRect(area.left + kMargin, top, area.right,
                                                                             top + scene::kRowHeight));
                                                    }
                                                }},
                     .goals = {.toLimit = 1.3}});
}

/// Pages that cost nothing to draw.
class WhitePages : public IPrintable {
public:
    const std::wstring& PrintTitle() const override { return m_title; }
    int OnPreparePrinting(PrintInfo*) override { return 1; }
    void OnPrepareDC(CDC*, PrintInfo*) override {}
    void OnBeginPrinting(CDC*, PrintInfo* info) override {
        info->Update(kPages);
        info->PrintAreaInObjectUnits(CRect(CPoint(0, 0), kSheet));
    }
    void OnPrint(CDC*, PrintInfo*) override {}
    void OnEndPrinting(CDC*, PrintInfo*) override {}
    void OnPrintingFinished() override {}
    bool IsPrintAborted() const override { return false; }
    CWnd* AssociatedWindow() const override { return nullptr; }

private:
    std::wstring m_title;
};

class HalfSizePreview : public PrintPreviewWindow {
public:
    void halve() { ChangePreviewAreaScale(-0.5); }
};

/// The stretching of two pages at half their size onto a window.
class BareStretching {
public:
    BareStretching() : m_target(&m_window) {
        m_page.CreateCompatibleBitmap(&m_target, kSheet.cx, kSheet.cy);
        m_source.CreateCompatibleDC(&m_target);
        m_selectedPage.emplace(&m_source, &m_page);
        m_source.PatBlt(0, 0, kSheet.cx, kSheet.cy, WHITENESS);
        m_target.SetStretchBltMode(HALFTONE);
    }

    void draw(int scrolled) {
        const CSize size(kSheet.cx / 2, kSheet.cy / 2);
        for (const int place : {0, 1}) {
            m_target.StretchBlt(250, 5 + place * (size.cy + 15) - scrolled, size.cx, size.cy, &m_source, 0, 0,
                                kSheet.cx, kSheet.cy, SRCCOPY);
        }
    }

private:
    support::ScopedTopLevelWindow m_window{kView};
    CClientDC m_target;
    CBitmap m_page;
    CDC m_source;
    std::optional<CXTPBitmapDC> m_selectedPage;
};

void scroll(bench::Results& results) {
    const support::ImportPatch caps(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "GetDeviceCaps",
                                    capsOfTheSheet);
    support::ScopedTopLevelWindow window(kView);
    CStatic placeholder;
    placeholder.Create(L"", WS_CHILD | WS_VISIBLE, CRect(CPoint(0, 0), kView), &window, kPreviewId);
    WhitePages pages;
    PrintDialogContext context;
    PrintInfoEx info(&context);
    HalfSizePreview preview;
    preview.Init(&info, &pages);
    preview.Create(kPreviewId, &window);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    preview.Update(dc);
    preview.halve();
    preview.UpdateWindow();
    BareStretching limit;
    window.BringWindowToTop();
    bool down = false;
    bool limitDown = false;
    results.measure({.what = "a scroll step of a preview (limit: StretchBlt of its two pages)",
                     .ours = {.run =
                                  [&] {
                                      down = !down;
                                      preview.SendMessage(WM_VSCROLL, down ? SB_LINEDOWN : SB_LINEUP);
                                      preview.UpdateWindow();
                                      ::GdiFlush();
                                  }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    limitDown = !limitDown;
                                                    limit.draw(limitDown ? 25 : 0);
                                                    ::GdiFlush();
                                                }},
                     .goals = {.toLimit = 1.5}});
    preview.DestroyWindow();
}

void measurePrinting(bench::Results& results) {
    divide(results);
    page(results);
    scroll(results);
}

const bench::Registered printing{{"printing", measurePrinting}};

} // namespace
