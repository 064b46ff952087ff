#include "test_windows.h"

#include <gtest/gtest.h>

namespace {

UINT S_registered = 0;

class BaseWindow : public CWnd {
public:
    CallLog log;

    BaseWindow() { CreateEx(0, nullptr, L"base", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0); }

protected:
    LRESULT onTest(WPARAM wParam, LPARAM lParam) {
        log.add("base:test");
        return static_cast<LRESULT>(wParam) + lParam;
    }
    LRESULT onOther(WPARAM, LPARAM) {
        log.add("base:other");
        return 1;
    }
    afx_msg void OnMouseMove(UINT nFlags, CPoint point) {
        log.add("move:" + std::to_string(nFlags) + ":" + std::to_string(point.x) + "," + std::to_string(point.y));
    }
    void onCommand() { log.add("base:command"); }
    void onCommandOf(UINT id) { log.add("base:command" + std::to_string(id)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BaseWindow, CWnd)
    ON_MESSAGE(testMessage, &BaseWindow::onTest)
    ON_MESSAGE(otherTestMessage, &BaseWindow::onOther)
    ON_WM_MOUSEMOVE()
    ON_COMMAND(7, &BaseWindow::onCommand)
    ON_COMMAND_RANGE(8, 9, &BaseWindow::onCommandOf)
END_MESSAGE_MAP()

class DerivedWindow : public BaseWindow {
protected:
    LRESULT onTest(WPARAM wParam, LPARAM lParam) {
        log.add("derived:test");
        return 10 * BaseWindow::onTest(wParam, lParam);
    }
    LRESULT onRegistered(WPARAM, LPARAM) {
        log.add("derived:registered");
        return 5;
    }
    LRESULT onSecondEntry(WPARAM, LPARAM) {
        log.add("derived:second");
        return 0;
    }
    void onCommand() { log.add("derived:command"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DerivedWindow, BaseWindow)
    ON_MESSAGE(testMessage, &DerivedWindow::onTest)
    ON_MESSAGE(testMessage, &DerivedWindow::onSecondEntry)
    ON_REGISTERED_MESSAGE(S_registered, &DerivedWindow::onRegistered)
    ON_COMMAND(7, &DerivedWindow::onCommand)
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, TheDerivedClassHandlesBeforeItsBaseAndTheFirstEntryOfAClassWins) {
    DerivedWindow window;
    EXPECT_EQ(50, window.SendMessage(testMessage, 2, 3));
    EXPECT_EQ("derived:test base:test", window.log.take());
}

TEST(MessageMap, WhatTheDerivedClassLeavesTheBaseHandles) {
    DerivedWindow window;
    EXPECT_EQ(1, window.SendMessage(otherTestMessage));
    EXPECT_EQ("base:other", window.log.take());
}

TEST(MessageMap, AMessageRegisteredAfterTheFirstDispatchFindsItsHandler) {
    DerivedWindow window;
    S_registered = RegisterWindowMessageW(L"ortin_mfc_core_tests_registered");
    EXPECT_EQ(5, window.SendMessage(S_registered));
    EXPECT_EQ("derived:registered", window.log.take());
    EXPECT_EQ(0, window.SendMessage(RegisterWindowMessageW(L"ortin_mfc_core_tests_unknown")));
    EXPECT_EQ("", window.log.take());
}

TEST(MessageMap, MouseCoordinatesAreSigned) {
    DerivedWindow window;
    window.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(-3, 40000));
    EXPECT_EQ("move:1:-3,-25536", window.log.take());
}

TEST(MessageMap, CommandsGoToTheMostDerivedHandlerOfTheirIdentifier) {
    DerivedWindow window;
    for (const UINT id : {7U, 8U, 9U, 10U}) {
        window.SendMessage(WM_COMMAND, id);
    }
    EXPECT_EQ("derived:command base:command8 base:command9", window.log.take());
}
