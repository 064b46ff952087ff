// An object without a window: its operations fail, where the system would take a null handle for everybody's windows
// or for the thread.

#include "test_windows.h"

#include "support/ImportPatch.h"

#include <gtest/gtest.h>

namespace {

class NoWindow : public testing::Test {
protected:
    CWnd none;
};

int S_calls = 0;

BOOL WINAPI countInvalidateRect(HWND, const RECT*, BOOL) {
    return ++S_calls;
}
BOOL WINAPI countValidateRect(HWND, const RECT*) {
    return ++S_calls;
}
BOOL WINAPI countRedrawWindow(HWND, const RECT*, HRGN, UINT) {
    return ++S_calls;
}
BOOL WINAPI countLockWindowUpdate(HWND) {
    return ++S_calls;
}

} // namespace

TEST_F(NoWindow, IsNeitherInvalidatedNorRedrawnAndTheDesktopIsLeftAlone) {
    const auto framework = GetModuleHandleW(L"OrtinMfc.dll");
    const support::ImportPatch patches[] = {
        {framework, "USER32.dll", "InvalidateRect", &countInvalidateRect},
        {framework, "USER32.dll", "ValidateRect", &countValidateRect},
        {framework, "USER32.dll", "RedrawWindow", &countRedrawWindow},
        {framework, "USER32.dll", "LockWindowUpdate", &countLockWindowUpdate},
    };
    S_calls = 0;
    none.Invalidate();
    none.InvalidateRect(CRect(0, 0, 5, 5));
    none.InvalidateRgn(nullptr);
    none.ValidateRect(nullptr);
    EXPECT_FALSE(none.RedrawWindow());
    EXPECT_FALSE(none.LockWindowUpdate());
    EXPECT_EQ(0, S_calls);
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    frame.Invalidate();
    EXPECT_EQ(1, S_calls) << "the calls of a window are seen here";
}

TEST_F(NoWindow, PostsNothingToTheThread) {
    EXPECT_FALSE(none.PostMessage(testMessage));
    EXPECT_FALSE(none.SendNotifyMessage(testMessage, 0, 0));
    MSG message{};
    EXPECT_FALSE(PeekMessageW(&message, nullptr, testMessage, testMessage, PM_REMOVE));
}

TEST_F(NoWindow, HasNoTimerAndEndsNoneOfTheThread) {
    EXPECT_EQ(0U, none.SetTimer(3, 1000));
    const UINT_PTR ofThread = ::SetTimer(nullptr, 0, 60000, nullptr);
    ASSERT_NE(0U, ofThread);
    EXPECT_FALSE(none.KillTimer(ofThread));
    EXPECT_TRUE(::KillTimer(nullptr, ofThread)) << "it still ran";
}

TEST_F(NoWindow, TakesNeitherFocusNorCaptureFromAnother) {
    TestFrame frame;
    ASSERT_TRUE(frame.createHidden());
    frame.ShowWindow(SW_SHOW);
    frame.SetFocus();
    frame.SetCapture();
    ASSERT_EQ(&frame, CWnd::GetCapture());
    const HWND focus = ::GetFocus();
    EXPECT_EQ(nullptr, none.SetFocus());
    EXPECT_EQ(nullptr, none.SetCapture());
    EXPECT_EQ(nullptr, none.SetActiveWindow());
    EXPECT_EQ(focus, ::GetFocus());
    EXPECT_EQ(&frame, CWnd::GetCapture());
    ::ReleaseCapture();
}

TEST_F(NoWindow, GetsNoDeviceContextOfTheScreenAndNoWindowOfTheDesktop) {
    EXPECT_EQ(nullptr, none.GetDC());
    EXPECT_EQ(nullptr, none.GetDCEx(nullptr, DCX_CACHE));
    EXPECT_EQ(nullptr, none.GetWindowDC());
    EXPECT_EQ(nullptr, none.GetTopWindow());
}
