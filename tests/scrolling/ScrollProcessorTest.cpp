// A processor on a real window with real scroll bars; what it calls is written down as one string.

#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <utility>

#include <OrtinControls/OrtinControls.h>
#include <XTToolkitPro.h>
#include <gtest/gtest.h>

#include "support/ImportPatch.h"
#include "support/Pump.h"
#include "support/TopLevelWindow.h"

namespace {

using support::ImportPatch;

/// What reaches the system, in order. One at a time.
class SystemCalls {
public:
    SystemCalls() { current = this; }
    SystemCalls(const SystemCalls&) = delete;
    SystemCalls& operator=(const SystemCalls&) = delete;
    ~SystemCalls() { current = nullptr; }

    std::string take() { return std::exchange(m_log, {}); }
    /// How far the content of the window has been moved by all calls.
    CSize moved() const { return m_moved; }

    /// The system's lines for a notch; nothing where it refuses to tell.
    static std::optional<int> wheelLines;

private:
    static BOOL WINAPI scrollWindow(HWND window, int x, int y, const RECT* area, const RECT* clip) {
        current->m_moved += CSize(x, y);
        current->note("scroll " + std::to_string(x) + "," + std::to_string(y) + (area || clip ? " of a part" : ""));
        return current->m_scroll.original<decltype(scrollWindow)>()(window, x, y, area, clip);
    }
    static int WINAPI setScrollPos(HWND window, int bar, int position, BOOL redraw) {
        current->note(barName(bar) + " at " + std::to_string(position) + (redraw ? "" : " unseen"));
        return current->m_position.original<decltype(setScrollPos)>()(window, bar, position, redraw);
    }
    static int WINAPI setScrollInfo(HWND window, int bar, const SCROLLINFO* info, BOOL redraw) {
        std::ostringstream text;
        text << barName(bar) << " " << info->nMin << "-" << info->nMax << " page " << info->nPage << " at "
             << info->nPos << (redraw ? "" : " unseen");
        if (info->cbSize != 28 || info->fMask != 23 || info->nTrackPos != 0) {
            text << " in another form";
        }
        current->note(text.str());
        return current->m_info.original<decltype(setScrollInfo)>()(window, bar, info, redraw);
    }
    static BOOL WINAPI systemParameters(UINT action, UINT size, void* value, UINT flags) {
        EXPECT_EQ(104U, action);
        EXPECT_EQ(0U, flags);
        EXPECT_EQ(0U, size);
        EXPECT_EQ(0, *static_cast<int*>(value)) << "nothing is left there where the system refuses";
        if (!wheelLines) {
            return FALSE;
        }
        *static_cast<int*>(value) = *wheelLines;
        return TRUE;
    }

    static std::string barName(int bar) { return bar == SB_HORZ ? "H" : bar == SB_VERT ? "V" : "control"; }
    void note(const std::string& call) { m_log += (m_log.empty() ? "" : "; ") + call; }

    static SystemCalls* current;
    std::string m_log;
    CSize m_moved;
    const HMODULE m_framework = ::GetModuleHandleW(L"OrtinMfc.dll");
    const ImportPatch m_scroll{m_framework, "user32.dll", "ScrollWindow", &scrollWindow};
    const ImportPatch m_position{m_framework, "user32.dll", "SetScrollPos", &setScrollPos};
    const ImportPatch m_info{m_framework, "user32.dll", "SetScrollInfo", &setScrollInfo};
    const ImportPatch m_parameters{::GetModuleHandleW(L"OrtinControls.dll"), "user32.dll", "SystemParametersInfoW",
                                   &systemParameters};
};

SystemCalls* SystemCalls::current = nullptr;
std::optional<int> SystemCalls::wheelLines = 3;

/// A window of 300 x 200 pixels as it is without bars, whose display is 1000 x 2000. Line steps are 60 pixels here,
/// whatever the DPI.
class Processor : public testing::Test {
protected:
    Processor() {
        SystemCalls::wheelLines = 3;
        processor.SetHorizontalLineOffset(60);
        processor.SetVerticalLineOffset(60);
        window.onMessage = [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == WM_SIZE) {
                processor.OnSize(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
            }
            return std::nullopt;
        };
        processor.SetDisplaySize(1000, 2000);
        log();
    }

    ~Processor() override { window.onMessage = nullptr; }

    /// The window's outer size, which is its client area as it is without bars.
    void resize(int width, int height) {
        window.SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    std::string log() { return calls.take(); }
    int position(int bar) const { return ::GetScrollPos(window.m_hWnd, bar); }
    /// What the bar shows: "0-999 page 300 at 0".
    std::string shown(int bar) const {
        SCROLLINFO info{sizeof info, SIF_ALL, 0, 0, 0, 0, 0};
        ::GetScrollInfo(window.m_hWnd, bar, &info);
        return std::to_string(info.nMin) + "-" + std::to_string(info.nMax) + " page " + std::to_string(info.nPage) +
               " at " + std::to_string(info.nPos);
    }
    bool hasBar(DWORD style) const { return (window.GetStyle() & style) != 0; }
    int turnWheel(int delta) { return processor.OnMouseWheel(0, static_cast<short>(delta), CPoint(1, 2)); }

    SystemCalls calls;
    support::ScopedTopLevelWindow window{CSize(300, 200)};
    ScrollProcessor processor{&window};
};

constexpr unsigned kNever = 12345; // the 16-bit position, which nobody reads

constexpr int kThinBar = 5;
constexpr int kBarThickerThanTheWindow = 1000;

int WINAPI unequalBars(int metric) {
    return metric == SM_CXVSCROLL ? kThinBar : kBarThickerThanTheWindow;
}

/// A thumb that is held away from the position.
BOOL WINAPI giveTrackPosition(HWND /*window*/, int bar, SCROLLINFO* info) {
    EXPECT_EQ(28U, info->cbSize);
    EXPECT_EQ(16U, info->fMask);
    info->nPos = 1;
    info->nTrackPos = bar == SB_VERT ? 400 : bar == SB_HORZ ? 50 : 300;
    return TRUE;
}

HMODULE product() {
    return ::GetModuleHandleW(L"OrtinControls.dll");
}

} // namespace

TEST_F(Processor, ShowsBothBarsOfADisplayThatIsLarger) {
    EXPECT_EQ("0-999 page 300 at 0", shown(SB_HORZ));
    EXPECT_EQ("0-1999 page 200 at 0", shown(SB_VERT));
    EXPECT_TRUE(hasBar(WS_HSCROLL));
    EXPECT_TRUE(hasBar(WS_VSCROLL));
}

TEST_F(Processor, TellsBothBarsInOneForm) {
    processor.SetDisplaySize(1000, 2000);
    EXPECT_EQ("H 0-999 page 300 at 0; V 0-1999 page 200 at 0", log());
}

TEST_F(Processor, TakesTheRoomOfTheBarsForClientArea) {
    EXPECT_EQ(CRect(0, 0, 300, 200), ScrollProcessor::GetClientRectSB(&window));
    CRect client;
    window.GetClientRect(&client);
    EXPECT_EQ(300 - ::GetSystemMetrics(SM_CXVSCROLL), client.right);
    processor.SetDisplaySize(10, 10);
    EXPECT_EQ(CRect(0, 0, 300, 200), ScrollProcessor::GetClientRectSB(&window));
    EXPECT_EQ(CRect(), ScrollProcessor::GetClientRectSB(nullptr));
}

TEST_F(Processor, TakesTheThicknessOfEachBarFromTheMetricOfItsOwn) {
    CRect client;
    window.GetClientRect(&client);
    const ImportPatch bars(product(), "user32.dll", "GetSystemMetrics", &unequalBars);
    EXPECT_EQ(CRect(0, 0, client.right + kThinBar, client.bottom), ScrollProcessor::GetClientRectSB(&window));
}

TEST_F(Processor, ScrollsToAPosition) {
    processor.ScrollVerticalPosition(500);
    EXPECT_EQ("V at 500; scroll 0,-500", log());
    processor.ScrollVerticalPosition(470);
    EXPECT_EQ("V at 470; scroll 0,30", log());
    processor.ScrollHorizontalPosition(100);
    EXPECT_EQ("H at 100; scroll -100,0", log());
    EXPECT_EQ(470, position(SB_VERT));
    EXPECT_EQ(100, position(SB_HORZ));
}

TEST_F(Processor, ScrollsByNothingTooWhereItIsAlreadyThere) {
    processor.ScrollVerticalPosition(500);
    log();
    processor.ScrollVerticalPosition(500);
    EXPECT_EQ("V at 500; scroll 0,0", log());
}

TEST_F(Processor, ScrollsNoFurtherThanTheLastPage) {
    processor.ScrollVerticalPosition(1'000'000);
    processor.ScrollHorizontalPosition(701);
    EXPECT_EQ("V at 1800; scroll 0,-1800; H at 700; scroll -700,0", log());
}

TEST_F(Processor, RefusesPositionsBeforeTheOriginAndAxesThatNeedNoScrolling) {
    processor.ScrollVerticalPosition(-1);
    processor.SetDisplaySize(100, 2000);
    log();
    processor.ScrollHorizontalPosition(10);
    EXPECT_EQ("", log());
}

TEST_F(Processor, ScrollsToTheOriginOnlyWhatIsNotThere) {
    processor.ScrollToOrigin(true, true);
    EXPECT_EQ("", log());
    processor.ScrollVerticalPosition(500);
    processor.ScrollHorizontalPosition(50);
    log();
    processor.ScrollToOrigin(false, false);
    EXPECT_EQ("", log());
    processor.ScrollToOrigin(true, false);
    EXPECT_EQ("H at 0; scroll 50,0", log());
    processor.ScrollToOrigin(true, true);
    EXPECT_EQ("V at 0; scroll 0,500", log());
}

TEST_F(Processor, FollowsTheCommandsOfItsBars) {
    processor.ScrollVerticalPosition(500);
    processor.ScrollHorizontalPosition(350);
    log();
    struct Case {
        unsigned code;
        const char* vertical;
        const char* horizontal;
    };
    const Case cases[] = {
        {SB_LINEUP, "V at 440; scroll 0,60", "H at 290; scroll 60,0"},
        {SB_LINEDOWN, "V at 500; scroll 0,-60", "H at 350; scroll -60,0"},
        {SB_PAGEUP, "V at 300; scroll 0,200", "H at 50; scroll 300,0"},
        {SB_PAGEDOWN, "V at 500; scroll 0,-200", "H at 350; scroll -300,0"},
        {SB_TOP, "", ""},
        {SB_BOTTOM, "", ""},
        {SB_ENDSCROLL, "", ""},
        {0xFFFFFFFF, "", ""},
    };
    for (const Case& c : cases) {
        processor.OnVScroll(c.code, kNever, nullptr);
        EXPECT_EQ(c.vertical, log()) << c.code;
        processor.OnHScroll(c.code, kNever, nullptr);
        EXPECT_EQ(c.horizontal, log()) << c.code;
    }
}

TEST_F(Processor, StopsAtBothEnds) {
    processor.OnVScroll(SB_LINEUP, 0, nullptr);
    EXPECT_EQ("", log());
    processor.ScrollVerticalPosition(1790);
    log();
    processor.OnVScroll(SB_PAGEDOWN, 0, nullptr);
    EXPECT_EQ("V at 1800; scroll 0,-10", log());
    processor.OnVScroll(SB_PAGEDOWN, 0, nullptr);
    EXPECT_EQ("", log());
}

TEST_F(Processor, ReadsTheTrackPositionOfTheWindowsOwnBar) {
    ::SetScrollPos(window.m_hWnd, SB_VERT, 700, FALSE);
    ::SetScrollPos(window.m_hWnd, SB_HORZ, 90, FALSE);
    processor.OnVScroll(SB_THUMBPOSITION, kNever, nullptr);
    EXPECT_EQ("V at 700; scroll 0,-700", log());
    processor.OnHScroll(SB_THUMBTRACK, kNever, nullptr);
    EXPECT_EQ("H at 90; scroll -90,0", log());
    processor.OnHScroll(SB_THUMBTRACK, kNever, nullptr);
    EXPECT_EQ("", log());
}

TEST_F(Processor, AsksForTheTrackPositionAloneWhichIsNotThePosition) {
    CScrollBar control;
    ASSERT_TRUE(control.Create(WS_CHILD | SBS_HORZ, CRect(0, 0, 100, 20), &window, 8));
    log();
    const ImportPatch thumb(product(), "user32.dll", "GetScrollInfo", &giveTrackPosition);
    processor.OnVScroll(SB_THUMBTRACK, kNever, nullptr);
    EXPECT_EQ("V at 400; scroll 0,-400", log());
    processor.OnHScroll(SB_THUMBPOSITION, kNever, nullptr);
    EXPECT_EQ("H at 50; scroll -50,0", log());
    processor.OnHScroll(SB_THUMBTRACK, kNever, &control);
    EXPECT_EQ("H at 300; scroll -250,0", log());
}

TEST_F(Processor, ReadsPositionsOfMoreThan16Bits) {
    processor.SetDisplaySize(1000, 3'000'000);
    ::SetScrollPos(window.m_hWnd, SB_VERT, 2'345'678, FALSE);
    log();
    processor.OnVScroll(SB_THUMBTRACK, LOWORD(2'345'678), nullptr);
    EXPECT_EQ("V at 2345678; scroll 0,-2345678", log());
    EXPECT_EQ(2'345'678, position(SB_VERT));
}

TEST_F(Processor, ReadsTheTrackPositionOfAControlThatStandsForTheBar) {
    CScrollBar control;
    ASSERT_TRUE(control.Create(WS_CHILD | SBS_VERT, CRect(0, 0, 20, 100), &window, 8));
    control.SetScrollRange(0, 1000, FALSE);
    control.SetScrollPos(321, FALSE);
    ::SetScrollPos(window.m_hWnd, SB_VERT, 900, FALSE);
    log();
    processor.OnVScroll(SB_THUMBTRACK, kNever, &control);
    EXPECT_EQ("V at 321; scroll 0,-321", log());
}

TEST_F(Processor, TurnsALineANotchWithTheUsualSetting) {
    processor.ScrollVerticalPosition(500);
    log();
    EXPECT_EQ(1, turnWheel(120));
    EXPECT_EQ("V at 440; scroll 0,60", log());
    EXPECT_EQ(1, turnWheel(-120));
    EXPECT_EQ("V at 500; scroll 0,-60", log());
    EXPECT_EQ(1, turnWheel(0));
    EXPECT_EQ("V at 560; scroll 0,-60", log()) << "no turn counts as one towards the user";
    EXPECT_EQ(1, turnWheel(240));
    EXPECT_EQ("V at 500; scroll 0,60; V at 440; scroll 0,60", log());
    EXPECT_EQ(1, turnWheel(40));
    EXPECT_EQ("V at 380; scroll 0,60", log()) << "a part of a notch is a step";
}

TEST_F(Processor, TurnsByTheSystemsSetting) {
    struct Case {
        std::optional<int> lines;
        const char* calls;
    };
    const Case cases[] = {
        {-1, "V at 700; scroll 0,-200"},
        {0, "V at 560; scroll 0,-60"},
        {1, "V at 560; scroll 0,-60"},
        {6, "V at 560; scroll 0,-60; V at 620; scroll 0,-60"},
        {std::nullopt, "V at 560; scroll 0,-60"},
    };
    for (const Case& c : cases) {
        processor.ScrollVerticalPosition(500);
        log();
        SystemCalls::wheelLines = c.lines;
        EXPECT_EQ(1, turnWheel(-120));
        EXPECT_EQ(c.calls, log()) << c.lines.value_or(-77);
    }
    SystemCalls::wheelLines = -1;
    processor.ScrollVerticalPosition(500);
    log();
    turnWheel(120);
    EXPECT_EQ("V at 300; scroll 0,200", log());
}

TEST_F(Processor, ComesBackAtOnceFromATurnByMoreLinesThanThereAre) {
    SystemCalls::wheelLines = 2'000'000'000;
    EXPECT_EQ(1, turnWheel(-32768));
    log();
    EXPECT_EQ(1800, position(SB_VERT));
    processor.SetVerticalLineOffset(0);
    EXPECT_EQ(1, turnWheel(-32768));
    EXPECT_EQ("", log());
}

TEST_F(Processor, LeavesTheWheelWhereTheVerticalBarHasNoRange) {
    processor.SetDisplaySize(1000, 200);
    log();
    EXPECT_EQ(0, turnWheel(-120));
    EXPECT_EQ("", log());
}

TEST_F(Processor, KeepsThePositionInProportionWhenThePageGrows) {
    resize(300, 200);
    processor.ScrollVerticalPosition(100);
    processor.ScrollHorizontalPosition(30);
    log();
    resize(300, 300);
    EXPECT_EQ("0-1999 page 300 at 150", shown(SB_VERT));
    EXPECT_EQ("0-999 page 300 at 30", shown(SB_HORZ));
    EXPECT_EQ("H 0-999 page 300 at 30; V 0-1999 page 300 at 150; scroll 0,-50", log());
    resize(150, 100);
    EXPECT_EQ("0-1999 page 100 at 50", shown(SB_VERT));
    EXPECT_EQ("0-999 page 150 at 15", shown(SB_HORZ));
    EXPECT_EQ("H 0-999 page 150 at 15; V 0-1999 page 100 at 50; scroll 15,100", log());
}

TEST_F(Processor, EndsOnePixelEarlierAfterASizeThanByScrolling) {
    processor.ScrollVerticalPosition(5000);
    EXPECT_EQ(1800, position(SB_VERT));
    log();
    processor.OnSize(0, 1, 1); // the arguments are not read
    EXPECT_EQ("H 0-999 page 300 at 0; V 0-1999 page 200 at 1799; scroll 0,1", log());
    processor.OnSize(0, 0, 0);
    EXPECT_EQ("H 0-999 page 300 at 0; V 0-1999 page 200 at 1799", log());
}

TEST_F(Processor, ScrollsBackWhenTheDisplayFits) {
    processor.ScrollVerticalPosition(700);
    processor.ScrollHorizontalPosition(70);
    log();
    processor.SetDisplaySize(300, 200);
    EXPECT_EQ(0, position(SB_VERT));
    EXPECT_EQ(0, position(SB_HORZ));
    EXPECT_FALSE(hasBar(WS_HSCROLL));
    EXPECT_FALSE(hasBar(WS_VSCROLL));
    const std::string made = log();
    EXPECT_NE(std::string::npos, made.find("H 0-0 page 0 at 0")) << made;
    EXPECT_NE(std::string::npos, made.find("V 0-0 page 0 at 0")) << made;
    EXPECT_EQ(CSize(0, 0), calls.moved())
        << "a bar that goes comes back as a size; the way back is made once: " << made;
    processor.ScrollVerticalPosition(10);
    EXPECT_EQ("", log()) << "no page, no position";
}

TEST_F(Processor, MovesTheContentOfAnAxisThatShowsNoBarByItsCommands) {
    processor.SetDisplaySize(1000, 150);
    log();
    processor.OnVScroll(SB_LINEDOWN, 0, nullptr);
    EXPECT_EQ("V at 60; scroll 0,-60", log());
    processor.OnVScroll(SB_PAGEDOWN, 0, nullptr);
    EXPECT_EQ("", log()) << "a page of nothing";
}

TEST_F(Processor, StandsStillUntilADisplaySizeIsSet) {
    ScrollProcessor fresh(&window);
    fresh.ScrollHorizontalPosition(10);
    fresh.ScrollToOrigin(true, true);
    fresh.OnVScroll(SB_LINEDOWN, 0, nullptr);
    fresh.OnHScroll(SB_PAGEDOWN, 0, nullptr);
    EXPECT_EQ("", log());
}

TEST_F(Processor, StepsBySixtyPixelsOf96Dpi) {
    ScrollProcessor fresh(&window);
    fresh.SetDisplaySize(1000, 2000);
    log();
    const std::string vertical = std::to_string(XTPDpiHelper().ScaleY(60, 96));
    const std::string horizontal = std::to_string(XTPDpiHelper().ScaleX(60, 96));
    fresh.OnVScroll(SB_LINEDOWN, 0, nullptr);
    EXPECT_EQ("V at " + vertical + "; scroll 0,-" + vertical, log());
    fresh.OnHScroll(SB_LINEDOWN, 0, nullptr);
    EXPECT_EQ("H at " + horizontal + "; scroll -" + horizontal + ",0", log());
}

TEST_F(Processor, HasNoLineStepsWhereItWasMadeWithoutAWindow) {
    ScrollProcessor fresh;
    fresh.AttachWnd(&window);
    fresh.SetDisplaySize(1000, 2000);
    log();
    fresh.OnVScroll(SB_LINEDOWN, 0, nullptr);
    EXPECT_EQ("", log());
    fresh.OnVScroll(SB_PAGEDOWN, 0, nullptr);
    EXPECT_EQ("V at 200; scroll 0,-200", log());
}

TEST_F(Processor, DoesNothingDetachedAndGoesOnWhereItWas) {
    processor.ScrollVerticalPosition(500);
    log();
    processor.DetachWnd();
    processor.ScrollVerticalPosition(600);
    processor.ScrollHorizontalPosition(60);
    processor.ScrollToOrigin(true, true);
    processor.OnVScroll(SB_LINEDOWN, 0, nullptr);
    processor.OnHScroll(SB_THUMBTRACK, 0, nullptr);
    EXPECT_EQ(0, turnWheel(-120));
    processor.OnSize(0, 10, 10);
    processor.SetDisplaySize(1000, 2500);
    EXPECT_EQ("", log());
    processor.AttachWnd(&window);
    processor.OnVScroll(SB_LINEDOWN, 0, nullptr);
    EXPECT_EQ("V at 560; scroll 0,-60", log());
}

TEST_F(Processor, CarriesAllItHoldsToACopy) {
    processor.ScrollVerticalPosition(500);
    processor.SetVerticalLineOffset(33);
    log();
    ScrollProcessor copy;
    copy = processor;
    copy.OnVScroll(SB_LINEDOWN, 0, nullptr);
    EXPECT_EQ("V at 533; scroll 0,-33", log());
    processor = ScrollProcessor(copy);
    processor.OnVScroll(SB_PAGEDOWN, 0, nullptr);
    EXPECT_EQ("V at 733; scroll 0,-200", log());
}

TEST_F(Processor, OutlivesItsWindow) {
    processor.ScrollVerticalPosition(500);
    window.onMessage = nullptr;
    window.DestroyWindow();
    log();
    processor.SetDisplaySize(1500, 2500);
    EXPECT_EQ("", log()) << "a dead window gets no bars";
    processor.ScrollVerticalPosition(600);
    processor.ScrollToOrigin(true, true);
    processor.OnVScroll(SB_LINEDOWN, 0, nullptr);
    processor.OnVScroll(SB_THUMBTRACK, 0, nullptr);
    EXPECT_EQ(0, turnWheel(-120));
    processor.OnSize(0, 10, 10);
    EXPECT_EQ(CRect(), ScrollProcessor::GetClientRectSB(&window));
}

TEST_F(Processor, MayBeDetachedByTheSizeThatItCauses) {
    processor.SetDisplaySize(10, 10);
    window.onMessage = [this](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        if (message == WM_SIZE) {
            processor.DetachWnd();
        }
        return std::nullopt;
    };
    log();
    processor.SetDisplaySize(1000, 2000);
    EXPECT_EQ("H 0-999 page 300 at 0", log());
}

TEST_F(Processor, ShowsThePartOfTheDisplayThatItsPositionsTell) {
    // A display whose colour tells where it is.
    const auto colourAt = [](int x, int y) { return RGB(x / 10 % 256, y / 10 % 256, 77); };
    window.onMessage = [&](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
        if (message == WM_SIZE) {
            processor.OnSize(static_cast<UINT>(wParam), LOWORD(lParam), HIWORD(lParam));
        }
        if (message != WM_PAINT) {
            return std::nullopt;
        }
        CPaintDC dc(&window);
        const int left = position(SB_HORZ);
        const int top = position(SB_VERT);
        for (int y = top / 10 * 10; y < top + 400; y += 10) {
            for (int x = left / 10 * 10; x < left + 400; x += 10) {
                dc.FillSolidRect(x - left, y - top, 10, 10, colourAt(x, y));
            }
        }
        return 0;
    };
    window.Invalidate(FALSE);
    window.UpdateWindow();
    const auto expectShown = [&](const char* when) {
        window.UpdateWindow();
        CClientDC dc(&window);
        CRect client;
        window.GetClientRect(&client);
        for (const CPoint& point : {CPoint(0, 0), CPoint(client.right - 1, 0), CPoint(0, client.bottom - 1),
                                    CPoint(client.right - 1, client.bottom - 1), CPoint(100, 100)}) {
            EXPECT_EQ(colourAt(position(SB_HORZ) + point.x, position(SB_VERT) + point.y), dc.GetPixel(point))
                << when << " at " << point.x << ',' << point.y;
        }
    };
    expectShown("at first");
    processor.ScrollVerticalPosition(333);
    expectShown("scrolled down");
    processor.OnHScroll(SB_PAGEDOWN, 0, nullptr);
    expectShown("a page to the right");
    turnWheel(360);
    expectShown("turned up");
    resize(340, 260);
    expectShown("grown");
    resize(200, 150);
    expectShown("shrunk");
    processor.ScrollToOrigin(true, true);
    expectShown("back");
}

TEST_F(Processor, LeavesTheContentWhereItsBarsSayOverRandomLives) {
    std::mt19937 random(512);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (int round = 0; round < 400; ++round) {
        switch (below(8)) {
        case 0:
            resize(20 + below(600), 20 + below(500));
            break;
        case 1:
            processor.SetDisplaySize(below(1500), below(3000));
            break;
        case 2:
            turnWheel(below(1000) - 500);
            break;
        case 3:
            processor.ScrollVerticalPosition(below(3500) - 300);
            break;
        case 4:
            processor.ScrollHorizontalPosition(below(1800) - 200);
            break;
        case 5:
            processor.ScrollToOrigin(below(2) == 0, below(2) == 0);
            break;
        case 6:
            // Where no bar shows, commands are meant to move the content all the same.
            if (hasBar(WS_VSCROLL)) {
                processor.OnVScroll(static_cast<unsigned>(below(9)), kNever, nullptr);
            }
            break;
        default:
            if (hasBar(WS_HSCROLL)) {
                processor.OnHScroll(static_cast<unsigned>(below(9)), kNever, nullptr);
            }
            break;
        }
        ASSERT_EQ(CSize(-position(SB_HORZ), -position(SB_VERT)), calls.moved()) << "round " << round << ": " << log();
        log();
    }
}
