// Hosts that do in the middle of a callback what no host should: the control must not fall over them.

#include <algorithm>
#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

#include "TableFixture.h"

namespace {

/// What a host does from inside a callback.
struct Deed {
    const char* name;
    void (*run)(ReachableTable& table);
};

const Deed kDeeds[] = {
    {"destroys the window", [](ReachableTable& table) { table.DestroyWindow(); }},
    {"deletes all rows", [](ReachableTable& table) { table.DeleteAllItems(); }},
    {"deletes some rows",
     [](ReachableTable& table) {
         table.DeleteItems({1, 900, 2, 30});
     }},
    {"sorts", [](ReachableTable& table) { table.Sort(); }},
    {"adds a column", [](ReachableTable& table) { table.AddColumn(L"nowa", ITableView::AddAtFront); }},
    {"removes a column", [](ReachableTable& table) { table.RemoveColumn(0); }},
    {"inserts and redraws",
     [](ReachableTable& table) {
         table.InsertItem(1000, 0);
         table.Redraw();
     }},
    {"scrolls into view", [](ReachableTable& table) { table.SelectItem(table.GetItemCount() - 1, true); }},
};

const char* const kCallbacks[] = {
    "CancelFindMode",
    "OnItemClick",
    "PrepareDraw",
    "DrawItem",
    "OnDrawFinished",
    "RefreshView",
    "SetFindMode",
    "ComputeItemHeight",
    "SetSelectedItem",
    "OnSizeTableListCtrl",
    "OnColumnWidthChanging",
    "OnColumnWidthChanged",
    "SelectPosition",
    "OnElementsSorted",
    "UpdateItemPosition",
    "CanPaint",
    "IsPaintEnabled",
    "UseOptimalisation",
    "IsAutoscrollEnabled",
    "GetCarretOffset",
    "OnKey",
    "OnDblClick",
    "BeginDrag",
    "OnMoveColumn",
    "IsColumnOrderPossible",
    "CompareElementsViaColumn",
    "ElementsToCompareCount",
    "SortElements",
    "GetSelectedItem",
    "GetSelectedPosition",
    "GetOptimalColumnWidth",
    "OnTableViewDataChanged",
};

class MisbehavingHost : public TableFixture {
protected:
    void SetUp() override {
        handler.recordAllBut({});
        table.EnableMouseMovingColumns(true);
        table.EnableSortingOnColumnHeaderClick(true);
        table.EnableColumnWidthTracking(true);
        setColumns({80, 80, 80});
        table.UpdateColumns();
        addManyRows(30);
        handler.optimalWidth = 70;
        handler.sorted = {{3, 20}, {2, 20}, {1, 20}};
    }

    void TearDown() override {
        handler.onCall = nullptr;
        ::ReleaseCapture();
    }

    /// Everything a user and a host do, one after the other, each only while there is a window for it.
    void doEverything() {
        using Step = std::function<void()>;
        const std::vector<Step> ofUser = {
            [this] { paint(); },
            [this] { press(30, 30); },
            [this] { moveTo(90, 90, MK_LBUTTON); },
            [this] { release(90, 90); },
            [this] { doubleClick(30, 30); },
            [this] { moveTo(80, 30); },
            [this] { press(80, 30); },
            [this] { moveTo(99, 30, MK_LBUTTON); },
            [this] { release(99, 30); },
            [this] { key(VK_DOWN); },
            [this] { ::SendMessageW(body(), WM_VSCROLL, SB_LINEDOWN, 0); },
            [this] { pressHeader(20, 5); },
            [this] { releaseHeader(20, 5); },
            [this] { pressHeader(20, 5); },
            [this] { moveOnHeader(130, 5); },
            [this] { releaseHeader(130, 5); },
            [this] { table.MoveWindow(0, 0, 300, 150); },
            [this] { table.SendMessage(TableCtrl::Sm_tableViewDataChangedMessage, 0, 0); },
            [this] { ::UpdateWindow(body()); },
        };
        const std::vector<Step> ofHost = {
            [this] { table.TrackColumnWidthChangeBorderDblClk(0); },
            [this] { table.TrackColumnWidthChange(0, 60, true); },
            [this] { table.ShowColumn(1, false); },
            [this] { table.AddItem(77); },
            [this] {
                table.DeleteItems({1, 2, 500, 501, 3});
            },
            [this] { table.SelectItem(10, true); },
            [this] { table.Sort(); },
            [this] { table.ShowScrollbar(false); },
            [this] { table.ShowScrollbar(true); },
            [this] { table.UpdateColumns(); },
        };
        for (const Step& step : ofUser) {
            if (table.GetSafeHwnd() != nullptr && body() != nullptr) {
                step();
            }
        }
        for (const Step& step : ofHost) {
            step();
        }
    }

    /// Columns and rows still agree with themselves.
    void expectConsistent() const {
        const ITableView& view = table;
        const int rows = view.GetItemCount();
        int height = 0;
        for (int row = 0; row < rows; ++row) {
            height += view.GetItemHeight(static_cast<unsigned __int64>(row));
        }
        EXPECT_EQ(height, view.GetAllItemsHeight());
        if (table.GetSafeHwnd() != nullptr) {
            EXPECT_EQ(view.GetColumnCount(), static_cast<int>(headerOrder().size()));
            for (int position = 0; position < view.GetColumnCount(); ++position) {
                EXPECT_EQ(position, view.GetColumnIdxFromId(view.GetColumnId(position)));
            }
        }
    }
};

/// One row of the table: each deed from each callback, three times each.
class EachDeed : public MisbehavingHost, public testing::WithParamInterface<Deed> {};

TEST_P(EachDeed, FromAnyCallbackHarmsNothing) {
    std::set<std::string> reached;
    for (const char* const callback : kCallbacks) {
        SCOPED_TRACE(callback);
        support::ScopedTopLevelWindow other{CSize(600, 500)};
        if (table.GetSafeHwnd() == nullptr) {
            ASSERT_TRUE(table.Create(kTableId, &other, false));
            table.MoveWindow(0, 0, kWidth, 200);
            table.SetTableHandler(&handler);
        }
        setColumns({80, 80, 80});
        table.DeleteAllItems();
        addManyRows(30);
        int left = 3;
        bool inside = false;
        handler.onCall = [&](const std::string& call) {
            if (left > 0 && !inside && call.rfind(callback, 0) == 0) {
                inside = true;
                --left;
                reached.insert(callback);
                GetParam().run(table);
                inside = false;
            }
        };
        EXPECT_NO_THROW(doEverything());
        handler.onCall = nullptr;
        ::ReleaseCapture();
        expectConsistent();
        table.DestroyWindow();
    }
    EXPECT_EQ(std::size(kCallbacks), reached.size()) << "some callback was never misused";
}

std::string nameOf(const testing::TestParamInfo<Deed>& deed) {
    std::string name = deed.param.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Of, EachDeed, testing::ValuesIn(kDeeds), nameOf);

TEST_F(MisbehavingHost, ADragLoopOfItsOwnIsAskedForOnce) {
    int begins = 0;
    handler.onCall = [&](const std::string& call) {
        if (call.rfind("BeginDrag", 0) == 0 && ++begins < 100) {
            moveTo(200, 60, MK_LBUTTON);
        }
    };
    press(150, 30);
    moveTo(190, 60, MK_LBUTTON);
    EXPECT_EQ(1, begins);
    release(190, 60);
}

TEST_F(MisbehavingHost, AThrowOutOfDrawingIsFollowedByAFullPaint) {
    handler.optimised = true;
    table.DeleteAllItems();
    addManyRows(5);
    select(0);
    paint();
    bool thrown = false;
    handler.drawMore = [&](CDC&, int, const CRect&) {
        if (!std::exchange(thrown, true)) {
            throw std::runtime_error("the host cannot draw");
        }
    };
    table.InvalidateView(3);
    paint();
    ASSERT_TRUE(thrown);
    int drawn = 0;
    handler.drawMore = [&](CDC&, int, const CRect&) { ++drawn; };
    paint();
    EXPECT_EQ(5, drawn);
}

TEST_F(MisbehavingHost, HeightsThatNeverSettleEndInAPaintAllTheSame) {
    int draws = 0;
    bool finished = false;
    handler.drawMore = [&](CDC&, int, const CRect&) {
        handler.rowHeight = 20 + (++draws & 1);
        ::InvalidateRect(body(), nullptr, FALSE);
    };
    handler.drawFinally = [&](CDC&) { finished = true; };
    paint();
    EXPECT_TRUE(finished);
    EXPECT_LT(draws, 50'000);
}

TEST_F(MisbehavingHost, APaintAskedForInsideAPaintFollowsIt) {
    bool asked = false;
    handler.drawMore = [&](CDC&, int, const CRect&) {
        if (!std::exchange(asked, true)) {
            table.Redraw();
            EXPECT_FALSE(::GetUpdateRect(body(), nullptr, FALSE)) << "a message loop of the host would paint for ever";
        }
    };
    paint();
    EXPECT_TRUE(::GetUpdateRect(body(), nullptr, FALSE));
}

TEST_F(MisbehavingHost, APressOnAnItemThatIsReleasedBesideAllItemsIsNoClick) {
    setColumns({50, 50});
    table.TrackColumnWidthChange(1, 50, true);
    forget();
    pressHeader(10, 5);
    releaseHeader(390, 5);
    EXPECT_EQ("", log());
}

TEST_F(MisbehavingHost, AHundredThousandUnknownWordsToDeleteTakeNoTime) {
    std::vector<unsigned __int64> list(100'000);
    for (std::size_t index = 0; index < list.size(); ++index) {
        list[index] = 1'000'000 + index;
    }
    handler.record({});
    const auto start = std::chrono::steady_clock::now();
    table.DeleteItems(list);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_EQ(30, table.GetItemCount());
}

} // namespace
