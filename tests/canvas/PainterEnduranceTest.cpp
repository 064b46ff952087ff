// What only shows over many frames: what leaks a little, and what takes memory each time.

#include "PainterFixture.h"

#include <atomic>
#include <cstdlib>
#include <new>

#include "support/ImportPatch.h"
#include "support/Resources.h"

using VectorCanvas::DrawContextGdiText;

namespace {

std::atomic<std::size_t> allocations = 0;

void* countNew(std::size_t size) {
    ++allocations;
    return ::operator new(size);
}

class Endurance : public PainterFixture {
protected:
    Endurance() {
        for (int index = 0; index < 400; ++index) {
            points.push_back({static_cast<float>(index % 97), static_cast<float>(index * 7 % 61)});
        }
        text.SetId(kOtherId);
    }

    /// A frame as a chart draws it.
    void drawFrame(int width, int height) {
        ASSERT_TRUE(painter.InitRender(CSize(width, height)));
        const RECT clip{0, 0, width - 3, height};
        painter.SetClipRegion(&clip);
        painter.Clear(kWhite);
        painter.DrawLineList(points.data(), points.size(), line, {0, 0});
        painter.FillRects(points.data(), points.size(), &shape, {0, 0});
        painter.DrawPolyline(points.data(), 100, &line, {0, 0});
        painter.DrawPolygon(points.data(), 20, &shape, {0, 0});
        painter.DrawLine({1, 1}, {40, 30}, &line, {0, 0});
        painter.DrawArc({30, 20}, 10, 8, 0, 180, &line, {0, 0});
        painter.DrawRect({2, 2, 20, 10}, kRed, kBlue, kId);
        painter.DrawTextW(L"12,5", {2, 2, 40, 20}, text, DT_LEFT);
        painter.DrawTextW({2, 20}, L"Kurs", text, {0, 0});
        painter.DrawControlPoints(kId, points.data(), 3, {0, 0}, {kRed, 1, kBlue, true, 5, false, 1.0F, false});
        painter.EndRender(false);
    }

    std::vector<Point> points;
    DrawContextGdiText text;
};

} // namespace

TEST_F(Endurance, TenThousandFramesWithResizingLeaveNothingBehind) {
    constexpr std::size_t kBytesOfTheSystem = 128 * 1024; // for its caches; far less than one byte a frame and object
    const auto frame = [&](int number) { drawFrame(80 + number / 7 % 50, 50 + number / 7 % 30); };
    for (int number = 0; number < 400; ++number) {
        frame(number);
    }
    const support::Resources before = support::Resources::inUse();
    for (int number = 0; number < 10'000; ++number) {
        frame(number);
        if (number % 1000 == 999) {
            painter.Release();
        }
    }
    frame(399);
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_LE(after.heapBytes, before.heapBytes + kBytesOfTheSystem);
}

TEST_F(Endurance, AFrameLikeThoseBeforeTakesNoMemory) {
    drawFrame(100, 60);
    const auto counted = [](const wchar_t* module) {
        return support::ImportPatch(::GetModuleHandleW(module), "libstdc++-6.dll", "_Znwy", &countNew);
    };
    // What the painter stands on works for it.
    const support::ImportPatch patches[] = {counted(L"OrtinControls.dll"), counted(L"OrtinFoundation.dll"),
                                            counted(L"OrtinMfc.dll")};
    allocations = 0;
    drawFrame(100, 60);
    EXPECT_EQ(0U, allocations);
    points.resize(2000, Point{1, 1});
    drawFrame(100, 60);
    EXPECT_NE(0U, allocations) << "longer lists than any before";
    allocations = 0;
    drawFrame(100, 60);
    EXPECT_EQ(0U, allocations);
}
