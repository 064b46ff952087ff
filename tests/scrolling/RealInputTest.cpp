// Both under real mouse and wheel: what the system itself adds to messages.

#include <atomic>
#include <chrono>
#include <thread>
#include <vector>

#include <OrtinControls/OrtinControls.h>
#include <gtest/gtest.h>

#include "BarFixture.h"
#include "support/Pump.h"
#include "support/RealInput.h"

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

/// A bar of 424 x 24 pixels whose window over the range lies from 112 to 312, with an owner that answers.
class BarUnderTheHand : public testing::Test {
protected:
    BarUnderTheHand() {
        support::moveMouse({5, 5});
        if (!bar.Create(L"", WS_CHILD | WS_VISIBLE, CRect(20, 20, 444, 44), &host, 5)) {
            throw std::runtime_error("the bar cannot be made");
        }
        host.activate();
        bar.SetCurrent(0.25, 0.75);
        support::pumpUntilIdle();
        owner.onChange = [this](const AdvancedScroll::ChangeMessageInfo& info) {
            if (answers) {
                bar.SetCurrent(info.start, info.end);
            }
        };
        owner.takeLog();
    }
    ~BarUnderTheHand() override {
        support::releaseButton();
        support::moveMouse({5, 5});
        owner.onChange = nullptr;
    }

    POINT at(int x, int y = 12) const {
        CPoint point(x, y);
        bar.ClientToScreen(&point);
        return point;
    }

    support::ScopedTopLevelWindow host{CSize(600, 120)};
    RecordingOwner owner;
    AdvancedScroll bar{&owner};
    bool answers = true;
};

} // namespace

TEST_F(BarUnderTheHand, IsPannedByItsThumb) {
    support::drag(at(200), at(220), 5);
    EXPECT_EQ("moving 0.01 0.26-0.76; moving 0.01 0.27-0.77; moving 0.01 0.28-0.78; moving 0.01 0.29-0.79; "
              "moving 0.01 0.3-0.8; moved 0.3-0.8",
              owner.takeLog());
    support::moveMouse(at(200, 60));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ("", owner.takeLog());
}

TEST_F(BarUnderTheHand, IsPannedToTheWallWhateverTheHandDoes) {
    answers = false;
    support::drag(at(200), at(560), 9);
    EXPECT_EQ(1.0, owner.last.end);
    EXPECT_EQ(0.5, owner.last.start);
    EXPECT_EQ(AdvancedScroll::MovementCompleted, owner.last.type);
}

TEST_F(BarUnderTheHand, IsDrivenOnceMoreByAnAnswerFromBeyondTheWall) {
    support::drag(at(200), at(560), 1);
    EXPECT_EQ("moving 0.9 0.5-1; moving 0.4 0.5-1; moved 0.5-1; moving 0.4 0.5-1", owner.takeLog());
}

TEST_F(BarUnderTheHand, IsZoomedByItsEdges) {
    support::drag(at(100), at(60), 4);
    EXPECT_EQ(AdvancedScroll::RangeChangeCompleted, owner.last.type);
    EXPECT_NEAR(0.15, owner.last.start, 1e-9);
    EXPECT_EQ(0.75, owner.last.end);
    support::drag(at(320), at(240), 4);
    EXPECT_EQ(AdvancedScroll::RangeChangeCompleted, owner.last.type);
    EXPECT_NEAR(0.55, owner.last.end, 1e-9);
}

TEST_F(BarUnderTheHand, IsZoomedNoFurtherThanTheOtherEdge) {
    support::drag(at(100), at(500), 10);
    EXPECT_NEAR(0.75 - 2.0 / 400, owner.last.start, 1e-9);
    EXPECT_EQ(0.75, owner.last.end);
}

TEST_F(BarUnderTheHand, StepsWhileAClickInTheTrackIsHeld) {
    bar.SetCurrent(0.0, 0.05);
    support::pumpUntilIdle();
    std::vector<Clock::time_point> steps;
    owner.onChange = [&](const AdvancedScroll::ChangeMessageInfo& info) {
        if (info.type == AdvancedScroll::MovementInProgress) {
            steps.push_back(Clock::now());
        }
    };
    support::moveMouse(at(420));
    const Clock::time_point pressed = Clock::now();
    support::pressButton();
    ASSERT_EQ(1U, steps.size()) << "at once";
    ASSERT_TRUE(support::pumpUntil([&] { return steps.size() >= 6; }));
    const auto since = [](Clock::time_point from, Clock::time_point to) {
        return std::chrono::duration_cast<milliseconds>(to - from).count();
    };
    // Timers are never early; a busy machine makes them late.
    EXPECT_GE(since(pressed, steps[1]), 380);
    EXPECT_LE(since(pressed, steps[1]), 900);
    EXPECT_GE(since(steps[1], steps[5]), 4 * 90);
    EXPECT_LE(since(steps[1], steps[5]), 4 * 250);
    support::releaseButton();
    EXPECT_EQ(AdvancedScroll::MovementCompleted, owner.last.type);
    const std::size_t made = steps.size();
    support::pumpFor(milliseconds(600));
    EXPECT_EQ(made, steps.size()) << "no step after the release";
}

TEST_F(BarUnderTheHand, StepsOnceByAShortClick) {
    bar.SetCurrent(0.25, 0.5);
    support::click(at(400));
    support::pumpFor(milliseconds(600));
    EXPECT_EQ("moving 0.25 0.5-0.75; moved 0.5-0.75", owner.takeLog());
}

TEST_F(BarUnderTheHand, TogglesTheWholeRangeByADoubleClick) {
    support::doubleClick(at(200));
    EXPECT_EQ(AdvancedScroll::RangeChangeCompleted, owner.last.type);
    EXPECT_EQ(0.0, owner.last.start);
    EXPECT_EQ(1.0, owner.last.end);
    support::pumpFor(milliseconds(::GetDoubleClickTime() + 100));
    support::doubleClick(at(200));
    EXPECT_EQ(0.25, owner.last.start);
    EXPECT_EQ(0.75, owner.last.end);
}

TEST_F(BarUnderTheHand, ShowsWhatItIsOverAndForgetsItOutside) {
    support::moveMouse(at(200));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
    EXPECT_EQ(bar.m_hWnd, ::GetCapture());
    support::moveMouse(at(100));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_SIZEWE), ::GetCursor());
    support::moveMouse(at(50));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_ARROW), ::GetCursor());
    support::moveMouse(at(200, 60));
    EXPECT_EQ(nullptr, ::GetCapture());
    support::moveMouse(at(480));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_ARROW), ::GetCursor());
}

TEST_F(BarUnderTheHand, EndsADragOnlyAfterAHeldKeyIsUp) {
    answers = false;
    support::moveMouse(at(200));
    support::pressButton();
    support::moveMouse(at(204));
    {
        // The mouse rests here: the display would tell with a move that it knows of no such key.
        const support::HeldKey shift(VK_SHIFT);
        support::releaseButton();
    }
    EXPECT_EQ(std::string::npos, owner.takeLog().find("moved"));
    support::moveMouse(at(209));
    EXPECT_EQ("moved 0.26-0.76", owner.takeLog());
}

TEST_F(BarUnderTheHand, TurnsWithTheWheelAndNotWithCtrl) {
    ::SetFocus(bar.m_hWnd);
    support::turnWheel(at(200), 120);
    EXPECT_EQ("moving 0.05 0.3-0.8", owner.takeLog());
    const support::HeldKey control(VK_CONTROL);
    support::turnWheel(at(200), 120);
    EXPECT_EQ("", owner.takeLog());
}

TEST(ScrollProcessorUnderTheHand, FollowsTheThumbFarPast65535) {
    constexpr int kDisplay = 1'000'000;
    support::moveMouse({5, 5});
    support::ScopedTopLevelWindow window{CSize(300, 400)};
    ScrollProcessor processor(&window);
    std::atomic<int> followedTo = 0;
    window.onMessage = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_VSCROLL) {
            processor.OnVScroll(LOWORD(wParam), HIWORD(wParam), nullptr);
            followedTo = ::GetScrollPos(window.m_hWnd, SB_VERT);
            return 0;
        }
        if (message == WM_SIZE) {
            processor.OnSize(0, 0, 0);
        }
        return std::nullopt;
    };
    processor.SetDisplaySize(100, kDisplay);
    window.activate();
    CRect client;
    window.GetClientRect(&client);
    const int x = client.right + ::GetSystemMetrics(SM_CXVSCROLL) / 2;
    const int arrow = ::GetSystemMetrics(SM_CYVSCROLL);
    CPoint from(x, arrow + 3);
    CPoint to(x, client.bottom / 2);
    window.ClientToScreen(&from);
    window.ClientToScreen(&to);
    // The bar tracks the thumb in a loop of its own, so the hand is on another thread.
    std::atomic<bool> done = false;
    std::thread hand([&] {
        support::moveMouse(from);
        support::pressButton();
        // A busy display's late word of an earlier place takes the thumb back: the hand holds it where it wants it.
        const auto end = Clock::now() + std::chrono::seconds(10);
        do {
            support::moveMouse(to);
            std::this_thread::sleep_for(milliseconds(50));
        } while (followedTo <= kDisplay / 3 && Clock::now() < end);
        support::releaseButton();
        done = true;
    });
    EXPECT_TRUE(support::pumpUntil([&] { return done.load(); }, std::chrono::seconds(20)));
    hand.join();
    support::pumpUntilIdle();
    const int position = ::GetScrollPos(window.m_hWnd, SB_VERT);
    EXPECT_GT(position, kDisplay / 3);
    EXPECT_LT(position, kDisplay * 2 / 3);
    window.onMessage = nullptr;
}
