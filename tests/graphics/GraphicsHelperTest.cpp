#include <gtest/gtest.h>

#include <iterator>
#include <vector>

#include <OrtinControls/GraphicsHelper.h>

#include "PretendedScale.h"
#include "support/Capture.h"
#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);
constexpr COLORREF kWhite = RGB(255, 255, 255);

class HueProbe : public GraphicsHelper {
public:
    static double component(double hue, double m1, double m2) {
        ComputeColorFromHue(hue, m1, m2);
        return hue;
    }
};

int screenQuestions = 0;

int WINAPI countScreenQuestion(HDC dc, int index) {
    ++screenQuestions;
    return ::GetDeviceCaps(dc, index);
}

int screensTaken = 0;
int screensReturned = 0;

HDC WINAPI takeScreen(HWND window) {
    ++screensTaken;
    return ::GetDC(window);
}

int WINAPI returnScreen(HWND window, HDC dc) {
    ++screensReturned;
    return ::ReleaseDC(window, dc);
}

// From before main, for the library asks the screen only once.
const support::ImportPatch takingPatch(::GetModuleHandleW(L"OrtinControls.dll"), "user32.dll", "GetDC", &takeScreen);
const support::ImportPatch returningPatch(::GetModuleHandleW(L"OrtinControls.dll"), "user32.dll", "ReleaseDC",
                                          &returnScreen);

struct GradientCall {
    std::vector<TRIVERTEX> vertices;
    std::vector<GRADIENT_RECT> meshes;
    ULONG mode;
};
std::vector<GradientCall> gradientCalls;

BOOL WINAPI recordGradient(HDC, PTRIVERTEX vertices, ULONG vertexCount, PVOID meshes, ULONG meshCount, ULONG mode) {
    const auto* rectangles = static_cast<const GRADIENT_RECT*>(meshes);
    gradientCalls.push_back({{vertices, vertices + vertexCount}, {rectangles, rectangles + meshCount}, mode});
    return TRUE;
}

/// "x,y RRRR GGGG BBBB AAAA; ..." of the vertices, the meshes, the mode.
std::string describe(const GradientCall& call) {
    CStringA text;
    for (const TRIVERTEX& vertex : call.vertices) {
        text.AppendFormat("%d,%d %04X %04X %04X %04X; ", static_cast<int>(vertex.x), static_cast<int>(vertex.y),
                          vertex.Red, vertex.Green, vertex.Blue, vertex.Alpha);
    }
    for (const GRADIENT_RECT& mesh : call.meshes) {
        text.AppendFormat("%u-%u ", static_cast<unsigned>(mesh.UpperLeft), static_cast<unsigned>(mesh.LowerRight));
    }
    text.AppendFormat("mode %u", static_cast<unsigned>(call.mode));
    return std::string(text.GetString());
}

HPEN WINAPI refusePen(int, int, COLORREF) {
    return nullptr;
}

class Drawing : public testing::Test {
protected:
    Drawing() { dc.Attach(device.dc()); }
    ~Drawing() override { dc.Detach(); }

    support::MemoryDevice device{40, 30, kWhite};
    CDC dc;
};

} // namespace

TEST(ScreenAtScale, GivesTheFactorThatWasFoundFirst) {
    EXPECT_EQ(pretendedScale(), GraphicsHelper::GetSystemScaleFactor());
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "GetDeviceCaps",
                                     &countScreenQuestion);
    EXPECT_EQ(pretendedScale(), GraphicsHelper::GetSystemScaleFactor());
    EXPECT_EQ(0, screenQuestions);
}

TEST(ScreenAtScale, IsReturnedWhenItsFactorIsKnown) {
    GraphicsHelper::GetSystemScaleFactor();
    EXPECT_GE(screensTaken, 1);
    EXPECT_EQ(screensTaken, screensReturned);
}

TEST(ScreenAtScale, DecidesOnTiersHeightsAndPictures) {
    struct Case {
        double factor;
        int tierOfEight;
        int tierOfThree;
        int tierByFour;
        double heightOf13;
        double unscaled20;
        unsigned int picture;
        int small;
        int large;
    };
    const Case cases[] = {
        {1.0, 0, 0, 0, 13, 20, 0, 16, 32},  {1.25, 1, 1, 1, 16, 16, 1, 16, 40}, {1.5, 1, 1, 2, 20, 13, 2, 24, 56},
        {1.75, 2, 2, 3, 23, 11, 3, 32, 64}, {2.0, 2, 2, 4, 26, 10, 4, 32, 72},  {2.5, 3, 2, 6, 33, 8, 5, 48, 96},
        {3.0, 4, 2, 7, 39, 7, 6, 56, 112},  {4.0, 6, 2, 7, 52, 5, 7, 64, 128},
    };
    int found = 0;
    for (const Case& c : cases) {
        if (c.factor != pretendedScale()) {
            continue;
        }
        ++found;
        EXPECT_EQ(c.tierOfEight, GraphicsHelper::CalculateDPIScalingTier(8));
        EXPECT_EQ(c.tierOfThree, GraphicsHelper::CalculateDPIScalingTier(3));
        EXPECT_EQ(c.tierByFour, GraphicsHelper::CalculateDPIScalingTier(8, 4.0));
        EXPECT_EQ(c.heightOf13, GraphicsHelper::CalculateDpiAwareHeight(13.0));
        EXPECT_EQ(c.unscaled20, GraphicsHelper::CalculateDpiUnawareHeight(20.0));
        EXPECT_EQ(100 + c.picture, GraphicsHelper::PickFrom8GraphicIDs({100, 101, 102, 103, 104, 105, 106, 107}));
        const auto [small, large] = GraphicsHelper::GetDpiRibbinIconsSize();
        EXPECT_EQ(CSize(c.small, c.small), small);
        EXPECT_EQ(CSize(c.large, c.large), large);
    }
    EXPECT_EQ(1, found) << "no expectations for the factor " << pretendedScale();
}

TEST(RibbonStrip, IsChosenByItsExactIconWidth) {
    const std::array<unsigned int, 11> ids{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    const int widths[] = {16, 24, 32, 40, 48, 56, 64, 72, 96, 112, 128};
    for (std::size_t index = 0; index < std::size(widths); ++index) {
        EXPECT_EQ(ids[index], GraphicsHelper::ChooseRibbonIconsBarIdBasingOnSize({widths[index], 7}, ids));
    }
    for (const int width : {0, 15, 17, 20, 129, -16}) {
        EXPECT_EQ(0U, GraphicsHelper::ChooseRibbonIconsBarIdBasingOnSize({width, 16}, ids)) << width;
    }
}

TEST(Colours, GoToHslAndBack) {
    unsigned char h = 1;
    unsigned char s = 1;
    unsigned char l = 1;
    GraphicsHelper::Rgb2Hsl(kRed, h, s, l);
    EXPECT_EQ("0 255 127", std::to_string(h) + ' ' + std::to_string(s) + ' ' + std::to_string(l));
    GraphicsHelper::Rgb2Hsl(RGB(77, 77, 77), h, s, l);
    EXPECT_EQ("0 0 77", std::to_string(h) + ' ' + std::to_string(s) + ' ' + std::to_string(l));
    EXPECT_EQ(RGB(77, 77, 77), GraphicsHelper::Hsl2Rgb(h, s, l));
    EXPECT_EQ(RGB(254, 0, 0), GraphicsHelper::Hsl2Rgb(0, 255, 127));
    EXPECT_DOUBLE_EQ(0.5, HueProbe::component(-11.0 / 12.0, 0.25, 0.75));
}

TEST(Colours, AreMixedByTheShareOfTheFirst) {
    EXPECT_EQ(kRed, GraphicsHelper::MixColor(kRed, kBlue, 100));
    EXPECT_EQ(kBlue, GraphicsHelper::MixColor(kRed, kBlue, 0));
    EXPECT_EQ(RGB(191, 0, 63), GraphicsHelper::MixColor(kRed, kBlue, 75));
}

TEST(Colours, AreHighlightedTowardTheMiddle) {
    EXPECT_EQ(RGB(235, 235, 235), GraphicsHelper::CalcHighlightColor(kWhite, 20));
    EXPECT_EQ(RGB(20, 20, 20), GraphicsHelper::CalcHighlightColor(RGB(0, 0, 0), 20));
}

TEST_F(Drawing, AVerticalGradientIsOneFillFromTheFirstColourToTheSecond) {
    gradientCalls.clear();
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "msimg32.dll", "GradientFill",
                                         &recordGradient);
        GraphicsHelper::DrawGradientV(dc, CRect(3, 4, 33, 24), RGB(0x12, 0x34, 0x56), RGB(0xFF, 0x80, 0x01));
    }
    ASSERT_EQ(1U, gradientCalls.size());
    EXPECT_EQ("3,4 1200 3400 5600 0000; 33,24 FF00 8000 0100 0000; 0-1 mode 1", describe(gradientCalls[0]));

    GraphicsHelper::DrawGradientV(dc, CRect(3, 4, 33, 24), RGB(0, 0, 0), RGB(200, 0, 0));
    const support::Pixels pixels = device.pixels();
    int last = -1;
    for (int y = 4; y < 24; ++y) {
        const auto color = pixels.onlyColour({3, y, 33, y + 1});
        ASSERT_TRUE(color) << "row " << y << " has one colour";
        EXPECT_GT(static_cast<int>(GetRValue(*color)), last) << y;
        last = GetRValue(*color);
    }
    EXPECT_EQ(40U * 30U - 30U * 20U, pixels.count(kWhite)) << "nothing outside the rectangle";
}

TEST_F(Drawing, AHorizontalGradientIsMirroredAtTheMiddle) {
    gradientCalls.clear();
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "msimg32.dll", "GradientFill",
                                         &recordGradient);
        GraphicsHelper::DrawGradientH(dc, CRect(3, 4, 34, 24), RGB(0x12, 0x34, 0x56), RGB(0xFF, 0x80, 0x01));
    }
    ASSERT_EQ(1U, gradientCalls.size());
    EXPECT_EQ("3,4 1200 3400 5600 0000; 18,24 FF00 8000 0100 0000; "
              "18,4 FF00 8000 0100 0000; 34,24 1200 3400 5600 0000; 0-1 2-3 mode 0",
              describe(gradientCalls[0]));

    GraphicsHelper::DrawGradientH(dc, CRect(0, 0, 40, 30), RGB(0, 0, 0), RGB(200, 0, 0));
    const support::Pixels pixels = device.pixels();
    const auto redAt = [&](int x) { return static_cast<int>(GetRValue(pixels.onlyColour({x, 0, x + 1, 30}).value())); };
    for (int x = 1; x < 20; ++x) {
        EXPECT_GT(redAt(x), redAt(x - 1)) << x;
        EXPECT_LT(redAt(20 + x), redAt(19 + x)) << 20 + x;
    }
}

TEST_F(Drawing, AHorizontalGradientHasItsMiddleCutTowardNought) {
    struct Case {
        CRect rect;
        LONG middle;
    };
    constexpr LONG kFar = 2147483647;
    const Case cases[] = {
        {{0, 0, 5, 1}, 2},
        {{-5, 0, 0, 1}, -2},
        {{-4, 0, 1, 1}, -1},
        {{kFar - 2, 0, kFar, 1}, kFar - 1},
        {{-kFar, 0, -kFar + 2, 1}, -kFar + 1},
    };
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "msimg32.dll", "GradientFill",
                                     &recordGradient);
    for (const Case& c : cases) {
        gradientCalls.clear();
        GraphicsHelper::DrawGradientH(dc, c.rect, kRed, kBlue);
        ASSERT_EQ(1U, gradientCalls.size());
        EXPECT_EQ(c.middle, gradientCalls[0].vertices[1].x);
        EXPECT_EQ(c.middle, gradientCalls[0].vertices[2].x);
    }
}

TEST_F(Drawing, AFrameWithoutAPenThrowsAndLeavesTheDeviceAsItWas) {
    const HGDIOBJ penBefore = ::GetCurrentObject(device.dc(), OBJ_PEN);
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinMfc.dll"), "gdi32.dll", "CreatePen", &refusePen);
    bool isThrown = false;
    try {
        GraphicsHelper::DrawRectangleFrame(&dc, CRect(5, 6, 20, 15), 1, kRed);
    } catch (CResourceException* exception) {
        exception->Delete();
        isThrown = true;
    }
    EXPECT_TRUE(isThrown);
    EXPECT_EQ(penBefore, ::GetCurrentObject(device.dc(), OBJ_PEN));
    EXPECT_EQ(40U * 30U, device.pixels().count(kWhite));
}

TEST_F(Drawing, AFrameRunsOnItsRightAndBottomCoordinates) {
    const HGDIOBJ penBefore = ::GetCurrentObject(device.dc(), OBJ_PEN);
    GraphicsHelper::DrawRectangleFrame(&dc, CRect(5, 6, 20, 15), 1, kRed);
    EXPECT_EQ(penBefore, ::GetCurrentObject(device.dc(), OBJ_PEN));
    const support::Pixels pixels = device.pixels();
    const auto bounds = pixels.boundsOf(kRed);
    ASSERT_TRUE(bounds);
    EXPECT_EQ(CRect(5, 6, 21, 16), CRect(*bounds));
    EXPECT_EQ(2U * 16U + 2U * 8U, pixels.count(kRed)) << "nothing inside";
    EXPECT_EQ(kRed, pixels.at(20, 15));
}

TEST_F(Drawing, AFrameTakesItsWidth) {
    GraphicsHelper::DrawRectangleFrame(&dc, CRect(5, 6, 25, 20), 3, kBlue);
    EXPECT_EQ(kBlue, device.pixels().onlyColour({4, 8, 7, 18}));
    EXPECT_EQ(kWhite, device.pixels().onlyColour({7, 8, 24, 19}));
}

TEST_F(Drawing, AFrameLeavesNoPenBehind) {
    GraphicsHelper::DrawRectangleFrame(&dc, CRect(5, 6, 20, 15), 1, kRed);
    const std::size_t before = support::gdiHandleCount();
    for (int cycle = 0; cycle < 5000; ++cycle) {
        GraphicsHelper::DrawRectangleFrame(&dc, CRect(5, 6, 20, 15), cycle % 4, kRed);
        GraphicsHelper::DrawGradientV(dc, CRect(0, 0, 4, 4), kRed, kBlue);
        GraphicsHelper::DrawGradientH(dc, CRect(0, 0, 4, 4), kRed, kBlue);
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}
