#include "PainterFixture.h"

#include <cmath>
#include <limits>

#include "support/ImportPatch.h"

using VectorCanvas::DrawContextBase;
using VectorCanvas::DrawContextGdiLine;

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::vector<POINT> toldPoints;
std::size_t toldCount;

BOOL WINAPI recordPolyPolyline(HDC, const POINT* points, const DWORD* lengths, DWORD count) {
    std::size_t total = 0;
    for (DWORD index = 0; index < count; ++index) {
        total += lengths[index];
    }
    toldPoints.assign(points, points + total);
    toldCount = count;
    return TRUE;
}

class GdiPainter : public PainterFixture {
protected:
    void SetUp() override { begin(); }

    void setPen(UINT style, int width, COLORREF color = kRed) {
        LOGPEN description{style, {width, 0}, color};
        const HPEN pen = ::CreatePenIndirect(&description);
        line.UpdateContext(pen);
        ::DeleteObject(pen);
    }
    /// The picture is the reference's, and the shadow has the id wherever the picture is not white.
    void expectDrawn(const Reference& reference) const {
        EXPECT_TRUE(support::samePixels(picture(), reference.pixels()));
        support::Pixels ids(kWidth, kHeight);
        const support::Pixels colours = reference.pixels();
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x) {
                ids.set(x, y, colours.at(x, y) == kWhite ? 0 : kId);
            }
        }
        EXPECT_TRUE(support::samePixels(shadow(), ids));
    }
    void expectNothingDrawn() const {
        EXPECT_EQ(kWhite, picture().onlyColour(picture().bounds()));
        EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
    }
};

} // namespace

TEST_F(GdiPainter, DrawsALineOfEachPairOfPoints) {
    const Point points[] = {{2, 3}, {20, 30}, {5, 5}, {50, 6}, {30, 30}};
    painter.DrawLineList(points, 5, line, {0, 0});
    Reference reference;
    reference.lines({{2, 3}, {20, 30}, {5, 5}, {50, 6}});
    expectDrawn(reference);
}

TEST_F(GdiPainter, AddsTheOffsetBeforeItTruncates) {
    const Point points[] = {{2.75F, 3.5F}, {20.5F, 30.25F}};
    painter.DrawLineList(points, 2, line, {0.25F, 0.25F});
    Reference reference;
    reference.lines({{3, 3}, {20, 30}});
    expectDrawn(reference);
}

TEST_F(GdiPainter, TruncatesTowardZeroAtTheEdge) {
    painter.DrawPoint({-0.5F, -0.9F}, &line, {0, 0});
    EXPECT_EQ(kRed, picture().at(0, 0));
    EXPECT_EQ(kId, painter.GetObjectId(0, 0));
    begin();
    painter.DrawPoint({-0.5F, -0.5F}, &line, {-0.5F, -0.5F});
    expectNothingDrawn();
}

TEST_F(GdiPainter, LeavesItsPenAndBrushSelected) {
    const Point points[] = {{2, 3}, {20, 30}, {5, 5}, {50, 6}};
    painter.DrawLineList(points, 4, line, {0, 0});
    EXPECT_EQ(line.GetHGDIOBJ(), ::GetCurrentObject(painter.GetSource(), OBJ_PEN));
    painter.FillRects(points, 4, &shape, {0, 0});
    EXPECT_EQ(::GetStockObject(NULL_PEN), ::GetCurrentObject(painter.GetSource(), OBJ_PEN));
    EXPECT_EQ(shape.GetHBrush(), ::GetCurrentObject(painter.GetSource(), OBJ_BRUSH));
    EXPECT_EQ(WINDING, ::GetPolyFillMode(painter.GetSource()));
    painter.DrawPolyline(points, 4, &shape, {0, 0});
    EXPECT_EQ(shape.GetHGDIOBJ(), ::GetCurrentObject(painter.GetSource(), OBJ_PEN));
}

TEST_F(GdiPainter, OutlivesAContextWhosePenItHasSelected) {
    const Point points[] = {{2, 3}, {20, 30}};
    {
        DrawContextGdiLine passing;
        passing.UpdateContext(redPen());
        painter.DrawLineList(points, 2, passing, {0, 0});
    }
    painter.DrawLineList(points, 2, line, {0, 0});
    Reference reference;
    reference.lines({{2, 3}, {20, 30}});
    expectDrawn(reference);
}

TEST_F(GdiPainter, DrawsNothingInTheShadowForAnObjectWithoutId) {
    const Point points[] = {{2, 3}, {20, 30}, {5, 35}, {50, 6}};
    line.SetId(0);
    shape.SetId(0);
    painter.DrawLineList(points, 4, line, {0, 0});
    painter.DrawPolyline(points, 4, &line, {0, 0});
    painter.DrawPoint(points[0], &line, {0, 0});
    painter.FillRects(points, 4, &shape, {0, 0});
    painter.DrawRect({1, 1, 20, 20}, kRed, kBlue, 0);
    painter.DrawControlPoints(0, points, 4, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
    EXPECT_NE(0U, picture().count(kRed));
}

TEST_F(GdiPainter, KeepsTheLow24BitsOfAnId) {
    line.SetId(0xFFABCDEF);
    painter.DrawPoint({3, 3}, &line, {0, 0});
    const Point points[] = {{5, 5}, {9, 5}};
    painter.DrawLineList(points, 2, line, {0, 0});
    painter.DrawRect({20, 5, 5, 5}, kRed, kBlue, 0xFFABCDEF);
    shape.SetId(0x01ABCDEF);
    const Point corners[] = {{30, 5}, {40, 5}, {40, 15}, {30, 15}};
    painter.FillRects(corners, 4, &shape, {0, 0});
    painter.DrawLine({5, 30}, {50, 30}, &shape, {0, 0});
    EXPECT_EQ((std::set<unsigned int>{0, 0xABCDEF}), idsInShadow());
    for (const CPoint& where : {CPoint(3, 3), CPoint(7, 5), CPoint(22, 7), CPoint(35, 10), CPoint(20, 30)}) {
        EXPECT_EQ(0xABCDEFU, painter.GetObjectId(where.x, where.y)) << where.x;
    }
}

TEST_F(GdiPainter, DrawsTheLatestObjectOverTheEarlier) {
    painter.DrawRect({0, 0, 20, 20}, kRed, kBlue, kId);
    painter.DrawRect({10, 0, 20, 20}, kRed, kBlue, kOtherId);
    EXPECT_EQ(kId, painter.GetObjectId(9, 5));
    EXPECT_EQ(kOtherId, painter.GetObjectId(10, 5));
}

TEST_F(GdiPainter, DrawsWideLinesAsWideInTheShadow) {
    setPen(PS_SOLID, 5);
    const Point points[] = {{10, 10}, {40, 25}};
    painter.DrawLineList(points, 2, line, {0, 0});
    Reference reference;
    LOGPEN description{PS_SOLID, {5, 0}, kRed};
    const HPEN pen = ::CreatePenIndirect(&description);
    ::SelectObject(reference.dc(), pen);
    ::MoveToEx(reference.dc(), 10, 10, nullptr);
    ::LineTo(reference.dc(), 40, 25);
    expectDrawn(reference);
    ::SelectObject(reference.dc(), ::GetStockObject(BLACK_PEN));
    ::DeleteObject(pen);
}

TEST_F(GdiPainter, LeavesTheGapsOfDashesEmptyInTheShadow) {
    setPen(PS_DASH, 1);
    const Point points[] = {{0, 10}, {59, 10}};
    painter.DrawLineList(points, 2, line, {0, 0});
    const support::Pixels ids = shadow();
    EXPECT_GT(ids.count(kId), 20U);
    EXPECT_GT(ids.count(0, {0, 10, 59, 11}), 5U);
    EXPECT_EQ((std::set<unsigned int>{0, kId}), idsInShadow());
}

TEST_F(GdiPainter, JoinsThePointsOfAPolyline) {
    const Point points[] = {{2, 3}, {20, 30}, {50, 6}, {55, 35}};
    painter.DrawPolyline(points, 4, &line, {0, 0});
    Reference reference;
    const POINT pixels[] = {{2, 3}, {20, 30}, {50, 6}, {55, 35}};
    const HGDIOBJ previous = ::SelectObject(reference.dc(), redPen());
    ::Polyline(reference.dc(), pixels, 4);
    ::SelectObject(reference.dc(), previous);
    expectDrawn(reference);
}

TEST_F(GdiPainter, DrawsSeveralPolylinesAtOnce) {
    const Point points[] = {{2, 3}, {20, 30}, {50, 6}, {5, 35}, {55, 35}};
    const unsigned long lengths[] = {3, 2};
    painter.DrawPolyPolyline(points, 5, lengths, 2, &line, {0, 0});
    Reference reference;
    const POINT pixels[] = {{2, 3}, {20, 30}, {50, 6}, {5, 35}, {55, 35}};
    const HGDIOBJ previous = ::SelectObject(reference.dc(), redPen());
    ::Polyline(reference.dc(), pixels, 3);
    ::Polyline(reference.dc(), pixels + 3, 2);
    ::SelectObject(reference.dc(), previous);
    expectDrawn(reference);
}

TEST_F(GdiPainter, DrawsAShorterListAfterALongerOne) {
    std::vector<Point> many(1001, Point{500, 500});
    painter.DrawLineList(many.data(), many.size(), line, {0, 0});
    painter.FillRects(many.data(), many.size(), &shape, {0, 0});
    expectNothingDrawn();
    const Point points[] = {{2, 3}, {20, 30}};
    painter.DrawLineList(points, 2, line, {0, 0});
    Reference reference;
    reference.lines({{2, 3}, {20, 30}});
    expectDrawn(reference);
}

TEST_F(GdiPainter, FillsQuadrilateralsWithoutAnOutline) {
    const Point points[] = {{5, 5},   {20, 5},  {20, 15}, {5, 15}, {30, 10}, {50, 12},
                            {45, 30}, {28, 25}, {1, 1},   {2, 1},  {2, 2}};
    shape.FillRequired(false); // not asked
    painter.FillRects(points, 11, &shape, {0.5F, 0.5F});
    Reference reference;
    const HBRUSH brush = ::CreateSolidBrush(kBlue);
    ::SelectObject(reference.dc(), brush);
    ::SelectObject(reference.dc(), ::GetStockObject(NULL_PEN));
    ::SetPolyFillMode(reference.dc(), WINDING);
    const POINT pixels[] = {{5, 5}, {20, 5}, {20, 15}, {5, 15}, {30, 10}, {50, 12}, {45, 30}, {28, 25}};
    const int corners[] = {4, 4};
    ::PolyPolygon(reference.dc(), pixels, corners, 2);
    expectDrawn(reference);
    ::SelectObject(reference.dc(), ::GetStockObject(WHITE_BRUSH));
    ::DeleteObject(brush);
}

TEST_F(GdiPainter, FillsOneRectangleOfSevenPoints) {
    const Point points[] = {{5, 5}, {20, 5}, {20, 15}, {5, 15}, {30, 5}, {50, 5}, {50, 15}};
    painter.FillRects(points, 7, &shape, {0, 0});
    EXPECT_EQ(0U, picture().count(kBlue, {25, 0, kWidth, kHeight}));
    EXPECT_NE(0U, picture().count(kBlue));
}

TEST_F(GdiPainter, FillsARectangleThatCrossesItselfByTheWindingRule) {
    // Two turns around the middle: the alternate rule would leave a hole.
    const Point points[] = {{5, 5}, {40, 5}, {5, 30}, {40, 30}, {10, 10}, {30, 10}, {30, 25}, {10, 25}};
    painter.FillRects(points, 8, &shape, {0, 0});
    EXPECT_EQ(kBlue, picture().at(20, 12));
    EXPECT_EQ(kId, painter.GetObjectId(20, 12));
}

TEST_F(GdiPainter, DrawsAHatchedBrushSolid) {
    const HBRUSH hatch = ::CreateHatchBrush(HS_CROSS, kGreen);
    shape.UpdateContext(redPen(), hatch);
    const Point points[] = {{5, 5}, {20, 5}, {20, 15}, {5, 15}};
    painter.FillRects(points, 4, &shape, {0, 0});
    EXPECT_EQ(kGreen, picture().onlyColour({6, 6, 18, 13}));
    ::DeleteObject(hatch);
}

TEST_F(GdiPainter, DrawsAFramedRectangleThatIsFoundAllOver) {
    painter.DrawRect({5.5F, 6.5F, 20.75F, 10.75F}, kRed, kBlue, kId);
    const support::Pixels pixels = picture();
    EXPECT_EQ(CRect(5, 6, 26, 17), CRect(*pixels.boundsOf(kRed)));
    EXPECT_EQ(CRect(6, 7, 25, 16), CRect(*pixels.boundsOf(kBlue)));
    EXPECT_EQ(21U * 11U, shadow().count(kId));
}

TEST_F(GdiPainter, LeavesTheInsideOfAFrameWithoutFillButFindsItThere) {
    painter.DrawRect({5, 5, 20, 10}, kRed, 0xFFFFFFFF, kId);
    EXPECT_EQ(kWhite, picture().onlyColour({6, 6, 24, 14}));
    EXPECT_EQ(2U * 20U + 2U * 8U, picture().count(kRed));
    EXPECT_EQ(200U, shadow().count(kId));
}

TEST_F(GdiPainter, FillsAFrameInAnyColourButTheOneThatStandsForNone) {
    painter.DrawRect({5, 5, 20, 10}, kRed, 0, 0);
    EXPECT_EQ(kBlack, picture().at(10, 10));
}

TEST_F(GdiPainter, AsksTheModeForLinesAndTheSurfaceForFrames) {
    painter.EnableShadows(0);
    const Point points[] = {{2, 3}, {20, 30}, {2, 30}, {20, 3}};
    painter.DrawLineList(points, 4, line, {0, 0});
    painter.DrawPolyline(points, 4, &line, {0, 0});
    painter.DrawPoint(points[0], &line, {0, 0});
    painter.FillRects(points, 4, &shape, {0, 0});
    painter.DrawControlPoints(kId, points, 4, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
    painter.DrawRect({30, 5, 10, 10}, kRed, kBlue, kOtherId);
    painter.DrawLine({1, 38}, {50, 38}, &line, {0, 0});
    EXPECT_EQ((std::set<unsigned int>{0, kId, kOtherId}), idsInShadow());
}

TEST_F(GdiPainter, TakesAnyModeButNoneForControlPoints) {
    painter.EnableShadows(2);
    const Point point{20, 20};
    painter.DrawPoint(point, &line, {0, 0});
    EXPECT_EQ(0U, painter.GetObjectId(20, 20));
    painter.DrawControlPoints(kId, &point, 1, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
    EXPECT_EQ(kId, painter.GetObjectId(20, 20));
}

TEST_F(GdiPainter, FindsControlPointsWhole) {
    const Point points[] = {{20, 20}, {40, 20}};
    // Hardly to be seen, hollow and smooth: under the mouse they are whole and hard edged all the same.
    painter.DrawControlPoints(kId, points, 2, {0, 0}, {kRed, 1, kBlue, false, 8, true, 0.1F, true});
    EXPECT_EQ(kId, painter.GetObjectId(20, 20));
    EXPECT_EQ(kId, painter.GetObjectId(40, 20));
    EXPECT_EQ((std::set<unsigned int>{0, kId}), idsInShadow());
}

TEST_F(GdiPainter, DrawsIconsInThePictureOnly) {
    const HICON icon = ::LoadIconW(nullptr, IDI_APPLICATION);
    painter.DrawIcon(reinterpret_cast<unsigned __int64>(icon), 3, 4);
    Reference reference;
    ::DrawIcon(reference.dc(), 3, 4, icon);
    EXPECT_TRUE(support::samePixels(picture(), reference.pixels()));
    EXPECT_LT(reference.pixels().count(kWhite), 60U * 40U) << "there is an icon";
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
    painter.DrawIcon(0, 3, 4);
}

TEST_F(GdiPainter, DrawsNothingOfNothing) {
    const Point points[] = {{2, 3}, {20, 30}, {2, 30}, {20, 3}};
    const unsigned long lengths[] = {4};
    painter.DrawLineList(nullptr, 4, line, {0, 0});
    painter.DrawLineList(points, 0, line, {0, 0});
    painter.DrawLineList(points, 1, line, {0, 0});
    painter.DrawPolyline(nullptr, 4, &line, {0, 0});
    painter.DrawPolyline(points, 0, &line, {0, 0});
    painter.DrawPolyline(points, 1, &line, {0, 0});
    painter.DrawPolyline(points, 4, nullptr, {0, 0});
    painter.DrawPolyPolyline(nullptr, 0, lengths, 1, &line, {0, 0});
    painter.DrawPolyPolyline(points, 4, lengths, 1, nullptr, {0, 0});
    painter.DrawPolyPolyline(points, 4, nullptr, 0, &line, {0, 0});
    painter.DrawPoint(points[0], nullptr, {0, 0});
    painter.FillRects(nullptr, 4, &shape, {0, 0});
    painter.FillRects(points, 0, &shape, {0, 0});
    painter.FillRects(points, 3, &shape, {0, 0});
    painter.FillRects(points, 4, nullptr, {0, 0});
    painter.DrawControlPoints(kId, nullptr, 4, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
    painter.DrawControlPoints(kId, points, 0, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
    expectNothingDrawn();
}

TEST_F(GdiPainter, DrawsNothingInAStyleOfAnotherClass) {
    const Point points[] = {{2, 3}, {20, 30}, {2, 30}, {20, 3}};
    const unsigned long lengths[] = {4};
    DrawContextBase plain;
    plain.SetId(kId);
    painter.DrawPolyline(points, 4, &plain, {0, 0});
    painter.DrawPolyPolyline(points, 4, lengths, 1, &plain, {0, 0});
    painter.DrawPoint(points[0], &plain, {0, 0});
    painter.FillRects(points, 4, &plain, {0, 0});
    painter.FillRects(points, 4, &line, {0, 0});
    painter.DrawPolygon(points, 4, &line, {0, 0});
    painter.DrawEllipse(points[0], points[1], &line, {0, 0});
    painter.DrawArc(points[0], 5, 5, 0, 90, &plain, {0, 0});
    painter.DrawLine(points[0], points[1], &plain, {0, 0});
    painter.DrawOrdinaryLine(points[0], points[1], &plain);
    expectNothingDrawn();
}

TEST_F(GdiPainter, SaturatesWhatNoPixelHas) {
    const Point points[] = {{std::nanf(""), kInfinity}, {-kInfinity, 3e9F}, {1e38F, -1e38F}, {2147483520.0F, -1.9F}};
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "PolyPolyline",
                                         &recordPolyPolyline);
        painter.DrawLineList(points, 4, line, {0, 0});
    }
    ASSERT_EQ(2U, toldCount);
    const std::vector<CPoint> told(toldPoints.begin(), toldPoints.end());
    EXPECT_EQ((std::vector<CPoint>{{0, INT_MAX}, {INT_MIN, INT_MAX}, {INT_MAX, INT_MIN}, {2147483520, -1}}), told);
}

TEST_F(GdiPainter, DrawsOnAfterImpossibleCoordinates) {
    const float values[] = {std::nanf(""), kInfinity, -3e9F, 1e38F, 30.0F};
    const unsigned long lengths[] = {2, 2};
    for (const float first : values) {
        for (const float second : values) {
            const Point points[] = {{first, second}, {second, 3}, {10, first}, {20, 20}};
            const Point offset{second, 0};
            painter.DrawLineList(points, 4, line, offset);
            painter.DrawPolyline(points, 4, &line, {0, 0});
            painter.DrawPolyPolyline(points, 4, lengths, 2, &line, {0, 0});
            painter.DrawPoint(points[0], &line, {0, 0});
            painter.DrawRect({first, second, second, first}, kRed, kBlue, kId);
            painter.DrawLine(points[0], points[1], &line, offset);
            painter.DrawOrdinaryLine(points[0], points[1], &line);
            painter.DrawArc(points[0], 10, 10, 0, 90, &line, {0, 0});
            painter.FillRects(points, 4, &shape, {0, 0});
        }
    }
    for (const unsigned int id : idsInShadow()) {
        EXPECT_TRUE(id == 0 || id == kId) << std::hex << id;
    }
    begin();
    const Point points[] = {{2, 3}, {20, 30}};
    painter.DrawLineList(points, 2, line, {0, 0});
    Reference reference;
    reference.lines({{2, 3}, {20, 30}});
    expectDrawn(reference);
}
