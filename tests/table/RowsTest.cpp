#include <gtest/gtest.h>

#include <limits>

#include "TableFixture.h"
#include "support/Pump.h"

namespace {

using Items = std::vector<std::pair<unsigned __int64, int>>;

class TableRows : public TableFixture {
protected:
    TableRows() { sizeBody(200, 100); }

    bool bodyIsInvalid() const { return ::GetUpdateRect(body(), nullptr, FALSE) != FALSE; }
    bool barIsShown() const { return (::GetWindowLongW(body(), GWL_STYLE) & WS_VSCROLL) != 0; }
    int page() const {
        SCROLLINFO info{};
        info.cbSize = sizeof info;
        info.fMask = SIF_PAGE;
        ::GetScrollInfo(body(), SB_VERT, &info);
        return static_cast<int>(info.nPage);
    }
};

} // namespace

// Inserting.

TEST_F(TableRows, TheFirstOneAddedIsSelectedAndTheSecondLeavesTheSelectionAlone) {
    handler.recordAllBut({});
    table.AddItem(10);
    EXPECT_EQ("GetSelectedItem ComputeItemHeight(0) SetFindMode(0) SetSelectedItem(0,true)", log());
    table.AddItem(11);
    EXPECT_EQ("GetSelectedItem ComputeItemHeight(1) SetFindMode(0)", log());
    EXPECT_EQ("rows 10 11 | caret 0 | scroll 0", describe());
    EXPECT_EQ(40, table.GetAllItemsHeight());
}

TEST_F(TableRows, InsertingBeforeTheSelectionDoesNotMoveIt) {
    addRows({10, 11, 12});
    select(1);
    table.InsertItem(9, 0);
    EXPECT_EQ("rows 9 10 11 12 | caret 1 | scroll 0", describe());
    table.InsertItem(13, -1);
    table.InsertItem(14, 99);
    EXPECT_EQ("rows 9 10 11 12 13 14 | caret 1 | scroll 0", describe());
}

TEST_F(TableRows, AnInsertedOneIsPaintedLater) {
    addRows({10});
    table.AddItem(11);
    EXPECT_TRUE(bodyIsInvalid());
    handler.record({"DrawItem"});
    support::pumpUntilIdle();
    EXPECT_EQ("DrawItem(1,20,40) DrawItem(0,0,20)", log());
}

TEST_F(TableRows, AWholeRangeIsInsertedWithItsHeightsAndTheSelectionStaysOnItsRow) {
    addRows({10, 11, 12});
    select(1);
    handler.recordAllBut({});
    table.InsertItems(Items{{8, 5}, {9, 7}}, 1, 0);
    EXPECT_EQ("GetSelectedItem SetFindMode(0) SetSelectedItem(3,true)", log());
    EXPECT_EQ("rows 10 8 9 11 12 | caret 3 | scroll 0", describe());
    EXPECT_EQ(5, table.GetItemHeight(1));
    EXPECT_EQ(7, table.GetItemHeight(2));
    table.InsertItems(Items{{7, 5}}, 4, 0);
    EXPECT_EQ("GetSelectedItem SetFindMode(0)", log()) << "behind the selection";
    table.InsertItems(Items{}, 0, 40);
    EXPECT_EQ("", log());
    EXPECT_EQ("rows 10 8 9 11 7 12 | caret 3 | scroll 0", describe());
}

TEST_F(TableRows, PrependingWithADeltaKeepsTheViewOnTheSameRows) {
    addManyRows(20);
    scrollTo(100);
    table.InsertItems(Items{{50, 20}, {51, 20}}, 0, 40);
    table.UpdateVScroll();
    EXPECT_EQ(140, scrollPosition());
    scrollTo(0);
    table.InsertItems(Items{{52, 20}, {53, 20}}, 0, 40);
    EXPECT_EQ(0, scrollPosition()) << "the top stays the top";
    scrollTo(100);
    table.InsertItems(Items{{54, 20}}, 0, 0);
    EXPECT_EQ(100, scrollPosition());
}

// Removing.

TEST_F(TableRows, DeletingTheLastRowMovesTheCaretToTheNewLastRow) {
    addRows({10, 11, 12});
    select(2);
    handler.recordAllBut({});
    table.DeleteItem(12);
    EXPECT_EQ("GetSelectedItem SetSelectedItem(1,true) GetCarretOffset(0,0) RefreshView", log());
    EXPECT_EQ("rows 10 11 | caret 1 | scroll 0", describe());
}

TEST_F(TableRows, DeletingTheOnlyRowSelectsNone) {
    addRows({10});
    handler.recordActions();
    table.DeleteItem(10);
    EXPECT_EQ("SetSelectedItem(-1,true) RefreshView", log());
    EXPECT_EQ("rows | caret -1 | scroll 0", describe());
}

TEST_F(TableRows, DeletingAnEarlierRowLeavesTheCaretsIndex) {
    addRows({10, 11, 12});
    select(1);
    table.DeleteItem(10);
    EXPECT_EQ("rows 11 12 | caret 1 | scroll 0", describe());
}

TEST_F(TableRows, OnlyARemovalThatFindsNothingEndsFindMode) {
    addRows({10, 11, 12});
    table.DeleteItem(99);
    EXPECT_EQ("SetFindMode(0) SetSelectedItem(0,true) RefreshView", log());
    table.DeleteItem(11);
    EXPECT_EQ("SetSelectedItem(0,true) RefreshView", log());
}

TEST_F(TableRows, OnlyARemovalThatFindsNothingForcesAFullRepaintOfItsOwn) {
    handler.optimised = true;
    addRows({10, 11, 12});
    paint();
    handler.record({"DrawItem"});
    table.BeginUpdate();
    table.DeleteItem(12);
    table.FinishUpdate();
    support::pumpUntilIdle();
    EXPECT_EQ("DrawItem(0,0,20)", log()) << "the selected row alone";
    table.BeginUpdate();
    table.DeleteItem(99);
    table.FinishUpdate();
    support::pumpUntilIdle();
    EXPECT_EQ("DrawItem(1,20,40) DrawItem(0,0,20)", log());
}

TEST_F(TableRows, AListIsRemovedWithOneClosingStep) {
    addRows({10, 11, 12, 13, 11});
    select(4);
    handler.recordAllBut({});
    table.DeleteItems({11, 99, 13, 98});
    EXPECT_EQ("GetSelectedItem SetFindMode(0) SetFindMode(0) SetSelectedItem(2,true) GetCarretOffset(0,0) RefreshView",
              log());
    EXPECT_EQ("rows 10 12 11 | caret 2 | scroll 0", describe());
    table.DeleteItems({});
    EXPECT_EQ("GetSelectedItem SetSelectedItem(2,true) GetCarretOffset(0,0) RefreshView", log());
}

TEST_F(TableRows, AreAllRemovedTogether) {
    addRows({10, 11});
    handler.recordAllBut({});
    table.DeleteAllItems();
    EXPECT_EQ("SetFindMode(0) SetSelectedItem(-1,true) RefreshView", log());
    EXPECT_EQ("rows | caret -1 | scroll 0", describe());
    EXPECT_EQ(0, table.GetAllItemsHeight());
}

// Moving, words and heights.

TEST_F(TableRows, AMoveTakesTheRowOutAndLeavesItsHeightOpen) {
    addRows({10, 11, 12});
    handler.recordAllBut({});
    table.MoveElement(10, 99);
    EXPECT_EQ("rows 11 12 10 | caret 0 | scroll 0", describe());
    EXPECT_EQ(0, table.GetItemHeight(2));
    EXPECT_EQ("", log());
    EXPECT_FALSE(bodyIsInvalid());
    table.UpdateAllHeights();
    EXPECT_EQ(20, table.GetItemHeight(2));
    EXPECT_EQ("UpdateItemPosition(0) ComputeItemHeight(0) UpdateItemPosition(1) ComputeItemHeight(1) "
              "UpdateItemPosition(2) ComputeItemHeight(2)",
              log());
    table.MoveElement(77, 0);
    EXPECT_EQ("rows 11 12 10 | caret 0 | scroll 0", describe());
}

TEST_F(TableRows, MoveElementAtAsksForAllHeights) {
    addRows({10, 11});
    handler.recordAllBut({});
    table.MoveElementAt(11, 0);
    EXPECT_EQ("UpdateItemPosition(0) ComputeItemHeight(0) UpdateItemPosition(1) ComputeItemHeight(1)", log());
    EXPECT_EQ("rows 11 10 | caret 0 | scroll 0", describe());
    EXPECT_EQ(20, table.GetItemHeight(0));
}

TEST_F(TableRows, AHeightIsStoredAndNothingFollows) {
    addRows({10, 11});
    handler.recordAllBut({});
    EXPECT_TRUE(table.SetItemHeight(1, 33));
    EXPECT_EQ(33, table.GetItemHeight(1));
    EXPECT_EQ(53, table.GetAllItemsHeight());
    EXPECT_EQ("", log());
    EXPECT_FALSE(bodyIsInvalid());
    for (const unsigned __int64 index : {std::uint64_t{2}, std::uint64_t{1} << 32, ~std::uint64_t{0}}) {
        EXPECT_FALSE(table.SetItemHeight(index, 33));
        EXPECT_EQ(0, table.GetItemHeight(index));
    }
}

TEST_F(TableRows, AWordIsReplacedInPlaceAndOutOfRangeIgnored) {
    addRows({10, 11});
    table.SetItemData(1, 15);
    table.SetItemData(2, 16);
    table.SetItemData(-1, 17);
    EXPECT_EQ("rows 10 15 | caret 0 | scroll 0", describe());
    EXPECT_EQ(0U, table.GetItemData(2));
    EXPECT_EQ(0U, table.GetItemData(-1));
    EXPECT_EQ(2, table.GetItemCount());
}

TEST_F(TableRows, EachHasTheHeightThatTheHandlerAnswers) {
    handler.heights = {{10, 31}, {11, 7}};
    addRows({10, 11, 12});
    EXPECT_EQ(31, table.GetItemHeight(0));
    EXPECT_EQ(7, table.GetItemHeight(1));
    EXPECT_EQ(20, table.GetItemHeight(2));
}

// Selecting.

TEST_F(TableRows, AreSelectedByTheFirstOneWithTheWord) {
    addRows({10, 11, 12, 11});
    handler.recordActions();
    table.Select(11, 0, 1);
    EXPECT_EQ("SetSelectedItem(1,true)", log());
    table.Select(12, 0, 0);
    EXPECT_EQ("SetSelectedItem(2,false)", log());
    table.Select(99, 1, 1);
    EXPECT_EQ("", log());
    table.DeleteAllItems();
    forget();
    table.Select(10, 1, 1);
    EXPECT_EQ("", log());
}

TEST_F(TableRows, AreSelectedAndShownOnRequest) {
    addManyRows(20);
    table.Select(10, 0, 0);
    EXPECT_EQ(0, scrollPosition());
    table.Select(10, 1, 0);
    EXPECT_EQ(101, scrollPosition());
}

TEST_F(TableRows, AreSelectedByIndexShownAndRepaintedOnRequest) {
    addManyRows(20);
    table.SelectItem(9, false);
    EXPECT_EQ("SetSelectedItem(9,false)", log());
    EXPECT_EQ(101, scrollPosition());
    support::pumpUntilIdle();
    EXPECT_FALSE(bodyIsInvalid());
    table.SelectItem(8, true);
    EXPECT_TRUE(bodyIsInvalid());
}

namespace {

class CountingTable : public TableCtrl {
public:
    unsigned __int64 GetItemData(int row) const override {
        ++asked;
        return TableCtrl::GetItemData(row);
    }
    mutable int asked = 0;
};

} // namespace

TEST_F(TableRows, AreSearchedThroughTheVirtualWord) {
    CountingTable counting;
    ASSERT_NE(0, counting.Create(78, &host, false));
    RecordingHandler other;
    counting.SetTableHandler(&other);
    for (const unsigned __int64 word : {10, 11, 12, 13}) {
        counting.AddItem(word);
    }
    counting.asked = 0;
    counting.Select(12, 0, 0);
    EXPECT_EQ(3, counting.asked);
}

// Scrolling into view.

TEST_F(TableRows, AreScrolledIntoViewNoFartherThanNeeded) {
    addManyRows(20);
    struct Case {
        const char* what;
        int from;
        int row;
        int to;
    };
    const Case cases[] = {
        {"in view", 0, 4, 0},
        {"just below", 0, 5, 21},
        {"the last", 0, 19, 301},
        {"past the end", 0, 99, 301},
        {"above", 200, 3, 59},
        {"at the top: the line above", 60, 3, 59},
        {"one under the top", 59, 3, 59},
        {"the first", 21, 0, 0},
        {"none", 60, -1, 60},
    };
    for (const Case& c : cases) {
        scrollTo(c.from);
        table.SetCarretIndex(c.row);
        EXPECT_EQ(c.to, scrollPosition()) << c.what;
    }
}

TEST_F(TableRows, AreScrolledIntoViewWithTheHandlersMargins) {
    addManyRows(20);
    handler.marginTop = -20;
    handler.marginBottom = -20;
    handler.recordAllBut({});
    scrollTo(100);
    table.SetCarretIndex(5);
    EXPECT_EQ(79, scrollPosition());
    EXPECT_EQ("GetCarretOffset(0,0)", log());
    scrollTo(0);
    table.SetCarretIndex(4);
    EXPECT_EQ(21, scrollPosition());
}

// The scroll bar.

TEST_F(TableRows, ThatJustFitNeedNoScrollBar) {
    addManyRows(5);
    EXPECT_EQ(100, table.GetAllItemsHeight());
    EXPECT_FALSE(barIsShown());
    EXPECT_EQ(0, scrollMaximum());
    EXPECT_EQ(200, bodySize().cx);
    table.SetItemHeight(0, 21);
    table.UpdateVScroll();
    EXPECT_TRUE(barIsShown());
    EXPECT_EQ(102, scrollMaximum());
    EXPECT_EQ(101, page());
    table.SetItemHeight(0, 20);
    table.UpdateVScroll();
    EXPECT_FALSE(barIsShown());
    EXPECT_EQ(0, scrollMaximum());
}

TEST_F(TableRows, TheWishForABarIsKeptAndHidesItWithoutItsRange) {
    addManyRows(20);
    EXPECT_TRUE(table.ShowScrollbar());
    table.ShowScrollbar(false);
    EXPECT_FALSE(table.ShowScrollbar());
    EXPECT_FALSE(barIsShown());
    EXPECT_EQ(200, bodySize().cx);
    EXPECT_EQ(401, scrollMaximum());
    table.ShowScrollbar(true);
    EXPECT_TRUE(barIsShown());
    EXPECT_EQ(200 - ::GetSystemMetrics(SM_CXVSCROLL), bodySize().cx);
    EXPECT_EQ(CRect(0, table.GetHeaderHeight(), 200, table.GetHeaderHeight() + 100), rectOf(body()));
}

TEST_F(TableRows, ABarThatIsAlwaysVisibleIsShownEvenForFewRows) {
    table.SetVScrollAlwaysVisible();
    EXPECT_FALSE(barIsShown());
    addManyRows(2);
    EXPECT_TRUE(barIsShown());
    EXPECT_EQ(0, scrollMaximum());
    table.ShowScrollbar(false);
    EXPECT_FALSE(barIsShown()) << "the wish comes first";
    table.ShowScrollbar(true);
    table.DeleteAllItems();
    addManyRows(20);
    EXPECT_TRUE(barIsShown());
    EXPECT_EQ(401, scrollMaximum());
}

TEST_F(TableRows, TheViewGoesToBothEnds) {
    addManyRows(20);
    table.SetVScrollMaxPos();
    EXPECT_EQ(301, scrollPosition());
    table.SetVScrollMinPos();
    EXPECT_EQ(0, scrollPosition());
}

TEST_F(TableRows, KeptToTheBottomTheViewFollowsWhatIsAdded) {
    table.KeepVScrollToBottomSide();
    addManyRows(20);
    scrollTo(150);
    select(10); // in view, so that the removal need not scroll
    handler.rowHeight = 32;
    table.AddItem(99);
    table.UpdateVScroll();
    EXPECT_EQ(182, scrollPosition());
    table.UpdateVScroll();
    EXPECT_EQ(182, scrollPosition());
    table.DeleteItem(99);
    table.UpdateVScroll();
    EXPECT_EQ(150, scrollPosition());
}

TEST_F(TableRows, KeptToTheBottomTheViewFollowsItsOwnHeight) {
    table.KeepVScrollToBottomSide();
    addManyRows(20);
    scrollTo(301);
    table.MoveWindow(0, 0, 200, table.GetHeaderHeight() + 70);
    EXPECT_EQ(331, scrollPosition());
    table.MoveWindow(0, 0, 200, table.GetHeaderHeight() + 100);
    EXPECT_EQ(301, scrollPosition());
}

TEST_F(TableRows, TheEstimateOfTheBarTakesTheHeaderForPartOfTheView) {
    addManyRows(5);
    EXPECT_FALSE(table.IsVScrollVisible());
    table.SetItemHeight(0, 20 + table.GetHeaderHeight());
    EXPECT_FALSE(table.IsVScrollVisible()) << "though the body is lower";
    table.SetItemHeight(0, 21 + table.GetHeaderHeight());
    EXPECT_TRUE(table.IsVScrollVisible());
}

// Batches.

TEST_F(TableRows, AThousandInABatchChangeNoSelectionAndCauseNoPaint) {
    handler.recordAllBut({"GetSelectedItem"});
    table.BeginUpdate();
    std::string expected;
    for (int row = 0; row < 1000; ++row) {
        table.AddItem(static_cast<unsigned __int64>(row + 1));
        expected += (row == 0 ? "" : " ") + ("ComputeItemHeight(" + std::to_string(row)) + ") SetFindMode(0)";
    }
    support::pumpUntilIdle();
    EXPECT_EQ(expected, log());
    EXPECT_EQ(-1, handler.caret);
    table.DeleteItem(1000);
    table.InsertItems(Items{{2000, 20}}, 0, 40);
    table.DeleteAllItems();
    table.Redraw();
    support::pumpUntilIdle();
    EXPECT_EQ("SetFindMode(0) SetFindMode(0)", log());
    table.AddItem(7);
    forget();
    table.FinishUpdate();
    EXPECT_TRUE(bodyIsInvalid());
    handler.record({"DrawItem"});
    support::pumpUntilIdle();
    EXPECT_EQ("DrawItem(0,0,20)", log());
}

TEST_F(TableRows, BatchesDoNotNest) {
    table.BeginUpdate();
    table.BeginUpdate();
    table.FinishUpdate();
    table.AddItem(7);
    EXPECT_EQ(0, handler.caret);
}

TEST_F(TableRows, ARedrawPaintsAtOnceOutsideABatch) {
    addManyRows(2);
    handler.record({"OnDrawFinished"});
    table.Redraw();
    EXPECT_EQ("OnDrawFinished", log());
    EXPECT_TRUE(::GetUpdateRect(header(), nullptr, FALSE));
    table.BeginUpdate();
    table.Redraw();
    EXPECT_EQ("", log());
    table.FinishUpdate();
}

TEST_F(TableRows, ATableWithoutAHandlerTakesThemToo) {
    ReachableTable bare;
    ASSERT_NE(0, bare.Create(78, &host, false));
    bare.AddItem(1);
    bare.InsertItem(2, 0);
    bare.InsertItems(Items{{3, 20}}, 0, 20);
    bare.MoveElementAt(3, 1);
    bare.DeleteItem(9);
    bare.Select(1, 1, 1);
    bare.SelectItem(0, true);
    bare.Redraw();
    support::pumpUntilIdle();
    EXPECT_EQ(3, bare.GetItemCount());
    EXPECT_EQ(-1, bare.GetSelectedItem());
    bare.DeleteAllItems();
    EXPECT_EQ(0, bare.GetItemCount());
}
