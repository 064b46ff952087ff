#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "TableFixture.h"
#include "support/Pump.h"

namespace {

using Items = std::vector<std::pair<unsigned __int64, int>>;

class TableSorting : public TableFixture {
protected:
    TableSorting() {
        sizeBody(300, 100);
        setColumns({60.0, 70.0, 80.0});
    }

    void sortOnClick() {
        table.EnableSortingOnColumnHeaderClick(true);
        forget();
    }

    std::string arrows() const { return arrowOf(0) + "|" + arrowOf(1) + "|" + arrowOf(2); }
};

} // namespace

// The host's sort.

TEST_F(TableSorting, TheHostsSortReplacesTheRowsAndTheSelectionFollowsItsRow) {
    addRows({10, 11, 12});
    select(2);
    handler.sorted = {{12, 5}, {10, 6}, {11, 7}};
    handler.recordAllBut({});
    table.SortDesc();
    EXPECT_EQ("GetSelectedItem SortElements(true) OnElementsSorted UpdateItemPosition(0) ComputeItemHeight(0) "
              "UpdateItemPosition(1) ComputeItemHeight(1) UpdateItemPosition(2) ComputeItemHeight(2) "
              "SetSelectedItem(0,false)",
              log());
    EXPECT_EQ("rows 12 10 11 | caret 0 | scroll 0", describe());
    EXPECT_EQ(20, table.GetItemHeight(0)) << "asked again";
    EXPECT_TRUE(::GetUpdateRect(body(), nullptr, FALSE));
    EXPECT_EQ("down||", arrows());
}

TEST_F(TableSorting, TheHostsSortDoesNotScrollToTheSelection) {
    addManyRows(30);
    select(0);
    Items reversed;
    for (int row = 30; row >= 1; --row) {
        reversed.emplace_back(row, 20);
    }
    handler.sorted = reversed;
    table.SortAsc();
    EXPECT_EQ(29, handler.caret);
    EXPECT_EQ(0, scrollPosition());
}

TEST_F(TableSorting, TheDirectionIsSetToggledOrOnlyStored) {
    handler.record({"SortElements"});
    table.SortAsc();
    EXPECT_TRUE(table.IsSortAsc());
    table.SortSwitch();
    EXPECT_FALSE(table.IsSortAsc());
    table.SortSwitch();
    table.SortDesc();
    EXPECT_EQ("SortElements(false) SortElements(true) SortElements(false) SortElements(true)", log());
    table.UpdateSortDirection(true);
    EXPECT_TRUE(table.IsSortAsc());
    table.UpdateSortDirection(false);
    EXPECT_FALSE(table.IsSortAsc());
    EXPECT_EQ("", log());
    table.Sort();
    EXPECT_EQ("SortElements(true)", log());
}

TEST_F(TableSorting, WithoutAHandlerOnlyTheArrowIsUpdated) {
    ReachableTable bare;
    ASSERT_NE(0, bare.Create(78, &host, false));
    bare.SetColumns({{L"A", 60.0}, {L"B", 70.0}});
    bare.AddItem(10);
    bare.SetSortRowColumnId(0, 1);
    bare.SortAsc();
    EXPECT_EQ(1, bare.GetItemCount());
    HDITEMW item{};
    item.mask = HDI_FORMAT;
    ::SendMessageW(::GetDlgItem(bare.m_hWnd, kHeaderId), HDM_GETITEMW, 1, reinterpret_cast<LPARAM>(&item));
    EXPECT_EQ(HDF_SORTUP, item.fmt & (HDF_SORTUP | HDF_SORTDOWN));
}

TEST_F(TableSorting, AnEmptyAnswerOfTheHostEmptiesTheTable) {
    addRows({10, 11});
    table.SortAsc();
    EXPECT_EQ("rows | caret 0 | scroll 0", describe());
}

TEST_F(TableSorting, TheArrowStandsOnTheColumnThatWasNamedUnlessRowsAreSorted) {
    table.SortAsc();
    EXPECT_EQ("up||", arrows());
    table.SetSortRowColumnId(0, 2);
    EXPECT_EQ("up||", arrows()) << "only stored";
    table.SortDesc();
    EXPECT_EQ("||down", arrows());
    table.SetSortRowColumnId(1, 2);
    table.SortAsc();
    EXPECT_EQ("||", arrows());
    table.SetSortRowColumnId(0, 9);
    table.SortAsc();
    EXPECT_EQ("||", arrows()) << "no such column";
}

// The sort by a header click.

TEST_F(TableSorting, AHeaderClickSortsAscendingThenDescendingAndTheArrowFollows) {
    addRows({12, 10, 13, 11});
    select(1);
    sortOnClick();
    clickHeader(1);
    EXPECT_EQ("rows 10 11 12 13 | caret 0 | scroll 0", describe());
    EXPECT_EQ("|up|", arrows());
    clickHeader(1);
    EXPECT_EQ("rows 13 12 11 10 | caret 3 | scroll 0", describe());
    EXPECT_EQ("|down|", arrows());
    clickHeader(2);
    EXPECT_EQ("rows 10 11 12 13 | caret 0 | scroll 0", describe());
    EXPECT_EQ("||up", arrows());
}

TEST_F(TableSorting, AHeaderClickCallsTheHandlerInItsOrder) {
    addRows({11, 10});
    handler.position = {0, 4};
    sortOnClick();
    handler.recordAllBut({"CanPaint", "IsPaintEnabled", "UseOptimalisation", "IsAutoscrollEnabled", "PrepareDraw",
                          "DrawItem", "OnDrawFinished"});
    clickHeader(2);
    const std::string called = log();
    EXPECT_EQ("GetSelectedPosition SelectPosition(2,4) GetSelectedItem ElementsToCompareCount ", called.substr(0, 79));
    EXPECT_NE(std::string::npos, called.find("CompareElementsViaColumn(10,11,2)"));
    const std::size_t sorted = called.find("OnElementsSorted");
    ASSERT_NE(std::string::npos, sorted);
    EXPECT_EQ("OnElementsSorted UpdateItemPosition(0) ComputeItemHeight(0) UpdateItemPosition(1) ComputeItemHeight(1) "
              "SetSelectedItem(1,true) UpdateItemPosition(0)",
              called.substr(sorted, 148))
        << "and the paint follows";
}

TEST_F(TableSorting, AHeaderClickSortsOnlyTheLeadingRows) {
    addRows({13, 12, 11, 10});
    sortOnClick();
    handler.toCompare = 2;
    clickHeader(0);
    EXPECT_EQ("rows 12 13 11 10 | caret 1 | scroll 0", describe());
    handler.toCompare = 99;
    clickHeader(0);
    EXPECT_EQ("rows 13 12 11 10 | caret 0 | scroll 0", describe());
}

TEST_F(TableSorting, AHeaderClickOverNoRowsStillShowsTheArrow) {
    addRows({13, 12});
    sortOnClick();
    handler.toCompare = 0;
    clickHeader(0);
    EXPECT_EQ("rows 13 12 | caret 0 | scroll 0", describe());
    EXPECT_EQ("up||", arrows());
    clickHeader(0);
    EXPECT_EQ("down||", arrows());
}

TEST_F(TableSorting, TheArrowOfAHeaderClickShowsAlsoWhenRowsAreSorted) {
    sortOnClick();
    table.SetSortRowColumnId(1, 0);
    clickHeader(1);
    EXPECT_EQ("|up|", arrows());
}

TEST_F(TableSorting, AHeaderClickMovesPairsWhole) {
    handler.heights = {{12, 31}, {10, 32}};
    addRows({12, 10});
    sortOnClick();
    std::vector<int> heights;
    handler.onCall = [&](const std::string& callback) {
        if (callback == "OnElementsSorted") {
            heights = {table.GetItemHeight(0), table.GetItemHeight(1)};
        }
    };
    clickHeader(0);
    EXPECT_EQ((std::vector<int>{32, 31}), heights) << "before the heights are asked again";
}

TEST_F(TableSorting, AHeaderClickComparesByPositionAndMarksTheItemWithThatNumber) {
    lock(true);
    table.SwitchColumnOrder(0, 2, 0);
    addRows({12, 10});
    sortOnClick();
    handler.record({"CompareElementsViaColumn", "SelectPosition"});
    clickHeader(2);
    const std::string called = log();
    EXPECT_EQ("SelectPosition(0,0)", called.substr(0, 19)) << "the column with the id 2 is shown first";
    EXPECT_NE(std::string::npos, called.find(",0)"));
    EXPECT_EQ("up||", arrows()) << "the arrow goes by item";
}

TEST_F(TableSorting, WithoutTheBuiltInSortTheHostIsAskedWhetherItSorts) {
    handler.record({"SelectPosition", "SortColumnAvailable", "OnSortByColumn", "OnDrawFinished"});
    clickHeader(1);
    EXPECT_EQ("SelectPosition(1,0) SortColumnAvailable(1) OnDrawFinished", log());
    handler.sortAvailable = true;
    clickHeader(1);
    EXPECT_EQ("SelectPosition(1,0) SortColumnAvailable(1) OnSortByColumn(1) OnDrawFinished", log());
    EXPECT_EQ("||", arrows());
}

TEST_F(TableSorting, EqualRowsAndLyingHostsLeaveEachRowInThereOnce) {
    const Words words{5, 5, 3, 3, 3, 9, 1, 1, 8, 2, 2, 2, 7, 7, 4, 6};
    unsigned int random = 1;
    const std::function<bool(unsigned __int64, unsigned __int64, int)> hosts[] = {
        [](auto, auto, int) { return true; },
        [](auto, auto, int) { return false; },
        [&](auto, auto, int) { return ((random = random * 1664525 + 1013904223) >> 16 & 1) != 0; },
        [](auto a, auto b, int) { return a <= b; },
    };
    sortOnClick();
    for (const auto& host_ : hosts) {
        table.DeleteAllItems();
        for (int round = 0; round < 20; ++round) {
            for (const unsigned __int64 word : words) {
                table.AddItem(word);
            }
        }
        handler.before = host_;
        for (int click = 0; click < 4; ++click) {
            clickHeader(0);
            std::map<unsigned __int64, int> counted;
            for (int row = 0; row < table.GetItemCount(); ++row) {
                ++counted[table.GetItemData(row)];
            }
            for (const unsigned __int64 word : words) {
                EXPECT_EQ(20 * std::count(words.begin(), words.end(), word), counted[word]);
            }
        }
    }
}

// Find mode and keys.

namespace {

class TableKeys : public TableFixture {
protected:
    TableKeys() {
        sizeBody(200, 100);
        handler.record({"OnKey", "SetFindMode", "CancelFindMode", "GetCarretOffset"});
    }

    /// The way of a key through the message loop.
    BOOL preTranslate(UINT message, WPARAM wParam, LPARAM lParam = 1, HWND to = nullptr) {
        MSG posted{};
        posted.hwnd = to == nullptr ? body() : to;
        posted.message = message;
        posted.wParam = wParam;
        posted.lParam = lParam;
        return table.PreTranslateMessage(&posted);
    }
};

} // namespace

TEST_F(TableKeys, NavigationKeysGoToTheHandlerWithThePageAndTheRestEndsFindMode) {
    addManyRows(20);
    paint();
    for (const UINT virtualKey : {VK_PRIOR, VK_NEXT, VK_END, VK_HOME, VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
        key(virtualKey);
        EXPECT_EQ("OnKey(" + std::to_string(virtualKey) + ",5) SetFindMode(0)", log());
    }
    key(VK_DELETE);
    EXPECT_EQ("OnKey(46) SetFindMode(0)", log());
    for (const UINT virtualKey : {UINT{VK_INSERT}, UINT{'A'}, UINT{VK_RETURN}, UINT{VK_SHIFT}}) {
        key(virtualKey);
        EXPECT_EQ("SetFindMode(0)", log()) << virtualKey;
    }
}

TEST_F(TableKeys, ThePageIsOneRowLessThanIsDrawnAndAtLeastOne) {
    struct Case {
        int rows;
        int page;
    };
    for (const Case& c : {Case{0, 1}, Case{1, 1}, Case{2, 1}, Case{3, 2}, Case{5, 4}}) {
        table.DeleteAllItems();
        addManyRows(c.rows);
        paint();
        log();
        key(VK_NEXT);
        EXPECT_EQ("OnKey(34," + std::to_string(c.page) + ") SetFindMode(0)", log()) << c.rows;
    }
    handler.rowHeight = 10;
    table.DeleteAllItems();
    addManyRows(10);
    paint();
    log();
    key(VK_NEXT);
    EXPECT_EQ("OnKey(34,9) SetFindMode(0)", log());
}

TEST_F(TableKeys, TheRowThatTheHandlerAnswersIsScrolledIntoViewAndPaintedLater) {
    handler.optimised = true;
    addManyRows(20);
    select(-1);
    paint();
    handler.keyRow = 5;
    log();
    key(VK_DOWN);
    EXPECT_EQ("OnKey(40,5) GetCarretOffset(0,0) SetFindMode(0)", log());
    EXPECT_EQ(21, scrollPosition());
    EXPECT_TRUE(::GetUpdateRect(body(), nullptr, FALSE));
    handler.record({"DrawItem"});
    support::pumpUntilIdle();
    EXPECT_EQ("DrawItem(1,-1,19)", log().substr(0, 17)) << "all rows";
    handler.keyRow = -1;
    key(VK_DOWN);
    EXPECT_FALSE(::GetUpdateRect(body(), nullptr, FALSE)) << "no row to show";
}

TEST_F(TableKeys, EachKeyTakesTheFocus) {
    host.activate();
    for (const UINT message : {WM_KEYDOWN, WM_KEYUP}) {
        ::SetFocus(host.m_hWnd);
        ::SendMessageW(body(), message, 'A', 1);
        EXPECT_EQ(body(), ::GetFocus());
    }
}

TEST_F(TableKeys, FindModeEndsWhereItIsSaidToEnd) {
    addRows({10, 11});
    press(5, 5);
    EXPECT_EQ("CancelFindMode", log());
    release(5, 5);
    EXPECT_EQ("SetFindMode(0)", log());
    table.InsertItem(12, 0);
    EXPECT_EQ("SetFindMode(0)", log());
    table.InsertItems({{13, 20}}, 0, 0);
    EXPECT_EQ("SetFindMode(0)", log());
    table.DeleteItem(12);
    EXPECT_EQ("GetCarretOffset(0,0)", log()) << "not by a removal that finds its row";
    table.DeleteItem(99);
    EXPECT_EQ("SetFindMode(0) GetCarretOffset(0,0)", log());
    table.MoveElementAt(13, 1);
    table.Sort();
    EXPECT_EQ("", log());
    table.DeleteAllItems();
    EXPECT_EQ("SetFindMode(0)", log());
}

TEST_F(TableKeys, PageKeysStopAtTheTableAndOthersPassToTheParent) {
    // The parent is a window whose own PreTranslateMessage tells what it sees.
    class Parent : public CWnd {
    public:
        BOOL PreTranslateMessage(MSG* message) override {
            seen.push_back(message->wParam);
            return answer;
        }
        std::vector<WPARAM> seen;
        BOOL answer = FALSE;
    };
    Parent parent;
    ASSERT_TRUE(parent.Create(nullptr, L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 100), &host, 5));
    ReachableTable inner;
    ASSERT_NE(0, inner.Create(78, &parent, false));
    inner.SetTableHandler(&handler);
    const HWND list = ::GetDlgItem(inner.m_hWnd, kBodyId);
    const auto send = [&](UINT virtualKey) {
        MSG message{};
        message.hwnd = list;
        message.message = WM_KEYDOWN;
        message.wParam = virtualKey;
        log();
        return inner.PreTranslateMessage(&message);
    };
    for (const UINT virtualKey : {UINT{VK_PRIOR}, UINT{VK_NEXT}}) {
        EXPECT_TRUE(send(virtualKey));
        EXPECT_TRUE(parent.seen.empty());
        EXPECT_EQ("OnKey(" + std::to_string(virtualKey) + ",1) SetFindMode(0)", log());
    }
    EXPECT_FALSE(send(VK_UP));
    EXPECT_EQ((std::vector<WPARAM>{VK_UP}), parent.seen);
    EXPECT_EQ("OnKey(38,1) SetFindMode(0)", log()) << "the body has handled it before";
    parent.answer = TRUE;
    EXPECT_TRUE(send('A'));
    EXPECT_EQ((std::vector<WPARAM>{VK_UP, 'A'}), parent.seen);
    EXPECT_EQ("SetFindMode(0)", log());
    inner.DestroyWindow();
    parent.DestroyWindow();
}

TEST_F(TableKeys, InsertAndDeleteAreLeftToTheDispatch) {
    addRows({10});
    log();
    for (const UINT virtualKey : {UINT{VK_DELETE}, UINT{VK_INSERT}}) {
        EXPECT_FALSE(preTranslate(WM_KEYDOWN, virtualKey));
        EXPECT_EQ("", log());
    }
    ::PostMessageW(body(), WM_KEYDOWN, VK_DELETE, 1);
    support::pumpUntilIdle();
    EXPECT_EQ("OnKey(46) SetFindMode(0)", log()) << "once";
}

TEST_F(TableKeys, KeysForOtherWindowsAreNotForwarded) {
    EXPECT_FALSE(preTranslate(WM_KEYDOWN, VK_DOWN, 1, header()));
    EXPECT_FALSE(preTranslate(WM_KEYUP, VK_DOWN));
    EXPECT_FALSE(preTranslate(WM_CHAR, 'a'));
    EXPECT_EQ("", log());
}

TEST_F(TableKeys, TheWheelGoesToTheBodyWhereverItWasMeantFor) {
    addManyRows(20);
    EXPECT_FALSE(preTranslate(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0, header()));
    EXPECT_EQ(15, scrollPosition());
}
