#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <ostream>
#include <random>
#include <vector>

#include "DeviceArithmetic.h"

namespace VectorCanvas {
void PrintTo(const DeviceRect& rect, std::ostream* out) {
    *out << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom;
}
void PrintTo(const Segment& line, std::ostream* out) {
    *out << line.from.x << ' ' << line.from.y << ' ' << line.to.x << ' ' << line.to.y;
}
} // namespace VectorCanvas

namespace {

using VectorCanvas::DeviceRect;
using VectorCanvas::Segment;

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(DevicePoints, AddTheOffsetAndThenTruncateTowardZero) {
    struct Case {
        const char* what;
        float coordinate;
        float offset;
        int pixel;
    };
    const Case cases[] = {
        {"minus a half is 0, not -1", -0.5F, 0.0F, 0},
        {"a fraction is cut off", 10.9F, 0.0F, 10},
        {"a negative fraction, too", -10.9F, 0.0F, -10},
        {"two halves make a pixel", 10.5F, 0.5F, 11},
        {"two fractions that do not", 10.5F, 0.25F, 10},
        {"an offset across 0", 3.5F, -4.0F, 0},
        {"not a number", kNotANumber, 5.0F, 0},
        {"infinity", kInfinity, 0.0F, kMost},
        {"minus infinity", -kInfinity, 0.0F, kLeast},
        {"infinities that cancel each other", kInfinity, -kInfinity, 0},
        {"2^31", 2147483648.0F, 0.0F, kMost},
        {"-2^31", -2147483648.0F, 0.0F, kLeast},
        {"the largest float below 2^31", 2147483520.0F, 0.0F, 2147483520},
        {"beyond 32 bits", 1e20F, 0.0F, kMost},
        {"a sum beyond all floats", std::numeric_limits<float>::max(), std::numeric_limits<float>::max(), kMost},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.pixel, VectorCanvas::toPixel(c.coordinate + c.offset)) << c.what;
    }
}

TEST(DevicePoints, AreAddedAsFloats) {
    // 2^24 + 1 is no float.
    EXPECT_EQ(16777216, VectorCanvas::toPixel(16777216.0F + 1.0F));
}

TEST(DevicePoints, AgreeWithExactArithmeticWhereFloatsAreExact) {
    std::mt19937 random(20'261'121);
    std::uniform_int_distribution<int> quarters(-4'000'000, 4'000'000);
    for (int round = 0; round < 100'000; ++round) {
        const int first = quarters(random);
        const int second = quarters(random);
        const int pixel = VectorCanvas::toPixel(static_cast<float>(first) / 4.0F + static_cast<float>(second) / 4.0F);
        ASSERT_EQ((first + second) / 4, pixel) << first << "/4 + " << second << "/4";
    }
}

TEST(DevicePoints, AreWithinReachOnlyIfABareTruncationGivesTheSame) {
    using Point = OrtinPoint<float>;
    constexpr float kEnd = VectorCanvas::kReach;
    struct Case {
        const char* what;
        Point point;
        Point offset;
        bool within;
    };
    const Case cases[] = {
        {"plain", {-0.5F, 12.9F}, {0, 0}, true},
        {"just within", {std::nextafter(kEnd, 0.0F), std::nextafter(-kEnd, 0.0F)}, {0, 0}, true},
        {"at the end", {kEnd, 0}, {0, 0}, false},
        {"at the other end", {0, -kEnd}, {0, 0}, false},
        {"by its offset", {kEnd - 1, 0}, {1, 0}, false},
        {"not by its offset", {kEnd + 1, 0}, {-2, 0}, true},
        {"no number", {0, kNotANumber}, {0, 0}, false},
        {"no number as offset", {0, 0}, {kNotANumber, 0}, false},
        {"endless", {-kInfinity, 0}, {0, 0}, false},
        {"endless less endless", {kInfinity, 0}, {-kInfinity, 0}, false},
    };
    for (const Case& c : cases) {
        // Somewhere in a list.
        for (std::size_t place = 0; place < 9; ++place) {
            std::vector<Point> points(9, Point{-c.offset.x, -c.offset.y});
            points[place] = c.point;
            const bool offsetCounts = std::isfinite(c.offset.x) && std::isfinite(c.offset.y);
            EXPECT_EQ(c.within && offsetCounts, VectorCanvas::allWithinReach(points.data(), points.size(), c.offset))
                << c.what << " at " << place;
        }
    }
    EXPECT_TRUE(VectorCanvas::allWithinReach(nullptr, 0, {0, 0}));
}

TEST(ShapePoints, StayWithinReach) {
    EXPECT_EQ(10.75F, VectorCanvas::withinReach(10.75F));
    EXPECT_EQ(0.0F, VectorCanvas::withinReach(kNotANumber));
    EXPECT_EQ(1048576.0F, VectorCanvas::withinReach(kInfinity));
    EXPECT_EQ(-1048576.0F, VectorCanvas::withinReach(-3e9F));
    EXPECT_EQ(10, VectorCanvas::toPixelWithinReach(10.9F));
    EXPECT_EQ(0, VectorCanvas::toPixelWithinReach(-0.9F));
    EXPECT_EQ(-1048576, VectorCanvas::toPixelWithinReach(-kInfinity));
}

TEST(Lines, WithinReachStayAsTheyAre) {
    const Segment line{{-1048576.0F, 0.1F}, {16.7F, 1048576.0F}};
    EXPECT_EQ(line, VectorCanvas::segmentWithinReach(line));
}

TEST(Lines, FromFarAwayKeepTheirCourse) {
    struct Case {
        const char* what;
        Segment line;
        Segment drawn;
    };
    constexpr float kEnd = VectorCanvas::kReach;
    const Case cases[] = {
        {"one end beyond the right", {{0, 100}, {4 * kEnd, 500}}, {{0, 100}, {kEnd, 200}}},
        {"one end beyond the left", {{-4 * kEnd, 500}, {0, 100}}, {{-kEnd, 200}, {0, 100}}},
        {"both ends, upwards", {{-300, 3 * kEnd}, {300, -3 * kEnd}}, {{-100, kEnd}, {100, -kEnd}}},
        {"past a corner", {{-3 * kEnd, 0}, {kEnd, 4 * kEnd}}, {{-3 * kEnd, 0}, {kEnd, 4 * kEnd}}},
        {"level", {{-3e9F, 5}, {3e9F, 5}}, {{-kEnd, 5}, {kEnd, 5}}},
        {"the ends of all floats",
         {{-std::numeric_limits<float>::max(), 7}, {std::numeric_limits<float>::max(), 7}},
         {{-kEnd, 7}, {kEnd, 7}}},
        {"nowhere near", {{2 * kEnd, 5}, {3 * kEnd, 9}}, {{kEnd, 5}, {kEnd, 9}}},
        {"level and nowhere near", {{0, 3 * kEnd}, {9 * kEnd, 3 * kEnd}}, {{0, kEnd}, {kEnd, kEnd}}},
        {"a point far away", {{2 * kEnd, 5}, {2 * kEnd, 5}}, {{kEnd, 5}, {kEnd, 5}}},
        {"an endless one", {{-kInfinity, 5}, {kInfinity, kEnd * 2}}, {{-kEnd, 5}, {kEnd, kEnd}}},
        {"no number", {{kNotANumber, 2 * kEnd}, {3, 5}}, {{0, kEnd}, {3, 5}}},
    };
    for (const Case& c : cases) {
        const Segment drawn = VectorCanvas::segmentWithinReach(c.line);
        EXPECT_EQ(VectorCanvas::withinReach(c.drawn.from), drawn.from) << c.what;
        EXPECT_EQ(VectorCanvas::withinReach(c.drawn.to), drawn.to) << c.what;
    }
}

TEST(Lines, FromFarAwayPassNearPointsWhereTheyShould) {
    std::mt19937 random(20'261'122);
    std::uniform_real_distribution<double> near(-2000, 2000);
    std::uniform_real_distribution<double> far(1e3, 1e8);
    std::uniform_real_distribution<double> direction(0, 6.283185307179586);
    for (int round = 0; round < 100'000; ++round) {
        const double x = near(random);
        const double y = near(random);
        const double angle = direction(random);
        const double before = far(random);
        const double after = far(random);
        const auto at = [&](double distance) {
            return OrtinPoint<float>{static_cast<float>(x + distance * std::cos(angle)),
                                     static_cast<float>(y + distance * std::sin(angle))};
        };
        const auto drawn = VectorCanvas::segmentWithinReach({at(-before), at(after)});
        ASSERT_EQ(drawn.from, VectorCanvas::withinReach(drawn.from));
        ASSERT_EQ(drawn.to, VectorCanvas::withinReach(drawn.to));
        const double width = static_cast<double>(drawn.to.x) - drawn.from.x;
        const double height = static_cast<double>(drawn.to.y) - drawn.from.y;
        const double distance =
            std::abs((x - drawn.from.x) * height - (y - drawn.from.y) * width) / std::hypot(width, height);
        // A float that lies 10^8 away is good for 8 pixels, 4 on each side.
        ASSERT_LE(distance, 6.0) << round;
        if (std::max(before, after) < 1e6) {
            ASSERT_LE(distance, 0.1) << round;
        }
    }
}

TEST(Rectangles, ByEdgesTruncateEachEdgeWhereItLies) {
    EXPECT_EQ((DeviceRect{1, 2, 4, 7}), VectorCanvas::rectByEdges({1.5F, 2.25F, 2.75F, 4.75F}));
    EXPECT_EQ((DeviceRect{0, 0, 1, 1}), VectorCanvas::rectByEdges({-0.5F, -0.5F, 2.0F, 2.0F}));
    EXPECT_EQ((DeviceRect{0, 0, 0, 0}), VectorCanvas::rectByEdges({kNotANumber, kNotANumber, 5, 5}));
}

TEST(Rectangles, ByEdgesKeepAPixelFromTheEndsOfTheRange) {
    const DeviceRect rect = VectorCanvas::rectByEdges({-kInfinity, -3e9F, kInfinity, 1e20F});
    EXPECT_EQ(-kMost, rect.left);
    EXPECT_EQ(-kMost, rect.top);
    EXPECT_EQ(0, rect.right) << "-inf + inf is not a number";
    EXPECT_EQ(kMost - 1, rect.bottom);
}

TEST(Rectangles, BySizeTruncateCornerAndSizeEachForItself) {
    EXPECT_EQ((DeviceRect{1, 2, 3, 6}), VectorCanvas::rectBySize({1.5F, 2.25F, 2.75F, 4.75F}))
        << "one less than by edges";
    EXPECT_EQ((DeviceRect{0, 0, 2, 2}), VectorCanvas::rectBySize({-0.5F, -0.5F, 2.0F, 2.0F})) << "one more";
    EXPECT_EQ((DeviceRect{kMost, kLeast, kMost, kLeast}),
              VectorCanvas::rectBySize({kInfinity, -kInfinity, kInfinity, -kInfinity}));
}

TEST(Arcs, LieAroundTheTruncatedCentre) {
    EXPECT_EQ((DeviceRect{-5, -15, 15, 25}), VectorCanvas::boxAround({5.9F, 5.9F}, 10, 20)) << "20 wide, 40 high";
    EXPECT_EQ((DeviceRect{5, 5, 5, 5}), VectorCanvas::boxAround({5.0F, 5.0F}, 0, 0));
    EXPECT_EQ((DeviceRect{15, 25, -5, -15}), VectorCanvas::boxAround({5.0F, 5.0F}, -10, -20)) << "as it is given";
    EXPECT_EQ((DeviceRect{-1048576, -1048576, 1048576, 1048576}), VectorCanvas::boxAround({0, 0}, kMost, kMost));
    EXPECT_EQ((DeviceRect{1048576, 1048576, -1048576, -1048576}), VectorCanvas::boxAround({0, 0}, kLeast, kLeast));
}

TEST(ControlPoints, TruncateThePointBeforeTheOffset) {
    const OrtinPoint<float> corner = VectorCanvas::controlPointCorner({10.9F, -10.9F}, {0.5F, 0.5F}, 7.0F);
    EXPECT_EQ(7.0F, corner.x);
    EXPECT_EQ(-13.0F, corner.y);
    EXPECT_EQ((OrtinPoint<float>{0.0F, 1048576.0F}),
              VectorCanvas::controlPointCorner({kNotANumber, kInfinity}, {0, 0}, 7.0F));
}

TEST(Opacity, IsTruncatedToAByte) {
    struct Case {
        float opacity;
        int alpha;
    };
    const Case cases[] = {
        {0.0F, 0},  {1.0F, 255},      {0.5F, 127},      {0.999F, 254},   {2.0F, 254},
        {-1.0F, 1}, {kNotANumber, 0}, {kInfinity, 255}, {-kInfinity, 0}, {1e20F, 255},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.alpha, VectorCanvas::toAlpha(c.opacity)) << c.opacity;
    }
}

} // namespace
