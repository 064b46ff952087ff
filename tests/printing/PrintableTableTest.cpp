#include "PrintableFixture.h"

#include <limits>

#include "support/Capture.h"
#include "support/ImportPatch.h"
#include "table/Printers.h"

namespace {

class PrintableTable : public PrintableFixture {};

/// Notes what a table offers.
class OfferedChoices : public PrintInfo {
public:
    void EnablePrintOption(EPrintOption option, bool enable) override {
        text += (enable ? "+" : "-") + std::to_string(option) + ' ';
    }
    void AddPrintOption(unsigned int id, CString name) override {
        text += "added " + std::to_string(id);
        added = name;
    }
    void EnableFitToPage(bool) override { text += "fit "; }

    std::string text;
    CString added;
};

struct Selection {
    const char* what;
    int anchor;
    int caret;
    CPoint start;
    CPoint end;
    bool offered;
};

LONGLONG S_ticks;

BOOL WINAPI testCounter(LARGE_INTEGER* counter) {
    counter->QuadPart = S_ticks;
    return TRUE;
}

constexpr int kMost = std::numeric_limits<int>::max();

} // namespace

TEST_F(PrintableTable, TakesItsTitleFromTheHandler) {
    handler.setTitle(L"Notowania");
    EXPECT_EQ(L"Notowania", table.PrintTitle());
    const TableCtrlPrintable withoutHandler;
    EXPECT_EQ(L"", withoutHandler.PrintTitle());
}

TEST_F(PrintableTable, OffersSelectionPagesAndTheVisibleArea) {
    OfferedChoices choices;
    handler.anchor = 3;
    handler.caret = 4;
    handler.record({"GetSelectedItemStart", "GetSelectedItem", "GetSelectedPositionStartEnd"});
    EXPECT_EQ(1, table.OnPreparePrinting(&choices));
    EXPECT_EQ("+4 +2 added 0", choices.text);
    EXPECT_STREQ(L"Widoczny obszar", choices.added);
    EXPECT_EQ("GetSelectedItemStart GetSelectedItem GetSelectedPositionStartEnd", handler.takeLog());
}

TEST_F(PrintableTable, OffersASelectionOfMoreThanOneCell) {
    const Selection cases[] = {
        {"one cell", 3, 3, {1, 3}, {1, 3}, false},
        {"nothing", -1, -1, {0, 0}, {0, 0}, false},
        {"two rows", 3, 4, {1, 3}, {1, 3}, true},
        {"two rows from below", 4, 3, {1, 3}, {1, 3}, true},
        {"a block in one row", 3, 3, {1, 3}, {2, 3}, true},
        {"a block to the left does not count", 3, 3, {2, 3}, {1, 3}, false},
        {"a block of positions downwards", 3, 3, {1, 3}, {1, 4}, true},
        {"a block of positions upwards does not count", 3, 3, {1, 4}, {1, 3}, false},
        {"rows at the ends of int", -1, kMost, {0, 0}, {0, 0}, true},
        {"positions at the ends of int", 3, 3, {-kMost, 0}, {kMost, 0}, true},
    };
    for (const Selection& one : cases) {
        handler.anchor = one.anchor;
        handler.caret = one.caret;
        handler.positionStart = one.start;
        handler.position = one.end;
        OfferedChoices choices;
        table.OnPreparePrinting(&choices);
        EXPECT_EQ(one.offered ? "+4 +2 added 0" : "-4 +2 added 0", choices.text) << one.what;
    }
}

TEST_F(PrintableTable, IgnoresMissingContextsAndStates) {
    SheetDevice device(kFiveRows);
    addRows(10);
    begin(device.dc());
    info.SetCurrentPage(1);
    handler.record({"DrawItem", "DrawPrintRequestedItems"});
    EXPECT_EQ(1, table.OnPreparePrinting(nullptr));
    table.OnPrepareDC(nullptr, &info);
    table.OnPrepareDC(device.dc(), nullptr);
    table.OnBeginPrinting(nullptr, &info);
    table.OnBeginPrinting(device.dc(), nullptr);
    table.OnPrint(nullptr, &info);
    table.OnPrint(device.dc(), nullptr);
    EXPECT_EQ("", handler.takeLog());
    EXPECT_EQ(3, info.TotalPageCount());
    table.OnEndPrinting(nullptr, nullptr);
    table.OnPrintingFinished();
}

TEST_F(PrintableTable, WithoutAHandlerOrWindowPrintsNothing) {
    SheetDevice device(kFiveRows);
    TableCtrlPrintable bare;
    OfferedChoices choices;
    EXPECT_EQ(1, bare.OnPreparePrinting(&choices));
    EXPECT_EQ("-4 +2 added 0", choices.text);
    for (const EPrintOption option : {PrintOptionAll, PrintOptionSelection, PrintOptionCustom}) {
        context.PrintOption(option);
        info.Update(7);
        bare.OnBeginPrinting(device.dc(), &info);
        EXPECT_EQ(0, info.TotalPageCount());
    }
    info.SetCurrentPage(1);
    bare.OnPrint(device.dc(), &info);
    bare.OnEndPrinting(device.dc(), &info);
    EXPECT_EQ(nullptr, bare.AssociatedWindow());
    EXPECT_FALSE(bare.IsPrintAborted());
}

TEST_F(PrintableTable, StandsInItsParentWindow) {
    EXPECT_EQ(&window, table.AssociatedWindow());
    CStatic pane;
    pane.Create(L"", WS_CHILD, CRect(0, 0, 80, 80), &window, 500);
    TableCtrlPrintable inner;
    inner.Create(78, &pane, false);
    EXPECT_EQ(&pane, inner.AssociatedWindow()) << "not the dialog around it";
    EXPECT_FALSE(table.IsPrintAborted());
}

TEST_F(PrintableTable, OfAnEmptyTableHasNoPages) {
    SheetDevice device(kFiveRows);
    EXPECT_EQ(0, begin(device.dc(), PrintOptionAll));
    EXPECT_EQ(0, begin(device.dc(), PrintOptionPages));
    EXPECT_EQ(0, begin(device.dc(), PrintOptionSelection));
    EXPECT_EQ(0, begin(device.dc(), PrintOptionCustom));
}

TEST_F(PrintableTable, BreaksPagesOneRowEarly) {
    SheetDevice device(kFiveRows);
    addRows(10);
    EXPECT_EQ(3, begin(device.dc()));
    EXPECT_EQ("0-2 3-6 7-9", rowsOfPages(device.dc()));
}

TEST_F(PrintableTable, PrintsRowsThatJustFailToFitOnTheLastPage) {
    SheetDevice device({96, 420, 45});
    addRows(4, 10);
    EXPECT_EQ(2, begin(device.dc()));
    EXPECT_EQ("0-0 1-3", rowsOfPages(device.dc()));
}

TEST_F(PrintableTable, IsDividedTheSameWayForARangeOfPages) {
    SheetDevice device(kFiveRows);
    addRows(10);
    context.FromPage(3);
    context.ToPage(2);
    EXPECT_EQ(3, begin(device.dc(), PrintOptionPages));
    EXPECT_EQ("0-2 3-6 7-9", rowsOfPages(device.dc()));
    EXPECT_EQ(2, info.PagesToPrintCount());
}

TEST_F(PrintableTable, PrintsTheSelectedRows) {
    SheetDevice device(kFiveRows);
    addRows(20);
    handler.anchor = 12;
    handler.caret = 4;
    EXPECT_EQ(2, begin(device.dc(), PrintOptionSelection));
    EXPECT_EQ("4-6 7-12", rowsOfPages(device.dc()));
}

TEST_F(PrintableTable, PrintsABlockInOneRowOnOnePage) {
    SheetDevice device(kFiveRows);
    addRows(20);
    handler.anchor = 4;
    handler.caret = 4;
    handler.positionStart = CPoint(1, 4);
    handler.position = CPoint(2, 4);
    table.OnPreparePrinting(&info);
    EXPECT_EQ(PrintOptionSelection, info.GetFlags() & PrintOptionSelection);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionSelection));
    EXPECT_EQ("4-4", rowsOfPages(device.dc()));
    EXPECT_EQ("DrawItem(4,10,30)", printPage(device.dc(), 1));
}

TEST_F(PrintableTable, OfASelectionOutsideTheRowsPrintsThoseThatExist) {
    SheetDevice device(kFiveRows);
    addRows(2);
    handler.anchor = -1;
    handler.caret = -1;
    EXPECT_EQ(1, begin(device.dc(), PrintOptionSelection));
    EXPECT_EQ("", printPage(device.dc(), 1));
    handler.anchor = 1;
    handler.caret = kMost;
    EXPECT_EQ(1, begin(device.dc(), PrintOptionSelection));
    EXPECT_EQ("DrawItem(1,10,30)", printPage(device.dc(), 1));
}

TEST_F(PrintableTable, PrintsAllRowsOfAViewThatShowsThemAll) {
    SheetDevice device(kFiveRows);
    addRows(4);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("0-3", rowsOfPages(device.dc()));
}

TEST_F(PrintableTable, PrintsTheRowThatTheViewShowsInPart) {
    SheetDevice device(kFiveRows);
    sizeBody(50);
    addRows(20);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("0-2", rowsOfPages(device.dc()));
    ::SetScrollPos(::GetDlgItem(table, 11112), SB_VERT, 30, TRUE);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("1-4", rowsOfPages(device.dc()));
}

TEST_F(PrintableTable, DividesTheVisibleRowsToo) {
    SheetDevice device({96, 420, 65});
    sizeBody(90);
    addRows(20);
    EXPECT_EQ(2, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("0-0 1-4", rowsOfPages(device.dc()));
}

TEST_F(PrintableTable, CountsTheRowsInViewFromTheTopWhileTheContentRuns) {
    SheetDevice device(kFiveRows);
    sizeBody(50);
    addRows(20);
    const support::ImportPatch clock(::GetModuleHandleW(L"OrtinControls.dll"), "KERNEL32.dll",
                                     "QueryPerformanceCounter", testCounter);
    LARGE_INTEGER frequency{};
    ::QueryPerformanceFrequency(&frequency);
    handler.autoscroll = true;
    const auto runFor = [&](int seconds) { // 20 pixels in each
        S_ticks += seconds * frequency.QuadPart;
        ::InvalidateRect(::GetDlgItem(table, 11112), nullptr, FALSE);
        support::pumpUntilIdle();
    };
    runFor(0);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("0-2", rowsOfPages(device.dc()));
    runFor(3);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("0-2", rowsOfPages(device.dc())) << "there is no scroll position";
    handler.autoscroll = false;
    runFor(0);
    EXPECT_EQ(1, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ("3-5", rowsOfPages(device.dc())) << "where it has stopped";
}

TEST_F(PrintableTable, HasNoPagesForChoicesOfOthers) {
    SheetDevice device(kFiveRows);
    addRows(4);
    EXPECT_EQ(1, begin(device.dc())) << "and none is left from before";
    context.CustomPrintOptionId(1);
    EXPECT_EQ(0, begin(device.dc(), PrintOptionCustom));
    EXPECT_EQ(0, begin(device.dc(), static_cast<EPrintOption>(3)));
    EXPECT_EQ(0, begin(device.dc(), static_cast<EPrintOption>(0)));
}

TEST_F(PrintableTable, FillsTheWidthOfTheSheetWithTheTableAndItsMargins) {
    for (const Sheet& sheet : kSheets) {
        SheetDevice device(sheet);
        begin(device.dc());
        const CRect area = info.PrintAreaInObjectUnits();
        EXPECT_EQ(CPoint(0, 0), area.TopLeft());
        EXPECT_EQ(420, area.Width());
        EXPECT_NEAR(420.0 * sheet.height / sheet.width, area.Height(), 0.5);
    }
}

TEST_F(PrintableTable, HasTheSameLayoutAtEveryResolution) {
    addRows(100);
    std::set<std::string> layouts;
    for (const Sheet& sheet : kSheets) {
        SheetDevice device(sheet);
        begin(device.dc());
        std::string layout = rowsOfPages(device.dc()) + '\n';
        for (int page = 1; page <= info.TotalPageCount(); ++page) {
            layout += printPage(device.dc(), page) + '\n';
        }
        EXPECT_EQ(0U, layout.find("0-26 27-54 55-82 83-99\nDrawItem(0,10,30) DrawItem(1,30,50)")) << layout;
        layouts.insert(layout);
    }
    EXPECT_EQ(1U, layouts.size());
}

TEST_F(PrintableTable, BeginsAtTheWindowOriginOfTheContext) {
    SheetDevice device({96, 840, 240});
    addRows(10);
    device.dc()->SetWindowOrg(100, 50);
    begin(device.dc());
    EXPECT_EQ(CRect(100, 50, 520, 170), info.PrintAreaInObjectUnits());
    EXPECT_EQ("DrawPrintRequestedItems(0,2,110,60,510,160,10)", printPage(device.dc(), 1, "DrawPrintRequestedItems"));
    EXPECT_EQ("0-2 3-6 7-9", rowsOfPages(device.dc())) << "the room is that of five rows wherever it begins";
}

TEST_F(PrintableTable, KeepsTheMarginsThatADerivedTableSets) {
    SheetDevice device({96, 500, 200});
    addRows(3);
    table.m_marginLeft = 70;
    table.m_marginTop = 5;
    table.m_marginRight = 30;
    table.m_marginBottom = 15;
    begin(device.dc());
    EXPECT_EQ("DrawPrintRequestedItems(0,2,70,5,470,185,3)", printPage(device.dc(), 1, "DrawPrintRequestedItems"));
    EXPECT_EQ("DrawItem(0,5,25) DrawItem(1,25,45) DrawItem(2,45,65)", printPage(device.dc(), 1));
    addRows(9);
    begin(device.dc());
    EXPECT_EQ("0-6 7-11", rowsOfPages(device.dc())) << "180 pixels for rows";
}

TEST_F(PrintableTable, PutsEachRowUnderWhatTheOneBeforeTook) {
    SheetDevice device(kFiveRows);
    addRows(3, 20);
    handler.heights = {{1, 33}};
    begin(device.dc());
    EXPECT_EQ("DrawItem(0,10,30) DrawItem(1,43,63) DrawItem(2,63,83)", printPage(device.dc(), 1))
        << "a row's rectangle has the stored height, the next one begins below the height that was drawn";
}

TEST_F(PrintableTable, LeavesThePageToAHandlerThatPrintsItself) {
    SheetDevice device(kFiveRows);
    addRows(10);
    begin(device.dc());
    handler.printsItself = true;
    info.SetCurrentPage(2);
    handler.recordAllBut({});
    table.OnPrint(device.dc(), &info);
    EXPECT_EQ("DrawPrintRequestedItems(3,6,10,10,410,110,10)", handler.takeLog());
}

TEST_F(PrintableTable, AsksTheHandlerForThePageBeforeItsRows) {
    SheetDevice device(kFiveRows);
    addRows(2);
    handler.recordAllBut({});
    begin(device.dc());
    info.SetCurrentPage(1);
    table.OnPrepareDC(device.dc(), &info);
    table.OnPrint(device.dc(), &info);
    EXPECT_EQ("DrawPrintRequestedItems(0,1,10,10,410,110,2) DrawItem(0,10,30) DrawItem(1,30,50)", handler.takeLog());
}

TEST_F(PrintableTable, DrawsNothingForAPageThatTheRunDoesNotHave) {
    SheetDevice device(kFiveRows);
    addRows(10);
    EXPECT_EQ("", printPage(device.dc(), 1, "DrawPrintRequestedItems")) << "before the run";
    begin(device.dc());
    for (const int page : {0, -1, 4, kMost, -kMost - 1}) {
        EXPECT_EQ("", printPage(device.dc(), page, "DrawPrintRequestedItems")) << page;
    }
    table.OnEndPrinting(device.dc(), &info);
    EXPECT_EQ("", printPage(device.dc(), 1, "DrawPrintRequestedItems")) << "after the run";
}

TEST_F(PrintableTable, PrintsARowTallerThanThePage) {
    SheetDevice device(kFiveRows);
    handler.heights = {{1, 500}};
    addRows(1);
    EXPECT_EQ(1, begin(device.dc()));
    EXPECT_EQ("DrawItem(0,10,510)", printPage(device.dc(), 1));
    addRows(2);
    EXPECT_EQ(3, begin(device.dc()));
    EXPECT_EQ("0--2 -1--1 0-2", rowsOfPages(device.dc())) << "the break before the first row is meant";
    EXPECT_EQ("", printPage(device.dc(), 1));
    EXPECT_EQ("", printPage(device.dc(), 2));
    EXPECT_EQ("DrawItem(0,10,510) DrawItem(1,510,530) DrawItem(2,530,550)", printPage(device.dc(), 3));
}

TEST_F(PrintableTable, DividesAMillionRows) {
    SheetDevice device(kFiveRows);
    addRows(1'000'000);
    EXPECT_EQ(250'000, begin(device.dc()));
    EXPECT_EQ("DrawPrintRequestedItems(999995,999999,10,10,410,110,1000000)",
              printPage(device.dc(), 250'000, "DrawPrintRequestedItems"));
    EXPECT_EQ("DrawItem(3,10,30) DrawItem(4,30,50) DrawItem(5,50,70) DrawItem(6,70,90)", printPage(device.dc(), 2));
}

TEST_F(PrintableTable, RepaintsAllOfItselfAfterTheRun) {
    SheetDevice device(kFiveRows);
    addRows(10);
    begin(device.dc());
    table.erased = false;
    table.OnEndPrinting(device.dc(), &info);
    CRect update;
    EXPECT_TRUE(table.GetUpdateRect(&update));
    CRect client;
    table.GetClientRect(&client);
    EXPECT_EQ(client, update);
    EXPECT_TRUE(::GetUpdateRect(::GetDlgItem(table, 11112), nullptr, FALSE));
    PAINTSTRUCT paint{};
    ::BeginPaint(table, &paint);
    ::EndPaint(table, &paint);
    EXPECT_TRUE(table.erased);
}

TEST_F(PrintableTable, DrawsItsRowsScaledOntoThePage) {
    SheetDevice device({192, 840, 240});
    const support::MemoryDevice paper(840, 240);
    CDC dc;
    dc.Attach(paper.dc());
    addRows(3);
    begin(&dc);
    printPage(&dc, 1);
    dc.Detach();
    const support::Pixels pixels = paper.pixels();
    for (int row = 0; row < 3; ++row) {
        const RECT rect{20, 20 + row * 40, 820, 60 + row * 40};
        EXPECT_EQ(RecordingHandler::colourOf(static_cast<unsigned __int64>(row) + 1), pixels.onlyColour(rect));
    }
    EXPECT_EQ(RGB(255, 255, 255), pixels.onlyColour({0, 140, 840, 240}));
    EXPECT_EQ(RGB(255, 255, 255), pixels.onlyColour({0, 0, 20, 240}));
}
