// The picture of the bar, pixel by pixel.

#include <XTToolkitPro.h>

#include "../scrolling_core/ReferenceBar.h"
#include "BarFixture.h"
#include "support/Pump.h"
#include "support/Resources.h"

namespace {

struct Colours {
    COLORREF background;
    COLORREF idle;
    COLORREF hover;
    COLORREF pressed;
    COLORREF grip;
};

// 0x00BBGGRR
constexpr Colours kWhite{0xf3eded, 0xdaac8d, 0xc48962, 0x9a572a, 0xffffff};
constexpr Colours kBlack{0x191919, 0x464646, 0x6e523d, 0xa46f48, 0x191919};
constexpr Colours kUnknown{0xff00ff, 0xff00ff, 0xff00ff, 0xff00ff, 0xff00ff};

Gdiplus::Color opaque(COLORREF colour) {
    return {GetRValue(colour), GetGValue(colour), GetBValue(colour)};
}

/// What the bar shows, the long way: drawn four times as large and brought down by GDI+.
support::Pixels expected(int width, int height, double start, double end, COLORREF thumbColour,
                         const Colours& colours) {
    constexpr int kFiner = 4;
    constexpr int kCut = 2;
    ReferenceBar bar(width, height);
    bar.set(start, end);
    const ReferenceBar::Rect& thumb = bar.thumb;
    Gdiplus::Bitmap large(kFiner * width, kFiner * height, PixelFormat32bppRGB);
    Gdiplus::Graphics drawing(&large);
    const auto fill = [&](const ReferenceBar::Rect& rect, COLORREF colour) {
        const Gdiplus::SolidBrush brush(opaque(colour));
        drawing.FillRectangle(&brush, kFiner * rect.left, kFiner * rect.top, kFiner * (rect.right - rect.left),
                              kFiner * (rect.bottom - rect.top));
    };
    fill({0, 0, width, height}, colours.background);
    fill(thumb, thumbColour);
    if (thumb.right - thumb.left >= 8) {
        const int unit = XTPDpiHelper().ScaleX(1, 96);
        const Gdiplus::Pen pen(opaque(colours.grip), static_cast<Gdiplus::REAL>(kFiner * unit));
        const int middle = (thumb.left + thumb.right) / 2;
        const int inset = (thumb.bottom - thumb.top) / 5;
        for (const int x : {middle - unit, middle + unit, middle - 3 * unit, middle + 3 * unit}) {
            drawing.DrawLine(&pen, kFiner * x, kFiner * (thumb.top + inset), kFiner * x,
                             kFiner * (thumb.bottom - inset));
        }
    }
    const support::MemoryDevice device(width, height);
    Gdiplus::Graphics shown(device.dc());
    shown.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    shown.DrawImage(&large, Gdiplus::Rect(0, 0, width, height), kCut, kCut, kFiner * width - kCut,
                    kFiner * height - kCut, Gdiplus::UnitPixel);
    return device.pixels();
}

int WINAPI refuseBitmap(INT, INT, INT, INT, BYTE*, void** bitmap) {
    constexpr int kOutOfMemory = 3;
    *bitmap = nullptr;
    return kOutOfMemory;
}

class BarPicture : public BarFixture {
protected:
    void expectPicture(double start, double end, COLORREF thumb, const Colours& colours) {
        paint();
        CRect client;
        bar->GetClientRect(&client);
        EXPECT_TRUE(
            support::samePixels(pixels(), expected(client.Width(), client.Height(), start, end, thumb, colours)))
            << client.Width() << " x " << client.Height() << ", " << start << " to " << end;
    }
};

struct ThemeCase {
    int theme;
    const Colours& colours;
};
const ThemeCase kThemes[] = {{0, kWhite}, {1, kBlack}, {2, kUnknown}, {-1, kUnknown}};

} // namespace

TEST_F(BarPicture, HasTheColoursOfEachThemeInEachState) {
    for (const ThemeCase& c : kThemes) {
        SCOPED_TRACE(c.theme);
        const ScopedTheme theme(c.theme);
        show(0.25, 0.75);
        expectPicture(0.25, 0.75, c.colours.idle, c.colours);
        moveTo(200);
        expectPicture(0.25, 0.75, c.colours.hover, c.colours);
        press(200);
        expectPicture(0.25, 0.75, c.colours.pressed, c.colours);
        release(200);
        expectPicture(0.25, 0.75, c.colours.hover, c.colours);
        moveTo(5);
        expectPicture(0.25, 0.75, c.colours.idle, c.colours);
        moveTo(-5);
    }
}

TEST_F(BarPicture, IsThatOfAPressedBarWhereverThePressWas) {
    show(0.25, 0.75);
    press(2, 0);
    show(0.25, 0.75);
    expectPicture(0.25, 0.75, kWhite.pressed, kWhite);
}

TEST_F(BarPicture, HasAGripFromEightPixelsOn) {
    for (const ThemeCase& c : kThemes) {
        const ScopedTheme theme(c.theme);
        for (const int width : {0, 1, 2, 6, 7, 8, 9, 12, 13, 40}) {
            const double end = 0.5 + (width + 0.5) / 400;
            show(0.5, end);
            expectPicture(0.5, end, c.colours.idle, c.colours);
        }
    }
    show(0.5, 0.5 + 7.5 / 400);
    EXPECT_EQ(0U, pixels().count(kWhite.grip));
    show(0.5, 0.5 + 8.5 / 400);
    EXPECT_LT(0U, pixels().count(kWhite.grip));
}

TEST_F(BarPicture, IsExactInEachSize) {
    for (const CSize size : {CSize(424, 24), CSize(423, 25), CSize(580, 60), CSize(100, 100), CSize(40, 17),
                             CSize(31, 8), CSize(9, 5), CSize(3, 3), CSize(1, 1), CSize(30, 90), CSize(1, 24),
                             CSize(400, 4), CSize(400, 3), CSize(400, 2), CSize(400, 1)}) {
        resize(size.cx, size.cy);
        for (const double start : {0.0, 0.3, 0.999}) {
            show(start, 1.0);
            expectPicture(start, 1.0, kWhite.idle, kWhite);
        }
    }
}

TEST_F(BarPicture, IsThatOfTheLongWayWhereverTheThumbLies) {
    for (const CSize size : {CSize(424, 24), CSize(300, 17), CSize(571, 36)}) {
        resize(size.cx, size.cy);
        for (int step = 0; step < 60; ++step) {
            const ScopedTheme theme(step % 2);
            const double start = step / 61.0;
            const double end = start + (1.0 - start) * (step * 7 % 13) / 12.0;
            show(start, end);
            expectPicture(start, end, kThemes[step % 2].colours.idle, kThemes[step % 2].colours);
        }
    }
}

TEST_F(BarPicture, OfAWideBarIsThatOfTheLongWayToItsLastPixel) {
    constexpr int kOnScreen = 1000;
    for (const CSize size : {CSize(1180, 24), CSize(1919, 31), CSize(3840, 24), CSize(20'000, 24)}) {
        host.MoveWindow(kOnScreen - size.cx, 0, size.cx + 40, 120);
        resize(size.cx, size.cy);
        const RECT seen{size.cx - kOnScreen + 100, 0, size.cx, size.cy};
        for (const double start : {0.2, 0.77, 0.93, 0.98}) {
            show(start, start + 0.02);
            EXPECT_TRUE(support::samePixels(
                pixels().part(seen), expected(size.cx, size.cy, start, start + 0.02, kWhite.idle, kWhite).part(seen)))
                << size.cx << ", " << start;
        }
    }
}

TEST_F(BarPicture, OfAWindowOutsideTheRangeIsCutAtTheBar) {
    show(-3.0, 0.5);
    EXPECT_EQ(kWhite.idle, pixels().at(0, kMiddle));
    show(-1e300, 1e300);
    EXPECT_EQ(kWhite.idle, pixels().at(1, kMiddle));
    EXPECT_EQ(kWhite.idle, pixels().at(kWidth - 1, kMiddle));
    show(5.0, 6.0);
    EXPECT_EQ(kWhite.background, pixels().onlyColour({0, 0, kWidth, kHeight}));
}

TEST_F(BarPicture, StaysAsItIsWhereItIsErased) {
    show(0.25, 0.75);
    const support::Pixels painted = pixels();
    CClientDC dc(bar.get());
    EXPECT_EQ(1, bar->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.GetSafeHdc())));
    EXPECT_TRUE(support::samePixels(pixels(), painted));
}

TEST_F(BarPicture, OfAnEmptyBarIsPaintedAndValidated) {
    for (const CSize size : {CSize(0, 0), CSize(400, 0), CSize(0, 24)}) {
        resize(size.cx, size.cy);
        bar->Invalidate(FALSE);
        paint();
        EXPECT_EQ("nothing", waits());
    }
    resize(kWidth, kHeight);
    show(0.25, 0.75);
    expectPicture(0.25, 0.75, kWhite.idle, kWhite);
}

TEST_F(BarPicture, ThatCannotBeMadeIsLeftAsItWas) {
    show(0.25, 0.75);
    const support::Pixels painted = pixels();
    {
        const support::ImportPatch noMemory(::GetModuleHandleW(L"OrtinControls.dll"), "gdiplus.dll",
                                            "GdipCreateBitmapFromScan0", &refuseBitmap);
        bar->MoveWindow(20, 20, kWidth - 1, kHeight - 1, FALSE);
        bar->SetCurrent(0.0, 1.0);
        EXPECT_EQ("erase and paint", waits());
        EXPECT_EQ("nothing", waits()) << "validated all the same";
        EXPECT_TRUE(support::samePixels(pixels(), painted.part({0, 0, kWidth - 1, kHeight - 1})));
    }
    expectPicture(0.0, 1.0, kWhite.idle, kWhite);
}

TEST_F(BarPicture, LeavesNothingBehindOverTenThousandPaintsAndSizes) {
    const auto paintRound = [this](int round) {
        const ScopedTheme theme(round % 3);
        bar->MoveWindow(0, 0, 60 + round % 97, 10 + round % 31, FALSE);
        bar->SetCurrent(round % 7 / 10.0, 0.7 + round % 4 / 10.0);
        bar->UpdateWindow();
    };
    constexpr int kWarmUp = 200;
    constexpr int kPaints = 10'000;
    for (int round = 0; round < kWarmUp; ++round) {
        paintRound(round);
    }
    support::pumpUntilIdle();
    const support::Resources before = support::Resources::inUse();
    for (int round = 0; round < kPaints; ++round) {
        paintRound(round);
    }
    support::pumpUntilIdle();
    const support::Resources after = support::Resources::inUse();
    // Room for the caches of the system, far less than one object or a few bytes a paint.
    EXPECT_LE(after.gdiHandles, before.gdiHandles + 10) << after;
    EXPECT_LE(after.windows, before.windows + 3) << after;
    EXPECT_LE(after.heapBytes, before.heapBytes + 100 * 1024) << before << after;
}
