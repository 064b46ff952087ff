// The table under real mouse and keys: what the system itself adds to messages.

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "TableFixture.h"
#include "support/Pump.h"
#include "support/RealInput.h"

namespace {

class TableUnderTheHand : public TableFixture {
protected:
    TableUnderTheHand() {
        lock(true);
        sizeBody(300, 100);
        setColumns({60.0, 70.0, 80.0});
        addManyRows(20);
        host.activate();
        support::moveMouse({5, 5});
        record({"OnItemClick", "OnDblClick", "OnKey", "BeginDrag", "SelectPosition", "OnMoveColumn",
                "OnColumnWidthChanged", "GetOptimalColumnWidth"});
    }

    void record(std::set<std::string> callbacks) {
        support::pumpUntilIdle();
        handler.record(std::move(callbacks));
    }

    POINT onBody(int x, int y) const { return onScreen(body(), x, y); }
    POINT onHeader(int x) const { return onScreen(header(), x, table.GetHeaderHeight() / 2); }

    static POINT onScreen(HWND window, int x, int y) {
        POINT point{x, y};
        ::ClientToScreen(window, &point);
        return point;
    }
};

} // namespace

TEST_F(TableUnderTheHand, AClickSelectsTheRowAndTakesTheFocus) {
    ::SetFocus(host.m_hWnd);
    support::click(onBody(30, 45));
    EXPECT_EQ("OnItemClick(2,30:5,false,1)", log());
    EXPECT_EQ(body(), ::GetFocus());
}

TEST_F(TableUnderTheHand, ADoubleClickIsToldAfterItsTwoPresses) {
    support::doubleClick(onBody(30, 45));
    EXPECT_EQ("OnItemClick(2,30:5,false,1) OnItemClick(2,30:5,false,1) OnDblClick", log());
}

TEST_F(TableUnderTheHand, ADragOfARowBeginsOnce) {
    support::drag(onBody(30, 45), onBody(120, 80));
    EXPECT_EQ("OnItemClick(2,30:5,false,1) BeginDrag", log());
}

TEST_F(TableUnderTheHand, TheWheelScrollsIt) {
    support::turnWheel(onBody(30, 45), -120);
    // The body gets it once from the table before the dispatch and once by the dispatch itself.
    EXPECT_EQ(30, scrollPosition());
    support::turnWheel(onBody(30, 45), 1200);
    EXPECT_EQ(0, scrollPosition());
}

TEST_F(TableUnderTheHand, TheThumbIsDraggedThroughTheContent) {
    handler.record({"OnDrawFinished"});
    const int bar = ::GetSystemMetrics(SM_CXVSCROLL);
    const int arrow = ::GetSystemMetrics(SM_CYVSCROLL);
    const int x = bodySize().cx + bar / 2;
    // The bar tracks the thumb in a loop of its own, so the hand is on another thread.
    const POINT from = onBody(x, arrow + 4);
    const POINT to = onBody(x, 100 - arrow - 1);
    std::atomic<bool> done = false;
    std::thread hand([&] {
        support::drag(from, to);
        done = true;
    });
    EXPECT_TRUE(support::pumpUntil([&] { return done.load(); }, std::chrono::seconds(20)));
    hand.join();
    support::pumpUntilIdle();
    EXPECT_GT(scrollPosition(), 200);
    EXPECT_NE("", log()) << "painted while the thumb moves";
}

TEST_F(TableUnderTheHand, APageKeyComesOnceAndAnArrowTwiceWhereTheParentLeavesItToTheDispatch) {
    support::click(onBody(30, 45));
    log();
    support::typeKey(VK_NEXT);
    EXPECT_EQ("OnKey(34,5)", log());
    support::typeKey(VK_DOWN);
    EXPECT_EQ("OnKey(40,5) OnKey(40,5)", log());
    support::typeKey(VK_DELETE);
    EXPECT_EQ("OnKey(46)", log());
}

TEST_F(TableUnderTheHand, ABorderOfTheHeaderIsDragged) {
    support::drag(onHeader(60), onHeader(85));
    EXPECT_EQ(85, table.GetColumnWidth(0));
    EXPECT_EQ(85, headerWidths()[0]);
    EXPECT_NE(std::string::npos, log().find("OnColumnWidthChanged"));
}

TEST_F(TableUnderTheHand, ABorderOfTheHeaderStopsAtTheMinimum) {
    support::drag(onHeader(60), onHeader(3));
    EXPECT_GE(table.GetColumnWidth(0), kMinColumnWidth);
    EXPECT_LT(table.GetColumnWidth(0), 60);
    EXPECT_EQ(table.GetColumnWidth(0), headerWidths()[0]);
}

TEST_F(TableUnderTheHand, ADoubleClickOnABorderOfTheHeaderFitsTheColumn) {
    handler.optimalWidth = 99;
    support::doubleClick(onHeader(60));
    EXPECT_EQ(99, table.GetColumnWidth(0));
    EXPECT_EQ(99, headerWidths()[0]);
}

TEST_F(TableUnderTheHand, ABorderInTheBodyIsDragged) {
    table.EnableColumnWidthTracking(true);
    support::drag(onBody(60, 45), onBody(90, 50));
    EXPECT_EQ(90, table.GetColumnWidth(0));
    EXPECT_EQ(std::string::npos, log().find("OnItemClick"));
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(TableUnderTheHand, AClickOnAHeaderSortsByIt) {
    table.EnableSortingOnColumnHeaderClick(true);
    handler.before = [](auto a, auto b, int) { return a > b; };
    support::click(onHeader(100));
    EXPECT_EQ("SelectPosition(1,0)", log());
    EXPECT_EQ(20U, table.GetItemData(0));
    EXPECT_EQ("up", arrowOf(1));
}

TEST_F(TableUnderTheHand, AColumnIsMovedByItsHeader) {
    table.EnableMouseMovingColumns(true);
    support::drag(onHeader(30), onHeader(170));
    EXPECT_EQ("OnMoveColumn", log());
    EXPECT_EQ((std::vector<int>{1, 2, 0}), headerOrder());
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(TableUnderTheHand, ColumnsStayWhereMovingIsOff) {
    support::drag(onHeader(30), onHeader(170));
    EXPECT_EQ((std::vector<int>{0, 1, 2}), headerOrder());
}

TEST_F(TableUnderTheHand, TheRowAndTheCellUnderTheCursorAreFound) {
    support::moveMouse(onBody(33, 45));
    handler.cell = {1, 2};
    CPoint cell;
    EXPECT_EQ(2, table.ItemFromCursor(cell));
    EXPECT_EQ(CPoint(1, 2), cell);
    support::moveMouse(onHeader(33));
    EXPECT_EQ(-1, table.ItemFromCursor(cell));
}

TEST_F(TableUnderTheHand, ATipShowsWhenTheMouseRests) {
    handler.tipId = 4;
    handler.tipText = L"Kurs odniesienia";
    handler.record({"GetToolTip"});
    support::moveMouse(onBody(33, 45));
    support::moveMouse(onBody(35, 46));
    const auto tipIsShown = [] {
        bool shown = false;
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM found) -> BOOL {
                wchar_t text[40] = {};
                ::GetWindowTextW(window, text, ARRAYSIZE(text));
                *reinterpret_cast<bool*>(found) |=
                    ::IsWindowVisible(window) && std::wstring(text) == L"Kurs odniesienia";
                return TRUE;
            },
            reinterpret_cast<LPARAM>(&shown));
        return shown;
    };
    EXPECT_FALSE(tipIsShown()) << "not before the mouse has rested";
    EXPECT_TRUE(support::pumpUntil(tipIsShown, std::chrono::seconds(5)));
    EXPECT_NE("", log());
    support::click(onBody(35, 46));
    EXPECT_FALSE(tipIsShown());
}
