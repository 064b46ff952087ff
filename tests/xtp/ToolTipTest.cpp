#include "../mfc/gdi/LiveGdiHandles.h"

#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <vector>

namespace {

constexpr int S_initial = 150; // milliseconds
constexpr int S_reshow = 40;
constexpr int S_patience = 5000;

constexpr CRect S_first(0, 0, 100, 50);
constexpr CRect S_second(100, 0, 200, 50); // below them there is no tool

/// A window with two tools side by side.
class ToolWindow : public CWnd {
public:
    ToolWindow() {
        CreateEx(0, nullptr, L"x", WS_POPUP, CRect(200, 200, 400, 300), nullptr, 0);
        ShowWindow(SW_SHOWNOACTIVATE);
        UpdateWindow();
    }
    ~ToolWindow() override { DestroyWindow(); }

    INT_PTR OnToolHitTest(CPoint point, TOOLINFO* info) const override {
        if (onHitTest) {
            onHitTest();
        }
        for (const auto& [id, tool] : tools) {
            if (tool.first.PtInRect(point)) {
                CXTPToolTipContext::FillInToolInfo(info, m_hWnd, tool.first, id, tool.second);
                return id;
            }
        }
        return -1;
    }

    BOOL PreTranslateMessage(MSG* message) override {
        context.FilterToolTipMessage(this, message);
        return CWnd::PreTranslateMessage(message);
    }

    std::map<INT_PTR, std::pair<CRect, CString>> tools = {{1, {S_first, L"Kurs zamknięcia"}},
                                                          {2, {S_second, L"Stopa dywidendy"}}};
    std::function<void()> onHitTest;
    CXTPToolTipContext context;
};

class ToolTips : public testing::Test {
protected:
    ToolTips() {
        pointTo(nowhere);
        pumpFor(20);
        window.context.SetDelayTime(TTDT_INITIAL, S_initial);
        window.context.SetDelayTime(TTDT_RESHOW, S_reshow);
        window.context.SetDelayTime(TTDT_AUTOPOP, 60000);
    }

    static void pumpOnce() {
        MSG message;
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            if (!CWnd::WalkPreTranslateTree(nullptr, &message)) {
                ::TranslateMessage(&message);
                ::DispatchMessageW(&message);
            }
        }
    }

    static bool pumpUntil(const std::function<bool()>& isDone, int milliseconds = S_patience) {
        const ULONGLONG end = ::GetTickCount64() + static_cast<ULONGLONG>(milliseconds);
        while (true) {
            pumpOnce();
            if (isDone()) {
                return true;
            }
            if (::GetTickCount64() >= end) {
                return false;
            }
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
        }
    }

    static void pumpFor(int milliseconds) {
        pumpUntil([] { return false; }, milliseconds);
    }

    /// A real movement of the mouse to a point of the screen.
    static void pointTo(CPoint point) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dx = (point.x * 65536 + 32768) / ::GetSystemMetrics(SM_CXSCREEN);
        input.mi.dy = (point.y * 65536 + 32768) / ::GetSystemMetrics(SM_CYSCREEN);
        input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
        ::SendInput(1, &input, sizeof(input));
    }

    void pointInto(CPoint clientPoint) {
        window.ClientToScreen(&clientPoint);
        pointTo(clientPoint);
    }

    static void sendMouse(DWORD flags, DWORD data = 0) {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flags;
        input.mi.mouseData = data;
        ::SendInput(1, &input, sizeof(input));
    }

    bool isShown() const { return window.context.IsToolTipVisible(); }
    bool comesUp() {
        return pumpUntil([this] { return isShown(); });
    }
    bool goesAway() {
        return pumpUntil([this] { return !isShown(); });
    }
    bool staysAway(int milliseconds = 2 * S_initial) {
        return !pumpUntil([this] { return isShown(); }, milliseconds);
    }

    static HWND tipWindow() {
        HWND found = nullptr;
        while ((found = ::FindWindowExW(nullptr, found, L"OrtinXtpToolTip", nullptr)) != nullptr) {
            DWORD process = 0;
            ::GetWindowThreadProcessId(found, &process);
            if (process == ::GetCurrentProcessId()) {
                return found;
            }
        }
        return nullptr;
    }

    static CString tipText() {
        wchar_t text[1000] = L"";
        ::GetWindowTextW(tipWindow(), text, 1000);
        return text;
    }

    static std::map<COLORREF, int> tipColors() {
        const CXTPClientRect client(tipWindow());
        CClientDC dc(CWnd::FromHandle(tipWindow()));
        std::map<COLORREF, int> colors;
        for (int y = 0; y < client.bottom; ++y) {
            for (int x = 0; x < client.right; ++x) {
                ++colors[dc.GetPixel(x, y)];
            }
        }
        return colors;
    }

    static COLORREF tipPixel(int x, int y) { return CClientDC(CWnd::FromHandle(tipWindow())).GetPixel(x, y); }

    static constexpr CPoint nowhere{20, 20};
    ToolWindow window;
};

TEST_F(ToolTips, ShowTheTextOfTheToolOnceTheMouseHasRested) {
    const ULONGLONG start = ::GetTickCount64();
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    EXPECT_GE(::GetTickCount64() - start, static_cast<ULONGLONG>(S_initial) - 20);
    EXPECT_TRUE(::IsWindowVisible(tipWindow()));
    EXPECT_STREQ(L"Kurs zamknięcia", tipText());
    EXPECT_NE(0, ::GetWindowLongW(tipWindow(), GWL_EXSTYLE) & WS_EX_TOPMOST);
}

TEST_F(ToolTips, NeverTakeTheFocus) {
    const HWND focus = ::GetFocus();
    const HWND foreground = ::GetForegroundWindow();
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    EXPECT_EQ(focus, ::GetFocus());
    EXPECT_EQ(foreground, ::GetForegroundWindow());
}

TEST_F(ToolTips, WaitAnewWhileTheMouseMoves) {
    // Long beside what a busy machine may lose between two moves.
    window.context.SetDelayTime(TTDT_INITIAL, 1000);
    for (int step = 0; step < 15; ++step) {
        pointInto(CPoint(20 + 3 * step, 20));
        pumpFor(100);
        ASSERT_FALSE(isShown()) << "step " << step;
    }
    EXPECT_TRUE(comesUp());
    const CXTPWindowRect place(tipWindow());
    pointInto(CPoint(30, 30));
    pumpFor(50);
    EXPECT_TRUE(isShown()) << "the same tool keeps its tip";
    EXPECT_TRUE(place == CXTPWindowRect(tipWindow()));
}

TEST_F(ToolTips, ChangeWithTheToolAfterTheShorterDelay) {
    window.context.SetDelayTime(TTDT_INITIAL, 2000);
    window.context.SetDelayTime(TTDT_RESHOW, S_reshow);
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    const ULONGLONG start = ::GetTickCount64();
    pointInto(S_second.CenterPoint());
    ASSERT_TRUE(goesAway());
    ASSERT_TRUE(comesUp());
    EXPECT_LT(::GetTickCount64() - start, 1800u);
    EXPECT_STREQ(L"Stopa dywidendy", tipText());
}

TEST_F(ToolTips, ChangeWithTheTextOfOneTool) {
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    window.tools[1].second = L"Kurs otwarcia";
    pointInto(CPoint(20, 20));
    ASSERT_TRUE(goesAway());
    ASSERT_TRUE(comesUp());
    EXPECT_STREQ(L"Kurs otwarcia", tipText());
}

TEST_F(ToolTips, AreNotShownWithoutATextOrATool) {
    window.tools[1].second.Empty();
    pointInto(S_first.CenterPoint());
    EXPECT_TRUE(staysAway());
    pointInto(CPoint(20, 80));
    EXPECT_TRUE(staysAway());
}

TEST_F(ToolTips, HideWhenTheMouseGoesAway) {
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    pointInto(CPoint(20, 80));
    EXPECT_TRUE(goesAway());
    EXPECT_FALSE(::IsWindowVisible(tipWindow()));
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    pointTo(nowhere);
    EXPECT_TRUE(goesAway()) << "out of the window, which sees no more of the mouse";
}

TEST_F(ToolTips, HideForAPressAndComeBackOnlyFromElsewhere) {
    struct Case {
        const char* what;
        std::function<void()> act;
    };
    const Case cases[] = {
        {"left button",
         [] {
             sendMouse(MOUSEEVENTF_LEFTDOWN);
             sendMouse(MOUSEEVENTF_LEFTUP);
         }},
        {"right button",
         [] {
             sendMouse(MOUSEEVENTF_RIGHTDOWN);
             sendMouse(MOUSEEVENTF_RIGHTUP);
         }},
        {"wheel", [] { sendMouse(MOUSEEVENTF_WHEEL, WHEEL_DELTA); }},
        {"key", [this] { window.PostMessage(WM_KEYDOWN, VK_F3); }},
        {"by the program", [this] { window.context.HideToolTip(); }},
    };
    for (const Case& each : cases) {
        pointInto(S_first.CenterPoint());
        ASSERT_TRUE(comesUp()) << each.what;
        window.SetActiveWindow();
        window.SetFocus();
        each.act();
        EXPECT_TRUE(goesAway()) << each.what;
        pointInto(CPoint(30, 30));
        EXPECT_TRUE(staysAway()) << each.what;
        pointInto(CPoint(20, 80));
        pumpFor(30);
    }
}

TEST_F(ToolTips, WaitForNoToolWhileAButtonIsHeld) {
    pointInto(CPoint(20, 80));
    pumpFor(20);
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    pointInto(S_first.CenterPoint());
    EXPECT_TRUE(staysAway());
    sendMouse(MOUSEEVENTF_LEFTUP);
    pointInto(CPoint(30, 30));
    EXPECT_TRUE(comesUp());
}

TEST_F(ToolTips, HideByThemselvesAfterTheirTime) {
    window.context.SetDelayTime(TTDT_AUTOPOP, 200);
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    EXPECT_TRUE(goesAway());
    pointInto(CPoint(30, 30));
    EXPECT_TRUE(staysAway());
    pointInto(S_second.CenterPoint());
    EXPECT_TRUE(comesUp());
}

TEST_F(ToolTips, HaveTheColoursOfBothThemes) {
    struct Case {
        const char* theme;
        COLORREF background;
        COLORREF text;
    };
    const Case cases[] = {{"white", 0xFFFFFF, 0x565656}, {"black", 0x282828, 0xBEBEBE}};
    for (const XTPToolTipStyle style : {xtpToolTipStandard, xtpToolTipBalloon, xtpToolTipOffice}) {
        window.context.SetStyle(style);
        pointInto(S_first.CenterPoint());
        ASSERT_TRUE(comesUp());
        for (const Case& each : cases) {
            window.context.SetTipBkColor(each.background);
            window.context.SetTipTextColor(each.text);
            EXPECT_EQ(each.background, window.context.GetTipBkColor());
            EXPECT_EQ(each.text, window.context.GetTipTextColor());
            pumpFor(20);
            std::map<COLORREF, int> colors = tipColors();
            EXPECT_GT(colors[each.background], 300) << each.theme;
            EXPECT_GT(colors[each.text], 50) << each.theme;
        }
        pointInto(CPoint(20, 80));
        ASSERT_TRUE(goesAway());
    }
}

TEST_F(ToolTips, HaveTheSystemsColoursAtFirst) {
    EXPECT_EQ(CLR_DEFAULT, window.context.GetTipBkColor());
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    EXPECT_GT(tipColors()[::GetSysColor(COLOR_INFOBK)], 300);
    EXPECT_GT(tipColors()[::GetSysColor(COLOR_INFOTEXT)], 50);
}

TEST_F(ToolTips, HaveAFrameAndAShapeByTheirStyle) {
    window.context.SetTipBkColor(0xFFFFFF);
    window.context.SetTipTextColor(0x565656);
    std::map<XTPToolTipStyle, CSize> sizes;
    std::map<XTPToolTipStyle, COLORREF> frames;
    std::map<XTPToolTipStyle, bool> hasRegion;
    for (const XTPToolTipStyle style : {xtpToolTipStandard, xtpToolTipBalloon, xtpToolTipOffice}) {
        window.context.SetStyle(style);
        EXPECT_EQ(style, window.context.GetStyle());
        pointInto(S_first.CenterPoint());
        ASSERT_TRUE(comesUp());
        sizes[style] = CXTPClientRect(tipWindow()).Size();
        frames[style] = tipPixel(sizes[style].cx / 2, 0);
        CRgn region;
        region.CreateRectRgn(0, 0, 0, 0);
        hasRegion[style] = ::GetWindowRgn(tipWindow(), region) != ERROR;
        pointInto(CPoint(20, 80));
        ASSERT_TRUE(goesAway());
    }
    EXPECT_EQ(0x565656u, frames[xtpToolTipStandard]);
    EXPECT_EQ(0x565656u, frames[xtpToolTipBalloon]);
    EXPECT_EQ(0xAAAAAAu, frames[xtpToolTipOffice]);
    EXPECT_GT(sizes[xtpToolTipOffice].cx, sizes[xtpToolTipStandard].cx);
    EXPECT_EQ(2, xtpToolTipOffice);
    EXPECT_FALSE(hasRegion[xtpToolTipStandard]);
    EXPECT_TRUE(hasRegion[xtpToolTipBalloon]);
    EXPECT_FALSE(hasRegion[xtpToolTipOffice]);
}

TEST_F(ToolTips, BreakLongTextsAndKeepLines) {
    const auto sizeWith = [this](const CString& text) {
        window.tools[1].second = text;
        pointInto(S_first.CenterPoint());
        EXPECT_TRUE(comesUp());
        const CSize size = CXTPClientRect(tipWindow()).Size();
        pointInto(CPoint(20, 80));
        EXPECT_TRUE(goesAway());
        return size;
    };
    const CSize oneLine = sizeWith(L"abc");
    const CSize twoLines = sizeWith(L"abc\ndef");
    CString text;
    for (int word = 0; word < 200; ++word) {
        text += L"słowo ";
    }
    const CSize broken = sizeWith(text);
    EXPECT_GT(twoLines.cy, oneLine.cy);
    EXPECT_GT(broken.cy, twoLines.cy);
    EXPECT_LE(broken.cx, XTPDpiHelper().ScaleX(640));
}

TEST_F(ToolTips, StayOnTheScreenAndOffThePointer) {
    CRect screen(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
    window.SetWindowPos(&CWnd::wndTopMost, screen.right - 100, screen.bottom - 50, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
    const CPoint corner(screen.right - 3, screen.bottom - 3);
    pointTo(corner);
    ASSERT_TRUE(comesUp());
    const CXTPWindowRect tip(tipWindow());
    EXPECT_TRUE((tip & screen) == tip);
    EXPECT_FALSE(tip.PtInRect(corner));
}

TEST_F(ToolTips, EndWithTheWindowThatTheyServe) {
    pointInto(S_first.CenterPoint());
    ASSERT_TRUE(comesUp());
    window.DestroyWindow();
    EXPECT_TRUE(goesAway());
}

TEST_F(ToolTips, SurviveAWindowThatIsDestroyedWhenAsked) {
    window.onHitTest = [this] {
        window.onHitTest = nullptr;
        window.DestroyWindow();
    };
    pointInto(S_first.CenterPoint());
    EXPECT_TRUE(pumpUntil([this] { return window.m_hWnd == nullptr; }));
    EXPECT_TRUE(staysAway());
}

/// Deletes itself, and the context that it owns, when it is asked for a tool, and answers all the same.
class MortalWindow : public CWnd {
public:
    explicit MortalWindow(bool& deleted) : m_deleted(deleted) {
        CreateEx(0, nullptr, L"x", WS_POPUP, CRect(200, 200, 400, 300), nullptr, 0);
    }
    ~MortalWindow() override {
        DestroyWindow();
        m_deleted = true;
    }

    /// Leaves nothing that a look at the dead object could take for its state.
    static void operator delete(void* memory, std::size_t size) {
        std::fill_n(static_cast<volatile BYTE*>(memory), size, BYTE{0xDD});
        ::operator delete(memory);
    }

    INT_PTR OnToolHitTest(CPoint, TOOLINFO* info) const override {
        const HWND window = m_hWnd;
        delete this;
        CXTPToolTipContext::FillInToolInfo(info, window, CRect(0, 0, 50, 50), 3, L"Kurs");
        return 3;
    }

    BOOL PreTranslateMessage(MSG* message) override {
        m_context.FilterToolTipMessage(this, message);
        return FALSE;
    }

private:
    bool& m_deleted;
    CXTPToolTipContext m_context;
};

TEST_F(ToolTips, SurviveAWindowThatIsDeletedWithItsContextWhenAsked) {
    bool deleted = false;
    MSG move{(new MortalWindow(deleted))->m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, {}};
    EXPECT_FALSE(CWnd::WalkPreTranslateTree(nullptr, &move));
    EXPECT_TRUE(deleted);
}

TEST_F(ToolTips, SurviveAWindowThatIsDeletedBesideTheirContext) {
    bool deleted = false;
    const CWnd& mortal = *new MortalWindow(deleted);
    MSG move{mortal.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, {}};
    window.context.FilterToolTipMessage(CWnd::FromHandlePermanent(mortal.m_hWnd), &move);
    EXPECT_TRUE(deleted);
    EXPECT_TRUE(staysAway());
}

TEST_F(ToolTips, IgnoreWhatIsNotTheirs) {
    MSG foreign{nullptr, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, {}};
    window.onHitTest = [] { FAIL() << "asked for another window's message"; };
    window.context.FilterToolTipMessage(&window, &foreign);
    window.context.FilterToolTipMessage(nullptr, &foreign);
    window.context.FilterToolTipMessage(&window, nullptr);
    CWnd none;
    window.context.FilterToolTipMessage(&none, &foreign);
    window.onHitTest = nullptr;
}

TEST_F(ToolTips, LeaveNothingBehind) {
    const auto showAndEnd = [this] {
        CXTPToolTipContext context;
        context.SetDelayTime(TTDT_INITIAL, 1);
        context.SetStyle(xtpToolTipBalloon);
        MSG move{window.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, {}};
        context.FilterToolTipMessage(&window, &move);
        EXPECT_TRUE(pumpUntil([&] { return context.IsToolTipVisible() != FALSE; }));
    };
    window.context.SetDelayTime(TTDT_INITIAL, 60000);
    pointInto(CPoint(20, 20));
    pumpFor(30);
    showAndEnd();
    CWnd::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CDC::DeleteTempMap();
    const int before = liveGdiHandles();
    for (int cycle = 0; cycle < 50; ++cycle) {
        showAndEnd();
    }
    CWnd::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CDC::DeleteTempMap();
    EXPECT_EQ(before, liveGdiHandles());
    EXPECT_FALSE(::IsWindowVisible(tipWindow()));
}

/// Bytes in allocated blocks of all heaps of the process.
std::size_t memoryInUse() {
    HANDLE heaps[64];
    const DWORD count = ::GetProcessHeaps(64, heaps);
    std::size_t bytes = 0;
    for (DWORD index = 0; index < count && index < 64; ++index) {
        PROCESS_HEAP_ENTRY entry{};
        ::HeapLock(heaps[index]);
        while (::HeapWalk(heaps[index], &entry)) {
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        }
        ::HeapUnlock(heaps[index]);
    }
    return bytes;
}

TEST_F(ToolTips, FreeTheTextOfEveryAnswer) {
    window.tools[1].second = CString(L'x', 10000);
    MSG move{window.m_hWnd, WM_MOUSEMOVE, 0, MAKELPARAM(20, 20), 0, {}};
    const auto ask = [&](int times) {
        for (int index = 0; index < times; ++index) {
            window.context.FilterToolTipMessage(&window, &move);
        }
    };
    ask(100);
    const std::size_t before = memoryInUse();
    ask(5000);
    // A text takes 20 kB: forgotten ones would come to 100 MB.
    EXPECT_LT(memoryInUse(), before + 1'000'000);
}

TEST(ToolInfo, IsFilledWithACopyOfTheText) {
    TOOLINFOW info{};
    {
        const CString text(L"Kurs");
        CXTPToolTipContext::FillInToolInfo(&info, ::GetDesktopWindow(), CRect(1, 2, 3, 4), 47, text);
        EXPECT_NE(text.GetString(), info.lpszText);
    }
    EXPECT_STREQ(L"Kurs", info.lpszText);
    EXPECT_EQ(::GetDesktopWindow(), info.hwnd);
    EXPECT_EQ(47u, info.uId);
    EXPECT_TRUE(CRect(info.rect) == CRect(1, 2, 3, 4));
    std::free(info.lpszText);
    CXTPToolTipContext::FillInToolInfo(&info, nullptr, CRect(), 0, CString());
    EXPECT_EQ(nullptr, info.lpszText);
}

TEST(ToolInfo, NamesNoWindowEvenIfTheBaseDid) {
    TOOLINFOW info{};
    info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
    CXTPToolTipContext::FillInToolInfo(&info, ::GetDesktopWindow(), CRect(1, 2, 3, 4), 47, CString());
    EXPECT_EQ(static_cast<UINT>(TTF_SUBCLASS), info.uFlags);
}

TEST(ToolTipDelays, AreSetOneByOneOrTogether) {
    CXTPToolTipContext context;
    const auto delays = [&] {
        return std::vector<int>{context.GetDelayTime(TTDT_INITIAL), context.GetDelayTime(TTDT_RESHOW),
                                context.GetDelayTime(TTDT_AUTOPOP)};
    };
    const int doubleClick = static_cast<int>(::GetDoubleClickTime());
    const std::vector<int> automatic{doubleClick, doubleClick / 5, doubleClick * 10};
    EXPECT_EQ(automatic, delays());
    context.SetDelayTime(TTDT_RESHOW, 100);
    context.SetDelayTime(TTDT_INITIAL, 500);
    context.SetDelayTime(TTDT_AUTOPOP, 10000);
    EXPECT_EQ((std::vector<int>{500, 100, 10000}), delays());
    context.SetDelayTime(99, 1);
    EXPECT_EQ((std::vector<int>{500, 100, 10000}), delays());
    EXPECT_EQ(0, context.GetDelayTime(99));
    context.SetDelayTime(TTDT_AUTOMATIC, 50);
    EXPECT_EQ((std::vector<int>{50, 10, 500}), delays());
    context.SetDelayTime(TTDT_AUTOMATIC, -1);
    EXPECT_EQ(automatic, delays());
    context.SetDelayTime(TTDT_INITIAL, -5);
    EXPECT_EQ(0, context.GetDelayTime(TTDT_INITIAL));
}

} // namespace
