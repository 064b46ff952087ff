#include "chart/StylePanel.h"

#include <commdlg.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "StyleText.h"
#include "chart/ChartPalette.h"
#include "support/Capture.h"
#include "support/ImportPatch.h"
#include "support/Pump.h"
#include "support/ScopedKeys.h"
#include "support/ScopedTheme.h"
#include "support/TopLevelWindow.h"

using namespace Desk;

namespace {

constexpr StyleAspects Everything{true, true, true, true, true, true};
constexpr int PanelId = 7;

/// What the system's colour dialog was opened with, and what it answers.
struct ColourAnswer {
    BOOL taken = TRUE;
    COLORREF colour = RGB(1, 2, 3);
    COLORREF first = CLR_INVALID;
    int opened = 0;
    std::function<void()> whileOpen;
};
ColourAnswer* theAnswer = nullptr;

BOOL WINAPI answerColour(CHOOSECOLORW* choice) {
    ++theAnswer->opened;
    theAnswer->first = choice->rgbResult;
    choice->rgbResult = theAnswer->colour;
    if (theAnswer->whileOpen)
        theAnswer->whileOpen();
    return theAnswer->taken;
}

class StyleControls : public testing::Test {
protected:
    void SetUp() override {
        open(300);
        theAnswer = &m_answer;
        m_first = defaultStyles(DeskTheme::White)[static_cast<std::size_t>(ChartPart::EllipseMarker)];
    }

    void open(int height) {
        m_panel = std::make_unique<StylePanel>(m_fonts);
        ASSERT_TRUE(m_panel->createIn(&m_host, PanelId));
        m_panel->MoveWindow(0, 0, StylePanel::width(), scaled(height));
        m_panel->onChanged = [this](const ChartStyle& style) { m_told.push_back(style); };
    }

    CWnd& control(int id) { return *m_panel->GetDlgItem(id); }
    bool isShown(int id) { return (control(id).GetStyle() & WS_VISIBLE) != 0; }
    CellRow& row(int id) { return dynamic_cast<CellRow&>(control(id)); }

    void press(int id, int cell) {
        const CPoint middle = row(id).cellArea(cell).CenterPoint();
        control(id).SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
    }
    void key(HWND target, WPARAM key) {
        MSG message{target, WM_KEYDOWN, key, 0, 0, {}};
        if (!CWnd::WalkPreTranslateTree(m_host, &message))
            ::DispatchMessageW(&message);
    }
    void chooseFace(const wchar_t* face) {
        control(StylePanel::Face).SendMessage(CB_SELECTSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(face));
        m_panel->SendMessage(WM_COMMAND, MAKEWPARAM(StylePanel::Face, CBN_SELCHANGE),
                             reinterpret_cast<LPARAM>(control(StylePanel::Face).m_hWnd));
        support::pumpUntilIdle();
    }
    void pressButton(int id) {
        control(id).SendMessage(BM_CLICK);
        support::pumpUntilIdle();
    }
    /// A typeface of the panel's list other than the first style's.
    std::wstring anotherFace() {
        for (int item = 0; item < 100; ++item) {
            wchar_t face[200] = L"";
            if (control(StylePanel::Face)
                    .SendMessage(CB_GETLBTEXT, static_cast<WPARAM>(item), reinterpret_cast<LPARAM>(face)) <= 0)
                break;
            if (m_first.font.GetFaceName() != face)
                return face;
        }
        return {};
    }

    DeskFonts m_fonts;
    support::ScopedTopLevelWindow m_host{CSize(StylePanel::width(), scaled(300))};
    std::unique_ptr<StylePanel> m_panel;
    ColourAnswer m_answer;
    ChartStyle m_first;
    std::vector<ChartStyle> m_told;
};

struct Press {
    int control;
    int cell;
    const char* field;
};

} // namespace

TEST_F(StyleControls, AreThoseOfWhatCanBeSeen) {
    for (std::size_t part = 0; part < ChartPartCount; ++part) {
        const StyleAspects aspects = aspectsOf(static_cast<ChartPart>(part));
        m_panel->show(nameOf(static_cast<ChartPart>(part)), aspects, m_first);
        EXPECT_EQ(isShown(StylePanel::LineColor), aspects.line) << part;
        EXPECT_EQ(isShown(StylePanel::OtherLineColor), aspects.line) << part;
        EXPECT_EQ(isShown(StylePanel::FillColor), aspects.fill) << part;
        EXPECT_EQ(isShown(StylePanel::OtherFillColor), aspects.fill) << part;
        EXPECT_EQ(isShown(StylePanel::TextColor), aspects.font) << part;
        EXPECT_EQ(isShown(StylePanel::OtherTextColor), aspects.font) << part;
        EXPECT_EQ(isShown(StylePanel::Width), aspects.width) << part;
        EXPECT_EQ(isShown(StylePanel::Dash), aspects.dash) << part;
        EXPECT_EQ(isShown(StylePanel::Face), aspects.font) << part;
        EXPECT_EQ(isShown(StylePanel::Size), aspects.font) << part;
        EXPECT_EQ(isShown(StylePanel::Opacity), aspects.opacity) << part;
        EXPECT_FALSE(isShown(StylePanel::ScrollBar)) << "all of part " << part << " fits into 300 pixels";
    }
    m_panel->showNothing();
    for (int id = StylePanel::LineColor; id <= StylePanel::ScrollBar; ++id)
        EXPECT_FALSE(isShown(id)) << id;
}

TEST_F(StyleControls, ShowTheStyleAndTellNobody) {
    m_first.pen.FromDescription(PS_DASHDOT, 4, chartPalette()[3]);
    m_first.fill = RGB(9, 9, 9);
    m_first.opacity = 0.7;
    m_panel->show(L"linia", Everything, m_first);
    EXPECT_EQ(row(StylePanel::LineColor).chosen(), 3);
    EXPECT_EQ(row(StylePanel::FillColor).chosen(), CellRow::None);
    EXPECT_EQ(row(StylePanel::Width).chosen(), 3);
    EXPECT_EQ(row(StylePanel::Dash).chosen(), PS_DASHDOT);
    EXPECT_EQ(row(StylePanel::Opacity).chosen(), 6);
    m_first.font.FromLOGFONT(deskFont(12, FW_NORMAL), 0);
    m_first.opacity = 0.35;
    m_panel->show(L"napis", Everything, m_first);
    EXPECT_EQ(row(StylePanel::Size).chosen(), 2);
    EXPECT_EQ(row(StylePanel::Opacity).chosen(), CellRow::None);
    CString face;
    control(StylePanel::Face).GetWindowText(face);
    EXPECT_STREQ(face.GetString(), L"Tahoma");
    m_panel->showNothing();
    m_panel->repaint();
    support::pumpUntilIdle();
    EXPECT_TRUE(m_told.empty());
}

TEST_F(StyleControls, ChangeOneFieldEachAndTellAtOnce) {
    const Press presses[] = {{StylePanel::LineColor, 0, "colour"}, {StylePanel::FillColor, 4, "fill"},
                             {StylePanel::TextColor, 11, "text"},  {StylePanel::Width, 4, "width"},
                             {StylePanel::Dash, 2, "dash"},        {StylePanel::Size, 5, "size"},
                             {StylePanel::Opacity, 9, "opacity"}};
    for (const Press& each : presses) {
        m_panel->show(L"wszystko", Everything, m_first);
        m_told.clear();
        press(each.control, each.cell);
        ASSERT_EQ(m_told.size(), 1u) << each.field;
        EXPECT_EQ(fieldsThatDiffer(m_first, m_told[0]), each.field);
        EXPECT_EQ(row(each.control).chosen(), each.cell);
        press(each.control, each.cell);
        EXPECT_EQ(m_told.size(), 1u) << "the same again is no change";
    }
}

TEST_F(StyleControls, GiveTheFieldsTheValuesOfTheirCells) {
    m_panel->show(L"wszystko", Everything, m_first);
    press(StylePanel::LineColor, 6);
    press(StylePanel::FillColor, 7);
    press(StylePanel::TextColor, 8);
    press(StylePanel::Width, 2);
    press(StylePanel::Dash, PS_DOT);
    press(StylePanel::Size, 0);
    press(StylePanel::Opacity, 2);
    const ChartStyle& last = m_told.back();
    EXPECT_EQ(last.pen.Color(), chartPalette()[6]);
    EXPECT_EQ(last.fill, chartPalette()[7]);
    EXPECT_EQ(last.text, chartPalette()[8]);
    EXPECT_EQ(last.pen.Width(), 3);
    EXPECT_EQ(last.pen.LineStyle(), static_cast<unsigned int>(PS_DOT));
    EXPECT_EQ(last.font.GetHeight(), -scaled(10));
    EXPECT_DOUBLE_EQ(last.opacity, 0.3);
}

TEST_F(StyleControls, TheListOfTypefacesChangesTheFaceOnly) {
    m_first.font.FromLOGFONT(deskFont(12, FW_NORMAL), 0);
    m_panel->show(L"napis", Everything, m_first);
    const std::wstring other = anotherFace();
    ASSERT_FALSE(other.empty());
    chooseFace(other.c_str());
    ASSERT_EQ(m_told.size(), 1u);
    EXPECT_EQ(fieldsThatDiffer(m_first, m_told[0]), "face");
    EXPECT_EQ(m_told[0].font.GetFaceName(), other);
}

TEST_F(StyleControls, AFaceThatIsNotInstalledIsListedAndKept) {
    LOGFONTW font = deskFont(12, FW_NORMAL);
    wcscpy(font.lfFaceName, L"Nie ma takiego kroju");
    m_first.font.FromLOGFONT(font, 0);
    m_panel->show(L"napis", Everything, m_first);
    CString face;
    control(StylePanel::Face).GetWindowText(face);
    EXPECT_STREQ(face.GetString(), L"Nie ma takiego kroju");
    press(StylePanel::Size, 0);
    EXPECT_EQ(fieldsThatDiffer(m_first, m_told.at(0)), "size");
}

TEST_F(StyleControls, AnyOtherColourIsAskedOfTheSystem) {
    const support::ImportPatch patch(nullptr, "comdlg32.dll", "ChooseColorW", &answerColour);
    const Press presses[] = {{StylePanel::OtherLineColor, 0, "colour"},
                             {StylePanel::OtherFillColor, 0, "fill"},
                             {StylePanel::OtherTextColor, 0, "text"}};
    m_first.pen.Color(RGB(11, 0, 0));
    m_first.fill = RGB(12, 0, 0);
    m_first.text = RGB(13, 0, 0);
    BYTE red = 11;
    for (const Press& each : presses) {
        m_panel->show(L"wszystko", Everything, m_first);
        m_told.clear();
        pressButton(each.control);
        EXPECT_EQ(m_answer.first, RGB(red, 0, 0));
        ASSERT_EQ(m_told.size(), 1u) << each.field;
        EXPECT_EQ(fieldsThatDiffer(m_first, m_told[0]), each.field);
        ++red;
    }
    EXPECT_EQ(m_told[0].text, RGB(1, 2, 3));
    m_told.clear();
    m_answer.taken = FALSE;
    pressButton(StylePanel::OtherLineColor);
    EXPECT_EQ(m_answer.opened, 4);
    EXPECT_TRUE(m_told.empty());
}

TEST_F(StyleControls, AreChosenByKeys) {
    m_panel->show(L"linia", Everything, m_first);
    const HWND width = control(StylePanel::Width);
    ::SetFocus(width);
    std::string widths;
    for (const WPARAM pressed : {VK_END, VK_RIGHT, VK_LEFT, VK_UP, VK_DOWN, VK_HOME, VK_LEFT}) {
        key(width, pressed);
        widths += std::to_string(row(StylePanel::Width).chosen());
    }
    EXPECT_EQ(widths, "4432300");
    EXPECT_EQ(m_told.size(), 5u);
}

TEST_F(StyleControls, TabGoesThroughThemInOrderAndRound) {
    m_panel->show(L"alert", aspectsOf(ChartPart::EllipseMarker), m_first);
    m_panel->SetFocus();
    std::string order;
    for (int step = 0; step < 8; ++step) {
        order += std::to_string(CWnd::GetFocus()->GetDlgCtrlID()) + " ";
        key(::GetFocus(), VK_TAB);
    }
    EXPECT_EQ(order, "1 2 3 4 7 8 11 1 ");
    const support::ScopedKeys shift({VK_SHIFT});
    key(::GetFocus(), VK_TAB);
    EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), StylePanel::LineColor);
}

TEST_F(StyleControls, EscapeAndTheEndOfTheControlGiveTheFocusToTheParent) {
    m_panel->show(L"linia", aspectsOf(ChartPart::NewLine), m_first);
    m_panel->SetFocus();
    key(::GetFocus(), VK_ESCAPE);
    EXPECT_EQ(::GetFocus(), m_host.m_hWnd);
    ::SetFocus(control(StylePanel::Width));
    m_panel->showNothing();
    EXPECT_EQ(::GetFocus(), m_host.m_hWnd);
}

TEST_F(StyleControls, KeysThatNoControlUsesAreLeftToTheWindowsAbove) {
    m_panel->show(L"linia", Everything, m_first);
    const HWND width = control(StylePanel::Width);
    for (const WPARAM pressed :
         {static_cast<WPARAM>(VK_F8), static_cast<WPARAM>('L'), static_cast<WPARAM>(VK_DELETE)}) {
        MSG message{width, WM_KEYDOWN, pressed, 0, 0, {}};
        EXPECT_FALSE(m_panel->PreTranslateMessage(&message)) << pressed;
    }
    MSG end{width, WM_KEYDOWN, VK_END, 0, 0, {}};
    const support::ScopedKeys ctrl({VK_CONTROL});
    EXPECT_FALSE(m_panel->PreTranslateMessage(&end));
}

TEST_F(StyleControls, ScrollWhereTheyDoNotFit) {
    open(150);
    m_panel->show(L"alert", aspectsOf(ChartPart::EllipseMarker), m_first);
    ASSERT_TRUE(isShown(StylePanel::ScrollBar));
    const auto bottomOf = [this](int id) {
        CRect area;
        control(id).GetWindowRect(&area);
        m_panel->ScreenToClient(&area);
        return area.bottom;
    };
    EXPECT_GT(bottomOf(StylePanel::Opacity), scaled(150));
    m_panel->SetFocus();
    const support::ScopedKeys shift({VK_SHIFT});
    key(::GetFocus(), VK_TAB);
    EXPECT_EQ(CWnd::GetFocus()->GetDlgCtrlID(), StylePanel::Opacity);
    EXPECT_LE(bottomOf(StylePanel::Opacity), scaled(150));
    m_panel->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, 10 * WHEEL_DELTA), 0);
    EXPECT_GT(bottomOf(StylePanel::Opacity), scaled(150));
    m_panel->MoveWindow(0, 0, StylePanel::width(), scaled(300));
    EXPECT_FALSE(isShown(StylePanel::ScrollBar));
}

TEST_F(StyleControls, MayEndWithTheirPanelWhileItTells) {
    const support::ImportPatch patch(nullptr, "comdlg32.dll", "ChooseColorW", &answerColour);
    const std::function<void()> ways[] = {
        [this] { press(StylePanel::LineColor, 0); }, [this] { press(StylePanel::Opacity, 0); },
        [this] { key(control(StylePanel::Dash), VK_END); }, [this] { chooseFace(anotherFace().c_str()); },
        [this] { pressButton(StylePanel::OtherFillColor); }};
    for (const auto& way : ways) {
        open(300);
        m_panel->show(L"wszystko", Everything, m_first);
        m_panel->onChanged = [this](const ChartStyle& style) {
            m_panel.reset();
            m_told.push_back(style);
        };
        way();
        support::pumpUntilIdle();
        EXPECT_EQ(m_panel, nullptr);
    }
    EXPECT_EQ(m_told.size(), 5u);
}

TEST_F(StyleControls, MayEndWithTheirPanelBehindTheColourDialog) {
    const support::ImportPatch patch(nullptr, "comdlg32.dll", "ChooseColorW", &answerColour);
    m_panel->show(L"linia", Everything, m_first);
    m_answer.whileOpen = [this] { m_panel.reset(); };
    pressButton(StylePanel::OtherLineColor);
    EXPECT_EQ(m_answer.opened, 1);
    EXPECT_TRUE(m_told.empty());
}

TEST_F(StyleControls, AreDrawnInTheThemeThatIs) {
    m_panel->show(L"alert", aspectsOf(ChartPart::EllipseMarker), m_first);
    support::pumpUntilIdle();
    const support::Pixels white = support::Pixels::ofClient(*m_panel);
    {
        const support::ScopedTheme black(1);
        m_panel->repaint();
        support::pumpUntilIdle();
        EXPECT_LT(support::Pixels::ofClient(*m_panel).shareBrighterThan(0xA0), 0.05);
    }
    m_panel->repaint();
    support::pumpUntilIdle();
    EXPECT_TRUE(samePixels(support::Pixels::ofClient(*m_panel), white));
}
