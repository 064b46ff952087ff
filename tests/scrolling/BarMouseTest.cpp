// What the mouse does to the bar, by messages.

#include "../scrolling_core/ReferenceBar.h"
#include "BarFixture.h"

namespace {

// A window from 0.25 to 0.75 lies from 112 to 312: the left edge is taken from 94 to 124, the thumb from 124 to 300,
// the right edge from 300 to 330.
class BarMouse : public BarFixture {
protected:
    BarMouse() { show(0.25, 0.75); }

    std::string m_told;

    /// What is dragged, told by what the next move says.
    std::string dragged() {
        log();
        dragTo(215);
        return log();
    }
};

} // namespace

TEST_F(BarMouse, ReachesAStaticControlBecauseItNotifies) {
    EXPECT_EQ(static_cast<DWORD>(SS_NOTIFY), bar->GetStyle() & SS_NOTIFY);
    EXPECT_EQ(HTCLIENT, bar->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(130, 130)));
}

TEST_F(BarMouse, MovesTheWindowByTheThumb) {
    press(200);
    EXPECT_EQ("", log());
    dragTo(204);
    EXPECT_EQ("moving 0.01 0.26-0.76", log());
    EXPECT_EQ("paint", waits());
    dragTo(196);
    EXPECT_EQ("moving -0.02 0.24-0.74", log());
    release(196);
    EXPECT_EQ("moved 0.24-0.74", log());
    EXPECT_FALSE(hasCapture());
    moveTo(250);
    EXPECT_EQ("", log());
}

TEST_F(BarMouse, MovesTheWindowAtMostToTheWall) {
    press(200);
    dragTo(400);
    EXPECT_EQ("moving 0.5 0.5-1", log());
    dragTo(410);
    EXPECT_EQ("moving 0.025 0.5-1", log()) << "the step that was asked for is told";
    dragTo(0);
    EXPECT_EQ("moving -1.025 0-0.5", log());
}

TEST_F(BarMouse, ChangesTheRangeByItsEdges) {
    press(100);
    dragTo(108);
    EXPECT_EQ("sizing 0.27-0.75", log());
    EXPECT_EQ("paint", waits());
    release(108);
    EXPECT_EQ("sized 0.27-0.75", log());
    EXPECT_FALSE(hasCapture());
    press(320);
    dragTo(312);
    release(312);
    EXPECT_EQ("sizing 0.27-0.73; sized 0.27-0.73", log());
}

TEST_F(BarMouse, StopsAnEdgeBesideTheOtherOne) {
    press(100);
    dragTo(400);
    EXPECT_EQ("sizing 0.745-0.75", log()) << "two pixels of 400";
    release(400);
    show(0.25, 0.75);
    press(320);
    dragTo(10);
    release(10);
    EXPECT_EQ("sizing 0.25-0.255; sized 0.25-0.255", log());
}

TEST_F(BarMouse, TakesAnEdgeAlongAgainOnceItIsBack) {
    press(110);
    dragTo(400);
    EXPECT_EQ("sizing 0.745-0.75", log());
    dragTo(311); // where the strip ended before it fell back; now it ends at 310
    EXPECT_EQ("sizing 0.745-0.75", log());
    dragTo(270);
    EXPECT_EQ("sizing 0.645-0.75", log());
}

TEST_F(BarMouse, StepsByThumbsInTheTrackAndTellsWhenItIsLetGo) {
    show(0.25, 0.5);
    press(350);
    EXPECT_EQ("moving 0.25 0.5-0.75", log());
    EXPECT_EQ("paint", waits());
    release(350);
    EXPECT_EQ("moved 0.5-0.75", log());
    press(50);
    EXPECT_EQ("moving -0.25 0.25-0.5", log());
    dragTo(20);
    dragTo(90);
    EXPECT_EQ("", log()) << "a press in the track drags nothing";
    release(90);
    EXPECT_EQ("moved 0.25-0.5", log());
}

TEST_F(BarMouse, CentresTheThumbWhereItIsPressedAboveIt) {
    press(232, 1);
    EXPECT_EQ("moving 0.05 0.3-0.8", log());
}

TEST_F(BarMouse, TakesNothingOutsideTheBar) {
    press(500);
    EXPECT_EQ("", log());
    EXPECT_FALSE(hasCapture());
    EXPECT_EQ("", dragged());
}

TEST_F(BarMouse, TakesNothingBeforeTheFirstPaint) {
    bar->DestroyWindow();
    bar = std::make_unique<WatchedBar>(&owner);
    ASSERT_TRUE(bar->Create(L"", WS_CHILD, CRect(20, 20, 444, 44), &host, 5));
    press(200);
    EXPECT_EQ("", log());
    EXPECT_EQ("", dragged());
}

TEST_F(BarMouse, HoldsTheCaptureWhileItIsOverTheBar) {
    EXPECT_FALSE(hasCapture());
    moveTo(5);
    EXPECT_TRUE(hasCapture());
    moveTo(-1);
    EXPECT_FALSE(hasCapture());
    moveTo(200);
    EXPECT_TRUE(hasCapture());
    moveTo(200, kHeight);
    EXPECT_FALSE(hasCapture());
}

TEST_F(BarMouse, HoldsTheCaptureOutsideWhileItDrags) {
    moveTo(200);
    press(200);
    dragTo(-50);
    EXPECT_TRUE(hasCapture());
    release(-50);
    EXPECT_FALSE(hasCapture());
}

TEST_F(BarMouse, TakesTheCaptureWithAPressThatCameWithoutAMove) {
    press(200);
    EXPECT_TRUE(hasCapture());
    EXPECT_EQ("hand", cursor());
}

TEST_F(BarMouse, KeepsTheCursorOfTheMoveBeforeAPressUntilTheNextMove) {
    // Narrow: at 206 the thumb goes first for the cursor, the left edge for the press.
    show(0.5, 0.5125);
    moveTo(213);
    EXPECT_EQ("hand", cursor());
    press(213);
    EXPECT_EQ("hand", cursor());
    dragTo(213);
    EXPECT_EQ("size", cursor());
}

TEST_F(BarMouse, ShowsWhatItIsOver) {
    struct Case {
        int x;
        int y;
        const char* cursor;
    };
    for (const Case& c :
         {Case{93, kMiddle, "arrow"}, Case{94, kMiddle, "size"}, Case{123, kMiddle, "size"}, Case{124, kMiddle, "hand"},
          Case{299, kMiddle, "hand"}, Case{300, kMiddle, "size"}, Case{329, kMiddle, "size"},
          Case{330, kMiddle, "arrow"}, Case{200, 1, "arrow"}, Case{200, kHeight, "arrow"}, Case{-3, 5, "arrow"}}) {
        ::SetCursor(nullptr);
        moveTo(c.x, c.y);
        EXPECT_EQ(c.cursor, cursor()) << c.x << ',' << c.y;
        ::SetCursor(nullptr);
        EXPECT_EQ(1, bar->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(bar->m_hWnd),
                                      MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
        EXPECT_EQ(c.cursor, cursor()) << c.x << ',' << c.y << " when asked";
    }
}

TEST_F(BarMouse, ForgetsAnEdgeThatReachesPastTheBarWhenItLeaves) {
    show(0.0, 1.0); // the left edge is taken from -6 on
    moveTo(-3);
    EXPECT_FALSE(hasCapture());
    ::SetCursor(nullptr);
    bar->SendMessage(WM_SETCURSOR, reinterpret_cast<WPARAM>(bar->m_hWnd), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    EXPECT_EQ("arrow", cursor());
}

TEST_F(BarMouse, ShowsWhatItDragsWhereverItIs) {
    press(200);
    dragTo(-100);
    EXPECT_EQ("hand", cursor());
    release(-100);
    show(0.25, 0.75);
    press(100);
    dragTo(200);
    EXPECT_EQ("size", cursor());
    release(200);
    show(0.25, 0.5);
    press(400);
    dragTo(200);
    EXPECT_EQ("arrow", cursor()) << "a press in the track, over the thumb";
}

TEST_F(BarMouse, IsRepaintedWhenItComesOverThumbOrEdgesAndWhenItLeavesThem) {
    moveTo(50);
    EXPECT_EQ("nothing", waits());
    moveTo(100);
    EXPECT_EQ("paint", waits());
    moveTo(200);
    EXPECT_EQ("nothing", waits());
    moveTo(320);
    EXPECT_EQ("nothing", waits());
    moveTo(350);
    EXPECT_EQ("paint", waits());
}

TEST_F(BarMouse, IsNotRepaintedByAPressAndAReleaseAlone) {
    moveTo(200);
    waits();
    press(200);
    EXPECT_EQ("nothing", waits());
    release(200);
    EXPECT_EQ("nothing", waits());
}

TEST_F(BarMouse, GoesOnDraggingWhereTheReleaseCameWithAKeyHeld) {
    press(200);
    release(200, kMiddle, MK_SHIFT);
    EXPECT_EQ("moving 0 0.25-0.75", log());
    moveTo(204, kMiddle, MK_CONTROL);
    EXPECT_EQ("moving 0.01 0.26-0.76", log());
    moveTo(208);
    EXPECT_EQ("moved 0.26-0.76", log());
    EXPECT_FALSE(hasCapture());
}

TEST_F(BarMouse, EndsADragWhoseReleaseNobodySaw) {
    press(100);
    ::ReleaseCapture();
    moveTo(180);
    EXPECT_EQ("sized 0.25-0.75", log());
    moveTo(190);
    EXPECT_EQ("", log());
}

TEST_F(BarMouse, TakesBackTheCaptureThatItLostInADragAndGoesOn) {
    press(200);
    ::SetCapture(host);
    EXPECT_EQ("", log());
    dragTo(204);
    EXPECT_EQ("moving 0.01 0.26-0.76", log());
    EXPECT_TRUE(hasCapture());
    release(204);
    EXPECT_EQ("moved 0.26-0.76", log());
}

TEST_F(BarMouse, GoesOnFromTheEdgeOfTheBarWhenItComesBack) {
    press(200);
    dragTo(900);
    log();
    dragTo(420);
    EXPECT_EQ("moving -0.01 0.49-0.99", log()) << "from 424, not from 900";
    dragTo(-900);
    log();
    dragTo(4);
    EXPECT_EQ("moving 0.01 0.01-0.51", log());
}

TEST_F(BarMouse, TogglesTheWholeRangeByADoubleClick) {
    for (const int x : {100, 200, 320}) {
        show(0.25, 0.75);
        doubleClick(x);
        EXPECT_EQ("sized 0-1", log()) << x;
        bar->SetCurrent(0.0, 1.0);
        paint();
        doubleClick(x);
        EXPECT_EQ("sized 0.25-0.75", log()) << x;
    }
    show(0.25, 0.75);
    doubleClick(50);
    doubleClick(200, 1);
    doubleClick(500);
    EXPECT_EQ("", log()) << "outside thumb and edges";
}

TEST_F(BarMouse, StaysWholeByADoubleClickWhereThereWasNoOtherWindow) {
    show(0.0, 1.0);
    doubleClick(200);
    doubleClick(200);
    EXPECT_EQ("sized 0-1; sized 0-1", log());
}

TEST_F(BarMouse, EndsADragByADoubleClick) {
    press(200);
    doubleClick(200);
    EXPECT_EQ("sized 0-1", log());
    EXPECT_FALSE(hasCapture());
    EXPECT_EQ("", dragged());
}

TEST_F(BarMouse, MovesByATenthOfTheWindowANotch) {
    EXPECT_EQ(1, turnWheel(120));
    EXPECT_EQ("moving 0.05 0.3-0.8", log());
    EXPECT_EQ(1, turnWheel(-360));
    EXPECT_EQ("moving -0.15 0.15-0.65", log());
    EXPECT_EQ(1, turnWheel(239));
    EXPECT_EQ("moving 0.05 0.2-0.7", log()) << "whole notches only";
    EXPECT_EQ("nothing", waits()) << "the host answers";
}

TEST_F(BarMouse, MovesNothingByLessThanANotch) {
    for (const int delta : {60, -60, 119, -119, 0}) {
        EXPECT_EQ(1, turnWheel(delta));
        EXPECT_EQ("moving 0 0.25-0.75", log()) << delta;
    }
}

TEST_F(BarMouse, LeavesTheWheelToOthersWhileCtrlIsHeld) {
    std::string parentSaw;
    host.onMessage = [&](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
        if (message != WM_MOUSEWHEEL) {
            return std::nullopt;
        }
        parentSaw += "wheel " + std::to_string(GET_WHEEL_DELTA_WPARAM(wParam)) + "; ";
        return 17;
    };
    {
        const ScopedKeys keys({VK_CONTROL});
        EXPECT_EQ(17, turnWheel(120)) << "the default handling asks the parent";
    }
    EXPECT_EQ("", log());
    EXPECT_EQ("wheel 120; ", parentSaw);
    turnWheel(120);
    EXPECT_EQ("moving 0.05 0.3-0.8", log());
    EXPECT_EQ("wheel 120; ", parentSaw);
}

TEST_F(BarMouse, MovesWithTheWheelThatTheHostReceivedWhateverIsHeld) {
    const ScopedKeys keys({VK_CONTROL});
    bar->MoveZoomOnWheel(120);
    EXPECT_EQ("moving 0.05 0.3-0.8", log());
    bar->MoveZoomOnWheel(-32768);
    EXPECT_EQ("moving -13.65 0-0.5", log());
}

TEST_F(BarMouse, AgreesWithTheReferenceOverRandomGestures) {
    // Flags as they come: nothing, the button, and now and then the button's release with a key held.
    constexpr unsigned kFlags[] = {0, MK_LBUTTON, MK_LBUTTON, MK_LBUTTON, MK_SHIFT, MK_LBUTTON | MK_CONTROL};
    constexpr int kWheel[] = {120, -120, 60, 600, -3000};
    unsigned seed = 520;
    const auto below = [&seed](int limit) {
        seed = seed * 1664525 + 1013904223;
        return static_cast<int>((seed >> 8) % static_cast<unsigned>(limit));
    };
    ReferenceBar reference(kWidth, kHeight);
    reference.set(0.25, 0.75);
    owner.onChange = [&](const AdvancedScroll::ChangeMessageInfo& info) {
        m_told += describeChange(info.type, info.start, info.end, info.delta);
    };
    CSize size(kWidth, kHeight);
    for (int step = 0; step < 3000; ++step) {
        const int x = below(size.cx + 120) - 60;
        const int y = below(4) == 0 ? below(size.cy) : size.cy / 2;
        const unsigned flags = kFlags[below(6)];
        switch (below(40)) {
        case 0:
            size = CSize(1 + below(520), 1 + below(65));
            bar->MoveWindow(20, 20, size.cx, size.cy);
            reference.resize(size.cx, size.cy);
            break;
        case 1:
            doubleClick(x, y);
            reference.doubleClick(x, y);
            break;
        case 2: {
            const int delta = kWheel[below(5)];
            turnWheel(delta);
            reference.turnWheel(delta);
            break;
        }
        case 3:
        case 4:
        case 5:
        case 6:
            press(x, y);
            reference.press(x, y);
            break;
        case 7:
        case 8:
            release(x, y, flags);
            reference.release(flags, x, y);
            break;
        default:
            moveTo(x, y, flags);
            reference.move(flags, x, y);
            break;
        }
        paint();
        reference.layOut();
        ASSERT_EQ(reference.takeLog(), std::exchange(m_told, {})) << "step " << step;
        ASSERT_GE(reference.start, 0.0);
        ASSERT_LE(reference.end, 1.0);
        ASSERT_GT(reference.end, reference.start);
    }
}
