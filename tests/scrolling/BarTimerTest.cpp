// A held click in the track: its timers, by messages.

#include "BarFixture.h"

namespace {

std::string* timers = nullptr;

UINT_PTR WINAPI noteSetTimer(HWND, UINT_PTR id, UINT milliseconds, TIMERPROC) {
    *timers += "set " + std::to_string(id) + " " + std::to_string(milliseconds) + "; ";
    return id;
}

BOOL WINAPI noteKillTimer(HWND, UINT_PTR id) {
    *timers += "kill " + std::to_string(id) + "; ";
    return TRUE;
}

/// The window lies from 112 to 162. Timers are written down and fire when the test says so.
class HeldClick : public BarFixture {
protected:
    HeldClick() {
        timers = &m_timers;
        show(0.25, 0.375);
    }

    void tick(UINT_PTR id) { bar->SendMessage(WM_TIMER, id); }
    std::string takeTimers() { return std::exchange(m_timers, {}); }

private:
    std::string m_timers;
    const HMODULE m_framework = ::GetModuleHandleW(L"OrtinMfc.dll");
    const support::ImportPatch m_set{m_framework, "user32.dll", "SetTimer", &noteSetTimer};
    const support::ImportPatch m_kill{m_framework, "user32.dll", "KillTimer", &noteKillTimer};
};

} // namespace

TEST_F(HeldClick, StepsAtOnceThenAtItsSecondTickThenAtEachOne) {
    const ScopedKeys keys({VK_LBUTTON});
    point(400);
    press(400);
    EXPECT_EQ("moving 0.125 0.375-0.5", log());
    EXPECT_EQ("set 1 200; ", takeTimers());
    waits();
    tick(1);
    EXPECT_EQ("", log());
    EXPECT_EQ("", takeTimers());
    EXPECT_EQ("nothing", waits());
    tick(1);
    EXPECT_EQ("moving 0.125 0.5-0.625", log());
    EXPECT_EQ("kill 1; set 2 100; ", takeTimers());
    EXPECT_EQ("paint", waits());
    tick(2);
    EXPECT_EQ("moving 0.125 0.625-0.75", log());
    EXPECT_EQ("", takeTimers());
    EXPECT_EQ("paint", waits());
}

TEST_F(HeldClick, StopsWithTheThumbUnderTheCursor) {
    const ScopedKeys keys({VK_LBUTTON});
    point(300);
    press(300);
    paint();
    tick(1);
    for (int round = 0; round < 20; ++round) {
        tick(round == 0 ? 1 : 2);
        paint();
    }
    log();
    tick(2);
    EXPECT_EQ("moving 0 0.6575-0.7825", log()) << "from 275 to 325";
}

TEST_F(HeldClick, FollowsTheCursorToBothSides) {
    const ScopedKeys keys({VK_LBUTTON});
    press(400);
    paint();
    tick(1);
    log();
    point(10);
    tick(1);
    EXPECT_EQ("moving -0.125 0.25-0.375", log());
}

TEST_F(HeldClick, EndsAtTheTickThatSeesTheButtonUp) {
    point(400);
    press(400);
    log();
    takeTimers();
    tick(1);
    EXPECT_EQ("", takeTimers()) << "the first one looks at nothing";
    tick(1);
    EXPECT_EQ("kill 1; set 2 100; kill 2; ", takeTimers());
    EXPECT_EQ("", log());
    tick(2);
    EXPECT_EQ("kill 2; ", takeTimers());
}

TEST_F(HeldClick, HasNoTimersWithoutATrackUnderIt) {
    for (const int x : {100, 130, 170, 900}) {
        press(x);
        release(x);
        EXPECT_EQ("", takeTimers()) << x;
    }
}

TEST_F(HeldClick, LeavesOtherTimersAlone) {
    const ScopedKeys keys({VK_LBUTTON});
    point(400);
    press(400);
    log();
    takeTimers();
    for (const UINT_PTR id : {0U, 3U, 77U}) {
        tick(id);
    }
    EXPECT_EQ("", log());
    EXPECT_EQ("", takeTimers());
    tick(1);
    EXPECT_EQ("", log()) << "the first tick is still to be skipped";
}

TEST_F(HeldClick, LeavesToTheDefaultHandlingTheTicksThatMoveItAndThoseOfOthers) {
    {
        const ScopedKeys keys({VK_LBUTTON});
        point(400);
        press(400);
        tick(1);
        EXPECT_EQ("", bar->ticksLeft) << "skipped";
        tick(1);
        tick(2);
        tick(7);
        EXPECT_EQ("1; 2; 7; ", bar->ticksLeft);
    }
    tick(2);
    EXPECT_EQ("1; 2; 7; ", bar->ticksLeft) << "the button is up";
}

TEST_F(HeldClick, StartsAnewWithEachPress) {
    const ScopedKeys keys({VK_LBUTTON});
    point(400);
    press(400);
    tick(1);
    release(400);
    press(400);
    log();
    takeTimers();
    tick(1);
    EXPECT_EQ("", log());
    tick(1);
    EXPECT_NE("", log());
}
