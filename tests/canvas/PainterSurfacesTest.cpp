#include "PainterFixture.h"

#include <algorithm>
#include <string>

#include "support/ImportPatch.h"
#include "support/Pump.h"
#include "support/Resources.h"
#include "support/TopLevelWindow.h"

using VectorCanvas::VectorCanvasCtrl;
using VectorCanvas::VectorPainterGdi;

namespace {

HBITMAP WINAPI refuseBitmap(HDC, int, int) {
    return nullptr;
}

HDC WINAPI refuseDevice(HDC) {
    return nullptr;
}

HBITMAP WINAPI refuseSection(HDC, const BITMAPINFO*, UINT, void**, HANDLE, DWORD) {
    return nullptr;
}

COLORREF WINAPI refusePixel(HDC, int, int) {
    return CLR_INVALID;
}

std::string calls;
/// In the order in which they were made; calls name them by it.
std::vector<const void*> made;

void note(const std::string& call) {
    calls += call + "; ";
}
std::string numberOf(const void* handle) {
    const auto found = std::find(made.begin(), made.end(), handle);
    return found != made.end() ? std::to_string(found - made.begin()) : "?";
}
template <typename Handle>
Handle noteMade(const std::string& call, Handle handle) {
    made.push_back(handle);
    note(call + " gives " + numberOf(handle));
    return handle;
}

HDC WINAPI noteGetDC(HWND window) {
    return noteMade(window == nullptr ? "GetDC screen" : "GetDC window", ::GetDC(window));
}
int WINAPI noteReleaseDC(HWND window, HDC device) {
    note("ReleaseDC " + numberOf(device));
    return ::ReleaseDC(window, device);
}
HBITMAP WINAPI noteBitmap(HDC device, int width, int height) {
    return noteMade("CreateCompatibleBitmap " + numberOf(device) + ' ' + std::to_string(width) + 'x' +
                        std::to_string(height),
                    ::CreateCompatibleBitmap(device, width, height));
}
HDC WINAPI noteDevice(HDC like) {
    return noteMade(like == nullptr ? "CreateCompatibleDC" : "CreateCompatibleDC like another",
                    ::CreateCompatibleDC(like));
}
HBITMAP WINAPI noteSection(HDC device, const BITMAPINFO* format, UINT usage, void** bits, HANDLE section,
                           DWORD offset) {
    const BITMAPINFOHEADER& header = format->bmiHeader;
    return noteMade("CreateDIBSection " + numberOf(device) + ' ' + std::to_string(header.biSize) + ' ' +
                        std::to_string(header.biWidth) + 'x' + std::to_string(header.biHeight) + 'x' +
                        std::to_string(header.biPlanes) + 'x' + std::to_string(header.biBitCount),
                    ::CreateDIBSection(device, format, usage, bits, section, offset));
}
HGDIOBJ WINAPI noteSelection(HDC device, HGDIOBJ object) {
    note("SelectObject " + numberOf(device) + ' ' + numberOf(object));
    return ::SelectObject(device, object);
}
BOOL WINAPI notePatBlt(HDC device, int x, int y, int width, int height, DWORD operation) {
    note("PatBlt " + numberOf(device) + ' ' + std::to_string(x) + ',' + std::to_string(y) + ' ' +
         std::to_string(width) + 'x' + std::to_string(height) + (operation == BLACKNESS ? " black" : ""));
    return ::PatBlt(device, x, y, width, height, operation);
}
BOOL WINAPI noteDeleteDC(HDC device) {
    note("DeleteDC " + numberOf(device));
    return ::DeleteDC(device);
}
BOOL WINAPI noteDeleteObject(HGDIOBJ object) {
    note("DeleteObject " + numberOf(object));
    return ::DeleteObject(object);
}

HMODULE foundation() {
    return ::GetModuleHandleW(L"OrtinFoundation.dll");
}

HMODULE controls() {
    return ::GetModuleHandleW(L"OrtinControls.dll");
}

class Surfaces : public PainterFixture {
protected:
    void drawDiagonal() {
        const Point points[] = {{0, 0}, {20, 20}};
        painter.DrawLineList(points, 2, line, {0, 0});
    }
};

} // namespace

TEST_F(Surfaces, AreMadeInTheSizeOfTheFirstFrame) {
    EXPECT_EQ(nullptr, painter.GetSource());
    EXPECT_EQ(CSize(0, 0), painter.GetViewport());
    painter.InitWindowIdAndViewPort(nullptr, CSize(30, 20));
    EXPECT_EQ(nullptr, painter.GetSource()) << "only stored";
    EXPECT_EQ(CSize(30, 20), painter.GetViewport());
    begin(50, 30);
    EXPECT_EQ(CSize(50, 30), painter.GetViewport());
    BITMAP bitmap{};
    ::GetObjectW(::GetCurrentObject(painter.GetSource(), OBJ_BITMAP), sizeof bitmap, &bitmap);
    EXPECT_EQ(50, bitmap.bmWidth);
    EXPECT_EQ(30, bitmap.bmHeight);
}

TEST_F(Surfaces, OfAnUnchangedSizeKeepThePictureAndEmptyTheShadow) {
    begin();
    drawDiagonal();
    const support::Pixels before = picture();
    const HDC source = painter.GetSource();
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
    ASSERT_TRUE(painter.InitRender(CSize(kWidth, kHeight)));
    EXPECT_EQ(source, painter.GetSource());
    EXPECT_EQ(before, picture());
    EXPECT_EQ(0U, painter.GetObjectId(5, 5));
}

TEST_F(Surfaces, OfAnotherSizeAreNew) {
    begin();
    drawDiagonal();
    begin(25, 15);
    EXPECT_EQ(CSize(25, 15), painter.GetViewport());
    drawDiagonal();
    EXPECT_EQ(kId, painter.GetObjectId(14, 14));
    EXPECT_EQ(0U, painter.GetObjectId(15, 15)) << "outside";
}

TEST_F(Surfaces, GiveNoObjectOutsideThePicture) {
    begin();
    const Point points[] = {{0, 0}, {kWidth, 0}, {0, 0}, {0, kHeight}};
    painter.DrawLineList(points, 4, line, {0, 0});
    EXPECT_EQ(kId, painter.GetObjectId(kWidth - 1, 0));
    EXPECT_EQ(kId, painter.GetObjectId(0, kHeight - 1));
    for (const CPoint& outside :
         {CPoint(kWidth, 0), CPoint(-1, 0), CPoint(0, -1), CPoint(0, kHeight), CPoint(INT_MAX, INT_MIN)}) {
        EXPECT_EQ(0U, painter.GetObjectId(outside.x, outside.y)) << outside.x << ' ' << outside.y;
    }
}

TEST_F(Surfaces, GiveTheSameObjectsAfterTheFrameAsInIt) {
    for (const CSize& size : {CSize(60, 40), CSize(59, 41), CSize(58, 1), CSize(57, 33), CSize(1, 30)}) {
        begin(size.cx, size.cy);
        drawDiagonal();
        painter.DrawRect({30, 3, 20, 30}, kRed, kBlue, kOtherId);
        const support::Pixels inFrame = shadow();
        painter.EndRender(false);
        EXPECT_EQ(inFrame, shadow()) << size.cx << 'x' << size.cy;
    }
}

TEST_F(Surfaces, GiveNoObjectWhereTheSystemHasNoPixel) {
    begin();
    drawDiagonal();
    for (const bool ended : {false, true}) {
        if (ended) {
            painter.EndRender(false);
        }
        EXPECT_EQ(kId, painter.GetObjectId(5, 5));
        const support::ImportPatch patch(controls(), "gdi32.dll", "GetPixel", &refusePixel);
        EXPECT_EQ(0U, painter.GetObjectId(5, 5));
    }
}

TEST_F(Surfaces, GiveTheObjectsWithinAClipThatIsSetAfterTheFrame) {
    begin();
    drawDiagonal();
    painter.EndRender(false);
    const RECT clip{10, 10, 20, 20};
    painter.SetClipRegion(&clip);
    EXPECT_EQ(kId, painter.GetObjectId(12, 12)); // systems differ in whether a pixel outside the clip can be asked for
    painter.EndRender(false);
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
}

TEST_F(Surfaces, GiveNoObjectOutsideThemWhenTheViewportHasGrown) {
    begin();
    drawDiagonal();
    painter.EndRender(false);
    painter.InitWindowIdAndViewPort(nullptr, CSize(10'000, 10'000));
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
    for (const CPoint& outside : {CPoint(kWidth, 0), CPoint(0, kHeight), CPoint(9'999, 9'999)}) {
        EXPECT_EQ(0U, painter.GetObjectId(outside.x, outside.y)) << outside.x << ' ' << outside.y;
    }
}

TEST_F(Surfaces, HaveAShadowOnlyIfItWasEnabledBeforeTheyWereMade) {
    painter.EnableShadows(0);
    begin();
    painter.EnableShadows(1);
    drawDiagonal();
    EXPECT_EQ(0U, painter.GetObjectId(5, 5)) << "no surface yet";
    begin();
    drawDiagonal();
    EXPECT_EQ(0U, painter.GetObjectId(5, 5)) << "an unchanged size makes none";
    begin(kWidth + 1, kHeight);
    drawDiagonal();
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
}

TEST_F(Surfaces, HaveAShadowForTheModeOneOnly) {
    painter.EnableShadows(2);
    begin();
    drawDiagonal();
    painter.DrawRect({1, 1, 10, 10}, kRed, kBlue, kId);
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
}

TEST_F(Surfaces, AreMadeAndLetGoInOrder) {
    const support::ImportPatch patches[] = {
        {controls(), "user32.dll", "GetDC", &noteGetDC},
        {controls(), "user32.dll", "ReleaseDC", &noteReleaseDC},
        {foundation(), "gdi32.dll", "CreateCompatibleBitmap", &noteBitmap},
        {controls(), "gdi32.dll", "CreateCompatibleDC", &noteDevice},
        {foundation(), "gdi32.dll", "CreateDIBSection", &noteSection},
        {controls(), "gdi32.dll", "SelectObject", &noteSelection},
        {controls(), "gdi32.dll", "PatBlt", &notePatBlt},
        {controls(), "gdi32.dll", "DeleteDC", &noteDeleteDC},
        {controls(), "gdi32.dll", "DeleteObject", &noteDeleteObject},
    };
    made.clear();
    calls.clear();
    painter.InitWindowIdAndViewPort(nullptr, CSize(30, 20));
    EXPECT_TRUE(painter.InitRender(CSize(30, 20)));
    EXPECT_EQ("GetDC screen gives 0; CreateCompatibleBitmap 0 30x20 gives 1; CreateCompatibleDC gives 2; "
              "SelectObject 2 1; CreateDIBSection 0 40 30x20x1x24 gives 3; CreateCompatibleDC gives 4; "
              "SelectObject 4 3; PatBlt 4 0,0 30x20 black; ReleaseDC 0; PatBlt 4 0,0 30x20 black; ",
              calls);
    calls.clear();
    EXPECT_TRUE(painter.InitRender(CSize(30, 20)));
    EXPECT_EQ("PatBlt 4 0,0 30x20 black; ", calls);
    calls.clear();
    painter.Release();
    EXPECT_EQ("DeleteDC 2; DeleteDC 4; DeleteObject 1; DeleteObject 3; ", calls);
}

TEST_F(Surfaces, WithoutAShadowAfterOnesThatHadItLeaveDevicesOfOthersAlone) {
    begin();
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(CDC::FromHandle(painter.GetSource()), kWidth, kHeight);
    painter.EnableShadows(0);
    begin(kWidth + 1, kHeight);
    // So many that the system gives out the handle of the shadow that was there again.
    for (int number = 1; number <= 600; ++number) {
        CDC others;
        others.CreateCompatibleDC(nullptr);
        const HGDIOBJ before = ::SelectObject(others, bitmap);
        others.FillSolidRect(0, 0, kWidth, kHeight, kWhite);
        painter.DrawOrdinaryLine({0, 10}, {40, 10}, &line);
        ASSERT_EQ(kWhite, others.GetPixel(20, 10)) << number;
        ::SelectObject(others, before);
    }
}

TEST_F(Surfaces, AreGoneAfterReleaseAndComeBackWithTheNextFrame) {
    begin();
    drawDiagonal();
    painter.Release();
    EXPECT_EQ(nullptr, painter.GetSource());
    EXPECT_EQ(0U, painter.GetObjectId(5, 5));
    painter.Release();
    begin();
    drawDiagonal();
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
}

TEST_F(Surfaces, ReleasedOrNeverMadeAreDrawnOnWithoutHarm) {
    for (const bool released : {false, true}) {
        if (released) {
            begin();
            painter.Release();
        }
        const Point points[] = {{0, 0}, {20, 20}, {20, 0}, {0, 20}};
        painter.Clear(kWhite);
        painter.DrawLineList(points, 4, line, {0, 0});
        painter.DrawPolyline(points, 4, &line, {0, 0});
        painter.FillRects(points, 4, &shape, {0, 0});
        painter.DrawPolygon(points, 4, &shape, {0, 0});
        painter.DrawEllipse(points[0], points[1], &shape, {0, 0});
        painter.DrawLine(points[0], points[1], &line, {0, 0});
        painter.DrawOrdinaryLine(points[0], points[1], &line);
        painter.DrawArc(points[0], 5, 5, 0, 90, &line, {0, 0});
        painter.DrawPoint(points[0], &line, {0, 0});
        painter.DrawRect({0, 0, 5, 5}, kRed, kBlue, kId);
        painter.DrawIcon(reinterpret_cast<unsigned __int64>(::LoadIconW(nullptr, IDI_APPLICATION)), 0, 0);
        painter.DrawControlPoints(kId, points, 4, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
        const RECT clip{0, 0, 5, 5};
        painter.SetClipRegion(&clip);
        painter.EndRender(true);
        EXPECT_EQ(0U, painter.GetObjectId(0, 0));
        EXPECT_EQ(nullptr, painter.GetSource());
    }
}

TEST_F(Surfaces, ThatTheSystemRefusesGiveFalseAndTheNextFrameGoesWell) {
    {
        const support::ImportPatch patch(foundation(), "gdi32.dll", "CreateCompatibleBitmap", &refuseBitmap);
        EXPECT_FALSE(painter.InitRender(CSize(kWidth, kHeight)));
    }
    begin();
    drawDiagonal();
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
    {
        const support::ImportPatch patch(foundation(), "gdi32.dll", "CreateCompatibleBitmap", &refuseBitmap);
        EXPECT_FALSE(painter.InitRender(CSize(20, 20)));
        EXPECT_EQ(nullptr, painter.GetSource());
        EXPECT_EQ(0U, painter.GetObjectId(5, 5));
    }
    {
        const support::ImportPatch patch(controls(), "gdi32.dll", "CreateCompatibleDC", &refuseDevice);
        EXPECT_FALSE(painter.InitRender(CSize(20, 20)));
    }
    begin(20, 20);
    drawDiagonal();
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
}

TEST_F(Surfaces, WithoutMemoryForAShadowShowAPictureInWhichNothingIsFound) {
    {
        const support::ImportPatch patch(foundation(), "gdi32.dll", "CreateDIBSection", &refuseSection);
        begin();
    }
    const Point points[] = {{0, 0}, {20, 20}};
    painter.DrawLine(points[0], points[1], &line, {0, 0});
    painter.DrawRect({1, 1, 10, 10}, kRed, kBlue, kId);
    drawDiagonal();
    EXPECT_EQ(kRed, picture().at(5, 5));
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
}

TEST_F(Surfaces, OfNoSizeAndOfImpossibleSizesLeaveAPainterThatWorks) {
    for (const CSize& size : {CSize(0, 0), CSize(0, 30), CSize(-5, 10), CSize(INT_MAX, INT_MAX), CSize(20000, 20000)}) {
        painter.EnableShadows(size.cx == 20000 ? 0 : 1); // the machine need not give two pictures of that size
        if (painter.InitRender(size)) {
            EXPECT_EQ(size, painter.GetViewport());
            drawDiagonal();
            painter.DrawLine({0, 0}, {5, 5}, &line, {0, 0});
            painter.DrawRect({0, 0, 5, 5}, kRed, kBlue, kId);
        }
        painter.EndRender(false);
        EXPECT_EQ(0U, painter.GetObjectId(size.cx, size.cy));
        painter.EnableShadows(1);
        begin();
        drawDiagonal();
        EXPECT_EQ(kId, painter.GetObjectId(5, 5)) << size.cx << 'x' << size.cy;
    }
}

TEST_F(Surfaces, GoOverWithAMoveAndLeaveAPainterAsNew) {
    begin();
    drawDiagonal();
    const HDC source = painter.GetSource();
    VectorPainterGdi taker(std::move(painter));
    EXPECT_EQ(source, taker.GetSource());
    EXPECT_EQ(kId, taker.GetObjectId(5, 5));
    EXPECT_EQ(nullptr, painter.GetSource());
    EXPECT_EQ(CSize(0, 0), painter.GetViewport());
    painter.DrawLine({0, 10}, {40, 10}, &line, {0, 0});
    painter.EndRender(false);
    EXPECT_EQ(0U, taker.GetObjectId(5, 10)) << "the one that was moved from draws nowhere";
    painter.EnableShadows(1);
    begin();
    drawDiagonal();
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));

    painter = std::move(taker);
    EXPECT_EQ(source, painter.GetSource());
    VectorPainterGdi& itself = painter;
    painter = std::move(itself);
    EXPECT_EQ(source, painter.GetSource());
    painter.DrawLine({0, 12}, {40, 12}, &line, {0, 0});
    EXPECT_EQ(kId, painter.GetObjectId(5, 12)) << "the GDI+ part has come along";

    painter.EndRender(false);
    const VectorPainterGdi settled(std::move(painter));
    EXPECT_EQ(kId, settled.GetObjectId(5, 12));
    EXPECT_EQ(0U, painter.GetObjectId(5, 12)); // NOLINT(bugprone-use-after-move): it is as new
}

TEST_F(Surfaces, LeaveNoHandlesBehindHoweverTheyEnd) {
    const auto live = [&] {
        VectorPainterGdi first;
        first.EnableShadows(1);
        first.InitRender(CSize(20, 20));
        const RECT clip{0, 0, 5, 5};
        first.SetClipRegion(&clip);
        const Point points[] = {{0, 0}, {20, 20}, {20, 0}, {0, 20}};
        first.DrawLineList(points, 4, line, {0, 0});
        first.FillRects(points, 4, &shape, {0, 0});
        VectorPainterGdi second(std::move(first));
        second.InitRender(CSize(30, 30));
        second.DrawLineList(points, 4, line, {0, 0});
        first = std::move(second);
        second.InitRender(CSize(10, 10)); // NOLINT(bugprone-use-after-move): it is as new
        second.Release();
    };
    live();
    const std::size_t before = support::gdiHandleCount();
    for (int round = 0; round < 200; ++round) {
        live();
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}

TEST_F(Surfaces, AreClearedOnlyInThePicture) {
    begin();
    drawDiagonal();
    painter.Clear(kGreen);
    EXPECT_EQ(kGreen, picture().onlyColour(picture().bounds()));
    EXPECT_EQ(kId, painter.GetObjectId(5, 5));
}

TEST_F(Surfaces, AreClippedUntilTheFrameEnds) {
    begin();
    const RECT clip{10, 10, 20, 15};
    painter.SetClipRegion(&clip);
    painter.DrawRect({0, 0, kWidth, kHeight}, kRed, kBlue, kId);
    EXPECT_EQ(CRect(clip), CRect(*picture().boundsOf(kBlue)));
    EXPECT_EQ(0U, picture().count(kRed));
    EXPECT_EQ(0U, painter.GetObjectId(9, 10));
    EXPECT_EQ(kId, painter.GetObjectId(10, 10));
    painter.EndRender(false);
    EXPECT_EQ(0U, painter.GetObjectId(9, 10));
    EXPECT_EQ(kId, painter.GetObjectId(19, 14));
    EXPECT_EQ(50U, shadow().count(kId));
    begin(); // the same surfaces
    painter.DrawRect({0, 0, kWidth, kHeight}, kRed, kBlue, kId);
    EXPECT_EQ(0U, picture().count(kWhite)) << "clipped no more";
    EXPECT_EQ(std::set<unsigned int>{kId}, idsInShadow());

    begin();
    const RECT other{1, 1, 3, 3};
    painter.SetClipRegion(&clip);
    painter.SetClipRegion(&other);
    painter.Clear(kGreen);
    EXPECT_EQ(CRect(other), CRect(*picture().boundsOf(kGreen))) << "the later clip instead of the earlier";
    painter.SetClipRegion(nullptr);
    painter.Clear(kGreen);
    EXPECT_EQ(kGreen, picture().onlyColour(picture().bounds()));
    painter.DrawRect({0, 0, kWidth, kHeight}, kRed, kBlue, kId);
    EXPECT_EQ(std::set<unsigned int>{kId}, idsInShadow());
}

TEST_F(Surfaces, ClippedToNothingShowNothing) {
    begin();
    const RECT clip{10, 10, 10, 30};
    painter.SetClipRegion(&clip);
    painter.DrawRect({0, 0, kWidth, kHeight}, kRed, kBlue, kId);
    painter.EndRender(false);
    EXPECT_EQ(kWhite, picture().onlyColour(picture().bounds()));
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
}

class FrameEnd : public Surfaces {
protected:
    FrameEnd() {
        window.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == VectorCanvasCtrl::GetUpdatePaintingMessage()) {
                log += "update " + std::to_string(wParam) + ' ' + std::to_string(lParam) + "; ";
            }
            return std::nullopt;
        };
        painter.InitWindowIdAndViewPort(window, CSize(kWidth, kHeight));
    }

    std::string log;
    support::ScopedTopLevelWindow window{CSize(100, 80)};
};

TEST_F(FrameEnd, SynchronousIsThroughWhenItReturns) {
    begin();
    painter.EndRender(true);
    log += "returned; ";
    support::pumpUntilIdle();
    EXPECT_EQ("update 0 0; returned; ", log);
}

TEST_F(FrameEnd, AsynchronousReturnsFirst) {
    begin();
    painter.EndRender(false);
    log += "returned; ";
    support::pumpUntilIdle();
    EXPECT_EQ("returned; update 0 0; ", log);
}

TEST_F(FrameEnd, IsWithoutAClipWhenTheWindowIsTold) {
    begin();
    const RECT clip{10, 10, 20, 15};
    painter.SetClipRegion(&clip);
    int clipped = -1;
    window.onMessage = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == VectorCanvasCtrl::GetUpdatePaintingMessage()) {
            ClipRegion region;
            region.Create(&clip);
            clipped = ::GetClipRgn(painter.GetSource(), region.GetHandle());
        }
        return std::nullopt;
    };
    painter.EndRender(true);
    EXPECT_EQ(0, clipped);
}

TEST_F(FrameEnd, WithoutAWindowSendsNothing) {
    painter.InitWindowIdAndViewPort(nullptr, CSize(kWidth, kHeight));
    begin();
    painter.EndRender(false);
    painter.EndRender(true);
    MSG message;
    EXPECT_FALSE(::PeekMessageW(&message, reinterpret_cast<HWND>(-1), 0, 0, PM_REMOVE));
    EXPECT_EQ("", log);
}
