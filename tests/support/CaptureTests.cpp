#include "support/Capture.h"
#include "support/Pump.h"
#include "support/TopLevelWindow.h"

#include <algorithm>
#include <cstdlib>

#include <objidl.h>

#include <gdiplus.h>

namespace support {
namespace {

constexpr COLORREF red = RGB(255, 0, 0);
constexpr COLORREF green = RGB(0, 128, 0);
constexpr COLORREF white = RGB(255, 255, 255);

void fill(HDC dc, const RECT& area, COLORREF colour) {
    const COLORREF before = ::SetBkColor(dc, colour);
    ::ExtTextOutW(dc, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
    ::SetBkColor(dc, before);
}

Pixels whiteWithRedCorner() {
    const MemoryDevice device(40, 30);
    fill(device.dc(), {0, 0, 10, 5}, red);
    return device.pixels();
}

TEST(Capture, AMemoryDeviceShowsWhatWasDrawnAndItsBackground) {
    const Pixels pixels = whiteWithRedCorner();
    EXPECT_EQ(40, pixels.width());
    EXPECT_EQ(30, pixels.height());
    EXPECT_EQ(red, pixels.at(9, 4));
    EXPECT_EQ(white, pixels.at(10, 4));
    EXPECT_EQ(white, pixels.at(9, 5));
}

TEST(Capture, OutsideThePictureThereIsNoColour) {
    const Pixels pixels = whiteWithRedCorner();
    for (const POINT point : {POINT{-1, 0}, POINT{0, -1}, POINT{40, 0}, POINT{0, 30}}) {
        EXPECT_EQ(CLR_INVALID, pixels.at(point.x, point.y)) << point.x << ", " << point.y;
    }
}

TEST(Capture, ColoursAreCountedWithinAHalfOpenRectangle) {
    const Pixels pixels = whiteWithRedCorner();
    EXPECT_EQ(50U, pixels.count(red));
    EXPECT_EQ(1U, pixels.count(red, {9, 4, 20, 20}));
    EXPECT_EQ(0U, pixels.count(red, {10, 0, 40, 30}));
    EXPECT_EQ(50U, pixels.count(red, {-100, -100, 1000, 1000}));
}

TEST(Capture, TheShareOfBrightColoursIsThatOfTheirGreen) {
    const Pixels pixels = whiteWithRedCorner();
    EXPECT_DOUBLE_EQ(1150.0 / 1200.0, pixels.shareBrighterThan(254));
    EXPECT_EQ(0, pixels.shareBrighterThan(255));
}

TEST(Capture, AnAreaOfOneColourNamesIt) {
    const Pixels pixels = whiteWithRedCorner();
    EXPECT_EQ(red, pixels.onlyColour({0, 0, 10, 5}));
    EXPECT_EQ(std::nullopt, pixels.onlyColour({0, 0, 11, 5}));
    EXPECT_EQ(std::nullopt, pixels.onlyColour({50, 50, 60, 60}));
}

TEST(Capture, TheBoundsOfAColourHoldEachOfItsPixels) {
    Pixels pixels = whiteWithRedCorner();
    pixels.set(39, 29, green);
    pixels.set(2, 7, green);
    const auto bounds = pixels.boundsOf(green);
    ASSERT_TRUE(bounds);
    EXPECT_EQ(CRect(2, 7, 40, 30), CRect(*bounds));
    EXPECT_FALSE(pixels.boundsOf(RGB(1, 2, 3)));
}

TEST(Capture, APartHasItsOwnOrigin) {
    const Pixels part = whiteWithRedCorner().part({8, 3, 12, 7});
    EXPECT_EQ(4, part.width());
    EXPECT_EQ(4U, part.count(red));
    EXPECT_EQ(red, part.at(0, 0));
    EXPECT_EQ(white, part.at(2, 2));
}

TEST(Capture, ADifferenceSaysWhereHowManyAndWhichIsFirst) {
    const Pixels expected = whiteWithRedCorner();
    Pixels actual = expected;
    EXPECT_FALSE(difference(actual, expected));
    actual.set(20, 11, green);
    actual.set(5, 12, green);
    const auto found = difference(actual, expected);
    ASSERT_TRUE(found);
    EXPECT_EQ(2U, found->count);
    EXPECT_EQ(CRect(5, 11, 21, 13), CRect(found->bounds));
    EXPECT_EQ(CPoint(20, 11), CPoint(found->first));
}

TEST(Capture, UnequalPicturesFailWithTheirPlaceAndAreWritten) {
    const Pixels expected = whiteWithRedCorner();
    EXPECT_TRUE(samePixels(expected, expected));
    Pixels actual = expected;
    actual.set(3, 4, green);
    const auto result = samePixels(actual, expected);
    EXPECT_FALSE(result);
    const std::string message = result.message();
    EXPECT_NE(std::string::npos, message.find("1 pixels differ within (3, 4)-(4, 5)")) << message;
    EXPECT_NE(std::string::npos, message.find("#008000 instead of #FF0000")) << message;
    const std::string file = message.substr(message.find("see ") + 4);
    EXPECT_TRUE(std::filesystem::exists(file.substr(0, file.find(" and ")))) << file;
}

TEST(Capture, PicturesOfTwoSizesAreNotTheSame) {
    const auto result = samePixels(Pixels(3, 4), Pixels(3, 5));
    EXPECT_FALSE(result);
    EXPECT_NE(std::string::npos, std::string(result.message()).find("3 x 4 pixels instead of 3 x 5"));
}

TEST(Capture, AWrittenPngHoldsThePicture) {
    const Pixels pixels = whiteWithRedCorner();
    const auto file = std::filesystem::temp_directory_path() / "ortin-capture" / "corner.png";
    pixels.savePng(file);
    Gdiplus::Bitmap bitmap(file.c_str());
    ASSERT_EQ(Gdiplus::Ok, bitmap.GetLastStatus());
    ASSERT_EQ(40U, bitmap.GetWidth());
    ASSERT_EQ(30U, bitmap.GetHeight());
    for (const POINT point : {POINT{0, 0}, POINT{9, 4}, POINT{10, 4}, POINT{39, 29}}) {
        Gdiplus::Color colour;
        bitmap.GetPixel(point.x, point.y, &colour);
        EXPECT_EQ(pixels.at(point.x, point.y), colour.ToCOLORREF()) << point.x << ", " << point.y;
    }
}

TEST(Capture, AWindowIsSeenThroughWhatCoversIt) {
    ScopedTopLevelWindow below(CSize(60, 40));
    ScopedTopLevelWindow above(CSize(60, 40));
    const auto paintAll = [](HWND window, COLORREF colour) {
        HDC dc = ::GetDC(window);
        fill(dc, {0, 0, 60, 40}, colour);
        ::ReleaseDC(window, dc);
    };
    paintAll(below, green);
    paintAll(above, red);
    EXPECT_EQ(green, Pixels::ofClient(below).onlyColour({0, 0, 60, 40}));
    EXPECT_EQ(red, Pixels::ofClient(above).onlyColour({0, 0, 60, 40}));
    EXPECT_EQ(green, Pixels::ofWindow(below).onlyColour({0, 0, 60, 40}));
}

TEST(Capture, TheScreenShowsTheWindowOnTop) {
    ScopedTopLevelWindow host(CSize(60, 40));
    HDC dc = ::GetDC(host);
    fill(dc, {0, 0, 60, 40}, green);
    ::ReleaseDC(host, dc);
    CRect area(0, 0, 60, 40);
    host.ClientToScreen(&area);
    EXPECT_TRUE(pumpUntil([&] { return Pixels::ofScreen(area).count(green) == 60U * 40U; }));
}

TEST(Capture, TheFrameBelongsToTheWindowAndNotToItsClientArea) {
    ScopedTopLevelWindow host(CSize(60, 40), WS_BORDER);
    EXPECT_EQ(60, Pixels::ofClient(host).width());
    EXPECT_EQ(60 + 2 * ::GetSystemMetrics(SM_CXBORDER), Pixels::ofWindow(host).width());
}

TEST(Capture, AColourIsDescribedAsOnTheWeb) {
    EXPECT_EQ("#01A0FF", describe(RGB(0x01, 0xA0, 0xFF)));
    EXPECT_EQ("#000000", describe(RGB(0, 0, 0)));
}

TEST(Capture, ItLeavesNoHandlesBehind) {
    ScopedTopLevelWindow host(CSize(60, 40));
    const Pixels first = Pixels::ofClient(host);
    for (int round = 0; round < 2000; ++round) {
        ASSERT_EQ(first, Pixels::ofClient(host)) << round;
    }
}

} // namespace
} // namespace support
