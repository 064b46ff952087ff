#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <stdexcept>

#include "TableFixture.h"
#include "support/ImportPatch.h"
#include "support/Pump.h"

namespace {

class TablePaint : public TableFixture {
protected:
    TablePaint() { sizeBody(200, 100); }

    static COLORREF colour(unsigned __int64 word) { return RecordingHandler::colourOf(word); }
    /// The colours down the middle of the body, one each `step` pixels from `top`.
    std::vector<COLORREF> column(const support::Pixels& pixels, int top, int step) const {
        std::vector<COLORREF> colours;
        for (int y = top; y < pixels.height(); y += step) {
            colours.push_back(pixels.at(pixels.width() / 2, y));
        }
        return colours;
    }
};

using Colours = std::vector<COLORREF>;
constexpr COLORREF kWhite = 0xFFFFFF;

} // namespace

TEST_F(TablePaint, CallsTheHandlerInItsOrderAndTheSelectedRowLast) {
    addRows({10, 11, 12});
    select(1);
    handler.recordAllBut({});
    paint();
    EXPECT_EQ("CanPaint IsPaintEnabled UseOptimalisation IsAutoscrollEnabled PrepareDraw UpdateItemPosition(0) "
              "UpdateItemPosition(1) UpdateItemPosition(2) GetSelectedItem DrawItem(0,0,20) GetSelectedItem "
              "GetSelectedItem DrawItem(2,40,60) DrawItem(1,20,40) OnDrawFinished",
              log());
}

TEST_F(TablePaint, PutsEachRowWhereItsHeightsSay) {
    handler.heights = {{11, 35}};
    addRows({10, 11, 12});
    paint();
    const support::Pixels pixels = bodyPixels();
    EXPECT_EQ(colour(10), pixels.onlyColour(CRect(0, 0, 200, 20)));
    EXPECT_EQ(colour(11), pixels.onlyColour(CRect(0, 20, 200, 55)));
    EXPECT_EQ(colour(12), pixels.onlyColour(CRect(0, 55, 200, 75)));
    EXPECT_EQ(kWhite, pixels.onlyColour(CRect(0, 75, 200, 100)));
}

TEST_F(TablePaint, FillsWhatIsLeftInTheColourOfTheTheme) {
    struct Case {
        int theme;
        COLORREF colour;
    };
    addRows({10});
    for (const Case& c : {Case{0, 0xFFFFFF}, Case{1, 0x282828}, Case{2, 0xFF00FF}, Case{-7, 0xFF00FF}}) {
        const ScopedTheme theme(c.theme);
        paint();
        EXPECT_EQ(c.colour, bodyPixels().onlyColour(CRect(0, 20, 200, 100))) << c.theme;
        EXPECT_EQ(colour(10), bodyPixels().onlyColour(CRect(0, 0, 200, 20))) << c.theme;
    }
}

TEST_F(TablePaint, FillsTheWholeClientOfAnEmptyTable) {
    paint();
    EXPECT_EQ(kWhite, bodyPixels().onlyColour(CRect(0, 0, 200, 100)));
}

TEST_F(TablePaint, FillsFromTheTotalHeightWhenTheViewLiesPastAllRows) {
    handler.optimised = true;
    addManyRows(20);
    select(-1);
    scrollTo(300);
    table.Redraw();
    for (unsigned __int64 row = 0; row < 20; ++row) {
        table.SetItemHeight(row, 4);
    }
    handler.record({"DrawItem"});
    paint();
    EXPECT_EQ("", log());
    const support::Pixels pixels = bodyPixels();
    const int right = pixels.width();
    EXPECT_EQ(kWhite, pixels.onlyColour(CRect(0, 80, right, 100)));
    EXPECT_EQ(colour(16), pixels.onlyColour(CRect(0, 0, right, 20))) << "the bitmap keeps what it had";
}

TEST_F(TablePaint, CountsARowThatTouchesTheBottomOfTheViewAsInside) {
    addManyRows(20);
    handler.record({"DrawItem"});
    paint();
    EXPECT_EQ("DrawItem(1,20,40) DrawItem(2,40,60) DrawItem(3,60,80) DrawItem(4,80,100) DrawItem(5,100,120) "
              "DrawItem(0,0,20)",
              log());
    table.InvalidateView(6);
    handler.record({"RefreshView"});
    table.InvalidateView(6);
    EXPECT_EQ("RefreshView", log()) << "the sixth word is on screen, the seventh is not";
    table.InvalidateView(7);
    EXPECT_EQ("", log());
}

TEST_F(TablePaint, BeginsWithTheRowThatHoldsTheScrollPosition) {
    addManyRows(20);
    select(-1);
    handler.record({"DrawItem"});
    scrollTo(39);
    paint();
    EXPECT_EQ("DrawItem(1,-19,1) DrawItem(2,1,21) DrawItem(3,21,41) DrawItem(4,41,61) DrawItem(5,61,81) "
              "DrawItem(6,81,101)",
              log());
    scrollTo(40);
    paint();
    EXPECT_EQ("DrawItem(2,0,20) DrawItem(3,20,40) DrawItem(4,40,60) DrawItem(5,60,80) DrawItem(6,80,100) "
              "DrawItem(7,100,120)",
              log());
}

TEST_F(TablePaint, RowsWithoutHeightAreDrawnWhereTheyLie) {
    handler.heights = {{11, 0}};
    addRows({10, 11, 12});
    handler.record({"DrawItem"});
    paint();
    EXPECT_EQ("DrawItem(1,20,20) DrawItem(2,20,40) DrawItem(0,0,20)", log());
}

// The gates.

TEST_F(TablePaint, PassesTwoGatesAndOtherwiseKeepsItsPixels) {
    addRows({10});
    paint();
    const support::Pixels before = bodyPixels();
    table.SetItemData(0, 11);
    handler.recordAllBut({});
    handler.canPaint = false;
    paint();
    EXPECT_EQ("CanPaint", log());
    handler.canPaint = true;
    handler.paintEnabled = false;
    paint();
    EXPECT_EQ("CanPaint IsPaintEnabled", log());
    EXPECT_FALSE(::GetUpdateRect(body(), nullptr, FALSE)) << "the window is validated";
    EXPECT_TRUE(samePixels(bodyPixels(), before));
    table.Redraw();
    EXPECT_EQ("CanPaint IsPaintEnabled", log());
    handler.paintEnabled = true;
    paint();
    EXPECT_EQ(colour(11), bodyPixels().at(5, 5));
}

TEST_F(TablePaint, IsNotErasedBefore) {
    addRows({10});
    paint();
    const support::Pixels before = bodyPixels();
    const HDC dc = ::GetDC(body());
    EXPECT_EQ(1, ::SendMessageW(body(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0));
    ::ReleaseDC(body(), dc);
    EXPECT_TRUE(samePixels(bodyPixels(), before));
}

TEST_F(TablePaint, WithoutAHandlerStopsBeforeAnythingIsDrawn) {
    ReachableTable bare;
    ASSERT_NE(0, bare.Create(78, &host, false));
    bare.MoveWindow(200, 0, 100, 100);
    ::RedrawWindow(::GetDlgItem(bare.m_hWnd, kBodyId), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_FALSE(::GetUpdateRect(::GetDlgItem(bare.m_hWnd, kBodyId), nullptr, FALSE));
}

// Optimised mode.

TEST_F(TablePaint, OptimisedWithNothingDirtyDrawsOnlyTheSelectedRow) {
    handler.optimised = true;
    addRows({10, 11, 12});
    select(2);
    paint();
    handler.record({"DrawItem"});
    paint();
    EXPECT_EQ("DrawItem(2,40,60)", log());
    select(-1);
    paint();
    EXPECT_EQ("", log());
}

TEST_F(TablePaint, OptimisedDrawsTheDirtyRowsAndTheSelectedOne) {
    handler.optimised = true;
    addRows({10, 11, 12, 13});
    paint();
    handler.record({"DrawItem", "RefreshView", "UseOptimalisation"});
    table.InvalidateView(12);
    EXPECT_EQ("UseOptimalisation RefreshView", log());
    paint();
    EXPECT_EQ("UseOptimalisation DrawItem(2,40,60) DrawItem(0,0,20)", log());
    paint();
    EXPECT_EQ("UseOptimalisation DrawItem(0,0,20)", log()) << "painted once";
}

TEST_F(TablePaint, OptimisedKeepsTheRowsThatAreNotDirty) {
    handler.optimised = true;
    addRows({10, 11, 12});
    select(-1);
    paint();
    table.SetItemData(0, 20);
    table.SetItemData(2, 22);
    paint();
    EXPECT_EQ((Colours{colour(10), colour(11), colour(12), kWhite, kWhite}), column(bodyPixels(), 10, 20));
    table.InvalidateView(0);
    paint();
    EXPECT_EQ((Colours{colour(20), colour(11), colour(22), kWhite, kWhite}), column(bodyPixels(), 10, 20));
}

TEST_F(TablePaint, AMarkForAllOverridesTheMarksForRows) {
    handler.optimised = true;
    addRows({10, 11, 12});
    paint();
    table.InvalidateView(11);
    table.InvalidateView(0);
    handler.record({"DrawItem"});
    paint();
    EXPECT_EQ("DrawItem(1,20,40) DrawItem(2,40,60) DrawItem(0,0,20)", log());
    paint();
    EXPECT_EQ("DrawItem(0,0,20)", log()) << "the mark of the row has gone with the full paint";
}

TEST_F(TablePaint, OptimisedIsFullAfterWhatMovesTheRows) {
    handler.optimised = true;
    addManyRows(20);
    struct Case {
        const char* what;
        std::function<void()> change;
    };
    const Case cases[] = {
        {"a size", [this] { table.MoveWindow(0, 0, 210, 140); }},
        {"a redraw", [this] { table.Redraw(); }},
        {"an insert", [this] { table.InsertItem(90, 0); }},
        {"inserts",
         [this] {
             table.InsertItems({{91, 20}}, 0, 0);
         }},
        {"a removal", [this] { table.DeleteItem(90); }},
        {"a scroll", [this] { ::SendMessageW(body(), WM_VSCROLL, SB_LINEDOWN, 0); }},
        {"a row that comes into view", [this] { table.SelectItem(15, false); }},
        {"the highest position", [this] { table.SetVScrollMaxPos(); }},
        {"the lowest position", [this] { table.SetVScrollMinPos(); }},
        {"a fit of the columns", [this] { table.UpdateColumnWidths(-1, 0); }},
        {"a sort",
         [this] {
             handler.sorted = {{1, 20}, {2, 20}, {3, 20}};
             table.Sort();
         }},
    };
    for (const Case& c : cases) {
        paint();
        paint();
        handler.record({"DrawItem"});
        c.change();
        paint();
        const std::string drawn = log();
        EXPECT_GE(std::count(drawn.begin(), drawn.end(), 'D'), 2) << c.what << ": " << drawn;
    }
}

TEST_F(TablePaint, OptimisedIsFullAndTheBarFollowsAfterAHostThatThrewForANewRow) {
    handler.optimised = true;
    addManyRows(20);
    paint();
    const int range = scrollMaximum();
    handler.onCall = [](const std::string& callback) {
        if (callback == "ComputeItemHeight") {
            throw std::runtime_error("host");
        }
    };
    EXPECT_THROW(table.InsertItem(90, 0), std::runtime_error);
    handler.onCall = nullptr;
    handler.record({"DrawItem"});
    paint();
    const std::string drawn = log();
    EXPECT_GE(std::count(drawn.begin(), drawn.end(), 'D'), 2) << drawn;
    EXPECT_LT(range, scrollMaximum());
}

TEST_F(TablePaint, MarkingARowOffScreenRefreshesNothingAndMarkingAllAlwaysDoes) {
    addManyRows(20);
    paint();
    handler.record({"RefreshView"});
    table.InvalidateView(15);
    table.InvalidateView(999);
    EXPECT_EQ("", log());
    table.InvalidateView(2);
    EXPECT_EQ("RefreshView", log());
    table.InvalidateView(0);
    EXPECT_EQ("RefreshView", log());
    table.DeleteAllItems();
    forget();
    table.InvalidateView(0);
    EXPECT_EQ("RefreshView", log());
}

// Heights that change while drawing.

TEST_F(TablePaint, ANewHeightRestartsItAndTheFirstPassIsNotShown) {
    handler.optimised = true;
    addRows({10, 11, 12});
    paint();
    const support::Pixels before = bodyPixels();
    handler.heights = {{11, 35}};
    table.InvalidateView(11);
    int passes = 0;
    bool shownBetween = false;
    handler.onCall = [&](const std::string& callback) {
        if (callback == "PrepareDraw" && ++passes == 2) {
            shownBetween = bodyPixels() != before;
        }
    };
    handler.record({"PrepareDraw", "DrawItem", "OnDrawFinished"});
    paint();
    EXPECT_EQ("PrepareDraw DrawItem(1,20,40) DrawItem(0,0,20) PrepareDraw DrawItem(1,20,55) DrawItem(2,55,75) "
              "DrawItem(0,0,20) OnDrawFinished",
              log())
        << "the second pass is full";
    EXPECT_FALSE(shownBetween);
    EXPECT_EQ(35, table.GetItemHeight(1));
    EXPECT_EQ(colour(12), bodyPixels().onlyColour(CRect(0, 55, 200, 75)));
}

TEST_F(TablePaint, ANewHeightOfTheSelectedRowRestartsItToo) {
    addRows({10, 11});
    handler.heights = {{10, 30}};
    handler.record({"DrawItem", "OnDrawFinished"});
    paint();
    EXPECT_EQ("DrawItem(1,20,40) DrawItem(0,0,20) DrawItem(1,30,50) DrawItem(0,0,30) OnDrawFinished", log());
}

TEST_F(TablePaint, ANewHeightThatExceedsTheViewBringsTheScrollBar) {
    addRows({10, 11});
    handler.heights = {{11, 300}};
    paint();
    EXPECT_EQ(321, scrollMaximum());
    EXPECT_EQ(200 - ::GetSystemMetrics(SM_CXVSCROLL), bodySize().cx);
}

TEST_F(TablePaint, AHeightThatNeverSettlesDoesNotHangIt) {
    addRows({10, 11});
    int drawn = 0;
    handler.drawMore = [&](CDC&, int, const CRect&) { handler.heights[11] = 20 + ++drawn % 30; };
    handler.record({});
    paint();
    EXPECT_GT(drawn, 2);
}

// What is drawn around the rows.

TEST_F(TablePaint, TheFrameOfTheSelectedRowMayOverlapItsNeighbours) {
    addRows({10, 11, 12});
    select(1);
    constexpr COLORREF kFrame = RGB(255, 0, 0);
    handler.drawMore = [this](CDC& dc, int row, const CRect& rect) {
        if (row == handler.caret) {
            CRect frame = rect;
            frame.InflateRect(0, 3);
            handler.DrawCursor(dc, frame, 3, kFrame);
        }
    };
    paint();
    EXPECT_EQ(kFrame, bodyPixels().onlyColour(CRect(0, 17, 200, 20)));
    EXPECT_EQ(kFrame, bodyPixels().onlyColour(CRect(0, 40, 200, 43)));
    EXPECT_EQ(colour(12), bodyPixels().onlyColour(CRect(0, 43, 200, 60)));
}

TEST_F(TablePaint, WhatTheHostDrawsInTheEndIsShown) {
    addRows({10});
    handler.drawFinally = [](CDC& dc) { dc.FillSolidRect(30, 5, 10, 60, RGB(0, 0, 255)); };
    paint();
    EXPECT_EQ(RGB(0, 0, 255), bodyPixels().onlyColour(CRect(30, 5, 40, 65)));
    EXPECT_EQ(600U, bodyPixels().count(RGB(0, 0, 255)));
}

TEST_F(TablePaint, LeavesTheThreadOnItsProcessors) {
    const HANDLE thread = ::GetCurrentThread();
    DWORD_PTR processors = 0;
    DWORD_PTR systemProcessors = 0;
    ::GetProcessAffinityMask(::GetCurrentProcess(), &processors, &systemProcessors);
    addRows({10});
    ::SetThreadAffinityMask(thread, processors);
    DWORD_PTR whileDrawing = 0;
    handler.onCall = [&](const std::string& callback) {
        if (callback == "DrawItem") {
            whileDrawing = ::SetThreadAffinityMask(thread, processors);
        }
    };
    paint();
    EXPECT_EQ(processors, whileDrawing);
    EXPECT_EQ(processors, ::SetThreadAffinityMask(thread, processors));
}

TEST_F(TablePaint, OfATableWithoutAreaNeitherDrawsNorFails) {
    addRows({10});
    for (const CSize size : {CSize(0, 0), CSize(0, 100), CSize(100, 0), CSize(1, 1)}) {
        table.MoveWindow(0, 0, size.cx, size.cy);
        paint();
    }
    table.MoveWindow(0, 0, 200, 100);
    paint();
    EXPECT_EQ(colour(10), bodyPixels().at(5, 5));
}

// Autoscroll, with a clock that the test turns.

namespace {

constexpr LONGLONG kTicksPerSecond = 10000000;
LONGLONG S_ticks = 0;

BOOL WINAPI testCounter(LARGE_INTEGER* counter) {
    counter->QuadPart = S_ticks;
    return TRUE;
}

class TableAutoscroll : public TablePaint {
protected:
    TableAutoscroll() {
        S_ticks = 5 * kTicksPerSecond;
        LARGE_INTEGER frequency{};
        ::QueryPerformanceFrequency(&frequency);
        m_frequency = frequency.QuadPart;
        handler.record({"DrawItem", "OnDrawFinished"});
    }

    /// Lets time pass and paints.
    void paintAfter(double seconds) {
        S_ticks += std::llround(seconds * static_cast<double>(m_frequency));
        paint();
    }

    /// Turns it on where the view is; the first paint draws nothing.
    void start() {
        handler.autoscroll = true;
        paint();
        log();
    }

private:
    support::ImportPatch m_clock{::GetModuleHandleW(L"OrtinControls.dll"), "KERNEL32.dll", "QueryPerformanceCounter",
                                 &testCounter};
    LONGLONG m_frequency = 0;
};

} // namespace

TEST_F(TableAutoscroll, BeginsWhereTheViewIsWithAPaintThatDrawsNothing) {
    addManyRows(10);
    scrollTo(50);
    handler.recordAllBut({"GetSelectedItem", "UpdateItemPosition", "OnSizeTableListCtrl"});
    handler.autoscroll = true;
    paint();
    EXPECT_EQ("CanPaint IsPaintEnabled UseOptimalisation IsAutoscrollEnabled PrepareDraw", log());
    EXPECT_TRUE(::GetUpdateRect(body(), nullptr, FALSE));
    EXPECT_EQ(0, scrollMaximum()) << "as if all fitted";
    EXPECT_EQ(200, bodySize().cx);
    handler.record({"DrawItem"});
    paint();
    EXPECT_EQ("DrawItem(2,-10,10) DrawItem(3,10,30) DrawItem(4,30,50) DrawItem(5,50,70) DrawItem(6,70,90) "
              "DrawItem(7,90,110)",
              log())
        << "the selection has no part in it";
}

TEST_F(TableAutoscroll, RunsAt20PixelsASecond) {
    addManyRows(10);
    start();
    paintAfter(0.5);
    EXPECT_EQ("DrawItem(0,-10,10)", log().substr(0, 18));
    paintAfter(0.049);
    EXPECT_EQ("DrawItem(0,-10,10)", log().substr(0, 18)) << "whole pixels";
    paintAfter(0.051);
    EXPECT_EQ("DrawItem(0,-12,8)", log().substr(0, 17)) << "the parts add up";
}

TEST_F(TableAutoscroll, WrapsAtTheEndOfTheContent) {
    sizeBody(200, 60);
    handler.record({"DrawItem"});
    addManyRows(5);
    start();
    paintAfter(4.75);
    EXPECT_EQ("DrawItem(4,-15,5) DrawItem(0,5,25) DrawItem(1,25,45) DrawItem(2,45,65)", log());
    paintAfter(0.5);
    EXPECT_EQ("DrawItem(0,-5,15) DrawItem(1,15,35) DrawItem(2,35,55) DrawItem(3,55,75)", log()) << "105 is 5";
    paintAfter(1000.0);
    EXPECT_EQ("DrawItem(0,-5,15)", log().substr(0, 17)) << "also after many rounds";
}

TEST_F(TableAutoscroll, RepeatsAContentThatIsShorterThanTheView) {
    addManyRows(2);
    start();
    paint();
    EXPECT_EQ("DrawItem(0,0,20) DrawItem(1,20,40) DrawItem(0,40,60) DrawItem(1,60,80) DrawItem(0,80,100) "
              "DrawItem(1,100,120) OnDrawFinished",
              log());
    EXPECT_EQ((Colours{colour(1), colour(2), colour(1), colour(2), colour(1)}), column(bodyPixels(), 10, 20));
}

TEST_F(TableAutoscroll, TurnedOffAtAnOffsetWithAFractionScrollsToItsWholePart) {
    addManyRows(20);
    scrollTo(100);
    start();
    paintAfter(23.7 / 20.0);
    handler.autoscroll = false;
    log();
    paint();
    EXPECT_EQ("", log());
    EXPECT_EQ(123, scrollPosition());
    EXPECT_EQ(401, scrollMaximum());
    EXPECT_TRUE(::GetUpdateRect(body(), nullptr, FALSE));
    paint();
    EXPECT_EQ("DrawItem(6,-3,17)", log().substr(0, 17));
}

TEST_F(TableAutoscroll, CountsTheTimeInBothPassesWhenANewHeightRestartsIt) {
    sizeBody(200, 40);
    addManyRows(10);
    start();
    handler.record({"DrawItem", "OnDrawFinished"});
    paint();
    log();
    handler.heights = {{2, 30}};
    paintAfter(0.25);
    EXPECT_EQ("DrawItem(0,-5,15) DrawItem(1,15,35) DrawItem(2,35,55) DrawItem(0,-10,10) DrawItem(1,10,40) "
              "DrawItem(2,40,60) OnDrawFinished",
              log());
    EXPECT_EQ(30, table.GetItemHeight(1));
    EXPECT_EQ(colour(2), bodyPixels().onlyColour(CRect(0, 10, 200, 40))) << "the second pass is shown";
}

TEST_F(TableAutoscroll, OfAnEmptyTableFillsTheClient) {
    start();
    paint();
    EXPECT_EQ("OnDrawFinished", log());
    EXPECT_EQ(kWhite, bodyPixels().onlyColour(CRect(0, 0, 200, 100)));
}

TEST_F(TableAutoscroll, OfRowsWithoutHeightDoesNotHang) {
    handler.rowHeight = 0;
    addManyRows(3);
    start();
    paintAfter(1.0);
    EXPECT_EQ("OnDrawFinished", log());
    handler.heights = {{2, 1}};
    table.UpdateAllHeights();
    paintAfter(1.0);
    EXPECT_NE(std::string::npos, log().find("DrawItem(1,"));
}

// Scrolling.

TEST_F(TablePaint, EachScrollCommandMovesAndPaintsAtOnce) {
    addManyRows(20);
    handler.record({"OnDrawFinished"});
    struct Case {
        const char* what;
        int command;
        int position;
        bool painted;
    };
    const Case cases[] = {
        {"line up", SB_LINEUP, 142, true},
        {"line down", SB_LINEDOWN, 158, true},
        {"page up", SB_PAGEUP, 50, true},
        {"page down", SB_PAGEDOWN, 250, true},
        {"top", SB_TOP, 0, true},
        {"bottom", SB_BOTTOM, 301, true},
        {"thumb", SB_THUMBTRACK, 150, true},
        {"end", SB_ENDSCROLL, 150, false},
        {"unknown", 9, 150, false},
    };
    for (const Case& c : cases) {
        scrollTo(150);
        ::SendMessageW(body(), WM_VSCROLL, static_cast<WPARAM>(c.command), 0);
        EXPECT_EQ(c.position, scrollPosition()) << c.what;
        EXPECT_EQ(c.painted ? "OnDrawFinished" : "", log()) << c.what;
    }
    ::SendMessageW(body(), WM_VSCROLL, SB_TOP, 0);
    ::SendMessageW(body(), WM_VSCROLL, SB_LINEUP, 0);
    EXPECT_EQ(0, scrollPosition());
}

TEST_F(TablePaint, TheWheelMovesByAnEighthOfItsTurnAndPaintsAtOnce) {
    addManyRows(20);
    handler.record({"OnDrawFinished"});
    const auto wheel = [this](int delta) {
        ::SendMessageW(body(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(delta)), 0);
        return scrollPosition();
    };
    scrollTo(100);
    EXPECT_EQ(115, wheel(-120));
    EXPECT_EQ("OnDrawFinished", log());
    EXPECT_EQ(100, wheel(120));
    EXPECT_EQ(100, wheel(7));
    EXPECT_EQ(0, wheel(3200));
    EXPECT_EQ(301, wheel(-32000));
}

TEST_F(TablePaint, ASizeOfTheBodyUpdatesTheBarAndTellsTheHost) {
    addManyRows(5);
    handler.record({"OnSizeTableListCtrl"});
    table.MoveWindow(0, 0, 200, table.GetHeaderHeight() + 90);
    EXPECT_NE(std::string::npos, log().find("OnSizeTableListCtrl"));
    EXPECT_EQ(101, scrollMaximum());
}
