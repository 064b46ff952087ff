// Whole lives of a table, one after the other: what leaks a little shows over many.

#include "TableFixture.h"
#include "support/Pump.h"
#include "support/Resources.h"

namespace {

class Lives : public testing::Test {
protected:
    static void liveOnce(support::ScopedTopLevelWindow& host, int round) {
        RecordingHandler handler;
        handler.record({});
        TableCtrl table;
        ASSERT_TRUE(table.Create(7, &host, false));
        table.SetTableHandler(&handler);
        table.MoveWindow(0, 0, 300, 200);
        table.SetColumns({{L"a", 60.0}, {L"b", 60.0}, {L"c", -40.0}});
        table.UpdateColumns();
        table.BeginUpdate();
        // The system draws a scroll bar slowly: every tenth life has one.
        const unsigned __int64 rows = round % 10 == 0 ? 20 : 6;
        for (unsigned __int64 word = 1; word <= rows; ++word) {
            table.AddItem(word);
        }
        table.FinishUpdate();
        table.Redraw();
        const ScopedTheme theme(round % 2);
        table.RefreshProgramStyleColors();
        table.MoveWindow(0, 0, 200 + round % 100, 150);
        table.Redraw();
        table.DeleteItems({3, 4, 5});
        table.SortAsc();
        table.DestroyWindow();
    }
};

TEST_F(Lives, TenThousandOfThemLeaveNothingBehind) {
    constexpr int kWarmUp = 200;
    constexpr int kLives = 10'000;
    // Room for the caches of the system and for windows that it gives a thread at some time, such as that of the input
    // method; far less than one a life.
    constexpr std::size_t kWindowsOfTheSystem = 3;
    constexpr std::size_t kHandlesOfTheSystem = 20;
    constexpr std::size_t kBytesOfTheSystem = 256 * 1024;
    support::ScopedTopLevelWindow host{CSize(400, 300)};
    for (int life = 0; life < kWarmUp; ++life) {
        liveOnce(host, life);
    }
    support::pumpUntilIdle();
    const support::Resources before = support::Resources::inUse();
    for (int life = 0; life < kLives; ++life) {
        liveOnce(host, life);
        if (life % 100 == 0) {
            support::pumpUntilIdle();
        }
    }
    support::pumpUntilIdle();
    const support::Resources after = support::Resources::inUse();
    EXPECT_LE(after.windows, before.windows + kWindowsOfTheSystem);
    EXPECT_LE(after.gdiHandles, before.gdiHandles + kHandlesOfTheSystem);
    EXPECT_LE(after.heapBytes, before.heapBytes + kBytesOfTheSystem);
}

} // namespace
