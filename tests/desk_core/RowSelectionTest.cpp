#include "core/RowSelection.h"

#include <random>
#include <set>
#include <string>

#include <gtest/gtest.h>

using namespace Desk;

namespace {

std::string describe(const RowSelection& selection) {
    std::string text;
    for (const RowRange& range : selection.ranges()) {
        text += std::to_string(range.first);
        if (range.end - range.first > 1)
            text += '-' + std::to_string(range.end - 1);
        text += ' ';
    }
    return text + "caret " + std::to_string(selection.caret());
}

struct StepCase {
    RowStep step;
    int row;
    int expected;
};

} // namespace

TEST(RowStep, StaysWithinTheRows) {
    for (const StepCase& step : {
             StepCase{RowStep::Up, 5, 4},
             StepCase{RowStep::Up, 0, 0},
             StepCase{RowStep::Up, -1, 9},
             StepCase{RowStep::Down, 5, 6},
             StepCase{RowStep::Down, 9, 9},
             StepCase{RowStep::Down, -1, 0},
             StepCase{RowStep::PageUp, 5, 1},
             StepCase{RowStep::PageUp, 2, 0},
             StepCase{RowStep::PageUp, -1, 9},
             StepCase{RowStep::PageDown, 5, 9},
             StepCase{RowStep::PageDown, 3, 7},
             StepCase{RowStep::PageDown, -1, 0},
             StepCase{RowStep::First, 5, 0},
             StepCase{RowStep::Last, 5, 9},
         })
        EXPECT_EQ(rowAfterStep(step.step, step.row, 4, 10), step.expected)
            << static_cast<int>(step.step) << " from " << step.row;
}

TEST(RowStep, LeadsNowhereWithoutRows) {
    EXPECT_EQ(rowAfterStep(RowStep::Down, -1, 4, 0), -1);
    EXPECT_EQ(rowAfterStep(RowStep::First, -1, 4, 0), -1);
}

TEST(RowSelection, StartsEmpty) {
    const RowSelection selection;
    EXPECT_EQ(describe(selection), "caret -1");
    EXPECT_EQ(selection.count(), 0);
    EXPECT_FALSE(selection.contains(0));
    EXPECT_FALSE(selection.contains(-1));
}

TEST(RowSelection, GrowsAndShrinksFromTheAnchor) {
    RowSelection selection;
    selection.select(5);
    selection.extendTo(8);
    EXPECT_EQ(describe(selection), "5-8 caret 8");
    selection.extendTo(6);
    EXPECT_EQ(describe(selection), "5-6 caret 6");
    selection.extendTo(2);
    EXPECT_EQ(describe(selection), "2-5 caret 2");
    EXPECT_EQ(selection.anchor(), 5);
}

TEST(RowSelection, ExtendingWithoutAnAnchorSelectsTheRow) {
    RowSelection selection;
    selection.extendTo(3);
    EXPECT_EQ(describe(selection), "3 caret 3");
}

TEST(RowSelection, TogglesRowsAndKeepsTheOthers) {
    RowSelection selection;
    selection.select(1);
    selection.toggle(4);
    selection.toggle(3);
    EXPECT_EQ(describe(selection), "1 3-4 caret 3");
    selection.toggle(4);
    EXPECT_EQ(describe(selection), "1 3 caret 4");
    EXPECT_FALSE(selection.contains(4));
    selection.toggle(4);
    EXPECT_EQ(describe(selection), "1 3-4 caret 4");
}

TEST(RowSelection, ARangeAfterATurnedOffRowIsLeftOut) {
    RowSelection selection;
    selection.select(0);
    selection.extendTo(9);
    selection.toggle(3);
    selection.extendKeepingTo(5);
    EXPECT_EQ(describe(selection), "0-2 6-9 caret 5");
    EXPECT_EQ(selection.count(), 7);
}

TEST(RowSelection, ARangeMayBeAddedToOthers) {
    RowSelection selection;
    selection.select(0);
    selection.toggle(5);
    selection.extendKeepingTo(7);
    EXPECT_EQ(describe(selection), "0 5-7 caret 7");
    selection.extendTo(4);
    EXPECT_EQ(describe(selection), "4-5 caret 4");
}

TEST(RowSelection, SelectingAllKeepsTheCaret) {
    RowSelection selection;
    selection.select(2);
    selection.selectAll(4);
    EXPECT_EQ(describe(selection), "0-3 caret 2");
    selection.collapse();
    EXPECT_EQ(describe(selection), "2 caret 2");
    selection.selectAll(0);
    EXPECT_EQ(describe(selection), "2 caret 2");
}

TEST(RowSelection, TakesScatteredRowsInAnyOrderAndGrowsFromTheCaret) {
    RowSelection selection;
    selection.select(1);
    selection.selectRows({7, 2, 3, 9}, 3);
    EXPECT_EQ(describe(selection), "2-3 7 9 caret 3");
    EXPECT_EQ(selection.anchor(), 3);
    selection.extendKeepingTo(5);
    EXPECT_EQ(describe(selection), "2-5 7 9 caret 5");
    selection.extendTo(4);
    EXPECT_EQ(describe(selection), "3-4 caret 4");
}

TEST(RowSelection, TheCaretMayStandOutsideOfTheTakenRows) {
    RowSelection selection;
    selection.selectRows({4, 6}, 5);
    EXPECT_EQ(describe(selection), "4 6 caret 5");
    selection.selectRows({}, 5);
    EXPECT_EQ(describe(selection), "caret 5");
    EXPECT_EQ(selection.count(), 0);
    selection.selectRows({}, -1);
    EXPECT_EQ(describe(selection), "caret -1");
}

TEST(RowSelection, AgreesWithASetOfRowsAfterRandomOperations) {
    std::mt19937 random(17);
    const auto row = [&] { return static_cast<int>(random() % 40); };
    RowSelection selection;
    std::set<int> kept;
    int anchor = -1;
    int caret = -1;
    bool active = true;
    const auto expected = [&] {
        std::set<int> rows = kept;
        for (int at = std::min(anchor, caret); anchor >= 0 && at <= std::max(anchor, caret); ++at) {
            if (active)
                rows.insert(at);
            else
                rows.erase(at);
        }
        return rows;
    };

    for (int operation = 0; operation < 50000; ++operation) {
        const int at = row();
        switch (random() % 4) {
        case 0:
            selection.select(at);
            kept.clear();
            active = true;
            anchor = caret = at;
            break;
        case 1:
            selection.toggle(at);
            {
                const std::set<int> before = expected();
                active = before.count(at) == 0;
                kept = before;
                anchor = caret = at;
            }
            break;
        case 2:
            selection.extendKeepingTo(at);
            if (anchor < 0) {
                kept.clear();
                active = true;
                anchor = at;
            }
            caret = at;
            break;
        default:
            selection.extendTo(at);
            kept.clear();
            active = true;
            anchor = anchor < 0 ? at : anchor;
            caret = at;
        }
        const std::set<int> rows = expected();
        ASSERT_EQ(selection.count(), static_cast<int>(rows.size()));
        for (int probe = 0; probe < 40; ++probe)
            ASSERT_EQ(selection.contains(probe), rows.count(probe) == 1) << describe(selection) << " row " << probe;
        const auto ranges = selection.ranges();
        for (std::size_t range = 1; range < ranges.size(); ++range)
            ASSERT_GT(ranges[range].first, ranges[range - 1].end);
    }
}
