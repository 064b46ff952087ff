// What a table does about single oddities of its host.

#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "TableFixture.h"

namespace {

class UnwellHostCases : public TableFixture {
protected:
    void SetUp() override {
        handler.recordAllBut({});
        table.EnableMouseMovingColumns(true);
        table.EnableSortingOnColumnHeaderClick(true);
        table.EnableColumnWidthTracking(true);
        setColumns({80, 80, 80});
        table.UpdateColumns();
        addManyRows(30);
    }

    void TearDown() override {
        handler.onCall = nullptr;
        ::ReleaseCapture();
    }
};

TEST_F(UnwellHostCases, ADragLoopOfItsOwnIsAskedForOnce) {
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

TEST_F(UnwellHostCases, AThrowOutOfDrawingIsFollowedByAFullPaint) {
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

TEST_F(UnwellHostCases, HeightsThatNeverSettleEndInAPaintAllTheSame) {
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

TEST_F(UnwellHostCases, APaintAskedForInsideAPaintFollowsIt) {
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

TEST_F(UnwellHostCases, APressOnAnItemThatIsReleasedBesideAllItemsIsNoClick) {
    setColumns({50, 50});
    table.TrackColumnWidthChange(1, 50, true);
    forget();
    pressHeader(10, 5);
    releaseHeader(390, 5);
    EXPECT_EQ("", log());
}

TEST_F(UnwellHostCases, AControlMayBeDeletedWhenItIsAskedForATip) {
    RecordingHandler asked;
    asked.tipId = 3;
    asked.tipText = L"tip";
    auto owned = std::make_unique<ReachableTable>();
    ASSERT_TRUE(owned->Create(kTableId + 1, &host, false));
    owned->SetTableHandler(&asked);
    owned->MoveWindow(0, 0, 200, 100);
    asked.onCall = [&](const std::string& call) {
        if (call.rfind("GetToolTip", 0) == 0) {
            owned.reset();
        }
    };
    MSG move{::GetDlgItem(owned->m_hWnd, kBodyId), WM_MOUSEMOVE, 0, MAKELPARAM(5, 5), 0, {}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &move));
    EXPECT_EQ(nullptr, owned);
}

TEST_F(UnwellHostCases, AHundredThousandUnknownWordsToDeleteTakeNoTime) {
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
