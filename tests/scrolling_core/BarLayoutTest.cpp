#include "BarLayout.h"

#include <cmath>
#include <limits>
#include <ostream>

#include <gtest/gtest.h>

void PrintTo(const BarRect& rect, std::ostream* out) {
    *out << rect.left << ',' << rect.top << ' ' << rect.right << ',' << rect.bottom;
}

namespace {

BarLayout layoutOf(int width, int height, double start, double end) {
    RangeWindow window;
    window.start = start;
    window.end = end;
    return BarLayout::of({width, height}, window);
}

} // namespace

TEST(BarLayout, OfAWideThumbGivesItsEndsToTheEdges) {
    // 24 high: edges of 12, a track of 376.
    const BarLayout layout = layoutOf(400, 24, 0.25, 0.75);
    EXPECT_EQ((BarRect{0, 0, 400, 24}), layout.client);
    EXPECT_EQ(12, layout.edgeWidth);
    EXPECT_EQ(376.0, layout.trackLength);
    EXPECT_EQ((BarRect{106, 3, 294, 21}), layout.thumb);
    EXPECT_EQ((BarRect{94, 3, 106, 21}), layout.leftEdge);
    EXPECT_EQ((BarRect{294, 3, 306, 21}), layout.rightEdge);
    EXPECT_EQ((BarRect{118, 3, 282, 21}), layout.thumbHit);
    EXPECT_EQ((BarRect{88, 3, 118, 21}), layout.leftHit);
    EXPECT_EQ((BarRect{282, 3, 312, 21}), layout.rightHit);
    EXPECT_EQ(188, layout.gap());
}

TEST(BarLayout, OfANarrowThumbWidensWhereItIsPressed) {
    // A thumb of 11 pixels, one less than an edge.
    const BarLayout layout = layoutOf(400, 24, 0.5, 0.5 + 11.0 / 376);
    EXPECT_EQ((BarRect{200, 3, 211, 21}), layout.thumb);
    EXPECT_EQ((BarRect{194, 3, 217, 21}), layout.thumbHit);
}

TEST(BarLayout, WidensByHalfAnEdgeTruncated) {
    // 26 high: edges of 13, a track of 374, a thumb of 6.
    const BarLayout layout = layoutOf(400, 26, 0.5, 0.5 + 6.5 / 374);
    EXPECT_EQ((BarRect{200, 3, 206, 23}), layout.thumb);
    EXPECT_EQ((BarRect{194, 3, 212, 23}), layout.thumbHit);
    EXPECT_EQ((BarRect{181, 3, 213, 23}), layout.leftHit);
    EXPECT_EQ((BarRect{193, 3, 225, 23}), layout.rightHit);
}

TEST(BarLayout, BetweenOneAndTwoEdgesWideLeavesTheThumbNoPlaceOfItsOwn) {
    for (const int width : {12, 18, 24}) {
        const BarLayout layout = layoutOf(400, 24, 0.5, 0.5 + width / 376.0);
        ASSERT_EQ(width, layout.thumb.width());
        for (int x = 0; x < 400; ++x) {
            EXPECT_FALSE(layout.thumbHit.holds(x, 12)) << width << " at " << x;
        }
    }
    EXPECT_TRUE(layoutOf(400, 24, 0.5, 0.5 + 25.5 / 376).thumbHit.holds(212, 12));
}

TEST(BarLayout, InsetsTheThumbByAnEighthOfTheHeightFromTwoToSix) {
    struct Case {
        int height;
        int inset;
    };
    for (const Case& c : {Case{4, 2}, Case{15, 2}, Case{23, 2}, Case{24, 3}, Case{31, 3}, Case{32, 4}, Case{47, 5},
                          Case{48, 6}, Case{55, 6}, Case{56, 6}, Case{400, 6}}) {
        const BarLayout layout = layoutOf(1000, c.height, 0.0, 1.0);
        EXPECT_EQ(c.inset, layout.thumb.top) << c.height;
        EXPECT_EQ(c.height - c.inset, layout.thumb.bottom) << c.height;
        EXPECT_EQ(layout.thumb.top, layout.leftEdge.top);
        EXPECT_EQ(layout.thumb.bottom, layout.rightEdge.bottom);
    }
}

TEST(BarLayout, TruncatesBothEndsTowardsZero) {
    const BarLayout layout = layoutOf(124, 24, 0.199, 0.999);
    EXPECT_EQ(100.0, layout.trackLength);
    EXPECT_EQ(12 + 19, layout.thumb.left);
    EXPECT_EQ(12 + 99, layout.thumb.right);
    EXPECT_EQ(12, layoutOf(124, 24, -0.009, 1.0).thumb.left) << "towards zero from below too";
}

TEST(BarLayout, OfTheWholeRangeFillsTheBarWithThumbAndEdges) {
    const BarLayout layout = layoutOf(401, 25, 0.0, 1.0);
    EXPECT_EQ(12, layout.edgeWidth) << "half of an odd height, truncated";
    EXPECT_EQ(0, layout.leftEdge.left);
    EXPECT_EQ(401, layout.rightEdge.right);
    EXPECT_EQ(12, layout.thumb.left);
    EXPECT_EQ(389, layout.thumb.right);
}

TEST(BarLayout, WithoutATrackTurnsNoPixelsIntoFractions) {
    const BarLayout square = layoutOf(24, 24, 0.25, 0.75);
    EXPECT_EQ(0.0, square.trackLength);
    EXPECT_EQ(0.0, square.fraction(10));
    const BarLayout upright = layoutOf(10, 100, 0.25, 0.75);
    EXPECT_EQ(-90.0, upright.trackLength);
    EXPECT_EQ(0.0, upright.fraction(10));
    EXPECT_EQ(0.0, layoutOf(0, 0, 0.0, 1.0).fraction(1));
    EXPECT_EQ(0.1, layoutOf(124, 24, 0.0, 1.0).fraction(10));
}

TEST(BarLayout, OfAnyWindowStaysInTheRangeOfPixels) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double start : {-infinity, -1e300, -1e9, 0.0, 1e9, 1e300, infinity, std::nan("")}) {
        for (const double end : {-infinity, -1e300, 0.5, 1e300, infinity, std::nan("")}) {
            const BarLayout layout = layoutOf(1000, 40, start, end);
            const Grip grip = gripOf(layout.thumb, 2);
            for (const int x : {layout.thumb.left, layout.thumb.right, layout.thumb.width(), layout.leftHit.left,
                                layout.rightHit.right, grip.x[2], grip.x[3]}) {
                EXPECT_LT(std::abs(x), std::numeric_limits<int>::max() / 4) << start << ' ' << end;
            }
        }
    }
}

TEST(BarRect, IsHalfOpen) {
    constexpr BarRect rect{2, 3, 5, 7};
    EXPECT_TRUE(rect.holds(2, 3));
    EXPECT_TRUE(rect.holds(4, 6));
    EXPECT_FALSE(rect.holds(5, 6));
    EXPECT_FALSE(rect.holds(4, 7));
    EXPECT_FALSE(rect.holds(1, 3));
    EXPECT_FALSE(rect.holds(2, 2));
    EXPECT_FALSE((BarRect{5, 3, 2, 7}.holds(3, 4)));
}

TEST(Grip, StandsOnThumbsOfEightPixelsAndMore) {
    EXPECT_FALSE(hasGrip({100, 3, 107, 21}));
    EXPECT_TRUE(hasGrip({100, 3, 108, 21}));
    EXPECT_FALSE(hasGrip({108, 3, 100, 21}));
}

TEST(Grip, IsFourLinesAroundTheMiddle) {
    const Grip grip = gripOf({100, 3, 201, 21}, 2);
    EXPECT_EQ(148, grip.x[0]);
    EXPECT_EQ(152, grip.x[1]);
    EXPECT_EQ(144, grip.x[2]);
    EXPECT_EQ(156, grip.x[3]);
    EXPECT_EQ(6, grip.top) << "a fifth of 18, truncated";
    EXPECT_EQ(18, grip.bottom);
}
