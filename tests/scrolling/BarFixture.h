#pragma once

#include <functional>
#include <memory>
#include <string>

#include <OrtinControls/OrtinControls.h>
#include <gtest/gtest.h>

#include "support/Capture.h"
#include "support/ImportPatch.h"
#include "support/ScopedKeys.h"
#include "support/ScopedTheme.h"
#include "support/TopLevelWindow.h"

/// The pointer as the library reads it, moved by tests that send messages. One at a time.
class FakeCursor {
public:
    FakeCursor();
    FakeCursor(const FakeCursor&) = delete;
    FakeCursor& operator=(const FakeCursor&) = delete;

    static CPoint position; ///< screen

private:
    support::ImportPatch m_patch;
};

/// A host that writes down what it is told: "moving 0.01 0.26-0.76", "moved 0.26-0.76", "sizing ...", "sized ...".
class RecordingOwner : public AdvancedScroll::IScrollHandler {
public:
    void OnScrollChanged(AdvancedScroll::ChangeMessageInfo info) override;

    /// What was told since the last time, joined by "; ".
    std::string takeLog();

    /// Runs after a change was written down: this is where a host answers, or misbehaves.
    std::function<void(const AdvancedScroll::ChangeMessageInfo&)> onChange;
    AdvancedScroll::ChangeMessageInfo last{};

private:
    std::string m_log;
};

using support::ScopedKeys;
using support::ScopedTheme;

/// Tells whether its background was to be erased, and which ticks it left to the default handling.
class WatchedBar : public AdvancedScroll {
public:
    using AdvancedScroll::AdvancedScroll;

    bool erased = false;
    std::string ticksLeft;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

/// A bar of 424 x 24 pixels in a window: its track is 400 pixels, so that 4 pixels are a hundredth. Mouse and timers
/// come as messages. Points are client pixels.
class BarFixture : public testing::Test {
protected:
    static constexpr int kWidth = 424;
    static constexpr int kHeight = 24;

    BarFixture();
    ~BarFixture() override;

    void createBar();
    /// Sets the window, paints, and forgets.
    void show(double start, double end);
    void resize(int width, int height);

    void press(int x, int y = kMiddle, WPARAM flags = MK_LBUTTON) { send(WM_LBUTTONDOWN, flags, x, y); }
    void moveTo(int x, int y = kMiddle, WPARAM flags = 0) { send(WM_MOUSEMOVE, flags, x, y); }
    void dragTo(int x, int y = kMiddle) { moveTo(x, y, MK_LBUTTON); }
    void release(int x, int y = kMiddle, WPARAM flags = 0) { send(WM_LBUTTONUP, flags, x, y); }
    void doubleClick(int x, int y = kMiddle) { send(WM_LBUTTONDBLCLK, MK_LBUTTON, x, y); }
    LRESULT turnWheel(int delta);
    void send(UINT message, WPARAM flags, int x, int y);
    /// Where the pointer is for the library.
    void point(int x, int y = kMiddle);

    void paint();
    /// "nothing", "paint" or "erase and paint": what waits to be done. It is done then.
    std::string waits();
    bool hasCapture() const { return ::GetCapture() == bar->m_hWnd; }
    /// "arrow", "hand", "size", "other"
    static std::string cursor();
    std::string log() { return owner.takeLog(); }
    support::Pixels pixels() const { return support::Pixels::ofClient(bar->m_hWnd); }

    static constexpr int kMiddle = 12;

    support::ScopedTopLevelWindow host{CSize(600, 120)};
    FakeCursor fakeCursor;
    RecordingOwner owner;
    std::unique_ptr<WatchedBar> bar = std::make_unique<WatchedBar>(&owner);
};
