#include "core/ScrollThumb.h"

#include <gtest/gtest.h>

using namespace Desk;

TEST(ScrollThumb, IsAsLongAsThePagesShare) {
    EXPECT_EQ(thumbSpan({1000, 250, 0}, 400, 20), (ThumbSpan{0, 100}));
    EXPECT_EQ(thumbSpan({1000, 250, 750}, 400, 20), (ThumbSpan{300, 400}));
    EXPECT_EQ(thumbSpan({1000, 250, 375}, 400, 20), (ThumbSpan{150, 250}));
}

TEST(ScrollThumb, IsNeverTooShortToTake) {
    EXPECT_EQ(thumbSpan({10000000, 100, 0}, 400, 20), (ThumbSpan{0, 20}));
    EXPECT_EQ(thumbSpan({10000000, 100, 9999900}, 400, 20), (ThumbSpan{380, 400}));
}

TEST(ScrollThumb, IsNotThereWhenAllIsInView) {
    EXPECT_EQ(thumbSpan({100, 100, 0}, 400, 20), (ThumbSpan{}));
    EXPECT_EQ(thumbSpan({0, 0, 0}, 400, 20), (ThumbSpan{}));
    EXPECT_EQ(thumbSpan({1000, 10, 0}, 19, 20), (ThumbSpan{}));
}

TEST(ScrollThumb, StaysInItsTrackWhateverThePosition) {
    EXPECT_EQ(thumbSpan({1000, 250, 5000}, 400, 20), (ThumbSpan{300, 400}));
    EXPECT_EQ(thumbSpan({1000, 250, -5}, 400, 20), (ThumbSpan{0, 100}));
}

TEST(ScrollThumb, LeadsToThePositionUnderIt) {
    const ScrollState state{1000, 250, 0};
    EXPECT_EQ(positionForThumb(state, 400, 20, 0), 0);
    EXPECT_EQ(positionForThumb(state, 400, 20, 150), 375);
    EXPECT_EQ(positionForThumb(state, 400, 20, 300), 750);
    EXPECT_EQ(positionForThumb(state, 400, 20, 999), 750);
    EXPECT_EQ(positionForThumb(state, 400, 20, -20), 0);
    EXPECT_EQ(positionForThumb({100, 100, 0}, 400, 20, 50), 0);
}

TEST(ScrollThumb, ComesBackToEachPositionThatItCanShow) {
    ScrollState state{3000, 500, 0};
    for (int begin = 0; begin <= 500; ++begin) {
        state.position = positionForThumb(state, 600, 20, begin);
        EXPECT_EQ(thumbSpan(state, 600, 20).begin, begin);
    }
}
