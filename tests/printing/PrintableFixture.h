#pragma once

#include <string>

#include <OrtinControls/OrtinControls.h>
#include <gtest/gtest.h>

#include "SheetDevice.h"
#include "support/Pump.h"
#include "support/TopLevelWindow.h"
#include "table/RecordingHandler.h"

/// A printable table with what hosts that derive from it can reach.
class ReachablePrintable : public TableCtrlPrintable {
public:
    using TableCtrlPrintable::m_blackWhiteContrast;
    using TableCtrlPrintable::m_blackWhitePrinting;
    using TableCtrlPrintable::m_marginBottom;
    using TableCtrlPrintable::m_marginLeft;
    using TableCtrlPrintable::m_marginRight;
    using TableCtrlPrintable::m_marginTop;

    bool erased = false;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        erased = erased || message == WM_ERASEBKGND;
        return TableCtrlPrintable::WindowProc(message, wParam, lParam);
    }
};

class TitledHandler : public RecordingHandler {
public:
    void setTitle(const wchar_t* title) { m_caption = title; }
};

/// A printable table of 400 pixels in width, in a window, with a recording host of rows of 20 pixels.
class PrintableFixture : public testing::Test {
protected:
    /// As wide as the table with its margins, and five rows high within them.
    static constexpr Sheet kFiveRows{96, 420, 120};

    PrintableFixture() {
        table.Create(77, &window, false);
        table.SetTableHandler(&handler);
        table.SetColumns({{L"A", 1.0}});
        sizeBody(300);
        handler.recordAllBut({"DrawItem"});
    }
    ~PrintableFixture() override {
        // A misbehaviour ends with its test: the windows are taken down undisturbed.
        handler.onCall = nullptr;
        table.DestroyWindow();
    }

    void addRows(int count, int height = 20) {
        std::vector<std::pair<unsigned __int64, int>> rows;
        for (int row = 1; row <= count; ++row) {
            rows.emplace_back(table.GetItemCount() + row, height);
        }
        handler.rowHeight = height;
        table.InsertItems(rows, table.GetItemCount(), 0);
        table.UpdateVScroll();
        support::pumpUntilIdle();
        handler.takeLog();
    }

    void sizeBody(int height) {
        table.MoveWindow(0, 0, 400, table.GetHeaderHeight() + height);
        support::pumpUntilIdle();
        handler.takeLog();
    }

    /// Gives the number of pages.
    int begin(CDC* dc, EPrintOption option = PrintOptionAll) {
        context.PrintOption(option);
        table.OnBeginPrinting(dc, &info);
        return info.TotalPageCount();
    }

    /// What the pages draw, as the host is told: "0-2 3-6".
    std::string rowsOfPages(CDC* dc) {
        std::string text;
        for (int page = 1; page <= info.TotalPageCount(); ++page) {
            const std::string log = printPage(dc, page, "DrawPrintRequestedItems");
            const std::size_t first = log.find('(') + 1;
            const std::size_t comma = log.find(',');
            text += (page > 1 ? " " : "") + log.substr(first, comma - first) + "-" +
                    log.substr(comma + 1, log.find(',', comma + 1) - comma - 1);
        }
        return text;
    }

    /// What a page calls.
    std::string printPage(CDC* dc, int page, const std::string& callback = "DrawItem") {
        info.SetCurrentPage(page);
        table.OnPrepareDC(dc, &info);
        handler.record({callback});
        table.OnPrint(dc, &info);
        return handler.takeLog();
    }

    support::ScopedTopLevelWindow window{CSize(600, 500)};
    TitledHandler handler;
    ReachablePrintable table;
    PrintDialogContext context;
    PrintInfoEx info{&context};
};
