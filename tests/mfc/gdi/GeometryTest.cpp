#include <atltypes.h>

#include <gtest/gtest.h>

#include <ostream>
#include <vector>

static void PrintTo(const CRect& rect, std::ostream* out) {
    *out << rect.left << ' ' << rect.top << ' ' << rect.right << ' ' << rect.bottom;
}

static void PrintTo(const CPoint& point, std::ostream* out) {
    *out << point.x << ' ' << point.y;
}

static void PrintTo(const CSize& size, std::ostream* out) {
    *out << size.cx << ' ' << size.cy;
}

namespace {

template <typename Change>
CRect changed(CRect rect, Change change) {
    change(rect);
    return rect;
}

template <typename Value>
struct Case {
    const char* what;
    Value result;
    Value expected;
};

template <typename Value>
void expectAll(const std::vector<Case<Value>>& cases) {
    for (const Case<Value>& each : cases) {
        EXPECT_EQ(each.expected, each.result) << each.what;
    }
}

TEST(Rectangles, ComputeRectangles) {
    const CRect rect(10, 20, 30, 60);
    const CRect sides(1, 2, 3, 4);
    expectAll<CRect>({
        {"nothing", CRect(), {0, 0, 0, 0}},
        {"corner and size", CRect(CPoint(1, 2), CSize(3, 4)), {1, 2, 4, 6}},
        {"two corners", CRect(CPoint(1, 2), CPoint(3, 4)), {1, 2, 3, 4}},
        {"plus a point", rect + CPoint(1, 2), {11, 22, 31, 62}},
        {"minus a point", rect - CPoint(1, 2), {9, 18, 29, 58}},
        {"plus a size", rect + CSize(1, 2), {11, 22, 31, 62}},
        {"minus a size", rect - CSize(1, 2), {9, 18, 29, 58}},
        {"plus a rectangle", rect + &sides, {9, 18, 33, 64}},
        {"minus a rectangle", rect - &sides, {11, 22, 27, 56}},
        {"a point plus the rectangle", CPoint(1, 2) + &rect, {11, 22, 31, 62}},
        {"a size plus the rectangle", CSize(1, 2) + &rect, {11, 22, 31, 62}},
        {"intersection", rect & CRect(0, 0, 20, 40), {10, 20, 20, 40}},
        {"intersection of neighbours", rect & CRect(30, 20, 50, 60), {0, 0, 0, 0}},
        {"union", rect | CRect(0, 30, 5, 70), {0, 20, 30, 70}},
        {"union with nothing", rect | CRect(), rect},
        {"scaled", rect.MulDiv(3, 2), {15, 30, 45, 90}},
        {"scaled, halves away from zero", CRect(1, -1, 3, -3).MulDiv(1, 2), {1, -1, 2, -2}},
        {"inflated", changed(rect, [](CRect& r) { r.InflateRect(1, 2); }), {9, 18, 31, 62}},
        {"inflated by a size", changed(rect, [](CRect& r) { r.InflateRect(CSize(1, 2)); }), {9, 18, 31, 62}},
        {"inflated by sides", changed(rect, [](CRect& r) { r.InflateRect(1, 2, 3, 4); }), {9, 18, 33, 64}},
        {"deflated", changed(rect, [](CRect& r) { r.DeflateRect(1, 2); }), {11, 22, 29, 58}},
        {"deflated by sides", changed(rect, [](CRect& r) { r.DeflateRect(1, 2, 3, 4); }), {11, 22, 27, 56}},
        {"deflated by a rectangle", changed(rect, [&](CRect& r) { r.DeflateRect(&sides); }), {11, 22, 27, 56}},
        {"moved", changed(rect, [](CRect& r) { r.OffsetRect(-10, 5); }), {0, 25, 20, 65}},
        {"moved to an x", changed(rect, [](CRect& r) { r.MoveToX(0); }), {0, 20, 20, 60}},
        {"moved to a y", changed(rect, [](CRect& r) { r.MoveToY(0); }), {10, 0, 30, 40}},
        {"moved to a point", changed(rect, [](CRect& r) { r.MoveToXY(CPoint(5, 6)); }), {5, 6, 25, 46}},
        {"normalised", changed(CRect(30, 60, 10, 20), [](CRect& r) { r.NormalizeRect(); }), rect},
        {"left and right swapped", changed(rect, [](CRect& r) { r.SwapLeftRight(); }), {30, 20, 10, 60}},
        {"a corner written", changed(rect, [](CRect& r) { r.TopLeft() = CPoint(1, 2); }), {1, 2, 30, 60}},
        {"the other corner written", changed(rect, [](CRect& r) { r.BottomRight().x = 99; }), {10, 20, 99, 60}},
        {"less a side",
         changed(rect, [&](CRect& r) { r.SubtractRect(&rect, CRect(10, 0, 15, 99)); }),
         {15, 20, 30, 60}},
        {"less a corner", changed(rect, [&](CRect& r) { r.SubtractRect(&rect, CRect(0, 0, 15, 25)); }), rect},
    });
}

TEST(Rectangles, MeasureThemselves) {
    const CRect rect(10, 20, 30, 60);
    EXPECT_EQ(20, rect.Width());
    EXPECT_EQ(40, rect.Height());
    EXPECT_EQ(CSize(20, 40), rect.Size());
    EXPECT_EQ(CPoint(20, 40), rect.CenterPoint());
    EXPECT_EQ(CPoint(0, 1), CRect(0, 0, 1, 3).CenterPoint());
}

TEST(Rectangles, AreHalfOpen) {
    const CRect rect(10, 20, 30, 60);
    const std::vector<Case<bool>> cases = {
        {"left top corner", rect.PtInRect(CPoint(10, 20)), true},
        {"last point inside", rect.PtInRect(CPoint(29, 59)), true},
        {"right edge", rect.PtInRect(CPoint(30, 40)), false},
        {"bottom edge", rect.PtInRect(CPoint(20, 60)), false},
        {"left of it", rect.PtInRect(CPoint(9, 40)), false},
        {"empty for equal edges", CRect(5, 0, 5, 10).IsRectEmpty(), true},
        {"empty for turned edges", CRect(6, 0, 5, 10).IsRectEmpty(), true},
        {"one pixel is not empty", CRect(5, 5, 6, 6).IsRectEmpty(), false},
        {"null only at zero", CRect(1, 1, 1, 1).IsRectNull(), false},
        {"null", CRect().IsRectNull(), true},
        {"equal", rect == CRect(10, 20, 30, 60), true},
        {"not equal", rect != CRect(10, 20, 30, 61), true},
    };
    expectAll(cases);
}

TEST(Rectangles, TellWhetherTheyShareSomething) {
    CRect result(1, 1, 1, 1);
    EXPECT_FALSE(result.IntersectRect(CRect(0, 0, 10, 10), CRect(10, 0, 20, 10)));
    EXPECT_EQ(CRect(), result);
    EXPECT_TRUE(result.IntersectRect(CRect(0, 0, 10, 10), CRect(9, 9, 20, 20)));
    EXPECT_EQ(CRect(9, 9, 10, 10), result);
    EXPECT_FALSE(result.UnionRect(CRect(), CRect(3, 3, 3, 9)));
}

TEST(PointsAndSizes, AddAndSubtract) {
    CPoint moved(1, 2);
    moved.Offset(10, 20);
    moved += CSize(1, 1);
    moved -= CPoint(2, 2);
    expectAll<CPoint>({
        {"plus a size", CPoint(1, 2) + CSize(3, 4), {4, 6}},
        {"minus a size", CPoint(1, 2) - CSize(3, 4), {-2, -2}},
        {"plus a point", CPoint(1, 2) + CPoint(3, 4), {4, 6}},
        {"negated", -CPoint(1, 2), {-1, -2}},
        {"a size plus a point", CSize(1, 2) + CPoint(3, 4), {4, 6}},
        {"moved step by step", moved, {10, 21}},
        {"packed in a message", CPoint(MAKELPARAM(static_cast<WORD>(-5), 7)), {-5, 7}},
        {"from a size", CPoint(CSize(1, 2)), {1, 2}},
    });
    CSize grown(1, 2);
    grown += CSize(10, 20);
    grown -= CSize(1, 1);
    expectAll<CSize>({
        {"distance of points", CPoint(5, 7) - CPoint(1, 2), {4, 5}},
        {"sum", CSize(1, 2) + CSize(3, 4), {4, 6}},
        {"difference", CSize(1, 2) - CSize(3, 4), {-2, -2}},
        {"negated", -CSize(1, 2), {-1, -2}},
        {"grown step by step", grown, {10, 21}},
        {"packed", CSize(static_cast<DWORD>(MAKELONG(3, static_cast<WORD>(-4)))), {3, -4}},
        {"from a point", CSize(CPoint(1, 2)), {1, 2}},
    });
}

} // namespace
