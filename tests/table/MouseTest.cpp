#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "TableFixture.h"
#include "support/ImportPatch.h"
#include "support/Pump.h"

namespace {

class TableMouse : public TableFixture {
protected:
    TableMouse() {
        sizeBody(200, 100);
        setColumns({60.0, 70.0, 70.0});
        handler.recordAllBut({"CanPaint", "DrawItem", "GetCarretOffset", "GetSelectedItem", "IsAutoscrollEnabled",
                              "IsPaintEnabled", "PrepareDraw", "UpdateItemPosition", "UseOptimalisation"});
    }

    static int dragLimit() { return (::GetSystemMetrics(SM_CXDRAG) + ::GetSystemMetrics(SM_CYDRAG)) / 4; }
    LRESULT setCursorMessage(int hitTest = HTCLIENT) const {
        return ::SendMessageW(body(), WM_SETCURSOR, reinterpret_cast<WPARAM>(body()),
                              MAKELPARAM(hitTest, WM_MOUSEMOVE));
    }
};

class RecordingMenu : public IContextMenuBase {
public:
    using IContextMenuBase::IContextMenuBase;
    void ShowContextMenu(CPoint point) override { points.push_back(point); }
    std::vector<CPoint> points;
};

} // namespace

// Presses.

TEST_F(TableMouse, APressClicksItsRowInTheRowsOwnCoordinatesAndPaints) {
    addRows({10, 11, 12});
    press(33, 27);
    EXPECT_EQ("CancelFindMode OnItemClick(1,33:7,false,1) OnDrawFinished", log());
    EXPECT_EQ(1, handler.caret);
    release(33, 27);
    EXPECT_EQ("SetFindMode(0) OnDrawFinished", log());
}

TEST_F(TableMouse, APressInAScrolledViewFindsTheRowUnderIt) {
    addManyRows(20);
    scrollTo(107);
    press(5, 0);
    EXPECT_EQ("CancelFindMode OnItemClick(5,5:7,false,1) OnDrawFinished", log());
}

TEST_F(TableMouse, APressTakesTheFocus) {
    addRows({10});
    host.activate();
    ::SetFocus(host.m_hWnd);
    press(5, 5);
    EXPECT_EQ(body(), ::GetFocus());
    ::SetFocus(host.m_hWnd);
    ::SetFocus(table.m_hWnd);
    EXPECT_EQ(body(), ::GetFocus()) << "the table hands it on";
}

TEST_F(TableMouse, WithShiftAPressExtends) {
    addRows({10, 11});
    const ScopedKeys shift{VK_SHIFT};
    press(5, 25, MK_LBUTTON | MK_SHIFT);
    EXPECT_EQ("CancelFindMode OnItemClick(1,5:5,true,5) OnDrawFinished", log());
}

TEST_F(TableMouse, APressOutsideTheRowsOnlyCancelsFindMode) {
    press(5, 5);
    EXPECT_EQ("CancelFindMode", log()) << "an empty table";
    release(5, 5);
    log();
    addRows({10});
    press(5, 50);
    EXPECT_EQ("CancelFindMode", log()) << "below the last row";
    release(5, 50);
    EXPECT_EQ("SetFindMode(0) OnDrawFinished", log());
}

TEST_F(TableMouse, ADoubleClickClicksTheRowAndIsTold) {
    addRows({10, 11});
    const ScopedKeys shift{VK_SHIFT};
    doubleClick(5, 25);
    EXPECT_EQ("CancelFindMode OnItemClick(1,5:5,false,1) OnDrawFinished OnDblClick", log());
    doubleClick(5, 90);
    EXPECT_EQ("CancelFindMode OnDblClick", log());
}

TEST_F(TableMouse, ARightPressSelectsAsALeftOneOnlyIfThereIsAContextMenu) {
    addRows({10, 11});
    ::SendMessageW(body(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 25));
    EXPECT_EQ("", log());
    const auto menu = std::make_shared<RecordingMenu>(&table);
    table.SetContextMenuHandler(menu);
    ::SendMessageW(body(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(5, 25));
    EXPECT_EQ("CancelFindMode OnItemClick(1,5:5,false,2) OnDrawFinished", log());
}

TEST_F(TableMouse, TheContextMenuShowsWhereItWasAskedFor) {
    ::SendMessageW(body(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(body()), MAKELPARAM(300, 200));
    const auto menu = std::make_shared<RecordingMenu>(&table);
    table.SetContextMenuHandler(menu);
    ::SendMessageW(body(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(body()), MAKELPARAM(300, 200));
    ::SendMessageW(body(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(body()), MAKELPARAM(-1, -1));
    ASSERT_EQ(2U, menu->points.size());
    EXPECT_EQ(CPoint(300, 200), menu->points[0]);
    EXPECT_EQ(CPoint(-1, -1), menu->points[1]);
    EXPECT_EQ(2, menu.use_count());
    table.SetContextMenuHandler(nullptr);
    EXPECT_EQ(1, menu.use_count());
    ::SendMessageW(body(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(body()), MAKELPARAM(300, 200));
    EXPECT_EQ(2U, menu->points.size());
}

// Moves.

TEST_F(TableMouse, EachMoveAsksTheHostToRefresh) {
    moveTo(5, 5);
    EXPECT_EQ("RefreshView", log()) << "an empty table";
    addRows({10});
    moveTo(5, 5);
    moveTo(90, 5);
    EXPECT_EQ("RefreshView RefreshView", log());
}

TEST_F(TableMouse, ARowIsDraggedOncePastTheLimitAndNotAtIt) {
    addRows({10, 11, 12});
    const int limit = dragLimit();
    struct Case {
        const char* what;
        int dx;
        int dy;
        bool begins;
    };
    const Case cases[] = {
        {"at the limit", limit, 0, false},          {"one pixel more", limit + 1, 0, true},
        {"at the limit back", -limit, 0, false},    {"one more back", -limit - 1, 0, true},
        {"at the limit down", 0, limit, false},     {"one more down", 0, limit + 1, true},
        {"both at the limit", limit, limit, false},
    };
    for (const Case& c : cases) {
        press(30, 30);
        log();
        moveTo(30 + c.dx, 30 + c.dy, MK_LBUTTON);
        EXPECT_EQ(c.begins ? "BeginDrag RefreshView" : "RefreshView", log()) << c.what;
        moveTo(30 + 3 * c.dx, 30 + 2 * c.dy, MK_LBUTTON);
        EXPECT_EQ(c.begins || (c.dx == 0 && c.dy == 0) ? "RefreshView" : "BeginDrag RefreshView", log())
            << c.what << ": once a press";
        release(30, 30);
        log();
    }
}

TEST_F(TableMouse, NoRowIsDraggedWithShiftOrWithoutAPressOrAfterTheRelease) {
    addRows({10, 11, 12});
    {
        const ScopedKeys shift{VK_SHIFT};
        press(30, 30);
    }
    log();
    moveTo(60, 30, MK_LBUTTON);
    EXPECT_EQ("RefreshView", log());
    release(60, 30);
    log();
    moveTo(90, 30, MK_LBUTTON);
    EXPECT_EQ("RefreshView", log());
    press(30, 30);
    moveTo(31, 30);
    log();
    moveTo(90, 30, MK_LBUTTON);
    EXPECT_EQ("RefreshView", log()) << "a move without the button has ended the press";
}

TEST_F(TableMouse, ADragWithControlPaintsARange) {
    addRows({10, 11, 12});
    press(30, 10);
    log();
    const ScopedKeys control{VK_CONTROL};
    moveTo(30, 30, MK_LBUTTON | MK_CONTROL);
    EXPECT_EQ("CancelFindMode OnItemClick(1,30:10,true,9) OnDrawFinished RefreshView", log());
    moveTo(30, 50, MK_LBUTTON | MK_CONTROL);
    EXPECT_EQ("CancelFindMode OnItemClick(2,30:10,true,9) OnDrawFinished RefreshView", log());
}

// Column borders in the body.

namespace {

class BodyBorders : public TableMouse {
protected:
    BodyBorders() {
        table.EnableColumnWidthTracking(true);
        addRows({10, 11, 12});
        table.takeMessages();
    }

    bool isOverBorder(int x) {
        moveTo(x, 30);
        return setCursorMessage() == 0;
    }
};

} // namespace

TEST_F(BodyBorders, AreFoundWithinFourPixels) {
    struct Case {
        int x;
        bool border;
    };
    const Case cases[] = {{56, false}, {57, true},   {60, true}, {64, true},   {65, false}, {126, false}, {127, true},
                          {134, true}, {135, false}, {0, false}, {196, false}, {197, true}, {199, true}};
    for (const Case& c : cases) {
        EXPECT_EQ(c.border, isOverBorder(c.x)) << c.x;
    }
}

TEST_F(BodyBorders, AreNotFoundWithoutRowsOrWithoutTracking) {
    EXPECT_TRUE(isOverBorder(60));
    table.EnableColumnWidthTracking(false);
    EXPECT_FALSE(isOverBorder(60));
    table.EnableColumnWidthTracking(true);
    table.DeleteAllItems();
    EXPECT_FALSE(isOverBorder(60));
}

TEST_F(BodyBorders, AreSwitchedOffWithTheResizingOfColumnsAndNotSwitchedOnAgainWithIt) {
    table.EnableColumnWidthResizing(false);
    EXPECT_FALSE(isOverBorder(60));
    table.EnableColumnWidthResizing(true);
    EXPECT_FALSE(isOverBorder(60));
    table.EnableColumnWidthTracking(true);
    EXPECT_TRUE(isOverBorder(60));
}

TEST_F(BodyBorders, ChangeTheCursorAndGiveItBack) {
    const HCURSOR arrow = ::LoadCursorW(nullptr, IDC_ARROW);
    ::SetCursor(arrow);
    moveTo(60, 30);
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_SIZEWE), ::GetCursor());
    moveTo(90, 30);
    EXPECT_EQ(arrow, ::GetCursor());
}

TEST_F(BodyBorders, APressOnOneNeitherSelectsNorDragsARow) {
    moveTo(60, 30);
    log();
    press(60, 30);
    EXPECT_EQ("", log());
    EXPECT_EQ(body(), ::GetCapture());
    moveTo(90, 60, MK_LBUTTON);
    EXPECT_EQ(std::string::npos, log().find("BeginDrag"));
    EXPECT_EQ(-1 + 1, handler.caret) << "the first row of the setup";
    release(90, 60);
    EXPECT_EQ(nullptr, ::GetCapture());
}

TEST_F(BodyBorders, ADragTellsTheTableItsWidthAtEachStepAndAnEndThatIsRefused) {
    moveTo(62, 30);
    press(63, 30);
    log();
    moveTo(73, 30, MK_LBUTTON);
    EXPECT_EQ("488(0,70)", table.takeMessages());
    EXPECT_EQ("OnColumnWidthChanging(0,70) OnDrawFinished RefreshView", log());
    EXPECT_EQ(70, table.GetColumnWidth(0));
    moveTo(83, 30, MK_LBUTTON);
    EXPECT_EQ("488(0,80)", table.takeMessages());
    log();
    release(83, 30);
    EXPECT_EQ("489(0,0)", table.takeMessages());
    EXPECT_EQ("OnColumnWidthChanging(0,0) OnColumnWidthChanged OnDrawFinished SetFindMode(0) OnDrawFinished", log());
    EXPECT_EQ(80, table.GetColumnWidth(0));
    moveTo(60, 30, MK_LBUTTON);
    EXPECT_EQ("", table.takeMessages()) << "the drag is over";
}

TEST_F(BodyBorders, ADoubleClickOnOneFitsItsColumn) {
    handler.optimalWidth = 90;
    moveTo(60, 30);
    log();
    doubleClick(60, 30);
    EXPECT_EQ("490(0,0)", table.takeMessages());
    EXPECT_EQ("GetOptimalColumnWidth(0) OnColumnWidthChanged OnDrawFinished", log());
    EXPECT_EQ(90, table.GetColumnWidth(0));
}

TEST_F(BodyBorders, CountPositionsWhereTheTableTakesIds) {
    table.SwitchColumnOrder(0, 2, 0);
    handler.optimalWidth = 90;
    moveTo(table.GetColumnWidth(2), 30);
    doubleClick(60, 30);
    EXPECT_EQ("490(0,0)", table.takeMessages());
    EXPECT_EQ(90, table.GetColumnWidth(0)) << "the column with the id 0, though it is shown last";
}

TEST_F(BodyBorders, OfHiddenColumnsLieWhereTheOneBeforeEnds) {
    lock(true);
    table.ShowColumn(1, false);
    EXPECT_TRUE(isOverBorder(60));
    moveTo(60, 30);
    press(60, 30);
    moveTo(80, 30, MK_LBUTTON);
    EXPECT_EQ("488(0,80)", table.takeMessages().substr(0, 9));
}

TEST_F(BodyBorders, AMoveOffTheBorderLetsTheNextPressSelect) {
    moveTo(60, 30);
    moveTo(90, 30);
    log();
    press(90, 30);
    EXPECT_EQ("CancelFindMode OnItemClick(1,90:10,false,1) OnDrawFinished", log());
}

// The private messages as the table answers them.

TEST_F(BodyBorders, TheMessagesAreAnsweredWithZeroOrMinusOne) {
    EXPECT_EQ(0, ::SendMessageW(table.m_hWnd, 0x488, 0, 70));
    EXPECT_EQ(-1, ::SendMessageW(table.m_hWnd, 0x488, 0, kMinColumnWidth - 1));
    EXPECT_EQ(-1, ::SendMessageW(table.m_hWnd, 0x489, 0, 0));
    EXPECT_EQ(0, ::SendMessageW(table.m_hWnd, 0x490, 0, 0)) << "the host wants no change";
    handler.optimalWidth = 5;
    EXPECT_EQ(-1, ::SendMessageW(table.m_hWnd, 0x490, 0, 0));
}

// Cursor, cells and tips.

TEST_F(TableMouse, TheHandlerSetsTheCursorOfTheClientArea) {
    addRows({10});
    EXPECT_EQ(1, setCursorMessage());
    EXPECT_EQ("SetCursor", log());
    setCursorMessage(HTVSCROLL);
    EXPECT_EQ("", log());
}

namespace {

POINT S_cursor{};

BOOL WINAPI testCursor(POINT* point) {
    *point = S_cursor;
    return TRUE;
}

} // namespace

TEST_F(TableMouse, TheRowUnderTheCursorComesWithTheHandlersCell) {
    addManyRows(20);
    scrollTo(107);
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "USER32.dll", "GetCursorPos",
                                     &testCursor);
    const auto putCursor = [this](int x, int y) {
        S_cursor = {x, y};
        ::ClientToScreen(body(), &S_cursor);
    };
    handler.cell = {2, 5};
    CPoint cell(-1, -1);
    putCursor(40, 0);
    EXPECT_EQ(5, table.ItemFromCursor(cell));
    EXPECT_EQ("GetCell(5,40:7)", log());
    EXPECT_EQ(CPoint(2, 5), cell);
    cell = {-1, -1};
    putCursor(40, 1000);
    EXPECT_EQ(-1, table.ItemFromCursor(cell));
    EXPECT_EQ(CPoint(-1, -1), cell);
    EXPECT_EQ("", log());
}

TEST_F(TableMouse, ATipNeedsATextAndAnId) {
    addRows({10});
    const CWnd* const list = handler.list;
    TOOLINFOW info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(-1, list->OnToolHitTest(CPoint(12, 7), &info));
    EXPECT_EQ("GetToolTip(12,7,22,17)", log());
    handler.tipId = 4;
    EXPECT_EQ(-1, list->OnToolHitTest(CPoint(12, 7), &info)) << "no text";
    handler.tipId = -1;
    handler.tipText = L"Kurs odniesienia";
    EXPECT_EQ(-1, list->OnToolHitTest(CPoint(12, 7), &info)) << "no id";
}

TEST_F(TableMouse, ATipIsFilledInForTheBodyAndItsRectangle) {
    addRows({10});
    handler.tipId = 4;
    handler.tipText = L"Kurs odniesienia";
    handler.tipRect = CRect(0, 0, 60, 20);
    TOOLINFOW info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(4, handler.list->OnToolHitTest(CPoint(12, 7), &info));
    EXPECT_EQ(body(), info.hwnd);
    EXPECT_EQ(4U, info.uId);
    EXPECT_EQ(CRect(0, 0, 60, 20), CRect(info.rect));
    ASSERT_NE(nullptr, info.lpszText);
    EXPECT_STREQ(L"Kurs odniesienia", info.lpszText);
    std::free(info.lpszText);
}

TEST_F(TableMouse, WithoutAHandlerThereIsNeitherTipNorClick) {
    ReachableTable bare;
    ASSERT_NE(0, bare.Create(78, &host, false));
    const HWND list = ::GetDlgItem(bare.m_hWnd, kBodyId);
    TOOLINFOW info{};
    info.cbSize = sizeof info;
    EXPECT_EQ(-1, CWnd::FromHandle(list)->OnToolHitTest(CPoint(1, 1), &info));
    for (const UINT message : {WM_LBUTTONDOWN, WM_MOUSEMOVE, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_KEYDOWN,
                               WM_KEYUP, WM_CONTEXTMENU}) {
        ::SendMessageW(list, message, 0, MAKELPARAM(1, 1));
    }
    EXPECT_TRUE(::IsWindow(list));
}
