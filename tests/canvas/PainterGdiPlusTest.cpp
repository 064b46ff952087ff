#include "PainterFixture.h"

#include <cmath>
#include <limits>
#include <string>

#include "support/ImportPatch.h"

using VectorCanvas::DrawContextBase;

namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::string calls;

template <typename... Arguments>
void note(const char* format, Arguments... arguments) {
    CStringA text;
    text.Format(format, arguments...);
    calls += text.GetString();
}

std::string listOf(const Gdiplus::Point* points, INT count) {
    std::string list;
    for (INT index = 0; index < count; ++index) {
        list += ' ' + std::to_string(points[index].X) + ',' + std::to_string(points[index].Y);
    }
    return list;
}

using Status = Gdiplus::GpStatus;
using Gdiplus::REAL;

Status WINGDIPAPI noteSmoothing(Gdiplus::GpGraphics*, Gdiplus::SmoothingMode mode) {
    note("smoothing %d; ", mode);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteInterpolation(Gdiplus::GpGraphics*, Gdiplus::InterpolationMode mode) {
    note("interpolation %d; ", mode);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteLine(Gdiplus::GpGraphics*, Gdiplus::GpPen* pen, REAL x1, REAL y1, REAL x2, REAL y2) {
    Gdiplus::ARGB color = 0;
    Gdiplus::DllExports::GdipGetPenColor(pen, &color);
    note("line %.8g,%.8g %.8g,%.8g in %08X; ", x1, y1, x2, y2, static_cast<unsigned>(color));
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteArc(Gdiplus::GpGraphics*, Gdiplus::GpPen*, INT x, INT y, INT width, INT height, REAL start,
                          REAL sweep) {
    note("arc %d,%d %dx%d %.8g %.8g; ", x, y, width, height, start, sweep);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteEllipse(Gdiplus::GpGraphics*, Gdiplus::GpPen*, REAL x, REAL y, REAL width, REAL height) {
    note("ellipse %.8g,%.8g %.8gx%.8g; ", x, y, width, height);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteFilledEllipse(Gdiplus::GpGraphics*, Gdiplus::GpBrush*, REAL x, REAL y, REAL width, REAL height) {
    note("fill ellipse %.8g,%.8g %.8gx%.8g; ", x, y, width, height);
    return Gdiplus::Ok;
}
Status WINGDIPAPI notePolygon(Gdiplus::GpGraphics*, Gdiplus::GpPen*, const Gdiplus::Point* points, INT count) {
    note("polygon%s; ", listOf(points, count).c_str());
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteFilledPolygon(Gdiplus::GpGraphics*, Gdiplus::GpBrush*, const Gdiplus::Point* points, INT count,
                                    Gdiplus::GpFillMode mode) {
    note("fill polygon%s mode %d; ", listOf(points, count).c_str(), mode);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteImage(Gdiplus::GpGraphics*, Gdiplus::GpImage*, INT x, INT y) {
    note("image %d,%d; ", x, y);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteImageRect(Gdiplus::GpGraphics*, Gdiplus::GpImage*, INT x, INT y, INT width, INT height) {
    note("image %d,%d %dx%d; ", x, y, width, height);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteFilledRect(Gdiplus::GpGraphics*, Gdiplus::GpBrush*, INT x, INT y, INT width, INT height) {
    note("fill rect %d,%d %dx%d; ", x, y, width, height);
    return Gdiplus::Ok;
}
Status WINGDIPAPI noteNewPen(Gdiplus::ARGB color, REAL width, Gdiplus::GpUnit unit, Gdiplus::GpPen** pen) {
    note("pen %08X %.8g %d; ", static_cast<unsigned>(color), width, unit);
    return Gdiplus::DllExports::GdipCreatePen1(color, width, unit, pen);
}

/// Notes what the library asks GDI+ for.
class Recorder {
public:
    Recorder() { calls.clear(); }

private:
    template <typename Function>
    static support::ImportPatch patch(const char* name, Function* replacement) {
        return {::GetModuleHandleW(L"OrtinControls.dll"), "gdiplus.dll", name, replacement};
    }

    support::ImportPatch m_patches[12] = {
        patch("GdipSetSmoothingMode", &noteSmoothing),
        patch("GdipSetInterpolationMode", &noteInterpolation),
        patch("GdipDrawLine", &noteLine),
        patch("GdipDrawArcI", &noteArc),
        patch("GdipDrawEllipse", &noteEllipse),
        patch("GdipFillEllipse", &noteFilledEllipse),
        patch("GdipDrawPolygonI", &notePolygon),
        patch("GdipFillPolygonI", &noteFilledPolygon),
        patch("GdipDrawImageI", &noteImage),
        patch("GdipDrawImageRectI", &noteImageRect),
        patch("GdipFillRectangleI", &noteFilledRect),
        patch("GdipCreatePen1", &noteNewPen),
    };
};

class GdiPlusPainter : public PainterFixture {
protected:
    void SetUp() override { begin(); }

    template <typename Draw>
    std::string callsOf(const Draw& draw) {
        const Recorder recorder;
        draw();
        return calls;
    }
    void expectOutlineOnly() { EXPECT_EQ((std::set<unsigned int>{0, kId}), idsInShadow()); }

    Gdiplus::Bitmap bitmap{8, 6};
};

} // namespace

TEST_F(GdiPlusPainter, DrawsALineSmoothAndItsShadowHardEdgedInTheColourOfTheId) {
    shape.SetId(0x00112233);
    EXPECT_EQ("interpolation 2; smoothing 2; line 1.5,2.5 10.25,20.75 in FFFF0000; "
              "pen FF332211 1 0; interpolation 5; smoothing 3; line 1.5,2.5 10.25,20.75 in FF332211; ",
              callsOf([&] {
                  painter.DrawLine({1.25F, 2.25F}, {10, 20.5F}, &shape, {0.25F, 0.25F});
              }));
}

TEST_F(GdiPlusPainter, DrawsAnOrdinaryLineWithoutOffsetInTheModesThatAreThere) {
    EXPECT_EQ("line 1.25,2.25 10,20.5 in FFFF0000; pen FF563412 1 0; line 1.25,2.25 10,20.5 in FF563412; ",
              callsOf([&] {
                  painter.DrawOrdinaryLine({1.25F, 2.25F}, {10, 20.5F}, &line);
              }));
}

TEST_F(GdiPlusPainter, DrawsNoShadowWithoutAnId) {
    line.SetId(0);
    EXPECT_EQ("interpolation 2; smoothing 2; line 1,2 3,4 in FFFF0000; ", callsOf([&] {
                  painter.DrawLine({1, 2}, {3, 4}, &line, {0, 0});
              }));
    EXPECT_EQ("line 1,2 3,4 in FFFF0000; ", callsOf([&] { painter.DrawOrdinaryLine({1, 2}, {3, 4}, &line); }));
}

TEST_F(GdiPlusPainter, DrawsItsShadowWhateverTheModeAsLongAsThereIsTheSurface) {
    painter.EnableShadows(0);
    painter.DrawLine({2, 5}, {40, 5}, &line, {0, 0});
    EXPECT_EQ(kId, painter.GetObjectId(20, 5));
}

TEST_F(GdiPlusPainter, FillsAPolygonAndFindsItsOutlineOnly) {
    const Point points[] = {{5.9F, 5.9F}, {40.5F, 5}, {40, 30.5F}, {5, 30}};
    EXPECT_EQ("interpolation 2; smoothing 2; fill polygon 6,6 41,5 40,31 5,30 mode 0; polygon 6,6 41,5 40,31 5,30; "
              "pen FF563412 1 0; interpolation 5; smoothing 3; polygon 6,6 41,5 40,31 5,30; ",
              callsOf([&] {
                  painter.DrawPolygon(points, 4, &shape, {0.5F, 0.5F});
              }));
    painter.DrawPolygon(points, 4, &shape, {0, 0});
    EXPECT_EQ(kBlue, picture().at(20, 15));
    EXPECT_EQ(0U, painter.GetObjectId(20, 15));
    EXPECT_EQ(kId, painter.GetObjectId(20, 5));
    expectOutlineOnly();
}

TEST_F(GdiPlusPainter, LeavesAPolygonHollowOnRequestWithTheSameShadow) {
    const Point points[] = {{5, 5}, {40, 5}, {40, 30}, {5, 30}};
    painter.DrawPolygon(points, 4, &shape, {0, 0});
    const support::Pixels filled = shadow();
    begin();
    shape.FillRequired(false);
    painter.DrawPolygon(points, 4, &shape, {0, 0});
    EXPECT_EQ(kWhite, picture().at(20, 15));
    EXPECT_EQ(filled, shadow());
}

TEST_F(GdiPlusPainter, DrawsAShorterPolygonAfterALongerOne) {
    const std::vector<Point> many(50, Point{500, 500});
    painter.DrawPolygon(many.data(), many.size(), &shape, {0, 0});
    const Point points[] = {{5, 5}, {40, 5}, {40, 30}};
    shape.SetId(0);
    EXPECT_EQ("interpolation 2; smoothing 2; fill polygon 5,5 40,5 40,30 mode 0; polygon 5,5 40,5 40,30; ",
              callsOf([&] {
                  painter.DrawPolygon(points, 3, &shape, {0, 0});
              }));
}

TEST_F(GdiPlusPainter, DrawsAnEllipseBetweenCornersWithoutTruncating) {
    EXPECT_EQ("interpolation 2; smoothing 2; fill ellipse 5.75,6.5 20.5x10.25; ellipse 5.75,6.5 20.5x10.25; "
              "pen FF563412 1 0; interpolation 5; smoothing 3; ellipse 5.75,6.5 20.5x10.25; ",
              callsOf([&] {
                  painter.DrawEllipse({5.5F, 6}, {26, 16.25F}, &shape, {0.25F, 0.5F});
              }));
    shape.SetId(0);
    shape.FillRequired(false);
    EXPECT_EQ("interpolation 2; smoothing 2; ellipse 20,10 -15x-5; ", callsOf([&] {
                  painter.DrawEllipse({20, 10}, {5, 5}, &shape, {0, 0});
              }))
        << "a second corner to the left and above";
}

TEST_F(GdiPlusPainter, FindsAnEllipseOnItsOutlineOnly) {
    painter.DrawEllipse({10, 5}, {50, 35}, &shape, {0, 0});
    EXPECT_EQ(kBlue, picture().at(30, 20));
    EXPECT_EQ(0U, painter.GetObjectId(30, 20));
    EXPECT_EQ(kId, painter.GetObjectId(10, 20));
    expectOutlineOnly();
}

TEST_F(GdiPlusPainter, DrawsAnArcInTheBoxAroundItsTruncatedCentre) {
    EXPECT_EQ("interpolation 2; smoothing 2; arc -5,-15 20x40 30 270; "
              "pen FF563412 1 0; interpolation 5; smoothing 3; arc -5,-15 20x40 30 270; ",
              callsOf([&] {
                  painter.DrawArc({5.9F, 5.9F}, 10, 20, 30, 270, &line, {0, 0});
              }));
    painter.DrawArc({30, 20}, 15, 10, 0, 180, &line, {0, 0});
    EXPECT_EQ(kId, painter.GetObjectId(30, 30));
    EXPECT_EQ(0U, painter.GetObjectId(30, 10)) << "the lower half";
    expectOutlineOnly();
}

TEST_F(GdiPlusPainter, FindsWideLinesAsWide) {
    LOGPEN description{PS_SOLID, {5, 0}, kRed};
    const HPEN pen = ::CreatePenIndirect(&description);
    line.UpdateContext(pen);
    ::DeleteObject(pen);
    painter.DrawLine({5, 20}, {50, 20}, &line, {0, 0});
    EXPECT_EQ(5U, shadow().count(kId, {25, 0, 26, kHeight}));
    expectOutlineOnly();
}

TEST_F(GdiPlusPainter, DrawsTransparentLinesButFindsThemWhole) {
    line.SetHollow(0.5F);
    painter.DrawOrdinaryLine({5, 20}, {50, 20}, &line);
    const COLORREF color = picture().at(25, 20);
    EXPECT_EQ(255, GetRValue(color));
    EXPECT_NEAR(128, GetBValue(color), 2);
    EXPECT_EQ(kId, painter.GetObjectId(25, 20));
    expectOutlineOnly();
}

TEST_F(GdiPlusPainter, DrawsABitmapAtItsOwnSizeAndFindsAllOfIt) {
    EXPECT_EQ("image 10,12; fill rect 10,12 8x6; ", callsOf([&] {
                  painter.DrawBitmap({10.5F, 11.75F}, {0, 0.5F}, &line, &bitmap);
              }));
    painter.DrawBitmap({10, 12}, {0, 0}, &line, &bitmap);
    EXPECT_EQ(8U * 6U, shadow().count(kId));
    EXPECT_EQ(kId, painter.GetObjectId(17, 17));
    line.SetId(0);
    EXPECT_EQ("image 10,12; ", callsOf([&] { painter.DrawBitmap({10, 12}, {0, 0}, &line, &bitmap); }));
}

TEST_F(GdiPlusPainter, StretchesABitmapAndFindsAllOfIt) {
    EXPECT_EQ("image 10,12 20x15; fill rect 10,12 20x15; ", callsOf([&] {
                  painter.DrawBitmap({10, 12}, {0.5F, 0}, {20.9F, 15.5F}, &line, &bitmap);
              }));
    DrawContextBase plain;
    plain.SetId(kOtherId);
    painter.DrawBitmap({10, 12}, {0, 0}, {20, 15}, &plain, &bitmap);
    EXPECT_EQ(20U * 15U, shadow().count(kOtherId)) << "any context will do";
}

TEST_F(GdiPlusPainter, RemembersAFailedLookAtABitmapsSize) {
    Gdiplus::Bitmap missing(L"Q:\\there is no such picture.png");
    missing.GetLastStatus();
    painter.DrawBitmap({0, 0}, {0, 0}, &line, &missing);
    EXPECT_NE(Gdiplus::Ok, missing.GetLastStatus());
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
}

TEST_F(GdiPlusPainter, LooksAtABitmapsSizeForTheShadowOnly) {
    Gdiplus::Bitmap missing(L"Q:\\there is no such picture.png");
    missing.GetLastStatus();
    line.SetId(0);
    painter.DrawBitmap({0, 0}, {0, 0}, &line, &missing);
    EXPECT_EQ(Gdiplus::Ok, missing.GetLastStatus());
}

TEST_F(GdiPlusPainter, DrawsNothingOfNothing) {
    const Point points[] = {{5, 5}, {40, 5}, {40, 30}};
    EXPECT_EQ("", callsOf([&] {
                  painter.DrawPolygon(nullptr, 3, &shape, {0, 0});
                  painter.DrawPolygon(points, 0, &shape, {0, 0});
                  painter.DrawPolygon(points, 3, nullptr, {0, 0});
                  painter.DrawEllipse({0, 0}, {5, 5}, nullptr, {0, 0});
                  painter.DrawLine({0, 0}, {5, 5}, nullptr, {0, 0});
                  painter.DrawOrdinaryLine({0, 0}, {5, 5}, nullptr);
                  painter.DrawArc({0, 0}, 5, 5, 0, 90, nullptr, {0, 0});
                  painter.DrawBitmap({0, 0}, {0, 0}, nullptr, &bitmap);
                  painter.DrawBitmap({0, 0}, {0, 0}, &line, nullptr);
                  painter.DrawBitmap({0, 0}, {0, 0}, {5, 5}, nullptr, &bitmap);
                  painter.DrawBitmap({0, 0}, {0, 0}, {5, 5}, &line, nullptr);
              }));
}

TEST_F(GdiPlusPainter, SaturatesWhatGdiPlusWouldNotComeBackFrom) {
    line.SetId(0);
    shape.SetId(0);
    shape.FillRequired(false);
    EXPECT_EQ("interpolation 2; smoothing 2; line 0,1048576 -1048576,5 in FFFF0000; ", callsOf([&] {
                  painter.DrawLine({std::nanf(""), kInfinity}, {-3e9F, 5}, &line, {0, 0});
              }));
    const Point points[] = {{kInfinity, -1e20F}, {std::nanf(""), 5}};
    EXPECT_EQ("interpolation 2; smoothing 2; polygon 1048576,-1048576 0,5; ", callsOf([&] {
                  painter.DrawPolygon(points, 2, &shape, {0, 0});
              }));
    EXPECT_EQ("interpolation 2; smoothing 2; ellipse -1048576,0 1048576x0; ", callsOf([&] {
                  painter.DrawEllipse({-kInfinity, 0}, {5, std::nanf("")}, &shape, {0, 0});
              }));
    EXPECT_EQ("interpolation 2; smoothing 2; arc -1048576,-1048576 2097152x2097152 0 90; ", callsOf([&] {
                  painter.DrawArc({0, 0}, INT_MAX, INT_MAX, 0, 90, &line, {0, 0});
              }));
    EXPECT_EQ("image 1048576,-1048576 0x1048576; ", callsOf([&] {
                  painter.DrawBitmap({kInfinity, -kInfinity}, {0, 0}, {std::nanf(""), 1e20F}, &line, &bitmap);
              }));
}

TEST_F(GdiPlusPainter, ComesBackFromAnglesAndWidthsThatAreNone) {
    for (const float value : {std::nanf(""), kInfinity, -kInfinity, 1e38F, -3e9F}) {
        painter.DrawArc({30, 20}, 15, 10, value, 90, &line, {0, 0});
        painter.DrawArc({30, 20}, 15, 10, 0, value, &line, {0, 0});
    }
    LOGPEN description{PS_SOLID, {std::numeric_limits<LONG>::max(), 0}, kRed};
    const HPEN pen = ::CreatePenIndirect(&description);
    shape.UpdateContext(pen);
    ::DeleteObject(pen);
    const Point points[] = {{5, 5}, {40, 5}, {40, 30}};
    painter.DrawLine(points[0], points[2], &shape, {0, 0});
    painter.DrawOrdinaryLine(points[0], points[2], &shape);
    painter.DrawArc({30, 20}, 15, 10, 0, 90, &shape, {0, 0});
    painter.DrawPolygon(points, 3, &shape, {0, 0});
    painter.DrawEllipse(points[0], points[2], &shape, {0, 0});
    for (const unsigned int id : idsInShadow()) {
        EXPECT_TRUE(id == 0 || id == kId) << std::hex << id;
    }
}

TEST_F(GdiPlusPainter, LeadsLinesFromFarAwayThroughThePictureWhereTheyPass) {
    // Down by one pixel in three, through (0, 20).
    const Point from{-3'000'000, -999'980};
    const Point to{3'000'000, 1'000'020};
    const auto expectPassed = [&] {
        EXPECT_EQ(kId, painter.GetObjectId(0, 20));
        EXPECT_EQ(kId, painter.GetObjectId(30, 30));
        EXPECT_EQ(1U, shadow().count(kId, {30, 0, 31, kHeight}));
        begin();
    };
    painter.DrawLine(from, to, &line, {0, 0});
    expectPassed();
    painter.DrawLine({-3'000'000, -1'000'000}, {3'000'000, 1'000'000}, &line, {0, 20});
    expectPassed();
    painter.DrawOrdinaryLine(from, to, &line);
    expectPassed();
}

class OwnDevices : public PainterFixture {
protected:
    OwnDevices() {
        gdiPlus.SetDestinationDevice(device.dc());
        gdiPlus.SetShadowDevice(ids.dc());
    }

    support::MemoryDevice device{60, 40, kWhite};
    support::MemoryDevice ids{60, 40, kBlack};
    GdiplusPainter gdiPlus;
};

TEST_F(OwnDevices, GetPolylinesInTheContextsOwnPenAlsoInTheShadow) {
    const Point points[] = {{5, 5}, {40, 5}, {40, 30}};
    {
        const Recorder recorder;
        gdiPlus.DrawPolyline(points, 3, &line, {1, 0.5F});
    }
    EXPECT_EQ("interpolation 2; smoothing 2; line 6,5.5 41,5.5 in FFFF0000; line 41,5.5 41,30.5 in FFFF0000; "
              "pen FF563412 1 0; interpolation 5; smoothing 3; "
              "line 6,5.5 41,5.5 in FFFF0000; line 41,5.5 41,30.5 in FFFF0000; ",
              calls);
    gdiPlus.DrawPolyline(points, 3, &line, {0, 0});
    EXPECT_EQ(kRed, ids.pixels().at(20, 5)) << "the colour of the line, not its id";
}

TEST_F(OwnDevices, GetNothingOfAPolylineOfOnePoint) {
    const Point point{5, 5};
    gdiPlus.DrawPolyline(&point, 1, &line, {0, 0});
    gdiPlus.DrawPolyline(nullptr, 2, &line, {0, 0});
    gdiPlus.DrawPolyline(&point, 1, nullptr, {0, 0});
    EXPECT_EQ(kWhite, device.pixels().onlyColour({0, 0, 60, 40}));
    EXPECT_EQ(kBlack, ids.pixels().onlyColour({0, 0, 60, 40}));
}

TEST_F(OwnDevices, GoOverWithACopyAndWithAMove) {
    const GdiplusPainter copy(gdiPlus);
    GdiplusPainter moved(std::move(gdiPlus));
    moved.DrawLine({5, 5}, {40, 5}, &line, {0, 0});
    gdiPlus.DrawLine({5, 9}, {40, 9}, &line, {0, 0});
    EXPECT_NE(kWhite, device.pixels().at(20, 5));
    EXPECT_NE(kWhite, device.pixels().at(20, 9)) << "the handles are copied";
    GdiplusPainter third;
    third = copy;
    third.DrawLine({5, 20}, {40, 20}, &line, {0, 0});
    EXPECT_NE(kWhite, device.pixels().at(20, 20));
}

TEST_F(OwnDevices, GetAnArcAndTextInTheShadowAlsoWithoutAPicture) {
    gdiPlus.SetDestinationDevice(nullptr);
    {
        const Recorder recorder;
        gdiPlus.DrawArc({30, 20}, 15, 10, 0, 180, &line, {0, 0});
    }
    EXPECT_EQ("pen FF563412 1 0; interpolation 5; smoothing 3; arc 15,10 30x20 0 180; ", calls);
    VectorCanvas::DrawContextGdiText text;
    text.SetId(kOtherId);
    gdiPlus.DrawTextW({5, 5}, L"Kurs", text, {0, 0});
    EXPECT_NE(0U, ids.pixels().count(kOtherId));
    EXPECT_EQ(kWhite, device.pixels().onlyColour({0, 0, 60, 40}));
}

TEST_F(OwnDevices, ThatAreMissingAreNotDrawnOn) {
    GdiplusPainter none;
    const Point points[] = {{5, 5}, {40, 5}, {40, 30}};
    Gdiplus::Bitmap bitmap(8, 6);
    {
        const Recorder recorder;
        none.DrawPolygon(points, 3, &shape, {0, 0});
        none.DrawEllipse(points[0], points[1], &shape, {0, 0});
        none.DrawLine(points[0], points[1], &line, {0, 0});
        none.DrawOrdinaryLine(points[0], points[1], &line);
        none.DrawPolyline(points, 3, &line, {0, 0});
        none.DrawArc(points[0], 5, 5, 0, 90, &line, {0, 0});
        none.DrawBitmap(points[0], points[1], &line, &bitmap);
        none.DrawBitmap(points[0], points[1], points[2], &line, &bitmap);
    }
    EXPECT_EQ("", calls);
}
