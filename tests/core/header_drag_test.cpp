#include <gtest/gtest.h>

#include "HeaderDrag.h"

namespace {

class HeaderGesture : public testing::Test {
protected:
    HeaderGesture() { drag.mouseMovingColumns = true; }

    bool pressOn(int position, HeaderDrag::Point point = {100, 8}) {
        return drag.press(point, {.onHeader = true, .onDivider = false, .position = position});
    }

    HeaderDrag drag;
};

using Release = HeaderDrag::Release;

} // namespace

TEST_F(HeaderGesture, BeginsWithNothingTaken) {
    const HeaderDrag fresh;
    EXPECT_FALSE(fresh.mouseMovingColumns);
    EXPECT_FALSE(fresh.pressOnDivider);
    EXPECT_FALSE(fresh.dropAllowed);
    EXPECT_FALSE(fresh.buttonDown);
    EXPECT_FALSE(fresh.moved);
    EXPECT_FALSE(fresh.pressOnItem);
    EXPECT_FALSE(fresh.dragShown);
    EXPECT_EQ(-1, fresh.sourcePosition);
    EXPECT_EQ(-1, fresh.targetPosition);
    EXPECT_EQ(Release::Nothing, fresh.release());
    EXPECT_FALSE(fresh.inFlight());
}

TEST_F(HeaderGesture, APressAndAReleaseWithoutMotionIsAClick) {
    EXPECT_TRUE(pressOn(2)) << "the native control must not see the press";
    EXPECT_EQ(Release::Click, drag.release());
    drag.finish();
    EXPECT_EQ(Release::Nothing, drag.release());
}

TEST_F(HeaderGesture, IsAClickAlsoWithMovingOffAndTakesNoColumn) {
    drag.mouseMovingColumns = false;
    EXPECT_TRUE(pressOn(2));
    EXPECT_EQ(-1, drag.sourcePosition);
    EXPECT_FALSE(drag.canMove());
    drag.move({200, 8}, 4);
    EXPECT_FALSE(drag.moved);
    EXPECT_EQ(Release::Click, drag.release());
}

TEST_F(HeaderGesture, APressOnADividerIsLeftToTheNativeControl) {
    EXPECT_FALSE(drag.press({100, 8}, {.onHeader = false, .onDivider = true, .position = 1}));
    EXPECT_TRUE(drag.pressOnDivider);
    EXPECT_FALSE(drag.pressOnItem);
    EXPECT_EQ(-1, drag.sourcePosition);
    EXPECT_EQ(Release::Nothing, drag.release());
}

TEST_F(HeaderGesture, APressOutsideTheItemsIsLeftToTheNativeControl) {
    EXPECT_FALSE(drag.press({900, 8}, {.onHeader = false, .onDivider = false, .position = 0}));
    EXPECT_EQ(Release::Nothing, drag.release());
}

TEST_F(HeaderGesture, TheMarkShowsOnceTheSquareOfTheDistanceIsAbove32) {
    struct Case {
        const char* what;
        int dx;
        int dy;
        bool shown;
    };
    const Case cases[] = {
        {"5 pixels, 25", 5, 0, false},     {"6 pixels, 36", 6, 0, true}, {"6 pixels back", -6, 0, true},
        {"4 and 4, just 32", 4, 4, false}, {"4 and 5, 41", 4, 5, true},  {"straight down", 0, 6, true},
        {"not at all", 0, 0, false},
    };
    for (const Case& c : cases) {
        pressOn(1);
        const HeaderDrag::Motion motion = drag.move({100 + c.dx, 8 + c.dy}, 1);
        EXPECT_EQ(c.shown, motion.repaint) << c.what;
        EXPECT_FALSE(motion.targetChanged) << c.what;
        EXPECT_EQ(c.shown, drag.dragShown) << c.what;
        EXPECT_EQ(c.shown, drag.moved) << c.what;
        EXPECT_EQ(c.shown, drag.inFlight()) << c.what;
        EXPECT_EQ(c.shown ? Release::Nothing : Release::Click, drag.release()) << c.what;
        drag.forgetColumn();
        drag.finish();
    }
}

TEST_F(HeaderGesture, AnotherColumnUnderThePointerIsATargetAtOnce) {
    pressOn(1);
    const HeaderDrag::Motion motion = drag.move({102, 8}, 2);
    EXPECT_TRUE(motion.repaint);
    EXPECT_TRUE(motion.targetChanged);
    EXPECT_TRUE(drag.inFlight());
    EXPECT_EQ(1, drag.sourcePosition);
    EXPECT_EQ(2, drag.targetPosition);
    EXPECT_EQ(Release::Move, drag.release());
}

TEST_F(HeaderGesture, TheHostIsAskedOnlyWhenTheTargetChanges) {
    pressOn(1);
    EXPECT_TRUE(drag.move({200, 8}, 2).targetChanged);
    EXPECT_FALSE(drag.move({210, 8}, 2).targetChanged);
    EXPECT_FALSE(drag.move({210, 8}, 2).repaint);
    EXPECT_TRUE(drag.move({100, 8}, 1).targetChanged) << "back over the source";
    EXPECT_EQ(Release::Nothing, drag.release()) << "a drop on the source is neither a move nor a click";
}

TEST_F(HeaderGesture, ARefusedTargetIsDroppedOnAllTheSame) {
    pressOn(1);
    drag.move({200, 8}, 2);
    drag.dropAllowed = false;
    EXPECT_EQ(Release::Move, drag.release());
}

TEST_F(HeaderGesture, APressAllowsTheDropAndForgetsTheGestureBefore) {
    pressOn(1);
    drag.move({200, 8}, 2);
    drag.dropAllowed = false;
    pressOn(3, {40, 4});
    EXPECT_TRUE(drag.dropAllowed);
    EXPECT_TRUE(drag.buttonDown);
    EXPECT_FALSE(drag.moved);
    EXPECT_FALSE(drag.dragShown);
    EXPECT_EQ(40, drag.pressPosition.x);
    EXPECT_EQ(4, drag.pressPosition.y);
    EXPECT_EQ(3, drag.sourcePosition);
    EXPECT_EQ(3, drag.targetPosition);
}

TEST_F(HeaderGesture, AMotionWithoutAPressMeansNothing) {
    const HeaderDrag::Motion motion = drag.move({500, 8}, 3);
    EXPECT_FALSE(motion.repaint);
    EXPECT_FALSE(motion.targetChanged);
    EXPECT_EQ(-1, drag.targetPosition);
}

TEST_F(HeaderGesture, TheEndLeavesNoButtonMotionOrItem) {
    pressOn(1);
    drag.move({200, 8}, 2);
    drag.forgetColumn();
    drag.finish();
    EXPECT_FALSE(drag.buttonDown);
    EXPECT_FALSE(drag.moved);
    EXPECT_FALSE(drag.pressOnItem);
    EXPECT_FALSE(drag.canMove());
    EXPECT_FALSE(drag.inFlight());
}
