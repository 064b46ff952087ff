#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "RepaintState.h"

namespace {

using Rows = std::set<std::uint64_t>;

const auto kSingleRows = [] { return true; };
const auto kAllRows = [] { return false; };

} // namespace

TEST(RepaintStateOfABody, AsksForAFullPaintAtFirst) {
    RepaintState state;
    EXPECT_TRUE(state.takeFullRedraw());
    EXPECT_FALSE(state.takeFullRedraw());
}

TEST(RepaintStateOfABody, MarkedRowsAreHandedOutOnce) {
    RepaintState state;
    state.takeFullRedraw();
    state.mark(7, kSingleRows);
    state.mark(5, kSingleRows);
    state.mark(7, kSingleRows);
    EXPECT_FALSE(state.takeFullRedraw());
    EXPECT_EQ((Rows{5, 7}), state.takeInvalidRows());
    EXPECT_EQ(Rows{}, state.takeInvalidRows());
}

TEST(RepaintStateOfABody, MarkingAllForgetsTheSingleRows) {
    RepaintState state;
    state.takeFullRedraw();
    state.mark(7, kSingleRows);
    state.mark(0, kSingleRows);
    EXPECT_TRUE(state.takeFullRedraw());
    EXPECT_EQ(Rows{}, state.takeInvalidRows());
}

TEST(RepaintStateOfABody, WithoutSingleRowsEachMarkMeansAll) {
    RepaintState state;
    state.takeFullRedraw();
    state.mark(7, kSingleRows);
    state.mark(8, kAllRows);
    EXPECT_TRUE(state.takeFullRedraw());
    EXPECT_EQ(Rows{}, state.takeInvalidRows());
}

TEST(RepaintStateOfABody, TheHostIsNotAskedAboutSingleRowsWhenAllAreMarked) {
    RepaintState state;
    bool asked = false;
    state.mark(0, [&] {
        asked = true;
        return true;
    });
    EXPECT_FALSE(asked);
}

TEST(RepaintStateOfABody, AHostMayMarkWhileItIsAsked) {
    RepaintState state;
    state.takeFullRedraw();
    state.mark(7, [&] {
        state.mark(8, kSingleRows);
        return true;
    });
    EXPECT_EQ((Rows{7, 8}), state.takeInvalidRows());
}

TEST(RepaintStateOfABody, KnowsWhatTheLatestPaintDrew) {
    RepaintState state;
    state.addDrawnRow(1);
    state.addDrawnRow(2);
    state.addDrawnRow(2);
    EXPECT_TRUE(state.isDrawn(1));
    EXPECT_FALSE(state.isDrawn(3));
    EXPECT_EQ(2U, state.drawnRowCount());
    state.forgetDrawnRows();
    EXPECT_FALSE(state.isDrawn(1));
    EXPECT_EQ(0U, state.drawnRowCount());
}

TEST(RepaintStateOfABody, LosesNoMarkOfEightThreads) {
    constexpr int kThreads = 8;
    constexpr std::uint64_t kMarks = 2000;
    RepaintState state;
    state.takeFullRedraw();
    std::atomic<int> running = kThreads;
    std::vector<std::thread> threads;
    for (std::uint64_t thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&state, &running, thread] {
            for (std::uint64_t mark = 1; mark <= kMarks; ++mark) {
                state.mark(thread * kMarks + mark, kSingleRows);
            }
            --running;
        });
    }
    Rows taken;
    while (running > 0) {
        taken.merge(state.takeInvalidRows());
        state.addDrawnRow(1);
        std::this_thread::yield();
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    taken.merge(state.takeInvalidRows());
    EXPECT_EQ(kThreads * kMarks, taken.size());
    EXPECT_FALSE(state.takeFullRedraw());
}
