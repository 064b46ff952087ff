#include "support/Pump.h"
#include "support/TopLevelWindow.h"

#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace support {
namespace {

using namespace std::chrono_literals;

/// A host that writes down the numbers of the WM_APP messages that it sees, and on which road.
class RecordingHost : public ScopedTopLevelWindow {
public:
    RecordingHost() : ScopedTopLevelWindow(CSize(80, 60)) {}

    BOOL PreTranslateMessage(MSG* message) override {
        if (message->message >= WM_APP) {
            record += "translate" + std::to_string(message->message - WM_APP) + " ";
        }
        return message->message == WM_APP + 9;
    }

    std::string record;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message >= WM_APP && message < 0xC000) {
            record += "window" + std::to_string(message - WM_APP) + " ";
        }
        return ScopedTopLevelWindow::WindowProc(message, wParam, lParam);
    }
};

TEST(Pump, MessagesPassTheTranslationOfTheThreadBeforeTheWindow) {
    RecordingHost host;
    host.PostMessage(WM_APP + 1);
    host.PostMessage(WM_APP + 2);
    EXPECT_TRUE(pumpUntilIdle());
    EXPECT_EQ("translate1 window1 translate2 window2 ", host.record);
}

TEST(Pump, WhatTheTranslationTakesDoesNotReachTheWindow) {
    RecordingHost host;
    host.PostMessage(WM_APP + 9);
    EXPECT_TRUE(pumpUntilIdle());
    EXPECT_EQ("translate9 ", host.record);
}

TEST(Pump, AQueueThatIsNeverEmptyEndsAtTheLimit) {
    RecordingHost host;
    host.onMessage = [](UINT message, WPARAM, LPARAM) {
        return message == WM_PAINT ? std::optional<LRESULT>(0) : std::nullopt;
    };
    host.Invalidate();
    EXPECT_FALSE(pumpUntilIdle(200ms));
}

TEST(Pump, TheConditionIsSeenWithoutAnyMessage) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_TRUE(pumpUntil([&] { return std::chrono::steady_clock::now() - start > 100ms; }));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
}

TEST(Pump, MessagesOfAnotherThreadEndTheWait) {
    RecordingHost host;
    const HWND window = host;
    std::thread other([window] {
        std::this_thread::sleep_for(50ms);
        ::PostMessageW(window, WM_APP + 3, 0, 0);
    });
    EXPECT_TRUE(pumpUntil([&] { return host.record == "translate3 window3 "; }));
    other.join();
}

TEST(Pump, AConditionThatNeverHoldsEndsAtTheLimit) {
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(pumpUntil([] { return false; }, 100ms));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 100ms);
}

TEST(Pump, TimersFireWhileItRuns) {
    RecordingHost host;
    int fired = 0;
    host.onMessage = [&](UINT message, WPARAM, LPARAM) {
        fired += message == WM_TIMER ? 1 : 0;
        return std::optional<LRESULT>();
    };
    host.SetTimer(1, 20, nullptr);
    EXPECT_TRUE(pumpFor(300ms));
    host.KillTimer(1);
    EXPECT_GE(fired, 5);
    EXPECT_LE(fired, 16);
}

TEST(Pump, QuitEndsTheRunAndIsGone) {
    RecordingHost host;
    ::PostQuitMessage(3);
    EXPECT_FALSE(pumpUntilIdle());
    EXPECT_TRUE(pumpUntilIdle());
    ::PostQuitMessage(3);
    EXPECT_FALSE(pumpFor(1s));
    ::PostQuitMessage(3);
    EXPECT_FALSE(pumpUntil([] { return false; }));
}

} // namespace
} // namespace support
