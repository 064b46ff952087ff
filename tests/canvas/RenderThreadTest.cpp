// A thread that renders while the window shows what is there. ORTIN_RENDER_SECONDS says for how long.

#include "PainterFixture.h"

#include <atomic>
#include <cstdlib>
#include <mutex>
#include <thread>

#include "support/Pump.h"
#include "support/TopLevelWindow.h"

using VectorCanvas::VectorCanvasCtrl;

namespace {

std::chrono::seconds wantedDuration() {
    const char* text = std::getenv("ORTIN_RENDER_SECONDS");
    return std::chrono::seconds(text != nullptr ? std::atoi(text) : 5);
}

/// A host's own lock keeps new surfaces away from the copy.
class SharedCanvas : public VectorCanvasCtrl {
public:
    using VectorCanvasCtrl::VectorCanvasCtrl;

    std::mutex surfaces;
    int drawn = 0;

protected:
    void Draw(CDC* dc, const CPoint& origin) override {
        const std::lock_guard lock(surfaces);
        VectorCanvasCtrl::Draw(dc, origin);
        ++drawn;
    }
};

class RenderThread : public PainterFixture {
protected:
    void renderUntilStopped() {
        // Styles belong to the thread that renders with them.
        VectorCanvas::DrawContextGdiLine ownLine;
        VectorCanvas::DrawContextGdiLineAndFill ownShape;
        VectorCanvas::DrawContextGdiText ownText;
        ownLine.UpdateContext(redPen());
        ownLine.SetId(kId);
        ownShape.ChangeColors(kRed, kBlue);
        ownShape.SetId(kOtherId);
        std::vector<Point> points;
        for (int index = 0; index < 200; ++index) {
            points.push_back({static_cast<float>(index % 97), static_cast<float>(index * 7 % 61)});
        }
        while (!stop) {
            const int size = 40 + frames / 50 % 40;
            {
                const std::lock_guard lock(canvas.surfaces);
                if (!painter.InitRender(CSize(size, size))) {
                    ++failures;
                    continue;
                }
            }
            painter.Clear(kWhite);
            painter.DrawLineList(points.data(), points.size(), ownLine, {0, 0});
            painter.FillRects(points.data(), points.size(), &ownShape, {0, 0});
            painter.DrawLine({0, 0}, {40, 30}, &ownLine, {0, 0});
            painter.DrawPolygon(points.data(), 7, &ownShape, {0, 0});
            painter.DrawTextW({2, 2}, L"12,5", ownText, {0, 0});
            ownLine.ChangeColor(RGB(frames % 256, 0, 0));
            painter.EndRender(false);
            ++frames;
        }
    }

    support::ScopedTopLevelWindow host{CSize(120, 100)};
    SharedCanvas canvas{&painter};
    std::atomic<bool> stop = false;
    std::atomic<int> frames = 0;
    std::atomic<int> failures = 0;
};

} // namespace

TEST_F(RenderThread, DrawsWhileTheWindowPaintsAndLooksForObjects) {
    ASSERT_TRUE(canvas.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 80), &host, 5));
    std::thread renderer([this] { renderUntilStopped(); });
    const auto end = std::chrono::steady_clock::now() + wantedDuration();
    unsigned int found = 0;
    while (std::chrono::steady_clock::now() < end) {
        canvas.Invalidate();
        support::pumpFor(std::chrono::milliseconds(10));
        const std::lock_guard lock(canvas.surfaces);
        found |= painter.GetObjectId(5, 5);
    }
    stop = true;
    renderer.join();
    EXPECT_GT(frames, 10);
    EXPECT_GT(canvas.drawn, 10);
    EXPECT_EQ(0, failures);
    EXPECT_EQ(0U, found & ~(kId | kOtherId));
    support::pumpUntilIdle();
    canvas.DestroyWindow();
}
