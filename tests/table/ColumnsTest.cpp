#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "TableFixture.h"
#include "support/Pump.h"

namespace {

constexpr UINT kContentWidthChanged = 0x8044;

using Ints = std::vector<int>;
using Reals = std::vector<double>;

class TableColumns : public TableFixture {
protected:
    TableColumns() { table.LockColumns(false); }

    /// A body of this width, whose height no row exceeds.
    void widen(int width) { sizeBody(width, 200); }

    /// What the owner is told: "width from id" each time.
    void listenAsOwner() {
        host.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == kContentWidthChanged) {
                told += (told.empty() ? "" : " ") + std::to_string(wParam) + " from " + std::to_string(lParam);
            }
            return std::nullopt;
        };
    }

    std::string told;
};

} // namespace

TEST_F(TableColumns, DraggingTheFirstOfThreeSharesTheRestInProportion) {
    widen(200);
    setColumns({100.0, 50.0, 50.0});
    EXPECT_EQ(0, table.TrackColumnWidthChange(0, 120, false));
    EXPECT_EQ((Reals{120.0, 40.0, 40.0}), realWidths());
    EXPECT_EQ((Ints{120, 40, 44}), headerWidths());
    EXPECT_EQ(40, table.GetColumnWidth(2)) << "only the header item is wider";
}

TEST_F(TableColumns, WideningIsRefusedWhenAllLaterOnesWouldBeTooNarrowAndNarrowingIsNot) {
    const int least = kMinColumnWidth;
    widen(100 + 2 * least - 2);
    setColumns({100.0, least * 1.0, least * 1.0});
    EXPECT_EQ(-1, table.TrackColumnWidthChange(0, 101, false));
    EXPECT_EQ("OnColumnWidthChanging(0,101)", log().substr(0, 28)) << "the host is told of a refusal too";
    EXPECT_EQ((Reals{100.0, least * 1.0, least * 1.0}), realWidths());
    EXPECT_EQ(0, table.TrackColumnWidthChange(0, 99, false));
    EXPECT_EQ(99.0, table.GetColumnRealWidth(0));
}

TEST_F(TableColumns, TheLastVisibleOneIsDraggedOnlyInLockedMode) {
    widen(200);
    setColumns({100.0, 100.0, -50.0});
    EXPECT_EQ(-1, table.TrackColumnWidthChange(1, 60, false));
    EXPECT_EQ((Reals{100.0, 100.0, 50.0}), realWidths());
    lock(true);
    EXPECT_EQ(0, table.TrackColumnWidthChange(1, 60, false));
    EXPECT_EQ((Reals{100.0, 60.0, 50.0}), realWidths());
    EXPECT_EQ(-1, table.TrackColumnWidthChange(1, kMinColumnWidth - 1, false));
    EXPECT_EQ(60.0, table.GetColumnRealWidth(1));
}

TEST_F(TableColumns, DeclaredWithANegativeWidthAreHiddenUntilTheyAreShown) {
    lock(true);
    setColumns({100.0, -80.5});
    EXPECT_EQ(80.5, table.GetColumnRealWidth(1));
    EXPECT_EQ(0, table.GetColumnWidth(1));
    EXPECT_FALSE(table.GetColumnVisibility(1));
    EXPECT_EQ(1, table.GetVisibleColumnCount());
    EXPECT_EQ(2, table.GetColumnCount());
    table.ShowColumn(1, true);
    EXPECT_EQ(80, table.GetColumnWidth(1));
    EXPECT_EQ(80, headerWidths()[1]);
    EXPECT_TRUE(table.GetColumnVisibility(1));
}

TEST_F(TableColumns, AVisibleOneReportsTheMinimumAtLeast) {
    setColumns({3.0, 100.0});
    EXPECT_EQ(kMinColumnWidth, table.GetColumnWidth(0));
    EXPECT_EQ(3.0, table.GetColumnRealWidth(0));
    EXPECT_EQ(3, headerWidths()[0]);
}

TEST_F(TableColumns, InLockedModeANarrowWindowLeavesTheLastOneAsItWas) {
    lock(true);
    widen(300);
    setColumns({100.0, 50.0, 70.0});
    widen(301);
    EXPECT_EQ((Reals{100.0, 50.0, 151.0}), realWidths());
    EXPECT_EQ((Ints{100, 50, 301 - 150 + 4}), headerWidths());
    widen(150 + kMinColumnWidth - 1);
    EXPECT_EQ((Reals{100.0, 50.0, 151.0}), realWidths());
    widen(150 + kMinColumnWidth);
    EXPECT_EQ(kMinColumnWidth * 1.0, table.GetColumnRealWidth(2));
}

TEST_F(TableColumns, ManyResizesToAndFroDoNotDrift) {
    widen(500);
    setColumns({100.0, 133.3, 77.7, 189.0});
    const Reals before = realWidths();
    for (int pass = 0; pass < 20; ++pass) {
        for (const int width : {380, 555, 421, 500}) {
            table.MoveWindow(0, 0, width, 200);
        }
    }
    for (std::size_t id = 0; id < before.size(); ++id) {
        EXPECT_NEAR(before[id], realWidths()[id], 1e-9);
    }
    Ints shown = headerWidths();
    EXPECT_GE(shown[3], 189 + 4);
    EXPECT_LE(shown[3], 189 + 4 + 4);
    shown.pop_back();
    EXPECT_EQ((Ints{100, 133, 77}), shown);
}

TEST_F(TableColumns, OutsideTheRangePositionsHaveTheIdZero) {
    setColumns({100.0, 50.0, 70.0});
    table.SwitchColumnOrder(0, 2, 0);
    EXPECT_EQ(2, table.GetColumnId(0));
    EXPECT_EQ(0, table.GetColumnId(-1));
    EXPECT_EQ(0, table.GetColumnId(3));
    EXPECT_EQ(0, table.GetColumnIdxFromId(2));
    EXPECT_THROW((void)table.GetColumnIdxFromId(3), std::out_of_range);
    EXPECT_FALSE(table.GetColumnVisibility(3));
    EXPECT_EQ(0.0, table.GetColumnRealWidth(3));
    EXPECT_EQ(0, table.GetColumnWidth(3));
    EXPECT_THROW((void)table.GetColumnWidth(-1), std::out_of_range);
}

TEST_F(TableColumns, TheOrderIsReadFromTheHeaderAtTheFirstQuestion) {
    ReachableTable fresh;
    EXPECT_EQ(0, fresh.GetColumnId(0));
    EXPECT_EQ(0, fresh.GetColumnIdxFromId(5)) << "there are none";
}

// Adding, removing, showing.

TEST_F(TableColumns, AreAddedWhereTheTypeSays) {
    struct Case {
        const char* what;
        int type;
        int selected;
        int position;
        Ints order;
    };
    const Case cases[] = {
        {"after the selected one", ITableView::AddAfterSelected, 0, 1, {0, 3, 1, 2}},
        {"after the last", ITableView::AddAfterSelected, 2, 3, {0, 1, 2, 3}},
        {"after one past the end", ITableView::AddAfterSelected, 9, 3, {0, 1, 2, 3}},
        {"at the selected one", ITableView::AddAtSelected, 1, 1, {0, 3, 1, 2}},
        {"at the end", ITableView::AddAtEnd, 0, 3, {0, 1, 2, 3}},
        {"at the front", ITableView::AddAtFront, 2, 0, {3, 0, 1, 2}},
        {"nowhere known", 4, 1, 0, {0, 1, 2, 3}},
        {"nowhere known below", -1, 1, 0, {0, 1, 2, 3}},
    };
    for (const Case& c : cases) {
        setColumns({60.5, 70.0, 80.0});
        handler.position = {c.selected, 0};
        EXPECT_EQ(c.position, table.AddColumn(L"New", static_cast<ITableView::EColumnAddType>(c.type))) << c.what;
        EXPECT_EQ(c.order, headerOrder()) << c.what;
        EXPECT_EQ(4, table.GetColumnCount()) << c.what;
        EXPECT_TRUE(table.GetColumnVisibility(3)) << c.what;
        EXPECT_EQ(table.GetColumnRealWidth(0), table.GetColumnRealWidth(3)) << c.what << ": as wide as the first";
        for (int position = 0; position < 4; ++position) {
            EXPECT_EQ(c.order[static_cast<std::size_t>(position)], table.GetColumnId(position)) << c.what;
        }
    }
}

TEST_F(TableColumns, WithoutAHandlerThereIsNoSelectedOneToAddBeside) {
    ReachableTable bare;
    ASSERT_NE(0, bare.Create(78, &host, false));
    EXPECT_EQ(0, bare.AddColumn(L"A", ITableView::AddAtEnd));
    EXPECT_EQ(0, bare.AddColumn(L"B", ITableView::AddAtSelected));
    EXPECT_EQ(0, bare.AddColumn(L"C", ITableView::AddAfterSelected));
    EXPECT_EQ(3, bare.AddColumn(L"D", ITableView::AddAtEnd));
    EXPECT_EQ(4, bare.GetColumnCount());
}

TEST_F(TableColumns, TheFirstOneAddedIsMinimalAndTakesTheWindow) {
    widen(300);
    EXPECT_EQ(0, table.AddColumn(L"First", ITableView::AddAtEnd));
    EXPECT_EQ((Reals{300.0}), realWidths());
    EXPECT_EQ((Ints{304}), headerWidths());
}

TEST_F(TableColumns, AddedOnesReportTheContentWidthInLockedModeAndAreRefitInBoth) {
    widen(300);
    lock(true);
    setColumns({100.0, 50.0});
    listenAsOwner();
    table.AddColumn(L"New", ITableView::AddAtEnd);
    EXPECT_EQ("250 from 77", told) << "before the refit";
    EXPECT_EQ((Reals{120.0, 60.0, 120.0}), realWidths());
    told.clear();
    lock(false);
    table.AddColumn(L"New", ITableView::AddAtEnd);
    EXPECT_EQ("", told);
}

TEST_F(TableColumns, RemovingOneMovesTheSelectedColumnBackAndDropsItsRow) {
    widen(300);
    setColumns({100.0, 100.0, 100.0});
    handler.position = {2, 7};
    table.RemoveColumn(1);
    EXPECT_EQ("SelectPosition(1,-1) RefreshView", log());
    EXPECT_EQ((Reals{150.0, 150.0}), realWidths());
    EXPECT_EQ((Ints{0, 1}), headerOrder());
    handler.position = {0, 7};
    table.RemoveColumn(0);
    EXPECT_EQ("SelectPosition(0,-1) RefreshView", log());
    table.RemoveColumn(5);
    EXPECT_EQ(1, table.GetColumnCount());
    table.RemoveColumn(0);
    EXPECT_EQ(0, table.GetColumnCount());
    EXPECT_EQ(0, table.GetColumnId(0));
}

TEST_F(TableColumns, RemovingOneOfAReorderedTableKeepsTheOthersInTheirOrder) {
    widen(300);
    setColumns({100.0, 100.0, 50.0, 50.0});
    table.SwitchColumnOrder(0, 3, 0);
    ASSERT_EQ((Ints{3, 1, 2, 0}), headerOrder());
    table.RemoveColumn(1);
    EXPECT_EQ((Ints{2, 1, 0}), headerOrder());
    EXPECT_EQ(2, table.GetColumnId(0));
    EXPECT_EQ(0, table.GetColumnIdxFromId(2));
}

TEST_F(TableColumns, HidingGivesTheRoomToTheOthersAndShowingTakesItBack) {
    widen(300);
    setColumns({100.0, 100.0, 100.0});
    table.ShowColumn(1, false);
    EXPECT_EQ(0, headerWidths()[1]);
    EXPECT_EQ(0, table.GetColumnWidth(1));
    EXPECT_EQ(150, table.GetColumnWidth(0));
    EXPECT_EQ(150.0, table.GetColumnRealWidth(1)) << "hidden ones stay in proportion";
    table.ShowColumn(1, true);
    EXPECT_EQ((Reals{100.0, 100.0, 100.0}), realWidths());
    EXPECT_EQ((Ints{100, 100, 104}), headerWidths());
}

TEST_F(TableColumns, HiddenOnesOfLockedModeChangeOnlyTheContentWidth) {
    widen(300);
    lock(true);
    setColumns({100.0, 90.7, 80.0});
    listenAsOwner();
    table.ShowColumn(1, false);
    EXPECT_EQ("180 from 77", told);
    EXPECT_EQ((Reals{100.0, 90.7, 80.0}), realWidths());
    told.clear();
    table.ShowColumn(1, true);
    EXPECT_EQ("270 from 77", told);
    EXPECT_EQ((Ints{100, 90, 80}), headerWidths());
}

TEST_F(TableColumns, TheSelectedOneIsNeverHiddenAsLongAsOneIsVisible) {
    widen(300);
    setColumns({60.0, 60.0, 60.0, 60.0});
    handler.position = {1, 5};
    table.ShowColumn(1, false);
    EXPECT_EQ("SelectPosition(2,5)", log());
    table.ShowColumn(3, false);
    EXPECT_EQ("", log());
    table.ShowColumn(2, false);
    EXPECT_EQ("SelectPosition(3,5) SelectPosition(2,5) SelectPosition(1,5) SelectPosition(0,5)", log());
    table.ShowColumn(0, false);
    EXPECT_EQ("SelectPosition(1,5) SelectPosition(2,5) SelectPosition(3,5) SelectPosition(2,5) SelectPosition(1,5) "
              "SelectPosition(0,5)",
              log())
        << "with none visible the search ends at the first";
    handler.position = {-1, 5};
    table.ShowColumn(0, true);
    EXPECT_EQ("", log());
}

TEST_F(TableColumns, OutsideTheRangeNoneIsShownOrHidden) {
    setColumns({60.0, 60.0});
    const Reals before = realWidths();
    for (const int id : {-1, 2, 1000000}) {
        table.ShowColumn(id, false);
        table.ShowColumn(id, true);
    }
    EXPECT_EQ(before, realWidths());
    EXPECT_EQ(2, table.GetVisibleColumnCount());
}

// Widths.

TEST_F(TableColumns, AWidthSetInLockedModeIsTakenAsItIs) {
    lock(true);
    widen(300);
    setColumns({100.0, 90.0});
    handler.record({"DrawItem", "OnDrawFinished"});
    table.SetColumnWidth(0, 7, false);
    EXPECT_EQ((Reals{7.0, 90.0}), realWidths());
    EXPECT_EQ((Ints{7, 90}), headerWidths());
    EXPECT_EQ("", log());
    table.SetColumnWidth(0, 70, true);
    EXPECT_EQ("OnDrawFinished", log()) << "painted at once";
    table.SetColumnWidth(2, 70, true);
    EXPECT_EQ("", log()) << "no such column, no repaint";
    EXPECT_EQ((Reals{70.0, 90.0}), realWidths());
}

TEST_F(TableColumns, AWidthSetInProportionalModeSharesTheRest) {
    widen(200);
    setColumns({100.0, 50.0, 50.0});
    table.SetColumnWidth(0, 120, false);
    EXPECT_EQ((Reals{120.0, 40.0, 40.0}), realWidths());
    table.SetColumnWidth(0, 1, false);
    EXPECT_EQ((Reals{120.0, 40.0, 40.0}), realWidths());
}

TEST_F(TableColumns, ARestoreShowsEachListedOneAndTellsTheHost) {
    lock(true);
    widen(300);
    setColumns({100.0, -50.0, 70.0});
    listenAsOwner();
    table.UpdateColumns(std::deque<double>{60.9, 3.0, 80.0});
    EXPECT_EQ((Reals{60.0, kMinColumnWidth * 1.0, 80.0}), realWidths());
    EXPECT_EQ((Ints{60, kMinColumnWidth, 80}), headerWidths());
    EXPECT_EQ(3, table.GetVisibleColumnCount());
    EXPECT_EQ(std::to_string(140 + kMinColumnWidth) + " from 77", told);
    EXPECT_EQ("OnColumnWidthChanged", log());
    told.clear();
    lock(false);
    table.UpdateColumns(std::deque<double>{60.0, 30.0, 80.0});
    EXPECT_EQ("", told);
    EXPECT_EQ("OnColumnWidthChanged", log());
}

TEST_F(TableColumns, ARestoreGoesByTheDisplayOrderForFewerWidths) {
    widen(300);
    setColumns({100.0, 100.0, 100.0});
    table.SwitchColumnOrder(0, 1, 0);
    table.UpdateColumns(std::deque<double>{44.0, 55.0});
    EXPECT_EQ((Reals{44.0, 55.0, 100.0}), realWidths());
    table.SwitchColumnOrder(0, 2, 0);
    try {
        table.UpdateColumns(std::deque<double>{44.0, 55.0});
        FAIL() << "the third column has no width";
    } catch (const std::out_of_range& failure) {
        EXPECT_STREQ("invalid deque<T> subscript", failure.what());
    }
    EXPECT_THROW(table.UpdateColumns(std::deque<double>(4, 50.0)), std::out_of_range);
}

TEST_F(TableColumns, TheRealWidthOfTheTableHasTheScrollBarIfItIsNeeded) {
    sizeBody(300, 100);
    setColumns({100.25, -50.0, 3.0});
    EXPECT_DOUBLE_EQ(100.25 + kMinColumnWidth, table.GetTableRealWidth());
    addManyRows(40);
    ASSERT_TRUE(table.IsVScrollVisible());
    EXPECT_DOUBLE_EQ(100.25 + kMinColumnWidth + ::GetSystemMetrics(SM_CXVSCROLL), table.GetTableRealWidth());
}

TEST_F(TableColumns, TheMinimumWidthCountsColumnsInProportionalMode) {
    sizeBody(300, 100);
    setColumns({100.0, -50.0, 100.0});
    EXPECT_EQ(3 * kMinColumnWidth, table.GetMinWidth());
    EXPECT_EQ(2 * kMinColumnWidth, table.GetMinWidthVisibleColumns());
    addManyRows(40);
    EXPECT_EQ(3 * kMinColumnWidth, table.GetMinWidth());
    EXPECT_EQ(2 * kMinColumnWidth + ::GetSystemMetrics(SM_CXVSCROLL), table.GetMinWidthVisibleColumns());
}

TEST_F(TableColumns, TheMinimumWidthInLockedModeIsAllButTheLastOneAndTheFrameOfTheBody) {
    lock(true);
    sizeBody(300, 100);
    setColumns({100.6, -50.0, 90.0});
    table.UpdateMinWidth();
    EXPECT_EQ(100 + (kMinColumnWidth * 10 + 6) / 10, table.GetMinWidth());
    EXPECT_EQ(table.GetMinWidth(), table.GetMinWidthVisibleColumns());
    addManyRows(40);
    table.UpdateMinWidth();
    const int bar = ::GetSystemMetrics(SM_CXVSCROLL);
    ASSERT_EQ(300 - bar, bodySize().cx);
    EXPECT_EQ(100 + kMinColumnWidth + bar, table.GetMinWidth());
    EXPECT_EQ(100 + kMinColumnWidth + 2 * bar, table.GetMinWidthVisibleColumns());
}

TEST_F(TableColumns, TheOwnerIsToldTheContentWidthAtEachStepOfALockedDrag) {
    lock(true);
    widen(300);
    setColumns({100.0, -50.0, 90.0});
    listenAsOwner();
    EXPECT_EQ(0, table.TrackColumnWidthChange(0, 110, false));
    EXPECT_EQ("200 from 77", told);
    told.clear();
    EXPECT_EQ(-1, table.TrackColumnWidthChange(0, kMinColumnWidth - 1, true));
    EXPECT_EQ("", told);
}

TEST_F(TableColumns, AWidthGivenByTheUserIsNotRefitUntilTheNextSize) {
    lock(true);
    widen(300);
    setColumns({100.0, 90.0});
    table.TrackColumnWidthChange(1, 120, true);
    table.UpdateColumns();
    EXPECT_EQ(120.0, table.GetColumnRealWidth(1));
    widen(310);
    EXPECT_EQ(120.0, table.GetColumnRealWidth(1)) << "the size change only ends the truce";
    widen(320);
    EXPECT_EQ(220.0, table.GetColumnRealWidth(1));
}

// Dragging and its calls.

TEST_F(TableColumns, EachStepOfADragTellsTheHostAndRepaintsTheBody) {
    widen(200);
    setColumns({100.0, 50.0, 50.0});
    addManyRows(1);
    handler.recordAllBut({"GetSelectedItem", "UpdateItemPosition"});
    table.TrackColumnWidthChange(0, 120, false);
    EXPECT_EQ("OnColumnWidthChanging(0,120) CanPaint IsPaintEnabled IsAutoscrollEnabled PrepareDraw "
              "DrawItem(0,0,20) OnDrawFinished",
              log());
    table.TrackColumnWidthChange(0, 110, true);
    EXPECT_EQ("OnColumnWidthChanging(0,110) OnColumnWidthChanged CanPaint IsPaintEnabled "
              "IsAutoscrollEnabled PrepareDraw DrawItem(0,0,20) OnDrawFinished",
              log());
    EXPECT_TRUE(::GetUpdateRect(header(), nullptr, FALSE));
}

TEST_F(TableColumns, ADoubleClickOnABorderFitsTheColumn) {
    widen(200);
    setColumns({100.0, 50.0, 50.0});
    handler.optimalWidth = 120;
    EXPECT_EQ(0, table.TrackColumnWidthChangeBorderDblClk(0));
    EXPECT_EQ((Reals{120.0, 40.0, 40.0}), realWidths());
    EXPECT_EQ("GetOptimalColumnWidth(0) OnColumnWidthChanged PrepareDraw OnDrawFinished", log());
    handler.optimalWidth = 3;
    EXPECT_EQ(-1, table.TrackColumnWidthChangeBorderDblClk(0));
    EXPECT_EQ("GetOptimalColumnWidth(0) OnColumnWidthChanged PrepareDraw OnDrawFinished", log());
    handler.optimalWidth = -1;
    EXPECT_EQ(0, table.TrackColumnWidthChangeBorderDblClk(0));
    EXPECT_EQ("GetOptimalColumnWidth(0)", log());
    ReachableTable bare;
    EXPECT_EQ(-1, bare.TrackColumnWidthChangeBorderDblClk(0));
}

// Order.

TEST_F(TableColumns, SwitchingTwoTellsTheHostWhereTheSelectionIs) {
    widen(300);
    setColumns({100.0, 120.0, 80.0});
    handler.position = {0, 9};
    table.SwitchColumnOrder(0, 2, 1);
    EXPECT_EQ("SelectPosition(1,9) RefreshView", log());
    EXPECT_EQ((Ints{2, 1, 0}), headerOrder());
    EXPECT_EQ(2, table.GetColumnIdxFromId(0));
    EXPECT_EQ((Ints{104, 120, 80}), headerWidths()) << "the last one is another now";
}

TEST_F(TableColumns, OutsideTheRangeNoneAreSwitched) {
    setColumns({100.0, 120.0});
    table.SwitchColumnOrder(0, 2, 0);
    table.SwitchColumnOrder(-1, 1, 0);
    EXPECT_EQ((Ints{0, 1}), headerOrder());
}

TEST_F(TableColumns, AMoveShiftsThoseBetweenByOnePlace) {
    struct Case {
        int from;
        int to;
        Ints order;
    };
    setColumns({10.0, 20.0, 30.0, 40.0});
    const Case cases[] = {{0, 2, {1, 2, 0, 3}}, {2, 0, {2, 0, 1, 3}}, {0, 3, {1, 2, 3, 0}},
                          {3, 0, {3, 0, 1, 2}}, {1, 1, {0, 1, 2, 3}}, {1, 2, {0, 2, 1, 3}}};
    for (const Case& c : cases) {
        Ints order;
        table.ComputeNewOrderArrayOnMoveColumn(c.from, c.to, order);
        EXPECT_EQ(c.order, order) << c.from << " to " << c.to;
    }
}

TEST_F(TableColumns, ANewTitleGoesToTheHeaderItem) {
    setColumns({100.0, 120.0});
    table.SetColumnHeader(1, std::wstring_view(L"Kurs zamknięcia w PLN").substr(0, 15));
    wchar_t text[60] = {};
    HDITEMW item{};
    item.mask = HDI_TEXT | HDI_FORMAT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = ARRAYSIZE(text);
    ::SendMessageW(header(), HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
    EXPECT_STREQ(L"Kurs zamknięcia", text);
    EXPECT_EQ(120, item.cxy);
    EXPECT_EQ(HDF_STRING, item.fmt & (HDF_STRING | HDF_OWNERDRAW | HDF_JUSTIFYMASK));
}

// Sizes.

TEST_F(TableColumns, TheEndOfASizingLoopIsToldOnceForAnyNumberOfSizes) {
    setColumns({100.0, 120.0});
    handler.record({"OnColumnWidthChanged"});
    table.OnEndSize();
    const std::string first = log();
    table.OnEndSize();
    EXPECT_EQ("", log());
    table.MoveWindow(0, 0, 333, 200);
    table.MoveWindow(0, 0, 334, 200);
    EXPECT_EQ("", log());
    table.OnEndSize();
    EXPECT_EQ("OnColumnWidthChanged", log());
    table.OnEndSize();
    EXPECT_EQ("", log());
    EXPECT_EQ("OnColumnWidthChanged", first) << "the fixture has sized it";
}

TEST_F(TableColumns, ResizingByTheMouseIsAStyleOfTheHeader) {
    const auto style = [this] { return ::GetWindowLongW(header(), GWL_STYLE) & (HDS_NOSIZING | HDS_HOTTRACK); };
    table.EnableColumnWidthResizing(true);
    EXPECT_EQ(HDS_HOTTRACK, style());
    table.EnableColumnWidthResizing(false);
    EXPECT_EQ(HDS_NOSIZING, style());
    table.EnableColumnWidthResizing(true);
    EXPECT_EQ(HDS_HOTTRACK, style());
}

TEST_F(TableColumns, TheHeaderDoesNotPaintWhileItsWidthsAreRewritten) {
    lock(true);
    widen(300);
    setColumns({100.0, 120.0});
    ::UpdateWindow(header());
    bool validated = true;
    host.onMessage = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == kContentWidthChanged) {
            ::InvalidateRect(header(), nullptr, FALSE);
            ::UpdateWindow(header());
            validated = !::GetUpdateRect(header(), nullptr, FALSE);
        }
        return std::nullopt;
    };
    EXPECT_TRUE(table.OnColumnsWidthChanged(0, 110));
    EXPECT_FALSE(validated);
    ::UpdateWindow(header());
    EXPECT_FALSE(::GetUpdateRect(header(), nullptr, FALSE)) << "the paint comes afterwards";
}
