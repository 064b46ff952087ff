#include "test_windows.h"

#include "support/ImportPatch.h"

#include <gtest/gtest.h>

namespace {

class Operations : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.createHidden());
        ASSERT_TRUE(child.Create(nullptr, L"child", WS_CHILD | WS_VISIBLE, CRect(20, 30, 120, 80), &frame, 9));
    }
    TestFrame frame;
    TestFrame child;
};

} // namespace

TEST_F(Operations, PointsAndRectanglesMoveBetweenWindowsAndScreen) {
    CPoint origin(0, 0);
    child.ClientToScreen(&origin);
    CRect window;
    child.GetWindowRect(&window);
    EXPECT_EQ(window.TopLeft(), origin);
    child.ScreenToClient(&window);
    EXPECT_EQ(CRect(0, 0, 100, 50), window);
    child.ClientToScreen(&window);
    EXPECT_EQ(origin, window.TopLeft());
    CRect inFrame(0, 0, 10, 10);
    child.MapWindowPoints(&frame, &inFrame);
    EXPECT_EQ(CRect(20, 30, 30, 40), inFrame);
    CPoint onScreen(1, 2);
    child.MapWindowPoints(nullptr, &onScreen, 1);
    EXPECT_EQ(origin + CSize(1, 2), onScreen);
}

TEST_F(Operations, PlaceAndSizeFollowTheCalls) {
    const auto place = [&] {
        CRect window;
        child.GetWindowRect(&window);
        frame.ScreenToClient(&window);
        return window;
    };
    child.MoveWindow(1, 2, 30, 40);
    EXPECT_EQ(CRect(1, 2, 31, 42), place());
    child.MoveWindow(CRect(5, 6, 10, 20));
    EXPECT_EQ(CRect(5, 6, 10, 20), place());
    EXPECT_TRUE(child.SetWindowPos(nullptr, 7, 8, 9, 10, SWP_NOZORDER));
    EXPECT_EQ(CRect(7, 8, 16, 18), place());
    child.MoveWindow(0, 0, 100, 50);
    child.CenterWindow();
    CRect client;
    frame.GetClientRect(&client);
    EXPECT_EQ((client.Width()) / 2 - 50, place().left);
    EXPECT_EQ((client.Height()) / 2 - 25, place().top);
}

TEST_F(Operations, TheOrderOfWindowsFollowsThePlaceThatIsNamed) {
    CWnd second;
    ASSERT_TRUE(second.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &frame, 10));
    EXPECT_TRUE(second.SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_EQ(&second, frame.GetTopWindow());
    EXPECT_TRUE(second.SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
    EXPECT_EQ(&child, frame.GetTopWindow());
    EXPECT_EQ(&second, child.GetWindow(GW_HWNDNEXT));
}

TEST_F(Operations, TextsOfAnyLengthComeBack) {
    for (const int length : {0, 1, 255, 256, 5000}) {
        const CString text(L'ż', length);
        child.SetWindowText(text);
        CString back = L"old";
        child.GetWindowText(back);
        EXPECT_EQ(text, back) << length;
        EXPECT_EQ(length, child.GetWindowTextLength());
    }
    frame.SetDlgItemText(9, L"by id");
    CString back;
    EXPECT_EQ(5, frame.GetDlgItemText(9, back));
    EXPECT_STREQ(L"by id", back);
    EXPECT_EQ(0, frame.GetDlgItemText(1234, back));
    EXPECT_TRUE(back.IsEmpty());
}

TEST_F(Operations, StylesTellWhetherTheyChanged) {
    EXPECT_TRUE(child.ModifyStyle(0, WS_BORDER));
    EXPECT_NE(0U, child.GetStyle() & WS_BORDER);
    EXPECT_FALSE(child.ModifyStyle(0, WS_BORDER));
    EXPECT_TRUE(child.ModifyStyle(WS_BORDER, 0, SWP_FRAMECHANGED));
    EXPECT_EQ(0U, child.GetStyle() & WS_BORDER);
    EXPECT_TRUE(child.ModifyStyleEx(0, WS_EX_CLIENTEDGE, SWP_FRAMECHANGED));
    CRect client;
    child.GetClientRect(&client);
    EXPECT_LT(client.Width(), 100);
}

TEST_F(Operations, RelativesAreFound) {
    EXPECT_EQ(&frame, child.GetParent());
    EXPECT_EQ(&frame, child.GetTopLevelParent());
    EXPECT_EQ(&frame, child.GetOwner());
    TestFrame owner;
    ASSERT_TRUE(owner.createHidden());
    child.SetOwner(&owner);
    EXPECT_EQ(&owner, child.GetOwner());
    child.SetOwner(nullptr);
    EXPECT_EQ(&frame, child.GetOwner());
    EXPECT_TRUE(frame.IsChild(&child));
    EXPECT_FALSE(child.IsChild(&frame));
    EXPECT_FALSE(frame.IsChild(nullptr));
    EXPECT_EQ(&child, frame.GetDlgItem(9));
    EXPECT_EQ(nullptr, frame.GetDlgItem(10));
    CWnd grandchild;
    ASSERT_TRUE(grandchild.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &child, 77));
    EXPECT_EQ(nullptr, frame.GetDlgItem(77));
    EXPECT_EQ(&grandchild, frame.GetDescendantWindow(77));
    EXPECT_EQ(9, child.SetDlgCtrlID(12));
    EXPECT_EQ(12, child.GetDlgCtrlID());
    EXPECT_EQ(&frame, grandchild.SetParent(&frame) == &child ? grandchild.GetParent() : nullptr);
}

TEST_F(Operations, ScrollPositionsRangesAndPagesComeBack) {
    TestFrame scrolled;
    ASSERT_TRUE(scrolled.createHidden(WS_OVERLAPPEDWINDOW | WS_VSCROLL));
    SCROLLINFO wanted{};
    wanted.fMask = SIF_ALL;
    wanted.nMax = 99;
    wanted.nPage = 10;
    wanted.nPos = 30;
    EXPECT_TRUE(scrolled.SetScrollInfo(SB_VERT, &wanted));
    EXPECT_EQ(30, scrolled.GetScrollPos(SB_VERT));
    EXPECT_EQ(90, scrolled.GetScrollLimit(SB_VERT));
    EXPECT_EQ(30, scrolled.SetScrollPos(SB_VERT, 1000));
    EXPECT_EQ(90, scrolled.GetScrollPos(SB_VERT));
    SCROLLINFO got{};
    EXPECT_TRUE(scrolled.GetScrollInfo(SB_VERT, &got, SIF_PAGE | SIF_RANGE));
    EXPECT_EQ(10U, got.nPage);
    EXPECT_EQ(99, got.nMax);
    EXPECT_EQ(0, got.nPos);
    scrolled.SetScrollRange(SB_VERT, 5, 50);
    int lowest = 0;
    int highest = 0;
    scrolled.GetScrollRange(SB_VERT, &lowest, &highest);
    EXPECT_EQ(5, lowest);
    EXPECT_EQ(50, highest);
    scrolled.ShowScrollBar(SB_VERT, FALSE);
    EXPECT_EQ(0U, scrolled.GetStyle() & WS_VSCROLL);
}

TEST_F(Operations, AScrollBarControlStandsForTheBarOfItsWindow) {
    class WithControl : public TestFrame {
    public:
        CScrollBar bar;
        CScrollBar* GetScrollBarCtrl(int nBar) const override {
            return nBar == SB_VERT ? const_cast<CScrollBar*>(&bar) : nullptr;
        }
    } window;
    ASSERT_TRUE(window.createHidden());
    ASSERT_TRUE(window.bar.Create(SBS_VERT, CRect(0, 0, 20, 100), &window, 3));
    window.SetScrollRange(SB_VERT, 0, 20);
    window.SetScrollPos(SB_VERT, 13);
    EXPECT_EQ(13, window.bar.GetScrollPos());
    EXPECT_EQ(13, window.GetScrollPos(SB_VERT));
    window.EnableScrollBarCtrl(SB_VERT, FALSE);
    EXPECT_FALSE(window.bar.IsWindowEnabled());
}

TEST_F(Operations, InvalidPartsAreKnownUntilTheyAreValidated) {
    frame.SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    frame.RedrawWindow(nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
    EXPECT_FALSE(child.GetUpdateRect(nullptr));
    child.InvalidateRect(CRect(3, 4, 13, 24));
    CRect update;
    EXPECT_TRUE(child.GetUpdateRect(&update));
    EXPECT_EQ(CRect(3, 4, 13, 24), update);
    child.ValidateRect(nullptr);
    EXPECT_FALSE(child.GetUpdateRect(nullptr));
    child.SetRedraw(FALSE);
    child.Invalidate();
    EXPECT_FALSE(child.GetUpdateRect(nullptr));
    child.SetRedraw(TRUE);
    child.Invalidate(FALSE);
    EXPECT_TRUE(child.GetUpdateRect(nullptr));
}

TEST_F(Operations, TheDeviceOfAWindowIsReleasedOnce) {
    CDC* device = child.GetDC();
    ASSERT_NE(nullptr, device);
    EXPECT_EQ(&child, device->GetWindow());
    EXPECT_EQ(1, child.ReleaseDC(device));
    CDC* whole = child.GetWindowDC();
    EXPECT_EQ(1, child.ReleaseDC(whole));
}

TEST_F(Operations, AFontThatWasSetComesBack) {
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
    CStatic label;
    ASSERT_TRUE(label.Create(L"", 0, CRect(0, 0, 5, 5), &frame));
    label.SetFont(&font);
    EXPECT_EQ(&font, label.GetFont());
    label.SetFont(nullptr);
    EXPECT_EQ(nullptr, label.GetFont());
}

TEST_F(Operations, VisibilityEnablingAndCaptureFollowTheCalls) {
    EXPECT_FALSE(frame.IsWindowVisible());
    frame.ShowWindow(SW_SHOWNOACTIVATE);
    EXPECT_TRUE(child.IsWindowVisible());
    EXPECT_FALSE(child.EnableWindow(FALSE));
    EXPECT_FALSE(child.IsWindowEnabled());
    EXPECT_TRUE(child.EnableWindow(TRUE));
    child.SetCapture();
    EXPECT_EQ(&child, CWnd::GetCapture());
    ReleaseCapture();
    EXPECT_EQ(nullptr, CWnd::GetCapture());
}

TEST_F(Operations, TimersComeAsMessagesUntilTheyAreKilled) {
    int ticks = 0;
    frame.handler = [&](UINT message, WPARAM wParam, LPARAM, LRESULT&) {
        ticks += message == WM_TIMER && wParam == 5 ? 1 : 0;
        return false;
    };
    EXPECT_EQ(5U, frame.SetTimer(5, 10));
    while (ticks == 0) {
        AfxPumpMessage();
    }
    EXPECT_TRUE(frame.KillTimer(5));
    EXPECT_FALSE(frame.KillTimer(5));
}

TEST_F(Operations, AToolUnderThePointIsTheChildThere) {
    TOOLINFO tool{};
    tool.cbSize = sizeof(tool);
    frame.ShowWindow(SW_SHOWNOACTIVATE);
    EXPECT_EQ(9, frame.OnToolHitTest(CPoint(25, 35), &tool));
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(child.m_hWnd), tool.uId);
    EXPECT_EQ(-1, frame.OnToolHitTest(CPoint(1, 1), &tool));
}

TEST_F(Operations, WindowClassesOfTheSamePropertiesAreOne) {
    const HCURSOR hand = ::LoadCursorW(nullptr, IDC_HAND);
    const CString name = AfxRegisterWndClass(CS_DBLCLKS, hand);
    EXPECT_EQ(name, CString(AfxRegisterWndClass(CS_DBLCLKS, hand)));
    EXPECT_NE(name, CString(AfxRegisterWndClass(0, hand)));
    WNDCLASSW known{};
    ASSERT_TRUE(GetClassInfoW(AfxGetInstanceHandle(), name, &known));
    EXPECT_EQ(hand, known.hCursor);
    TestFrame window;
    EXPECT_TRUE(window.CreateEx(0, name, L"", WS_POPUP, CRect(0, 0, 5, 5), nullptr, 0));
}

namespace {

BOOL WINAPI knowNoClass(HINSTANCE, LPCWSTR, WNDCLASSW*) {
    return FALSE;
}

ATOM WINAPI failToRegister(const WNDCLASSW*) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return 0;
}

} // namespace

TEST_F(Operations, AWindowClassThatAnotherThreadRegistersMeanwhileIsRegisteredAllTheSame) {
    WNDCLASSW wanted{};
    wanted.lpfnWndProc = &::DefWindowProcW;
    wanted.hInstance = AfxGetInstanceHandle();
    wanted.lpszClassName = L"two threads want it";
    ASSERT_TRUE(AfxRegisterClass(&wanted));
    const support::ImportPatch patch(GetModuleHandleW(L"OrtinMfc.dll"), "USER32.dll", "GetClassInfoW", &knowNoClass);
    EXPECT_TRUE(AfxRegisterClass(&wanted));
    const support::ImportPatch failing(GetModuleHandleW(L"OrtinMfc.dll"), "USER32.dll", "RegisterClassW",
                                       &failToRegister);
    EXPECT_FALSE(AfxRegisterClass(&wanted)) << "what fails for another reason still fails";
}

TEST_F(Operations, AWindowLessObjectGetsTheSystemsAnswerForANullHandle) {
    CWnd nothing;
    EXPECT_EQ(nullptr, nothing.GetSafeHwnd());
    EXPECT_EQ(nullptr, nothing.GetParent());
    EXPECT_EQ(nullptr, nothing.GetDlgItem(1));
    EXPECT_FALSE(nothing.IsWindowVisible());
    EXPECT_EQ(0, nothing.SendMessage(testMessage));
    CString text = L"old";
    nothing.GetWindowText(text);
    EXPECT_TRUE(text.IsEmpty());
}
