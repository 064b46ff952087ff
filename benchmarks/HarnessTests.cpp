#include "Harness.h"

#include <sstream>

#include <gtest/gtest.h>

namespace bench {
namespace {

using namespace std::chrono_literals;

/// A clock that only work moves, so that a measurement has one right answer.
class Harness : public testing::Test {
protected:
    Runner takes(std::chrono::nanoseconds duration, double work = 1) {
        return {.run = [this, duration] { now += duration * slowdown; }, .work = work};
    }

    Result measured(const Measurement& measurement) {
        return measure(measurement, [this] { return now; }, {.minimumSample = 1ms, .total = patience});
    }

    std::chrono::nanoseconds now{};
    int slowdown = 1;
    std::chrono::nanoseconds patience = 1h;
};

TEST_F(Harness, TheMedianIsTheMiddleOrTheMeanOfTheTwoMiddleValues) {
    EXPECT_EQ(0, median({}));
    EXPECT_EQ(3, median({9, 1, 3}));
    EXPECT_EQ(2.5, median({4, 1, 2, 3}));
}

TEST_F(Harness, TheSpreadLeavesOutTheQuartersAtBothEnds) {
    EXPECT_EQ(0, spread({}));
    EXPECT_EQ(0, spread({5}));
    EXPECT_DOUBLE_EQ(0.5, spread({3, 1, 2}));
    EXPECT_DOUBLE_EQ(0.25, spread({100, 4, 5, 3, 3, 0, 4, 5}));
}

TEST_F(Harness, TheSpreadIsThatOfTheRatioToTheLimitElseToThePeerElseOfTheTime) {
    int runs = 0;
    const Runner unsteady{.run = [&] { now += 1ms * (1 + ++runs % 3); }, .prepare = [] {}};
    const Runner steady{.run = [&] { now += 1ms; }, .prepare = [] {}};
    const auto spreadOf = [&](const Runner& ours, const std::optional<Runner>& peer,
                              const std::optional<Runner>& limit) {
        return *measured({.what = "w", .ours = ours, .peer = peer, .limit = limit, .rounds = 12}).spread;
    };
    EXPECT_DOUBLE_EQ(0.5, spreadOf(unsteady, {}, {}));
    EXPECT_DOUBLE_EQ(0, spreadOf(steady, {}, {}));
    EXPECT_DOUBLE_EQ(0.5, spreadOf(unsteady, steady, {}));
    EXPECT_LT(0.1, spreadOf(steady, unsteady, {}));
    EXPECT_DOUBLE_EQ(0, spreadOf(steady, unsteady, steady));
    EXPECT_DOUBLE_EQ(0.5, spreadOf(unsteady, unsteady, steady));
}

TEST_F(Harness, SlowWorkEndsAfterItsTimeButNotBeforeThreeRounds) {
    int runs = 0;
    const Runner ours{.run = [&] {
        ++runs;
        now += 1s;
    }};
    const auto runsWithin = [&](std::chrono::nanoseconds time) {
        patience = time;
        runs = 0;
        measured({.what = "w", .ours = ours, .rounds = 9});
        return runs - 1; // the first one warms up
    };
    EXPECT_EQ(3, runsWithin(0s));
    EXPECT_EQ(5, runsWithin(6s));
    EXPECT_EQ(9, runsWithin(1h));
}

TEST_F(Harness, RatiosAreOursToPeerAndLimit) {
    const Result result =
        measured({.what = "w", .ours = takes(300us), .peer = takes(600us), .limit = takes(200us), .rounds = 4});
    EXPECT_DOUBLE_EQ(300e-6, result.ours);
    EXPECT_DOUBLE_EQ(600e-6, *result.peer);
    EXPECT_DOUBLE_EQ(200e-6, *result.limit);
    EXPECT_DOUBLE_EQ(0.5, *result.toPeer);
    EXPECT_DOUBLE_EQ(1.5, *result.toLimit);
}

TEST_F(Harness, AnOddNumberOfRoundsKeepsTheSidesApart) {
    const Result result =
        measured({.what = "w", .ours = takes(300us), .peer = takes(600us), .limit = takes(200us), .rounds = 5});
    EXPECT_DOUBLE_EQ(0.5, *result.toPeer);
    EXPECT_DOUBLE_EQ(1.5, *result.toLimit);
}

TEST_F(Harness, WithoutPeerOrLimitThereIsNoSuchRatio) {
    const Result alone = measured({.what = "w", .ours = takes(300us)});
    EXPECT_FALSE(alone.toPeer);
    EXPECT_FALSE(alone.toLimit);
    const Result limited = measured({.what = "w", .ours = takes(300us), .limit = takes(100us)});
    EXPECT_FALSE(limited.toPeer);
    EXPECT_DOUBLE_EQ(3, *limited.toLimit);
}

TEST_F(Harness, TimesAreComparedAUnitOfWork) {
    const Result result = measured({.what = "w", .ours = takes(1000us, 1000), .peer = takes(200us, 10)});
    EXPECT_DOUBLE_EQ(1e-6, result.ours);
    EXPECT_DOUBLE_EQ(20e-6, *result.peer);
    EXPECT_DOUBLE_EQ(0.05, *result.toPeer);
}

TEST_F(Harness, AMachineThatSlowsDownChangesTimesAndNoRatio) {
    int runs = 0;
    Runner ours = takes(2ms);
    ours.prepare = [&] { slowdown = ++runs > 3 ? 10 : 1; };
    Runner limit = takes(1ms);
    const Result result = measured({.what = "w", .ours = ours, .limit = limit, .rounds = 8});
    EXPECT_DOUBLE_EQ(20e-3, result.ours);
    EXPECT_DOUBLE_EQ(2, *result.toLimit);
}

TEST_F(Harness, PreparationIsNotMeasuredAndGoesBeforeEachRun) {
    int prepared = 0;
    int run = 0;
    Runner ours{.run =
                    [&] {
                        EXPECT_EQ(prepared, ++run);
                        now += 5us;
                    },
                .prepare =
                    [&] {
                        ++prepared;
                        now += 1s;
                    }};
    EXPECT_DOUBLE_EQ(5e-6, measured({.what = "w", .ours = ours}).ours);
    EXPECT_GE(run, 15);
}

TEST_F(Harness, QuickWorkIsRepeatedUntilASampleIsLongEnough) {
    int runs = 0;
    const Runner ours{.run = [&] {
        ++runs;
        now += 10us;
    }};
    EXPECT_DOUBLE_EQ(10e-6, measured({.what = "w", .ours = ours, .rounds = 3}).ours);
    EXPECT_EQ(1 + 3 * 100, runs);
}

TEST_F(Harness, APromiseIsMetUpToItsGoalAndMissedPastIt) {
    struct Case {
        const char* why;
        Goals goals;
        std::optional<bool> met;
    };
    for (const Case& check :
         {Case{"no promise", {}, std::nullopt}, Case{"exactly", {.toLimit = 1.5, .toPeer = 0.5}, true},
          Case{"limit missed", {.toLimit = 1.4, .toPeer = 0.5}, false},
          Case{"peer missed", {.toLimit = 1.5, .toPeer = 0.4}, false}, Case{"one promise", {.toPeer = 0.6}, true}}) {
        const Result result = measured(
            {.what = "w", .ours = takes(300us), .peer = takes(600us), .limit = takes(200us), .goals = check.goals});
        EXPECT_EQ(check.met, result.met()) << check.why;
    }
}

TEST_F(Harness, APromiseAboutAPeerThatWasNotMeasuredIsMissed) {
    EXPECT_EQ(false, measured({.what = "w", .ours = takes(300us), .goals = {.toPeer = 1}}).met());
}

TEST_F(Harness, AnAmountIsJudgedByItself) {
    EXPECT_EQ(true, record({.what = "memory", .ours = 24, .unit = "bytes", .goal = 24}).met());
    EXPECT_EQ(false, record({.what = "memory", .ours = 25, .unit = "bytes", .goal = 24}).met());
    EXPECT_DOUBLE_EQ(0.25, *record({.what = "memory", .ours = 25, .unit = "bytes", .peer = 100}).toPeer);
}

TEST_F(Harness, TheTableLinesUpAndSaysWhatIsMissed) {
    std::ostringstream out;
    printTable(out, {measured({.what = "full repaint",
                               .ours = takes(1300us),
                               .peer = takes(18200us),
                               .limit = takes(1000us),
                               .goals = {.toLimit = 1.25, .toPeer = 0.15}}),
                     record({.what = "a row", .ours = 20, .unit = "bytes", .goal = 24})});
    EXPECT_EQ(
        "what                        ours     peer    limit  ours/limit     goal  ours/peer     goal  spread\n"
        "full repaint             1.30 ms  18.2 ms  1.00 ms        1.30  <= 1.25     0.0714  <= 0.15    +-0%  MISSED\n"
        "a row         20.0 bytes (<= 24)                                                                        met\n",
        out.str());
}

TEST_F(Harness, TheJsonHoldsEachNumberThatThereIs) {
    std::ostringstream out;
    printJson(out, {measured({.what = "a \"row\"", .ours = takes(1ms), .limit = takes(2ms), .goals = {.toLimit = 1}})});
    EXPECT_EQ(
        "[\n  {\"what\": \"a \\\"row\\\"\", \"unit\": \"s\", \"ours\": 0.001, \"limit\": 0.002, \"toLimit\": 0.5, "
        "\"goalToLimit\": 1, \"spread\": 0, \"met\": true}\n]\n",
        out.str());
}

} // namespace
} // namespace bench
