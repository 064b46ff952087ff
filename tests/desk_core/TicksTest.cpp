#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

#include <gtest/gtest.h>

#include "core/PriceFlashes.h"
#include "core/RandomWalk.h"
#include "core/TickBatch.h"

using namespace Desk;

TEST(TickBatch, KeepsTheLatestPriceInThePlaceOfTheFirst) {
    TickBatch batch;
    batch.add({3, 1.0});
    batch.add({1, 2.0});
    batch.add({3, 4.0});
    EXPECT_EQ(batch.take(), (std::vector<Tick>{{3, 4.0}, {1, 2.0}}));
    EXPECT_TRUE(batch.take().empty());
}

TEST(TickBatch, AsksForATakerOnlyWhenItWasEmpty) {
    TickBatch batch;
    EXPECT_TRUE(batch.add({0, 1.0}));
    EXPECT_FALSE(batch.add({1, 1.0}));
    EXPECT_FALSE(batch.add({0, 2.0}));
    batch.take();
    EXPECT_TRUE(batch.add({0, 3.0}));
}

TEST(TickBatch, LosesNoInstrumentOfEightThreads) {
    TickBatch batch;
    std::atomic<int> notices = 0;
    std::vector<std::thread> threads;
    for (std::size_t thread = 0; thread < 8; ++thread)
        threads.emplace_back([&, thread] {
            for (std::size_t tick = 0; tick < 1000; ++tick)
                if (batch.add({thread * 1000 + tick, 1.0}))
                    ++notices;
        });
    std::size_t taken = 0;
    int takes = 0;
    while (taken < 8000) {
        const std::size_t size = batch.take().size();
        taken += size;
        takes += size > 0 ? 1 : 0;
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(taken, 8000u);
    EXPECT_EQ(notices, takes);
}

TEST(RandomWalk, IsTheSameForTheSameSeed) {
    const std::vector<std::optional<double>> prices{10.0, 200.0, 3.5};
    RandomWalk one(5, prices);
    RandomWalk same(5, prices);
    RandomWalk other(6, prices);
    int differences = 0;
    for (int step = 0; step < 200; ++step) {
        const Tick tick = *one.next();
        EXPECT_EQ(tick, *same.next());
        differences += tick == *other.next() ? 0 : 1;
    }
    EXPECT_GT(differences, 100);
}

TEST(RandomWalk, MovesInSmallStepsAndStaysAboveZero) {
    RandomWalk walk(1, {0.01, std::nullopt, 150.0});
    std::vector<double> latest{0.01, 0.0, 150.0};
    for (int step = 0; step < 20000; ++step) {
        const Tick tick = *walk.next();
        ASSERT_NE(tick.instrument, 1u);
        double& before = latest[tick.instrument];
        const double move = std::fabs(tick.price - before);
        ASSERT_GE(tick.price, 0.0099);
        ASSERT_GE(move, 0.0099);
        ASSERT_LE(move, std::max(0.0101, before * 0.006 + 0.0101));
        before = tick.price;
    }
}

TEST(RandomWalk, WithoutPricesNeverTicks) {
    EXPECT_FALSE(RandomWalk(1, {}).next());
    EXPECT_FALSE(RandomWalk(1, {std::nullopt, std::nullopt}).next());
}

TEST(PriceFlashes, FadeInSteps) {
    PriceFlashes flashes;
    flashes.strike(4, true, 1000);
    flashes.strike(2, false, 1000);
    EXPECT_EQ(flashes.levelOf(4), PriceFlashes::Steps);
    EXPECT_EQ(flashes.levelOf(2), -PriceFlashes::Steps);
    EXPECT_TRUE(flashes.advance(1000 + PriceFlashes::StepMilliseconds - 1).empty());
    EXPECT_EQ(flashes.advance(1000 + PriceFlashes::StepMilliseconds), (std::vector<std::size_t>{2, 4}));
    EXPECT_EQ(flashes.levelOf(4), PriceFlashes::Steps - 1);
}

TEST(PriceFlashes, AreReportedOnceMoreWhenTheyAreGone) {
    PriceFlashes flashes;
    flashes.strike(4, true, 0);
    EXPECT_EQ(flashes.advance(1000000), (std::vector<std::size_t>{4}));
    EXPECT_EQ(flashes.levelOf(4), 0);
    EXPECT_TRUE(flashes.isQuiet());
    EXPECT_TRUE(flashes.advance(2000000).empty());
}

TEST(PriceFlashes, StartAnewWithEachChange) {
    PriceFlashes flashes;
    flashes.strike(4, true, 0);
    flashes.advance(PriceFlashes::StepMilliseconds * 3);
    flashes.strike(4, false, PriceFlashes::StepMilliseconds * 3);
    EXPECT_EQ(flashes.levelOf(4), -PriceFlashes::Steps);
}

TEST(PriceFlashes, TakeNoHarmFromAClockThatGoesBack) {
    PriceFlashes flashes;
    flashes.strike(4, true, 5000);
    EXPECT_TRUE(flashes.advance(0).empty());
    EXPECT_EQ(flashes.levelOf(4), PriceFlashes::Steps);
}
