// A canvas between a host that does as it likes and the painter that it asks.

#include "CanvasFixture.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>

#include "support/Resources.h"

using VectorCanvas::VectorCanvasCtrl;

namespace {

constexpr auto kLongEnough = std::chrono::seconds(10);

/// Notes what a canvas asks it for, in order.
class WatchedPainter : public VectorCanvas::VectorPainterGdi {
public:
    void InitWindowIdAndViewPort(HWND window, CSize viewport) override {
        VectorPainterGdi::InitWindowIdAndViewPort(window, viewport);
        note("window " + std::to_string(viewport.cx) + 'x' + std::to_string(viewport.cy));
    }
    void Release() override {
        VectorPainterGdi::Release();
        note("release");
    }
    CSize GetViewport() const override {
        note("viewport");
        return VectorPainterGdi::GetViewport();
    }
    HDC GetSource() const override {
        note("source");
        return VectorPainterGdi::GetSource();
    }

    std::string takeLog() {
        const std::lock_guard lock(m_mutex);
        return std::exchange(m_log, {});
    }

    /// Runs within each call, after it was noted.
    std::function<void(const std::string& call)> onCall;

private:
    void note(const std::string& call) const {
        {
            const std::lock_guard lock(m_mutex);
            m_log += (m_log.empty() ? "" : "; ") + call;
        }
        if (onCall) {
            onCall(call);
        }
    }

    mutable std::mutex m_mutex;
    mutable std::string m_log;
};

class CanvasOwner : public testing::Test {
protected:
    ~CanvasOwner() override { painter.onCall = nullptr; }

    BOOL create() { return canvas->Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 60, 40), &host, 6); }
    void createAndShow() {
        ASSERT_TRUE(create());
        ASSERT_TRUE(painter.InitRender(CSize(60, 40)));
        painter.Clear(kBlue);
        support::pumpUntilIdle();
        painter.takeLog();
    }
    void update() { canvas->SendMessage(VectorCanvasCtrl::GetUpdatePaintingMessage()); }
    /// Once, within the next call of this name.
    void within(const std::string& name, const std::function<void()>& act) {
        painter.onCall = [name, act, done = false](const std::string& call) mutable {
            if (!done && call.starts_with(name)) {
                done = true;
                act();
            }
        };
    }

    support::ScopedTopLevelWindow host{CSize(120, 100)};
    WatchedPainter painter;
    std::unique_ptr<Canvas> canvas = std::make_unique<Canvas>(&painter);
};

} // namespace

TEST_F(CanvasOwner, SeesThePainterAskedInOrder) {
    ASSERT_TRUE(create());
    EXPECT_EQ("window 60x40", painter.takeLog());
    support::pumpUntilIdle();
    painter.takeLog();
    update();
    EXPECT_EQ("viewport; source", painter.takeLog());
    canvas->DestroyWindow();
    EXPECT_EQ("release", painter.takeLog());
    canvas.reset();
    EXPECT_EQ("", painter.takeLog());
}

TEST_F(CanvasOwner, MayDrawItFromWithinItsDrawing) {
    createAndShow();
    std::string drawn;
    canvas->log = &drawn;
    within("source", [&] { update(); });
    update();
    EXPECT_EQ("draw 0,0; draw 0,0; ", drawn);
}

TEST_F(CanvasOwner, MayDestroyItsWindowWheneverThePainterIsAsked) {
    for (const char* call : {"viewport", "source", "release"}) {
        SCOPED_TRACE(call);
        createAndShow();
        within(call, [&] { canvas->DestroyWindow(); });
        update();
        if (canvas->GetSafeHwnd() != nullptr) {
            canvas->DestroyWindow();
        }
        EXPECT_EQ(nullptr, canvas->GetSafeHwnd());
        EXPECT_TRUE(support::pumpUntilIdle());
        EXPECT_EQ(nullptr, painter.GetSource()) << "the surfaces have gone with the window";
    }
    within("window", [&] { canvas->DestroyWindow(); });
    create();
    EXPECT_EQ(nullptr, canvas->GetSafeHwnd());
}

TEST_F(CanvasOwner, MayDrawWithoutAPainter) {
    Canvas none(nullptr);
    const support::MemoryDevice device(60, 40, kGreen);
    none.Draw(CDC::FromHandle(device.dc()), CPoint(0, 0));
    EXPECT_EQ(kGreen, device.pixels().onlyColour({0, 0, 60, 40}));
}

TEST_F(CanvasOwner, MayLetItBeDrawnByAnotherThreadAfterACopyThatFailed) {
    createAndShow();
    within("source", [] { throw std::runtime_error("no picture"); });
    const support::MemoryDevice device(60, 40);
    CDC* const dc = CDC::FromHandle(device.dc());
    EXPECT_THROW(canvas->Draw(dc, CPoint(0, 0)), std::runtime_error);
    std::promise<void> drawn;
    std::thread drawer([&] {
        canvas->Draw(dc, CPoint(0, 0));
        drawn.set_value();
    });
    if (drawn.get_future().wait_for(kLongEnough) != std::future_status::ready) {
        drawer.detach();
        FAIL() << "the lock is still held";
    }
    drawer.join();
}

TEST_F(CanvasOwner, SeesCopiesOfTwoThreadsOneAfterTheOtherButForTheSize) {
    createAndShow();
    const support::MemoryDevice device(60, 40);
    const support::MemoryDevice otherDevice(60, 40);
    CDC* const dc = CDC::FromHandle(device.dc());
    CDC other;
    other.Attach(otherDevice.dc());
    std::thread secondDrawer;
    std::atomic<bool> secondDraws = false;
    std::promise<void> secondAskedForTheSize;
    painter.onCall = [&](const std::string& call) {
        if (secondDraws) {
            if (call == "viewport") {
                secondAskedForTheSize.set_value();
            }
            return;
        }
        if (call == "source") {
            secondDraws = true;
            secondDrawer = std::thread([&] { canvas->Draw(&other, CPoint(0, 0)); });
            EXPECT_EQ(std::future_status::ready, secondAskedForTheSize.get_future().wait_for(kLongEnough))
                << "the size is read under the lock";
            EXPECT_EQ("viewport; source; viewport", painter.takeLog()) << "the second copy does not wait";
        }
    };
    canvas->Draw(dc, CPoint(0, 0));
    secondDrawer.join();
    other.Detach();
    EXPECT_EQ("source", painter.takeLog());
}

TEST_F(CanvasOwner, FindsNothingLeftBehindByThousandsOfCanvases) {
    const auto live = [this] {
        createAndShow();
        update();
        canvas->DestroyWindow();
        canvas = std::make_unique<Canvas>(&painter);
        support::pumpUntilIdle();
        painter.takeLog();
    };
    constexpr int kWarmUp = 100;
    constexpr int kLives = 2000;
    for (int life = 0; life < kWarmUp; ++life) {
        live();
    }
    const support::Resources before = support::Resources::inUse();
    for (int life = 0; life < kLives; ++life) {
        live();
    }
    const support::Resources after = support::Resources::inUse();
    // Room for the caches of the system. Of each standard mutex that was locked the runtime of this compiler keeps 24
    // bytes for ever.
    EXPECT_LE(after.gdiHandles, before.gdiHandles + 10) << after;
    EXPECT_LE(after.windows, before.windows + 3) << after;
    EXPECT_LE(after.heapBytes, before.heapBytes + (24 + 10) * kLives) << before << after;
}
