#include "PreviewFixture.h"

#include <limits>

#include "support/ImportPatch.h"
#include "table/Printers.h"

namespace {

class Preview : public PreviewFixture {};

class BarePreview : public testing::Test {
protected:
    support::ScopedTopLevelWindow m_window{CSize(100, 100)};
    ReachablePreview m_preview;
};

UINT_PTR S_timer;
UINT S_delay;

UINT_PTR WINAPI notedTimer(HWND, UINT_PTR id, UINT delay, TIMERPROC) {
    S_timer = id;
    S_delay = delay;
    return id;
}

HWND WINAPI noWindow(DWORD, LPCWSTR, LPCWSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE, void*) {
    return nullptr;
}

} // namespace

TEST_F(Preview, TakesThePlaceAndStyleOfThePlaceholder) {
    CRect rect;
    preview.GetWindowRect(&rect);
    window.ScreenToClient(&rect);
    EXPECT_EQ(CRect(10, 20, 310, 420), rect);
    EXPECT_EQ(&preview, window.GetDlgItem(kId));
    EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE | SS_NOTIFY),
              preview.GetStyle() & (WS_CHILD | WS_VISIBLE | SS_NOTIFY));
}

TEST_F(BarePreview, NeedsAPlaceholder) {
    EXPECT_EQ(0, m_preview.Create(500, &m_window));
    EXPECT_EQ(0, m_preview.Create(500, nullptr));
    EXPECT_EQ(nullptr, m_preview.GetSafeHwnd());
}

TEST_F(BarePreview, GivesNothingWhereTheSystemMakesNoWindow) {
    CStatic placeholder;
    placeholder.Create(L"", WS_CHILD, CRect(0, 0, 80, 80), &m_window, 500);
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinMfc.dll"), "user32.dll", "CreateWindowExW", noWindow);
    EXPECT_EQ(0, m_preview.Create(500, &m_window));
    EXPECT_EQ(nullptr, m_preview.GetSafeHwnd());
    EXPECT_EQ(nullptr, m_window.GetDlgItem(500)) << "the placeholder is gone by then";
}

TEST_F(BarePreview, LooksForTheMouseOnceFiveSecondsAfterItsCreation) {
    CStatic placeholder;
    placeholder.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, 80, 80), &m_window, 500);
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinMfc.dll"), "user32.dll", "SetTimer", notedTimer);
        ASSERT_NE(0, m_preview.Create(500, &m_window));
        EXPECT_EQ(1U, S_timer);
        EXPECT_EQ(5000U, S_delay);
    }
    ::SetTimer(m_preview, 1, 5000, nullptr);
    m_preview.SendMessage(WM_TIMER, 2);
    EXPECT_TRUE(m_preview.GetDlgItem(1)->IsWindowVisible()) << "another timer";
    m_preview.SendMessage(WM_TIMER, 1);
    EXPECT_FALSE(::KillTimer(m_preview, 1));
}

TEST_F(BarePreview, KnowsItsClass) {
    const CWnd& window = m_preview;
    EXPECT_TRUE(window.IsKindOf(RUNTIME_CLASS(PrintPreviewWindow)));
}

TEST_F(BarePreview, DoesNothingWithoutAWindow) {
    ColouredPages document;
    PrintDialogContext context;
    PrintInfoEx info(&context);
    EXPECT_EQ(-1, m_preview.CalculateTotalHeight());
    m_preview.Init(&info, &document);
    m_preview.Update(nullptr);
    m_preview.ScaleToAvailableArea();
    m_preview.ChangePreviewAreaScale(1);
    EXPECT_EQ(0, document.begun);
}

TEST_F(BarePreview, BeforeInitShowsAnEmptyScene) {
    SystemColors::UpdateColor(35, RGB(1, 2, 3));
    CStatic placeholder;
    placeholder.Create(L"", WS_CHILD, CRect(0, 0, 80, 80), &m_window, 500);
    ASSERT_NE(0, m_preview.Create(500, &m_window));
    m_preview.Update(nullptr);
    m_preview.ScaleToAvailableArea();
    m_preview.MoveWindow(0, 0, 90, 90);
    support::pumpUntilIdle();
    EXPECT_EQ(RGB(1, 2, 3), support::Pixels::ofClient(m_preview).at(2, 2));
}

TEST_F(Preview, OfADeviceWithoutPixelsDrawsNoPage) {
    device.setSize(0, 0);
    update();
    hideButtons();
    EXPECT_EQ("", document.takeDrawn());
}

TEST_F(Preview, ShowsPagesShadowsAndGapsInEachTheme) {
    for (const int theme : {0, 1}) {
        SystemColors::SetThemeColor(static_cast<EThemeColor>(theme));
        document.area = CRect(0, 0, 200, 300);
        document.onPrint = [](CDC* dc, PrintInfo*) { dc->FillSolidRect(0, 0, 200, 10, RGB(255, 255, 255)); };
        update();
        hideButtons();
        const support::Pixels picture = pixels();
        const int left = leftMargin(200);
        EXPECT_EQ(RGB(255, 255, 255), picture.onlyColour({left, 5, left + 200, 15}));
        EXPECT_EQ(ColouredPages::colourOf(1), picture.onlyColour({left, 15, left + 200, 305}));
        EXPECT_EQ(kShadow, picture.onlyColour({left + 200, 9, left + 204, 309})) << "the strip at the right";
        EXPECT_EQ(kShadow, picture.onlyColour({left + 4, 305, left + 204, 309})) << "the strip below";
        EXPECT_EQ(kScene, picture.onlyColour({left, 305, left + 4, 309}));
        EXPECT_EQ(kScene, picture.onlyColour({left, 309, left + 210, 320})) << "the gap";
        EXPECT_EQ(kScene, picture.onlyColour({0, 0, left, client().cy}));
        EXPECT_EQ(kScene, picture.onlyColour({left, 0, left + 200, 5}));
        EXPECT_EQ(ColouredPages::colourOf(2), picture.onlyColour({left, 330, left + 200, client().cy}));
    }
}

TEST_F(Preview, PagesAreWhiteAndShowAnUnknownTheme) {
    document.area = CRect(0, 0, 200, 100);
    for (const auto& [theme, paper] : {std::pair(0, 0xFFFFFF), std::pair(1, 0xFFFFFF), std::pair(7, 0xFF00FF)}) {
        SystemColors::SetThemeColor(static_cast<EThemeColor>(theme));
        document.onPrint = [&, colour = static_cast<COLORREF>(paper)](CDC* dc, PrintInfo*) {
            EXPECT_EQ(colour, dc->GetPixel(199, 299));
        };
        update();
        EXPECT_EQ("1 2 ", document.takeDrawn());
    }
}

TEST_F(Preview, StretchesThePrintAreaAndNotThePage) {
    document.area = CRect(0, 0, 100, 150);
    update();
    hideButtons();
    const int left = leftMargin(200);
    EXPECT_EQ(ColouredPages::colourOf(1), pixels().onlyColour({left, 5, left + 200, 305}));
}

TEST_F(Preview, ShowsAReversedRangeFromItsHighestPage) {
    document.pages = 9;
    context.PrintOption(PrintOptionPages);
    context.FromPage(6);
    context.ToPage(2);
    update();
    EXPECT_EQ("6 5 ", document.takeDrawn());
    preview.SendMessage(WM_VSCROLL, SB_BOTTOM);
    support::pumpUntilIdle();
    EXPECT_EQ("3 2 ", document.takeDrawn());
    hideButtons();
    EXPECT_EQ(ColouredPages::colourOf(2), pixels().at(client().cx / 2, client().cy - 30));
}

TEST_F(Preview, DrawsEachVisiblePageOnceAnUpdate) {
    document.pages = 5;
    update();
    EXPECT_EQ(1, document.begun);
    EXPECT_EQ("1 2 ", document.takeDrawn());
    pixels();
    scale(0.4);
    scale(-0.9);
    EXPECT_EQ("3 ", document.takeDrawn()) << "at a smaller scale a third page comes into view";
    preview.SendMessage(WM_VSCROLL, SB_PAGEDOWN);
    preview.SendMessage(WM_VSCROLL, SB_TOP);
    support::pumpUntilIdle();
    document.takeDrawn();
    pixels();
    EXPECT_EQ("", document.takeDrawn());
    update();
    EXPECT_EQ(2, document.begun);
    EXPECT_EQ("1 2 3 ", document.takeDrawn());
}

TEST_F(Preview, TellsThePageInWorkAlsoWhereItIsKept) {
    document.pages = 5;
    update();
    info.SetCurrentPage(77);
    pixels();
    EXPECT_EQ(2, info.CurrentPage()) << "the last page in view";
    EXPECT_EQ("1 2 ", document.takeDrawn());
}

TEST_F(Preview, HasTwoButtonsThatTheKeyboardReaches) {
    for (const int id : {1, 2}) {
        EXPECT_EQ(static_cast<DWORD>(WS_CHILD | WS_VISIBLE | WS_TABSTOP),
                  button(id).GetStyle() & (WS_CHILD | WS_VISIBLE | WS_TABSTOP));
        CRect rect;
        button(id).GetWindowRect(&rect);
        EXPECT_EQ(CSize(40, 20), rect.Size());
    }
}

TEST_F(Preview, OfNoPagesIsAnEmptyScene) {
    document.pages = 0;
    update();
    hideButtons();
    int first = 7;
    int last = 7;
    preview.FindVisiblePages(first, last);
    EXPECT_EQ(-1, first);
    EXPECT_EQ(kScene, pixels().onlyColour({0, 0, client().cx, client().cy}));
    EXPECT_FALSE(isBarShown(WS_VSCROLL));
    EXPECT_EQ("", document.takeDrawn());
}

TEST_F(Preview, ShowsBarsOnlyWhereThePagesDoNotFit) {
    document.pages = 1;
    update();
    EXPECT_FALSE(isBarShown(WS_VSCROLL));
    EXPECT_FALSE(isBarShown(WS_HSCROLL));
    EXPECT_EQ(310, preview.CalculateTotalHeight());
    scale(1.0);
    EXPECT_TRUE(isBarShown(WS_VSCROLL));
    EXPECT_TRUE(isBarShown(WS_HSCROLL));
    SCROLLINFO info_{};
    preview.GetScrollInfo(SB_VERT, &info_, SIF_RANGE | SIF_PAGE);
    EXPECT_EQ(610 / 5 + 1, info_.nMax);
    EXPECT_EQ(static_cast<UINT>(client().cy / 5 + 1), info_.nPage);
    scale(-1.0);
    EXPECT_FALSE(isBarShown(WS_VSCROLL));
    EXPECT_FALSE(isBarShown(WS_HSCROLL));
}

TEST_F(Preview, RefusesAScaleBelowAHundredth) {
    update();
    scale(-0.9);
    const int height = preview.CalculateTotalHeight();
    EXPECT_EQ(3 * 29 + 2 * 15 + 10, height) << "truncated: a tenth is not exact";
    preview.SendMessage(WM_COMMAND, MAKEWPARAM(2, BN_CLICKED));
    EXPECT_EQ(height, preview.CalculateTotalHeight());
    preview.SendMessage(WM_COMMAND, MAKEWPARAM(1, BN_CLICKED));
    EXPECT_EQ(3 * 59 + 2 * 15 + 10, preview.CalculateTotalHeight());
    scale(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(3 * 59 + 2 * 15 + 10, preview.CalculateTotalHeight());
}

TEST_F(Preview, FitsAWidePageAndLeavesANarrowOne) {
    update();
    preview.ScaleToAvailableArea();
    EXPECT_EQ(940, preview.CalculateTotalHeight());
    device.setSize(1000, 1500);
    document.pages = 1;
    document.area = CRect(0, 0, 1000, 1500);
    update();
    preview.ScaleToAvailableArea();
    hideButtons();
    const support::Pixels picture = pixels();
    const std::optional<RECT> page = picture.boundsOf(ColouredPages::colourOf(1));
    ASSERT_TRUE(page);
    EXPECT_NEAR(client().cx - 10, page->right - page->left, 1) << "truncated: the scale is not exact";
    EXPECT_FALSE(isBarShown(WS_HSCROLL));
}

TEST_F(Preview, PutsAnEnlargedPageWhereItWouldStandAtItsOwnSize) {
    update();
    scale(0.3);
    hideButtons();
    const int left = leftMargin(200);
    EXPECT_EQ(ColouredPages::colourOf(1), pixels().at(left - 2, 100));
    preview.ScaleToAvailableArea();
    const support::Pixels picture = pixels();
    EXPECT_EQ(kScene, picture.onlyColour({0, 0, left, client().cy}));
    EXPECT_EQ(ColouredPages::colourOf(1), picture.onlyColour({left, 5, client().cx, 395})) << "the scale stays";
}

TEST_F(Preview, KeepsTheScaleOfAPageWhoseOwnSizeIsExactlyWhatIsThere) {
    document.pages = 1;
    update();
    scale(0.5);
    const int width = client().cx - 10;
    device.setSize(width, 300);
    document.area = CRect(0, 0, width, 300);
    update();
    ASSERT_EQ(width + 10, client().cx);
    preview.ScaleToAvailableArea();
    EXPECT_EQ(460, preview.CalculateTotalHeight());
    device.setSize(width + 1, 300);
    update();
    preview.ScaleToAvailableArea();
    EXPECT_NEAR(300.0 * width / (width + 1) + 10, preview.CalculateTotalHeight(), 1);
}

TEST_F(Preview, APageThatWasMadeSmallerStaysSo) {
    device.setSize(1000, 1000);
    update();
    preview.ScaleToAvailableArea();
    scale(-0.1);
    const int height = preview.CalculateTotalHeight();
    preview.ScaleToAvailableArea(); // its margins are wide, and taken as they are
    EXPECT_NEAR(height, preview.CalculateTotalHeight(), 3 * 2);
}

TEST_F(Preview, IsCentredAnewWhenItsSizeChanges) {
    preview.MoveWindow(10, 20, 320, 380);
    EXPECT_EQ(CRect(10, 20, 330, 400), [this] {
        CRect rect;
        preview.GetWindowRect(&rect);
        window.ScreenToClient(&rect);
        return rect;
    }());
    EXPECT_FALSE(isBarShown(WS_VSCROLL)) << "nothing happens before the first update";
    update();
    preview.MoveWindow(10, 20, 400, 450);
    support::pumpUntilIdle();
    hideButtons();
    const int left = leftMargin(200);
    EXPECT_EQ(ColouredPages::colourOf(1), pixels().onlyColour({left, 5, left + 200, 305}));
    CRect increase;
    button(1).GetWindowRect(&increase);
    preview.ScreenToClient(&increase);
    EXPECT_EQ(CPoint((client().cx - 90) / 2, client().cy - 40), increase.TopLeft());
    preview.MoveWindow(10, 20, 400, 1500);
    support::pumpUntilIdle();
    EXPECT_FALSE(isBarShown(WS_VSCROLL));
}

TEST_F(Preview, ScrollsByCommandsAndHidesTheButtons) {
    document.pages = 10;
    update();
    const auto afterwards = [this](int code, int track = 0) {
        preview.SendMessage(WM_VSCROLL, MAKEWPARAM(code, track));
        return position();
    };
    EXPECT_TRUE(buttonsShown());
    EXPECT_EQ(5, afterwards(SB_LINEDOWN));
    EXPECT_FALSE(buttonsShown());
    EXPECT_EQ(0, afterwards(SB_LINEUP));
    EXPECT_EQ(client().cy / 5, afterwards(SB_PAGEDOWN));
    EXPECT_EQ(0, afterwards(SB_PAGEUP));
    EXPECT_EQ(33, afterwards(SB_THUMBTRACK, 33));
    EXPECT_EQ(34, afterwards(SB_THUMBPOSITION, 34));
    EXPECT_EQ(34, afterwards(SB_ENDSCROLL));
    EXPECT_EQ(preview.GetScrollLimit(SB_VERT), afterwards(SB_BOTTOM));
    EXPECT_EQ(0, afterwards(SB_TOP));
    scale(1.0);
    preview.SendMessage(WM_HSCROLL, MAKEWPARAM(SB_LINEDOWN, 0));
    EXPECT_EQ(5, preview.GetScrollPos(SB_HORZ));
}
