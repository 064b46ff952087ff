#include <gtest/gtest.h>

#include <string>
#include <utility>

#include <OrtinControls/CtrlsTools.h>

#include "support/ImportPatch.h"
#include "support/Pump.h"
#include "support/TopLevelWindow.h"

namespace {

constexpr int kChild = 42;
constexpr int kMissing = 43;

/// A child that counts what is done to its place.
class CountingChild : public CWnd {
public:
    int placed = 0;
    int frames = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        placed += message == WM_WINDOWPOSCHANGING ? 1 : 0;
        frames += message == WM_NCCALCSIZE ? 1 : 0;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class DialogTools : public testing::Test {
protected:
    DialogTools() {
        child.Create(nullptr, L"before", WS_CHILD | WS_VISIBLE, CRect(20, 30, 61, 50), &parent, kChild);
        support::pumpUntilIdle();
    }

    CRect childRect() const {
        CRect rect;
        child.GetWindowRect(&rect);
        parent.ScreenToClient(&rect);
        return rect;
    }

    std::wstring childText() const {
        CString text;
        child.GetWindowText(text);
        return text.GetString();
    }

    support::ScopedTopLevelWindow parent{CSize(300, 200)};
    CountingChild child;
};

/// Writes down what the framework asks the system for a window's place, and does nothing of it.
class PlaceCalls {
public:
    static constexpr BOOL kResult = 5;

    PlaceCalls() { S_calls.clear(); }
    static std::string take() { return std::exchange(S_calls, {}); }

private:
    static void note(const std::string& call, int x, int y, int width, int height) {
        S_calls += call + ' ' + std::to_string(x) + ',' + std::to_string(y) + ' ' + std::to_string(width) + 'x' +
                   std::to_string(height);
    }
    static BOOL WINAPI setPos(HWND window, HWND after, int x, int y, int width, int height, UINT flags) {
        note(after == nullptr               ? "top"
             : after == ::GetParent(window) ? "after the parent"
                                            : "after?",
             x, y, width, height);
        S_calls += ' ' + std::to_string(flags);
        return kResult;
    }
    static BOOL WINAPI move(HWND, int x, int y, int width, int height, BOOL repaint) {
        note("move", x, y, width, height);
        S_calls += repaint == TRUE ? " repaint" : "";
        return TRUE;
    }

    inline static std::string S_calls;

    HMODULE m_framework = ::GetModuleHandleW(L"OrtinMfc.dll");
    support::ImportPatch m_setPos{m_framework, "user32.dll", "SetWindowPos", setPos};
    support::ImportPatch m_move{m_framework, "user32.dll", "MoveWindow", move};
};

std::string show(const CRect& rect) {
    return std::to_string(rect.left) + ':' + std::to_string(rect.top) + '-' + std::to_string(rect.right) + ':' +
           std::to_string(rect.bottom);
}

} // namespace

TEST_F(DialogTools, EnableAndDisableAChild) {
    CtrlsTools::EnableWindow(&parent, kChild, FALSE);
    EXPECT_FALSE(child.IsWindowEnabled());
    CtrlsTools::EnableWindow(&parent, kChild, TRUE);
    EXPECT_TRUE(child.IsWindowEnabled());
}

TEST_F(DialogTools, ShowAndHideAChild) {
    EXPECT_TRUE(CtrlsTools::IsWindowVisible(&parent, kChild));
    CtrlsTools::ShowWindow(&parent, kChild, SW_HIDE);
    EXPECT_FALSE(child.IsWindowVisible());
    EXPECT_FALSE(CtrlsTools::IsWindowVisible(&parent, kChild));
    CtrlsTools::ShowWindow(&parent, kChild, SW_SHOW);
    EXPECT_TRUE(CtrlsTools::IsWindowVisible(&parent, kChild));
    parent.ShowWindow(SW_HIDE);
    EXPECT_FALSE(CtrlsTools::IsWindowVisible(&parent, kChild)) << "in a hidden parent";
}

TEST_F(DialogTools, SetTheTextOfAChild) {
    CtrlsTools::SetWindowTextW(&parent, kChild, L"Zażółć");
    EXPECT_EQ(L"Zażółć", childText());
}

TEST_F(DialogTools, BearMissingWindows) {
    for (CWnd* const wnd : {static_cast<CWnd*>(nullptr), static_cast<CWnd*>(&parent)}) {
        const int id = wnd == nullptr ? kChild : kMissing;
        CtrlsTools::EnableWindow(wnd, id, FALSE);
        CtrlsTools::ShowWindow(wnd, id, SW_HIDE);
        CtrlsTools::SetWindowTextW(wnd, id, L"x");
        CtrlsTools::MoveCenterXControl(wnd, id, 5);
        EXPECT_FALSE(CtrlsTools::IsWindowVisible(wnd, id));
    }
    EXPECT_TRUE(child.IsWindowEnabled());
    EXPECT_TRUE(child.IsWindowVisible());
    EXPECT_EQ(L"before", childText());
    EXPECT_EQ(0, CtrlsTools::SetWindowPos(nullptr, nullptr, CRect(0, 0, 1, 1), 0));
    CtrlsTools::RecalculateCtrlArea(nullptr);
    CWnd noHandle;
    CtrlsTools::RecalculateCtrlArea(&noHandle);
    EXPECT_EQ("0:0-0:0", show(CtrlsTools::GetWindowRectangle(nullptr, &parent)));
    EXPECT_EQ("0:0-0:0", show(CtrlsTools::GetWindowRectangle(&noHandle, &parent)));
    EXPECT_EQ("0:0-0:0", show(CtrlsTools::GetClientRectangle(nullptr)));
    EXPECT_EQ("0:0-0:0", show(CtrlsTools::GetClientRectangle(&noHandle)));
}

TEST_F(DialogTools, CentreAChildAndKeepItsTopAndSize) {
    struct Case {
        const char* what;
        int centerX;
        const char* rect;
        int moves;
    };
    // The child reaches from 20 to 61: its centre is 40, rounded down.
    const Case cases[] = {
        {"it is there", 40, "20:30-61:50", 0},
        {"to the right", 41, "21:30-62:50", 1},
        {"far away", 200, "180:30-221:50", 1},
        {"past the left edge", -10, "-30:30-11:50", 1},
    };
    for (const Case& c : cases) {
        child.MoveWindow(20, 30, 41, 20);
        child.placed = 0;
        CtrlsTools::MoveCenterXControl(&parent, kChild, c.centerX);
        EXPECT_EQ(c.rect, show(childRect())) << c.what;
        EXPECT_EQ(c.moves, child.placed) << c.what;
    }
}

TEST_F(DialogTools, PlaceAWindowByARectangle) {
    EXPECT_NE(0, CtrlsTools::SetWindowPos(&child, nullptr, CRect(7, 8, 57, 68), SWP_NOZORDER));
    EXPECT_EQ("7:8-57:68", show(childRect()));
    EXPECT_NE(0, CtrlsTools::SetWindowPos(&child, &CWnd::wndTop, CRect(1, 2, 3, 4), SWP_NOSIZE));
    EXPECT_EQ("1:2-51:62", show(childRect()));
}

TEST_F(DialogTools, AskTheSystemForNothingElse) {
    const PlaceCalls calls;
    EXPECT_EQ(PlaceCalls::kResult, CtrlsTools::SetWindowPos(&child, &parent, CRect(7, 8, 57, 68), 0x8123));
    EXPECT_EQ("after the parent 7,8 50x60 33059", calls.take());
    EXPECT_EQ(PlaceCalls::kResult, CtrlsTools::SetWindowPos(&child, nullptr, CRect(9, 8, 7, 6), 0));
    EXPECT_EQ("top 9,8 -2x-2 0", calls.take());
    CtrlsTools::RecalculateCtrlArea(&child);
    EXPECT_EQ("top 0,0 0x0 39", calls.take());
    CtrlsTools::MoveCenterXControl(&parent, kChild, 40); // where it is
    EXPECT_EQ("", calls.take());
    CtrlsTools::MoveCenterXControl(&parent, kChild, 39);
    EXPECT_EQ("move 19,30 41x20 repaint", calls.take());
}

TEST_F(DialogTools, TellRectanglesOnTheScreenAndInAWindow) {
    CRect screen;
    child.GetWindowRect(&screen);
    EXPECT_EQ("20:30-61:50", show(CtrlsTools::GetWindowRectangle(&child, &parent)));
    EXPECT_EQ(show(screen), show(CtrlsTools::GetWindowRectangle(&child, nullptr)));
    CWnd noHandle;
    EXPECT_EQ(show(screen), show(CtrlsTools::GetWindowRectangle(&child, &noHandle)));
    EXPECT_EQ(show(screen), show(CtrlsTools::GetClientRectangle(&child)));
}

TEST_F(DialogTools, KnowDescendantsAtAnyDepth) {
    CWnd grandchild;
    grandchild.Create(nullptr, L"", WS_CHILD, CRect(0, 0, 5, 5), &child, 1);
    support::ScopedTopLevelWindow stranger(CSize(50, 50));
    const HWND owned =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, parent.m_hWnd, nullptr, nullptr, nullptr);
    EXPECT_TRUE(CtrlsTools::IsDescendant(parent, owned)) << "GetParent of an owned window is its owner";
    EXPECT_FALSE(CtrlsTools::IsDescendant(stranger, owned));
    ::DestroyWindow(owned);
    EXPECT_TRUE(CtrlsTools::IsDescendant(parent, parent));
    EXPECT_TRUE(CtrlsTools::IsDescendant(parent, child));
    EXPECT_TRUE(CtrlsTools::IsDescendant(parent, grandchild));
    EXPECT_FALSE(CtrlsTools::IsDescendant(child, parent));
    EXPECT_FALSE(CtrlsTools::IsDescendant(stranger, grandchild));
    EXPECT_TRUE(CtrlsTools::IsDescendant(nullptr, nullptr));
    EXPECT_FALSE(CtrlsTools::IsDescendant(parent, nullptr));
    EXPECT_FALSE(CtrlsTools::IsDescendant(nullptr, child));
}

TEST_F(DialogTools, MakeTheFrameBeCalculatedAgain) {
    child.frames = 0;
    CtrlsTools::RecalculateCtrlArea(&child);
    EXPECT_EQ(1, child.frames);
    EXPECT_EQ("20:30-61:50", show(childRect()));
}

TEST_F(DialogTools, KnowAModalWindowByItsDisabledOwner) {
    const HWND owned =
        ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 10, 10, parent.m_hWnd, nullptr, nullptr, nullptr);
    ASSERT_NE(nullptr, owned);
    EXPECT_FALSE(CtrlsTools::IsWindowModal(owned));
    parent.EnableWindow(FALSE);
    EXPECT_TRUE(CtrlsTools::IsWindowModal(owned));
    EXPECT_FALSE(CtrlsTools::IsWindowModal(child)) << "a child of the same";
    EXPECT_FALSE(CtrlsTools::IsWindowModal(parent)) << "no owner";
    EXPECT_FALSE(CtrlsTools::IsWindowModal(nullptr));
    const LONG style = ::GetWindowLongW(owned, GWL_STYLE);
    ::SetWindowLongW(owned, GWL_STYLE, style | WS_CHILD);
    ASSERT_EQ(parent.m_hWnd, ::GetWindow(owned, GW_OWNER));
    EXPECT_FALSE(CtrlsTools::IsWindowModal(owned)) << "a child's style, whoever owns it";
    ::SetWindowLongW(owned, GWL_STYLE, style);
    ::DestroyWindow(owned);
}

TEST(AWindowText, OfUpTo170CharactersIsAppropriate) {
    for (const int length : {0, 1, 169, 170}) {
        const ParameterStatus status = CtrlsTools::IsAppropriateWindowText(CString(L'ż', length));
        EXPECT_EQ(ParameterStatus(), status) << length;
        EXPECT_TRUE(status.IsSuccess()) << length;
    }
}

TEST(AWindowText, ThatIsLongerIsRefusedWithItsFirst170Characters) {
    const std::wstring text = std::wstring(170, L'a') + std::wstring(90, L'b');
    for (const std::size_t length : {std::size_t{171}, text.size()}) {
        const ParameterStatus status = CtrlsTools::IsAppropriateWindowText(CString(text.substr(0, length).c_str()));
        EXPECT_FALSE(status.IsSuccess());
        EXPECT_EQ(1, status.GetCode());
        EXPECT_EQ(L"Tekst: " + text.substr(0, 170) + L"... jest za długi. Maksymalna długość tekstu wynosi 170 znaków",
                  status.GetMessageText());
    }
}

TEST(AWindowText, MayHoldWhatLooksLikeAFormat) {
    const std::wstring text = L"%s%n%d" + std::wstring(200, L'%');
    EXPECT_EQ(L"Tekst: " + text.substr(0, 170) + L"... jest za długi. Maksymalna długość tekstu wynosi 170 znaków",
              CtrlsTools::IsAppropriateWindowText(CString(text.c_str())).GetMessageText());
}
