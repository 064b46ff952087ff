#include <gtest/gtest.h>

#include <cmath>
#include <iterator>
#include <limits>

#include "DpiArithmetic.h"

using DpiArithmetic::IconEdges;

TEST(ScaleFactor, IsNeverBelowOne) {
    struct Case {
        int pixelsPerInch;
        double factor;
    };
    const Case cases[] = {{72, 1.0},  {95, 1.0},   {96, 1.0},  {97, 97.0 / 96.0}, {120, 1.25},
                          {144, 1.5}, {168, 1.75}, {192, 2.0}, {0, 1.0},          {-96, 1.0}};
    for (const Case& c : cases) {
        EXPECT_EQ(c.factor, DpiArithmetic::scaleFactor(c.pixelsPerInch)) << c.pixelsPerInch;
    }
}

TEST(ScalingTier, GrowsWithTheFactorUpToTheLastTier) {
    struct Case {
        const char* what;
        double factor;
        int tiers;
        double step;
        int tier;
    };
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const Case cases[] = {
        {"no scale", 1.0, 8, 2.0, 0},
        {"no scale, whatever the tiers", 1.0, -5, 2.0, 0},
        {"a begun half counts whole", 1.25, 8, 2.0, 1},
        {"a half", 1.5, 8, 2.0, 1},
        {"just above a half", 1.51, 8, 2.0, 2},
        {"the last tier", 1.75, 3, 2.0, 2},
        {"limited by the last tier", 4.0, 3, 2.0, 2},
        {"other steps", 1.5, 8, 4.0, 2},
        {"a broken step", 1.5, 8, 0.5, 1},
        {"no step", 2.0, 8, 0.0, 0},
        {"a step back", 2.0, 8, -3.0, -3},
        {"no tiers", 2.0, 0, 2.0, -1},
        {"a step beyond every number", 1.5, 8, kInfinity, 7},
        {"a step beyond every number, back", 1.5, 8, -kInfinity, std::numeric_limits<int>::min()},
        {"tiers below every number", 1.5, std::numeric_limits<int>::min(), 2.0, std::numeric_limits<int>::min()},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.tier, DpiArithmetic::scalingTier(c.factor, c.tiers, c.step)) << c.what;
    }
}

TEST(ScaledHeight, IsRoundedHalfAwayFromZero) {
    EXPECT_EQ(13.0, DpiArithmetic::heightAtScale(1.0, 13.0));
    EXPECT_EQ(20.0, DpiArithmetic::heightAtScale(1.5, 13.0)) << "from 19.5";
    EXPECT_EQ(-17.0, DpiArithmetic::heightAtScale(1.5, -11.0)) << "from -16.5";
    EXPECT_EQ(-11.0, DpiArithmetic::heightWithoutScale(1.5, -17.0)) << "from -11.33";
    EXPECT_EQ(1.0, DpiArithmetic::heightWithoutScale(2.0, 1.0)) << "from 0.5";
    EXPECT_EQ(-1.0, DpiArithmetic::heightWithoutScale(2.0, -1.0)) << "from -0.5";
}

TEST(ScaledHeight, ComesBackFromEveryScale) {
    for (const double factor : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
        for (int height = -1000; height <= 1000; ++height) {
            ASSERT_EQ(height, DpiArithmetic::heightWithoutScale(factor, DpiArithmetic::heightAtScale(factor, height)))
                << factor;
        }
    }
}

TEST(PictureIndex, ChangesAtEightFactors) {
    constexpr double limits[] = {1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 3.5};
    EXPECT_EQ(0U, DpiArithmetic::pictureIndex(1.0));
    for (std::size_t index = 0; index < std::size(limits); ++index) {
        EXPECT_EQ(index, DpiArithmetic::pictureIndex(std::nextafter(limits[index], 0.0))) << limits[index];
        EXPECT_EQ(index + 1, DpiArithmetic::pictureIndex(limits[index])) << limits[index];
    }
    EXPECT_EQ(7U, DpiArithmetic::pictureIndex(10.0));
}

TEST(RibbonIcons, GrowWithTheFactor) {
    struct Case {
        double factor;
        IconEdges below;
        IconEdges from;
    };
    const Case cases[] = {
        {1.25, {16, 32}, {16, 40}}, {1.5, {16, 40}, {24, 56}}, {1.75, {24, 56}, {32, 64}}, {2.0, {32, 64}, {32, 72}},
        {2.25, {32, 72}, {40, 72}}, {2.5, {40, 72}, {48, 96}}, {3.0, {48, 96}, {56, 112}},
    };
    EXPECT_EQ((IconEdges{16, 32}), DpiArithmetic::ribbonIconEdges(1.0));
    for (const Case& c : cases) {
        EXPECT_EQ(c.below, DpiArithmetic::ribbonIconEdges(std::nextafter(c.factor, 0.0))) << c.factor;
        EXPECT_EQ(c.from, DpiArithmetic::ribbonIconEdges(c.factor)) << c.factor;
    }
    EXPECT_EQ((IconEdges{64, 128}), DpiArithmetic::ribbonIconEdges(std::nextafter(3.0, 4.0)));
}

TEST(IconStrip, IsFoundByItsExactWidthOnly) {
    constexpr int widths[] = {16, 24, 32, 40, 48, 56, 64, 72, 96, 112, 128};
    int found = 0;
    for (int width = -1; width <= 200; ++width) {
        if (const auto index = DpiArithmetic::iconStripIndex(width)) {
            ASSERT_LT(*index, std::size(widths));
            EXPECT_EQ(width, widths[*index]);
            ++found;
        }
    }
    EXPECT_EQ(11, found);
    EXPECT_FALSE(DpiArithmetic::iconStripIndex(20));
}
