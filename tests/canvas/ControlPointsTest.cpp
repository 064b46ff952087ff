#include "PainterFixture.h"

#include <cmath>
#include <limits>
#include <string>

#include "support/ImportPatch.h"
#include "support/Resources.h"

using VectorCanvas::DrawControlPointsHelper;
using Marks = DrawControlPointsHelper::PointSettings;

namespace {

constexpr Marks kSquare{kRed, 1, kBlue, true, 6, false, 1.0F, false};

std::string calls;

Gdiplus::GpStatus record(const char* shape, Gdiplus::REAL x, Gdiplus::REAL y, Gdiplus::REAL width,
                         Gdiplus::REAL height) {
    CStringA text;
    text.Format("%s %g,%g %gx%g; ", shape, x, y, width, height);
    calls += text.GetString();
    return Gdiplus::Ok;
}

Gdiplus::GpStatus WINGDIPAPI recordSquare(Gdiplus::GpGraphics*, Gdiplus::GpPen*, Gdiplus::REAL x, Gdiplus::REAL y,
                                          Gdiplus::REAL width, Gdiplus::REAL height) {
    return record("square", x, y, width, height);
}

Gdiplus::GpStatus WINGDIPAPI recordFilledSquare(Gdiplus::GpGraphics*, Gdiplus::GpBrush*, Gdiplus::REAL x,
                                                Gdiplus::REAL y, Gdiplus::REAL width, Gdiplus::REAL height) {
    return record("filled square", x, y, width, height);
}

Gdiplus::GpStatus WINGDIPAPI recordCircle(Gdiplus::GpGraphics*, Gdiplus::GpPen*, Gdiplus::REAL x, Gdiplus::REAL y,
                                          Gdiplus::REAL width, Gdiplus::REAL height) {
    return record("circle", x, y, width, height);
}

Gdiplus::GpStatus WINGDIPAPI recordFilledCircle(Gdiplus::GpGraphics*, Gdiplus::GpBrush*, Gdiplus::REAL x,
                                                Gdiplus::REAL y, Gdiplus::REAL width, Gdiplus::REAL height) {
    return record("filled circle", x, y, width, height);
}

Gdiplus::GpStatus WINGDIPAPI recordPen(Gdiplus::ARGB color, Gdiplus::REAL width, Gdiplus::GpUnit unit,
                                       Gdiplus::GpPen** pen) {
    CStringA text;
    text.Format("pen %08X %g unit %d; ", color, width, unit);
    calls += text.GetString();
    *pen = nullptr;
    return Gdiplus::OutOfMemory;
}

Gdiplus::GpStatus WINGDIPAPI recordBrush(Gdiplus::ARGB color, Gdiplus::GpSolidFill** brush) {
    CStringA text;
    text.Format("brush %08X; ", color);
    calls += text.GetString();
    *brush = nullptr;
    return Gdiplus::OutOfMemory;
}

Gdiplus::GpStatus WINGDIPAPI recordSmoothing(Gdiplus::GpGraphics*, Gdiplus::SmoothingMode mode) {
    calls += "smoothing " + std::to_string(mode) + "; ";
    return Gdiplus::Ok;
}

Gdiplus::GpStatus WINGDIPAPI recordInterpolation(Gdiplus::GpGraphics*, Gdiplus::InterpolationMode mode) {
    calls += "interpolation " + std::to_string(mode) + "; ";
    return Gdiplus::Ok;
}

class ControlPoints : public testing::Test {
protected:
    void draw(std::initializer_list<Point> points, const Marks& settings, Point offset = {0, 0}) {
        DrawControlPointsHelper::DrawControlPoints(device.dc(), points.begin(), points.size(), offset, settings);
    }
    /// What GDI+ is asked for, in order.
    std::string callsOf(std::initializer_list<Point> points, const Marks& settings, Point offset = {0, 0}) {
        const HMODULE controls = ::GetModuleHandleW(L"OrtinControls.dll");
        const support::ImportPatch square(controls, "gdiplus.dll", "GdipDrawRectangle", &recordSquare);
        const support::ImportPatch filledSquare(controls, "gdiplus.dll", "GdipFillRectangle", &recordFilledSquare);
        const support::ImportPatch circle(controls, "gdiplus.dll", "GdipDrawEllipse", &recordCircle);
        const support::ImportPatch filledCircle(controls, "gdiplus.dll", "GdipFillEllipse", &recordFilledCircle);
        const support::ImportPatch smoothing(controls, "gdiplus.dll", "GdipSetSmoothingMode", &recordSmoothing);
        const support::ImportPatch interpolation(controls, "gdiplus.dll", "GdipSetInterpolationMode",
                                                 &recordInterpolation);
        calls.clear();
        draw(points, settings, offset);
        return calls;
    }

    support::MemoryDevice device{40, 30, kWhite};
};

} // namespace

TEST_F(ControlPoints, LieAroundTheTruncatedPointWithTheOffsetAdded) {
    Marks settings = kSquare;
    settings.pointSize = 7;
    EXPECT_EQ("smoothing 3; interpolation 5; filled square 7,7 7x7; square 7,7 7x7; ",
              callsOf({{10.9F, 10.9F}}, settings, {0.5F, 0.5F}));
}

TEST_F(ControlPoints, AreCirclesAndSmoothWhenTold) {
    Marks settings = kSquare;
    settings.circle = true;
    settings.smooth = true;
    EXPECT_EQ("smoothing 2; interpolation 2; filled circle 7,7 6x6; circle 7,7 6x6; "
              "filled circle 17,7 6x6; circle 17,7 6x6; ",
              callsOf({{10, 10}, {20, 10}}, settings));
}

TEST_F(ControlPoints, ShareOnePenAndOneBrushOfTheSettings) {
    const HMODULE controls = ::GetModuleHandleW(L"OrtinControls.dll");
    const support::ImportPatch pen(controls, "gdiplus.dll", "GdipCreatePen1", &recordPen);
    const support::ImportPatch brush(controls, "gdiplus.dll", "GdipCreateSolidFill", &recordBrush);
    struct Case {
        Marks settings;
        const char* calls;
    };
    // Colours are 0x00BBGGRR in the settings and 0xAARRGGBB here.
    for (const Case& c :
         {Case{{0x112233, 3, 0x445566, true, 6, false, 1.0F, false}, "pen FF332211 3 unit 0; brush FF665544; "},
          Case{{0x112233, 1, 0x445566, true, 6, true, 0.5F, true}, "pen 7F332211 1 unit 0; brush 7F665544; "},
          Case{{0x112233, 0, 0x445566, false, 6, true, 1.0F, true}, "pen FF332211 0 unit 0; brush 00000000; "}}) {
        calls.clear();
        draw({{10, 10}, {20, 10}, {30, 10}}, c.settings);
        EXPECT_EQ(c.calls, calls);
        calls.clear();
        const Point unread{};
        DrawControlPointsHelper::DrawControlPoints(device.dc(), &unread, 0, {0, 0}, c.settings);
        EXPECT_EQ(c.calls, calls) << "made for no points too";
    }
}

TEST_F(ControlPoints, AreFilledCirclesWithAnOutline) {
    Marks settings = kSquare;
    settings.circle = true;
    settings.pointSize = 12;
    draw({{15, 15}}, settings);
    const support::Pixels pixels = device.pixels();
    EXPECT_EQ(kBlue, pixels.at(15, 15));
    EXPECT_EQ(kWhite, pixels.at(9, 9)) << "no corner";
    EXPECT_EQ(40U * 30U, pixels.count(kWhite) + pixels.count(kRed) + pixels.count(kBlue)) << "no blended colour";
    for (const POINT& end : {POINT{9, 15}, POINT{21, 15}, POINT{15, 9}, POINT{15, 21}}) {
        EXPECT_EQ(kRed, pixels.at(end.x, end.y)) << end.x << ',' << end.y;
    }
}

TEST_F(ControlPoints, AreFilledSquaresWithAnOutline) {
    draw({{10, 10}, {25, 15}}, kSquare);
    const support::Pixels pixels = device.pixels();
    EXPECT_EQ(kBlue, pixels.at(10, 10));
    EXPECT_EQ(kBlue, pixels.at(25, 15));
    EXPECT_EQ(kRed, pixels.at(7, 10));
    EXPECT_EQ(kRed, pixels.at(13, 10));
    EXPECT_EQ(kWhite, pixels.at(6, 10));
    EXPECT_EQ(40U * 30U, pixels.count(kWhite) + pixels.count(kRed) + pixels.count(kBlue)) << "no blended colour";
    EXPECT_EQ(2U * 24U, pixels.count(kRed));
    EXPECT_EQ(2U * 25U, pixels.count(kBlue));
}

TEST_F(ControlPoints, LeaveTheInsideAsItIsWithoutFill) {
    Marks settings = kSquare;
    settings.fill = false;
    draw({{10, 10}}, settings);
    const support::Pixels pixels = device.pixels();
    EXPECT_EQ(kWhite, pixels.at(10, 10));
    EXPECT_EQ(24U, pixels.count(kRed));
}

TEST_F(ControlPoints, AreInvisibleWithoutOpacityAndHalfVisibleWithHalf) {
    const support::Pixels before = device.pixels();
    Marks settings = kSquare;
    settings.opacity = 0.0F;
    draw({{10, 10}}, settings);
    EXPECT_EQ(before, device.pixels());
    settings.opacity = 0.5F;
    draw({{10, 10}}, settings);
    const COLORREF inside = device.pixels().at(10, 10);
    EXPECT_NEAR(128, GetRValue(inside), 2);
    EXPECT_EQ(255, GetBValue(inside));
}

TEST_F(ControlPoints, OfNoPointsDrawNothing) {
    const support::Pixels before = device.pixels();
    DrawControlPointsHelper::DrawControlPoints(device.dc(), nullptr, 5, {0, 0}, kSquare);
    const Point point{10, 10};
    DrawControlPointsHelper::DrawControlPoints(device.dc(), &point, 0, {0, 0}, kSquare);
    DrawControlPointsHelper::DrawControlPoints(nullptr, &point, 1, {0, 0}, kSquare);
    EXPECT_EQ(before, device.pixels());
}

TEST_F(ControlPoints, AtImpossiblePlacesAreDrawnAwayFromThePicture) {
    const support::Pixels before = device.pixels();
    const float infinity = std::numeric_limits<float>::infinity();
    draw({{infinity, 0}, {-infinity, 5}, {3e9F, -3e9F}, {1e38F, 1e38F}}, kSquare);
    EXPECT_EQ(before, device.pixels());
    EXPECT_EQ("smoothing 3; interpolation 5; filled square 0,7 6x6; square 0,7 6x6; ",
              callsOf({{std::nanf(""), 10}}, kSquare, {20, 0}))
        << "what is no number counts as 0";
    Marks vast = kSquare;
    vast.pointSize = std::numeric_limits<int>::max();
    vast.lineWidth = std::numeric_limits<int>::max();
    draw({{10, 10}}, vast);
    vast.pointSize = std::numeric_limits<int>::min();
    draw({{10, 10}}, vast);
}

TEST_F(ControlPoints, LeaveNothingBehind) {
    draw({{10, 10}}, kSquare);
    const support::Resources before = support::Resources::inUse();
    for (int round = 0; round < 2000; ++round) {
        draw({{10, 10}, {20, 20}}, kSquare);
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_LE(after.heapBytes, before.heapBytes + 4096);
}
