#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "ColumnModel.h"
#include "FakeHeader.h"

namespace {

constexpr int kMinimum = 16;

class Columns : public testing::Test {
protected:
    /// Widths as a host declares them: 0 or less is hidden.
    void declare(const std::vector<double>& widths) {
        for (const double width : widths) {
            header.appendItem(static_cast<int>(width));
            model.append(std::fabs(width), width > 0.0);
        }
        model.UpdateOrderArray(header);
    }

    void order(const std::vector<int>& ids) {
        header.setItemOrder(ids);
        model.UpdateOrderArray(header);
    }

    bool drag(int id, int width) { return model.UpdateColumnWidths(id, width, bodyWidth, header); }
    void refit() { ASSERT_TRUE(drag(-1, 0)); }

    std::vector<double> realWidths() const {
        std::vector<double> widths;
        for (int id = 0; id < model.GetColumnCount(); ++id) {
            widths.push_back(model.GetColumnRealWidth(id));
        }
        return widths;
    }

    using Ints = std::vector<int>;
    using Reals = std::vector<double>;

    FakeHeader header;
    ColumnModel model{kMinimum};
    int bodyWidth = 200;
};

} // namespace

TEST_F(Columns, DraggingTheFirstOfThreeSharesTheRestInProportion) {
    declare({100.0, 50.0, 50.0});
    EXPECT_TRUE(drag(0, 120));
    EXPECT_EQ((Reals{120.0, 40.0, 40.0}), realWidths());
    EXPECT_EQ((Ints{120, 40, 44}), header.widths());
}

TEST_F(Columns, TheLastHeaderItemTakesUpWhatTruncationLostAndFourPixels) {
    declare({100.0, 50.0, 51.0});
    EXPECT_TRUE(drag(0, 100));
    // 100 pixels are shared 50 : 51, so 49.50 and 50.49; 0.99 is lost twice over.
    EXPECT_EQ((Ints{100, 49, 50 + 5}), header.widths());
    EXPECT_DOUBLE_EQ(50.0 * 100.0 / 101.0, model.GetColumnRealWidth(1));
    EXPECT_DOUBLE_EQ(51.0 * 100.0 / 101.0, model.GetColumnRealWidth(2));
}

TEST_F(Columns, WideningIsRefusedWhenEachLaterColumnWouldFallUnderTheMinimumAndNarrowingIsNot) {
    declare({150.0, 20.0, 20.0});
    const Ints before = header.widths();
    EXPECT_FALSE(drag(0, 175)); // 25 left for two
    EXPECT_EQ((Reals{150.0, 20.0, 20.0}), realWidths());
    EXPECT_EQ(before, header.widths());

    bodyWidth = 160;
    EXPECT_FALSE(drag(0, 151));
    EXPECT_TRUE(drag(0, 149));
    EXPECT_EQ((Reals{149.0, 16.0, 16.0}), realWidths());
}

TEST_F(Columns, OneLaterColumnThatKeepsTheMinimumAllowsTheWidening) {
    declare({100.0, 90.0, 10.0});
    EXPECT_TRUE(drag(0, 170)); // 27 and 3
    EXPECT_EQ((Reals{170.0, 27.0, 16.0}), realWidths());
}

TEST_F(Columns, AHiddenColumnThatWouldKeepItsWidthAllowsTheWideningToo) {
    declare({150.0, 20.0, -400.0});
    EXPECT_TRUE(drag(0, 190)); // 10 for the visible one, 200 for the hidden one
    EXPECT_EQ((Reals{190.0, 16.0, 200.0}), realWidths());
}

TEST_F(Columns, ExactlyTheMinimumForALaterColumnIsEnough) {
    declare({100.0, 50.0, 50.0});
    EXPECT_TRUE(drag(0, 168));
    EXPECT_FALSE(drag(0, 169));
}

TEST_F(Columns, AWidthUnderTheMinimumIsRefusedAndTheMinimumIsNot) {
    declare({100.0, 50.0, 50.0});
    EXPECT_FALSE(drag(0, 15));
    EXPECT_EQ((Reals{100.0, 50.0, 50.0}), realWidths());
    EXPECT_TRUE(drag(0, 16));
    EXPECT_EQ((Reals{16.0, 92.0, 92.0}), realWidths());
}

TEST_F(Columns, TheLastVisibleColumnCannotBeDraggedInProportionalModeAndCanInLockedMode) {
    declare({100.0, 60.0, -40.0});
    EXPECT_FALSE(drag(1, 30));
    EXPECT_FALSE(drag(1, 90));
    EXPECT_EQ((Reals{100.0, 60.0, 40.0}), realWidths());
    EXPECT_TRUE(model.setLockedWidth(1, 90, header));
    EXPECT_EQ((Reals{100.0, 90.0, 40.0}), realWidths());
    EXPECT_EQ((Ints{100, 90, -40}), header.widths());
}

TEST_F(Columns, TheLastVisibleColumnIsTheOneFarthestRightNotTheOneMadeLast) {
    declare({100.0, 50.0, 50.0});
    order({2, 1, 0});
    EXPECT_EQ(0, model.GetLastVisibleColumnPosition());
    EXPECT_FALSE(drag(0, 80));
    EXPECT_TRUE(drag(2, 80));
    EXPECT_EQ((Reals{80.0, 40.0, 80.0}), realWidths());
    EXPECT_EQ((Ints{84, 40, 80}), header.widths());
}

TEST_F(Columns, WithNoneVisibleTheLastVisibleIsZero) {
    declare({-100.0, -50.0});
    EXPECT_EQ(0, model.GetLastVisibleColumnPosition());
}

TEST_F(Columns, ColumnsBeforeTheDraggedOneStayAsTheyAre) {
    bodyWidth = 300;
    declare({60.0, 90.0, 75.0, 75.0});
    EXPECT_TRUE(drag(1, 140));
    EXPECT_EQ((Reals{60.0, 140.0, 50.0, 50.0}), realWidths());
    EXPECT_EQ((Ints{60, 140, 50, 54}), header.widths());
}

TEST_F(Columns, HiddenColumnsAreScaledWithTheOthersAndTheirHeaderItemsAreNot) {
    declare({100.0, -50.0, 50.0});
    EXPECT_TRUE(drag(0, 150));
    EXPECT_EQ((Reals{150.0, 50.0, 50.0}), realWidths());
    bodyWidth = 250;
    EXPECT_TRUE(drag(0, 150));
    EXPECT_EQ((Reals{150.0, 100.0, 100.0}), realWidths());
    EXPECT_EQ((Ints{150, -50, 104}), header.widths());
}

TEST_F(Columns, WithNothingVisibleBehindTheDraggedColumnHiddenOnesTakeTheQuotientByZero) {
    declare({100.0, 50.0, -40.0});
    order({0, 2, 1});
    model.setVisible(1, false);
    model.setVisible(2, false);
    model.setVisible(0, true);
    // The only visible column is the last one, so what is dragged here is a hidden one before others.
    EXPECT_TRUE(drag(2, 30));
    EXPECT_EQ(std::numeric_limits<double>::infinity(), model.GetColumnRealWidth(1));
    EXPECT_EQ(30.0, model.GetColumnRealWidth(2));

    model.setVisible(0, false);
    EXPECT_TRUE(drag(-1, 0)); // infinite against nothing
    for (const double width : realWidths()) {
        EXPECT_GE(width, kMinimum);
    }
}

TEST_F(Columns, ARefitDoesNotGoBelowTheMinimum) {
    declare({100.0, 50.0, 50.0});
    bodyWidth = 30;
    refit();
    EXPECT_EQ((Reals{16.0, 16.0, 16.0}), realWidths());
    EXPECT_EQ((Ints{16, 16, 20}), header.widths());
}

TEST_F(Columns, AHundredRefitsToAndFroDoNotDrift) {
    bodyWidth = 1000;
    declare({100.0, 250.0, 33.3, 77.7, 539.0});
    const Reals before = realWidths();
    for (int pass = 0; pass < 100; ++pass) {
        for (const int width : {1933, 771, 1280, 999, 1000}) {
            bodyWidth = width;
            refit();
        }
    }
    for (std::size_t id = 0; id < before.size(); ++id) {
        EXPECT_NEAR(before[id], realWidths()[id], 1e-9) << id;
        if (id + 1 < before.size()) {
            EXPECT_NEAR(before[id], header.widths()[id], 1.0) << id;
        }
    }
    const int last = header.widths().back();
    EXPECT_GE(last, 539 + 4);
    EXPECT_LE(last, 539 + 4 + 5) << "the correction of one pass, not the sum of all";
}

TEST_F(Columns, ADeclaredWidthOfMinus80AndAHalfIsHiddenAndKept) {
    declare({100.0, -80.5});
    EXPECT_EQ(80.5, model.GetColumnRealWidth(1));
    EXPECT_EQ(0, model.GetColumnWidth(1));
    EXPECT_FALSE(model.GetColumnVisibility(1));
    EXPECT_EQ(-80, header.widths()[1]);
    model.setVisible(1, true);
    EXPECT_EQ(80, model.GetColumnWidth(1));
}

TEST_F(Columns, AVisibleColumnNeverReportsLessThanTheMinimum) {
    declare({3.0, 15.99, 16.0, 16.99, -3.0});
    EXPECT_EQ(16, model.GetColumnWidth(0));
    EXPECT_EQ(16, model.GetColumnWidth(1));
    EXPECT_EQ(16, model.GetColumnWidth(2));
    EXPECT_EQ(16, model.GetColumnWidth(3));
    EXPECT_EQ(0, model.GetColumnWidth(4));
    EXPECT_EQ(3.0, model.GetColumnRealWidth(0));
    EXPECT_DOUBLE_EQ(16.0 + 16.0 + 16.0 + 16.99, model.totalRealWidth());
    EXPECT_EQ(5, model.GetColumnCount());
    EXPECT_EQ(4, model.GetVisibleColumnCount());
}

TEST_F(Columns, OutsideTheRangeAccessorsAnswerAsTheyPromise) {
    declare({100.0, 50.0});
    EXPECT_EQ(0, model.GetColumnWidth(2));
    EXPECT_THROW((void)model.GetColumnWidth(-1), std::out_of_range);
    EXPECT_FALSE(model.GetColumnVisibility(2));
    EXPECT_EQ(0.0, model.GetColumnRealWidth(2));
    EXPECT_EQ(0, model.GetColumnId(-1));
    EXPECT_EQ(0, model.GetColumnId(2));
    EXPECT_THROW((void)model.GetColumnIdxFromId(2), std::out_of_range);
    EXPECT_THROW((void)model.GetColumnIdxFromId(-1), std::out_of_range);
    EXPECT_EQ(-1, model.GetCurrentResizedColumnPosition(2));
    EXPECT_EQ(0.0, model.GetWidthBeforeColumn(0));
    EXPECT_EQ(0.0, model.GetWidthBeforeColumn(-7));
    EXPECT_EQ(0.0, model.GetWidthAfterColumn(1));
    EXPECT_EQ(150.0, model.GetWidthAfterColumn(-1));
}

TEST_F(Columns, WithoutColumnsThePositionOfAnIdIsZero) {
    EXPECT_EQ(0, model.GetColumnIdxFromId(7));
    EXPECT_EQ(0, model.GetColumnId(0));
    EXPECT_EQ(0, model.GetLastVisibleColumnPosition());
    EXPECT_TRUE(drag(-1, 0));
}

TEST_F(Columns, TheOrderIsDirtyUntilItIsReadForTheFirstTime) {
    EXPECT_TRUE(model.orderIsDirty());
    model.UpdateOrderArray(header);
    EXPECT_FALSE(model.orderIsDirty());
}

TEST_F(Columns, PositionsAndIdsAreInversesOfEachOther) {
    declare({10.0, 20.0, 30.0, 40.0});
    order({2, 0, 3, 1});
    for (int position = 0; position < 4; ++position) {
        EXPECT_EQ(position, model.GetColumnIdxFromId(model.GetColumnId(position)));
        EXPECT_EQ(position, model.GetCurrentResizedColumnPosition(model.GetColumnId(position)));
    }
    EXPECT_EQ(2, model.GetColumnId(0));
    EXPECT_EQ(3, model.GetColumnIdxFromId(1));
    EXPECT_EQ(40.0, model.GetWidthBeforeColumn(2));
    EXPECT_EQ(60.0, model.GetWidthAfterColumn(1));
}

TEST_F(Columns, OnlyVisibleColumnsCountBeforeAndAfter) {
    declare({10.0, -20.0, 30.0, 40.0});
    EXPECT_EQ(10.0, model.GetWidthBeforeColumn(2));
    EXPECT_EQ(70.0, model.GetWidthAfterColumn(0));
}

TEST_F(Columns, AWrongOrderIsRefusedByTheHeaderAndTheOldOneStays) {
    declare({10.0, 20.0, 30.0});
    order({2, 1, 0});
    order({2, 1});
    order({2, 1, 1});
    EXPECT_EQ(2, header.refusedOrders);
    EXPECT_EQ(2, model.GetColumnId(0));
    EXPECT_EQ(0, model.GetColumnId(2));
}

TEST_F(Columns, ANewColumnIsAsWideAsTheFirstAndMinimalIfThereIsNone) {
    EXPECT_EQ(kMinimum, model.widthOfNewColumn());
    declare({-33.5, 90.0});
    EXPECT_EQ(33.5, model.widthOfNewColumn());
}

TEST_F(Columns, ARestoreMakesEachListedColumnVisibleAndDropsItsFraction) {
    declare({100.0, -50.0, 70.0});
    order({2, 0, 1});
    model.restore({60.9, 15.0, 80.0}, header);
    EXPECT_EQ((Reals{60.0, 16.0, 80.0}), realWidths());
    EXPECT_EQ((Ints{60, 16, 80}), header.widths());
    EXPECT_EQ(3, model.GetVisibleColumnCount());
}

TEST_F(Columns, ARestoreOfFewerWidthsTakesTheFirstPositions) {
    declare({100.0, 50.0, 70.0});
    order({1, 0, 2});
    model.restore({30.0, 40.0}, header);
    EXPECT_EQ((Reals{30.0, 40.0, 70.0}), realWidths());
}

TEST_F(Columns, ARestoreThatTheOrderDoesNotFitFailsWithTheTextOfTheDeque) {
    declare({100.0, 50.0, 70.0});
    order({2, 0, 1});
    try {
        model.restore({30.0, 40.0}, header);
        FAIL() << "column 2 has no width";
    } catch (const std::out_of_range& failure) {
        EXPECT_STREQ("invalid deque<T> subscript", failure.what());
    }
    EXPECT_EQ((Reals{100.0, 50.0, 70.0}), realWidths());
}

TEST_F(Columns, ARestoreOfMoreWidthsThanColumnsThrows) {
    declare({100.0, 50.0});
    EXPECT_THROW(model.restore({30.0, 40.0, 50.0}, header), std::out_of_range);
    EXPECT_EQ((Reals{100.0, 50.0}), realWidths());
}

TEST_F(Columns, ARestoreTakesWhatIsNoNumberForTheMinimum) {
    declare({100.0, 50.0});
    model.restore({std::numeric_limits<double>::quiet_NaN(), -70.0}, header);
    EXPECT_EQ((Reals{16.0, 16.0}), realWidths());
}

TEST_F(Columns, LockedWidthsHeedTheMinimumButAnIdOfMinusOneDoesNot) {
    declare({100.0, 50.0});
    EXPECT_FALSE(model.setLockedWidth(0, 15, header));
    EXPECT_EQ((Reals{100.0, 50.0}), realWidths());
    EXPECT_TRUE(model.setLockedWidth(0, 16, header));
    EXPECT_TRUE(model.setLockedWidth(-1, 0, header));
    EXPECT_EQ((Reals{16.0, 50.0}), realWidths());
    EXPECT_FALSE(model.setLockedWidth(2, 50, header));
}

TEST_F(Columns, TheContentWidthIsTheSumOfTheVisibleHeaderItems) {
    declare({100.7, -50.0, 60.9});
    EXPECT_EQ(160, model.visibleHeaderWidth(header));
    header.setItemWidth(2, 64);
    EXPECT_EQ(164, model.visibleHeaderWidth(header));
}

TEST_F(Columns, LockedModeFitsOnlyTheLastVisibleColumn) {
    declare({100.5, 50.0, 50.0, -70.0});
    EXPECT_TRUE(model.fitLastColumn(300, 310, header));
    EXPECT_EQ((Reals{100.5, 50.0, 149.5, 70.0}), realWidths());
    EXPECT_EQ((Ints{100, 50, 310 - 150 + 4, -70}), header.widths());
}

TEST_F(Columns, InLockedModeAWindowNarrowerThanTheFitLeavesTheLastColumnAsItWas) {
    declare({100.0, 50.0, 50.0});
    EXPECT_FALSE(model.fitLastColumn(165, 165, header));
    EXPECT_EQ((Reals{100.0, 50.0, 50.0}), realWidths());
    EXPECT_TRUE(model.fitLastColumn(166, 166, header));
    EXPECT_EQ(16.0, model.GetColumnRealWidth(2));
    EXPECT_EQ(20, header.widths()[2]);
}

TEST_F(Columns, LockedModeFitsNothingWithoutVisibleColumns) {
    EXPECT_FALSE(model.fitLastColumn(300, 300, header));
    declare({-100.0});
    EXPECT_FALSE(model.fitLastColumn(300, 300, header));
    EXPECT_EQ((Reals{100.0}), realWidths());
}

TEST_F(Columns, TheMinimumWidthOfTheTableIsAllButTheLastColumnAMinimalOneAndTheFrameOfTheBody) {
    EXPECT_EQ(kMinimum, model.minWidth());
    model.UpdateMinWidth(100, 120);
    EXPECT_EQ(kMinimum, model.minWidth()) << "no columns";
    declare({100.6, -70.0, 50.0, 90.0});
    model.UpdateMinWidth(283, 300);
    EXPECT_EQ(166 + 17, model.minWidth());
}

TEST_F(Columns, AreLockedAtFirst) {
    EXPECT_TRUE(model.columnsLocked);
    EXPECT_FALSE(model.widthChangedByUser);
}

TEST_F(Columns, ExtremeWidthsSaturateInsteadOfOverflowing) {
    constexpr int kMost = std::numeric_limits<int>::max();
    declare({100.0, 100.0, 100.0});
    model.setWidth(0, kMost, header);
    model.setWidth(1, kMost, header);
    EXPECT_EQ(kMost, model.visibleHeaderWidth(header));
    model.UpdateMinWidth(0, kMost);
    EXPECT_EQ(kMost, model.minWidth());
    model.setWidth(0, std::numeric_limits<int>::min(), header);
    model.setWidth(1, kMost, header);
    model.setWidth(2, 1, header);
    // The sum of the visible widths is 0 now.
    EXPECT_TRUE(drag(-1, 0));
    bodyWidth = kMost;
    EXPECT_TRUE(drag(-1, 0));
    model.fitLastColumn(kMost, kMost, header);
    EXPECT_TRUE(drag(0, kMost) || model.GetColumnCount() == 3);
    for (int id = 0; id < 3; ++id) {
        EXPECT_GE(model.GetColumnWidth(id), kMinimum);
    }
}
