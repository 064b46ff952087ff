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

TEST(MessageMap, AHandlerThatTheBaseInheritedIsFoundThroughTheDerivedClass) {
    class Inheriting : public DerivedWindow {
    } window;
    window.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 2));
    EXPECT_EQ("move:0:1,2", window.log.take());
}

namespace {

/// Counts how often its default handlers are reached, to see that an own number does not hide another message.
class TypedHandlers : public CWnd {
public:
    CallLog log;
    TypedHandlers() { CreateEx(0, nullptr, L"typed", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0); }

protected:
    afx_msg void OnSize(UINT nType, int cx, int cy) {
        log.add("size:" + std::to_string(nType) + ":" + std::to_string(cx) + "x" + std::to_string(cy));
    }
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt) {
        log.add("wheel:" + std::to_string(nFlags) + ":" + std::to_string(zDelta) + ":" + std::to_string(pt.x) + "," +
                std::to_string(pt.y));
        return FALSE;
    }
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags) {
        log.add("key:" + std::to_string(nChar) + ":" + std::to_string(nRepCnt) + ":" + std::to_string(nFlags));
    }
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar) {
        log.add("vscroll:" + std::to_string(nSBCode) + ":" + std::to_string(nPos) +
                (pScrollBar == nullptr ? ":own" : ":control"));
    }
    afx_msg void OnTimer(UINT_PTR nIDEvent) { log.add("timer:" + std::to_string(nIDEvent)); }
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message) {
        log.add(std::string("cursor:") + (pWnd == this ? "self:" : "other:") + std::to_string(nHitTest) + ":" +
                std::to_string(message));
        return TRUE;
    }
    afx_msg void OnContextMenu(CWnd* pWnd, CPoint pos) {
        log.add(std::string("menu:") + (pWnd == this ? "self:" : "other:") + std::to_string(pos.x) + "," +
                std::to_string(pos.y));
    }
    afx_msg void OnCaptureChanged(CWnd* pWnd) { log.add(pWnd == nullptr ? "capture:none" : "capture:other"); }
    afx_msg void OnSettingChange(UINT uFlags, LPCTSTR lpszSection) {
        log.add("setting:" + std::to_string(uFlags) + ":" + TestApplication::narrow(lpszSection));
    }
    afx_msg LRESULT OnNcHitTest(CPoint point) { return point.x < 0 ? HTLEFT : HTCLIENT; }
    afx_msg void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized) {
        log.add("activate:" + std::to_string(nState) + (pWndOther == nullptr ? ":none:" : ":other:") +
                std::to_string(bMinimized));
    }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO* lpMMI) { lpMMI->ptMinTrackSize = CPoint(77, 88); }
    afx_msg void OnMove(int x, int y) { log.add("move:" + std::to_string(x) + "," + std::to_string(y)); }
    afx_msg UINT OnGetDlgCode() { return DLGC_WANTARROWS; }
    afx_msg void OnMouseLeave() { log.add("leave"); }
    afx_msg void OnEnable(BOOL bEnable) { log.add("enable:" + std::to_string(bEnable)); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(TypedHandlers, CWnd)
    ON_WM_SIZE()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_VSCROLL()
    ON_WM_TIMER()
    ON_WM_SETCURSOR()
    ON_WM_CONTEXTMENU()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETTINGCHANGE()
    ON_WM_NCHITTEST()
    ON_WM_ACTIVATE()
    ON_WM_GETMINMAXINFO()
    ON_WM_MOVE()
    ON_WM_GETDLGCODE()
    ON_WM_MOUSELEAVE()
    ON_WM_ENABLE()
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, TypedEntriesDecodeTheParametersOfTheirMessage) {
    TypedHandlers window;
    const auto self = reinterpret_cast<WPARAM>(window.m_hWnd);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char* expected;
        LRESULT result;
    } cases[] = {
        {WM_SIZE, SIZE_MAXIMIZED, MAKELPARAM(640, 40000), "size:2:640x40000", 0},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), MAKELPARAM(-5, 6), "wheel:8:-120:-5,6", 0},
        {WM_KEYDOWN, VK_DOWN, MAKELPARAM(2, 0x150), "key:40:2:336", 0},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 40000), 0, "vscroll:5:40000:own", 0},
        {WM_VSCROLL, SB_LINEUP, static_cast<LPARAM>(self), "vscroll:0:0:control", 0},
        {WM_TIMER, 10011, 0, "timer:10011", 0},
        {WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), "cursor:self:1:512", 1},
        {WM_CONTEXTMENU, self, MAKELPARAM(-1, -1), "menu:self:-1,-1", 0},
        {WM_CAPTURECHANGED, 0, 0, "capture:none", 0},
        {WM_SETTINGCHANGE, 7, reinterpret_cast<LPARAM>(L"intl"), "setting:7:intl", 0},
        {WM_NCHITTEST, 0, MAKELPARAM(-1, 5), "", HTLEFT},
        {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0, "activate:2:none:1", 0},
        {WM_MOVE, 0, MAKELPARAM(-32, 16), "move:-32,16", 0},
        {WM_GETDLGCODE, 0, 0, "", DLGC_WANTARROWS},
        {WM_MOUSELEAVE, 0, 0, "leave", 0},
        {WM_ENABLE, TRUE, 0, "enable:1", 0},
    };
    window.log.take();
    for (const auto& one : cases) {
        EXPECT_EQ(one.result, window.SendMessage(one.message, one.wParam, one.lParam)) << one.expected;
        EXPECT_EQ(one.expected, window.log.take());
    }
    MINMAXINFO limits{};
    window.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    EXPECT_EQ(CPoint(77, 88), CPoint(limits.ptMinTrackSize));
}

namespace {

class Notified : public CWnd {
public:
    CallLog log;
    Notified() { CreateEx(0, nullptr, L"notified", WS_OVERLAPPEDWINDOW, CRect(0, 0, 100, 100), nullptr, 0); }

    LRESULT notify(HWND from, UINT code) {
        NMHDR header{from, static_cast<UINT_PTR>(::GetDlgCtrlID(from)), code};
        return SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

protected:
    void onClick(NMHDR* header, LRESULT* result) {
        log.add("click:" + std::to_string(header->idFrom));
        *result = 11;
    }
    void onRange(UINT id, NMHDR*, LRESULT* result) {
        log.add("range:" + std::to_string(id));
        *result = 12;
    }
    BOOL onTaken(UINT id, NMHDR*, LRESULT* result) {
        log.add("taken:" + std::to_string(id));
        *result = 13;
        return id == 5;
    }
    void onControl() { log.add("control"); }
    void onControlOf(UINT id) { log.add("controls:" + std::to_string(id)); }
    BOOL onExtended(UINT id) {
        log.add("extended:" + std::to_string(id));
        return FALSE;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Notified, CWnd)
    ON_NOTIFY(NM_CLICK, 1, &Notified::onClick)
    ON_NOTIFY_RANGE(NM_CLICK, 2, 3, &Notified::onRange)
    ON_NOTIFY_EX_RANGE(NM_CLICK, 4, 5, &Notified::onTaken)
    ON_EN_CHANGE(1, &Notified::onControl)
    ON_CONTROL_RANGE(EN_CHANGE, 2, 3, &Notified::onControlOf)
    ON_COMMAND_EX(9, &Notified::onExtended)
END_MESSAGE_MAP()

} // namespace

TEST(MessageMap, NotificationsAreFoundByCodeAndIdentifier) {
    Notified window;
    const struct {
        UINT id;
        UINT code;
        const char* expected;
        LRESULT result;
    } cases[] = {
        {1, NM_CLICK, "click:1", 11}, {1, NM_DBLCLK, "", 0},       {2, NM_CLICK, "range:2", 12},
        {3, NM_CLICK, "range:3", 12}, {4, NM_CLICK, "taken:4", 0}, {5, NM_CLICK, "taken:5", 13},
        {6, NM_CLICK, "", 0},
    };
    for (const auto& one : cases) {
        CWnd child;
        ASSERT_TRUE(child.Create(L"STATIC", L"", 0, CRect(0, 0, 10, 10), &window, one.id));
        EXPECT_EQ(one.result, window.notify(child.m_hWnd, one.code)) << one.id;
        EXPECT_EQ(one.expected, window.log.take());
    }
}

TEST(MessageMap, ANotificationWithoutASenderIsLeftToTheSystem) {
    Notified window;
    EXPECT_EQ(0, window.notify(nullptr, NM_CLICK));
    EXPECT_EQ("", window.log.take());
}

TEST(MessageMap, ControlCodesAreFoundByCodeAndIdentifier) {
    Notified window;
    CWnd child;
    ASSERT_TRUE(child.Create(L"STATIC", L"", 0, CRect(0, 0, 10, 10), &window, 1));
    const auto from = reinterpret_cast<LPARAM>(child.m_hWnd);
    for (const UINT id : {1U, 2U, 3U, 4U}) {
        window.SendMessage(WM_COMMAND, MAKEWPARAM(id, EN_CHANGE), from);
        window.SendMessage(WM_COMMAND, MAKEWPARAM(id, EN_UPDATE), from);
    }
    EXPECT_EQ("control controls:2 controls:3", window.log.take());
}

TEST(MessageMap, AnExtendedCommandHandlerMayDecline) {
    Notified window;
    EXPECT_FALSE(window.OnCmdMsg(9, CN_COMMAND, nullptr, nullptr));
    EXPECT_EQ("extended:9", window.log.take());
}

TEST(MessageMap, HandlerInformationNamesTheTargetWithoutCallingIt) {
    Notified window;
    AFX_CMDHANDLERINFO info{};
    EXPECT_TRUE(window.OnCmdMsg(9, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(&window, info.pTarget);
    EXPECT_EQ("", window.log.take());
}
