#include <gtest/gtest.h>

#include <cstdlib>

#include "DeskColors.h"
#include "DeskControls.h"
#include "DeskScrollBar.h"
#include "support/Capture.h"
#include "support/Pump.h"
#include "support/Resources.h"
#include "support/ScopedTheme.h"
#include "support/TopLevelWindow.h"

using namespace Desk;

namespace {

constexpr int ComboId = 3;
constexpr int Items = 60;

/// A combo box on a window, with a list of which not all is in view.
class DropList : public testing::Test {
protected:
    void SetUp() override { open(Items); }

    void open(int items) {
        m_combo = std::make_unique<DeskCombo>();
        ASSERT_TRUE(m_combo->createIn(&m_host, ComboId, m_fonts));
        for (int item = 0; item < items; ++item)
            m_combo->AddString((L"Pozycja " + std::to_wstring(item)).c_str());
        m_combo->SetCurSel(0);
        m_combo->MoveWindow(0, 0, scaled(160), scaled(200));
        m_host.ShowWindow(SW_SHOWNOACTIVATE);
        m_combo->SetFocus();
        m_combo->ShowDropDown(TRUE);
        support::pumpUntilIdle();
    }

    HWND list() const {
        COMBOBOXINFO info{};
        info.cbSize = sizeof(info);
        ::GetComboBoxInfo(*m_combo, &info);
        return info.hwndList;
    }
    int page() const { return listSize().cy / (m_fonts.lineHeight() + scaled(6)); }
    CSize listSize() const {
        CRect client;
        ::GetClientRect(list(), &client);
        return client.Size();
    }
    int top() const { return static_cast<int>(::SendMessageW(list(), LB_GETTOPINDEX, 0, 0)); }
    int barX() const { return listSize().cx - DeskScrollBar::width() / 2; }
    void mouse(UINT message, int x, int y, WPARAM keys = MK_LBUTTON) {
        ::SendMessageW(list(), message, keys, MAKELPARAM(x, y));
    }
    /// First and last line of the thumb, as its colour in the middle of the bar tells.
    std::pair<int, int> thumbOnScreen() const {
        const support::Pixels shown = support::Pixels::ofClient(list());
        int first = -1;
        int last = -1;
        for (int y = 0; y < shown.height(); ++y)
            if (shown.at(barX(), y) != Colors::scrollTrack()) {
                first = first < 0 ? y : first;
                last = y;
            }
        return {first, last};
    }

    const support::ScopedTheme m_theme{1};
    DeskFonts m_fonts;
    support::ScopedTopLevelWindow m_host{CSize(scaled(200), scaled(60))};
    std::unique_ptr<DeskCombo> m_combo;
};

} // namespace

TEST_F(DropList, IsAllInTheThemeThatIs) {
    ASSERT_TRUE(m_combo->GetDroppedState());
    const support::Pixels shown = support::Pixels::ofWindow(list());
    EXPECT_LT(shown.shareBrighterThan(0xA0), 0.1) << "letters only";
    EXPECT_EQ(shown.onlyColour({0, 0, shown.width(), 1}), Colors::inputFrame());
    EXPECT_EQ(shown.onlyColour({0, 0, 1, shown.height()}), Colors::inputFrame());
    EXPECT_EQ(shown.at(shown.width() - 1 - DeskScrollBar::width() / 2, shown.height() - 2), Colors::scrollTrack());
    EXPECT_EQ(::GetWindowLongW(list(), GWL_STYLE) & WS_VSCROLL, 0);
}

TEST_F(DropList, WhoseItemsAreAllInViewHasNoBar) {
    open(3);
    const support::Pixels shown = support::Pixels::ofClient(list());
    EXPECT_EQ(shown.count(Colors::scrollThumb()), 0u);
    EXPECT_EQ(shown.at(shown.width() - 2, 2), Colors::selectedRow()) << "the item is as wide as the list";
}

TEST_F(DropList, IsScrolledByItsThumb) {
    const auto [first, last] = thumbOnScreen();
    ASSERT_GT(last, first);
    EXPECT_LE(first, scaled(2));
    mouse(WM_LBUTTONDOWN, barX(), first + 3);
    mouse(WM_MOUSEMOVE, barX(), listSize().cy / 2);
    EXPECT_LE(std::abs(top() - (Items - page()) / 2), Items / 6) << top();
    EXPECT_GT(thumbOnScreen().first, first + 10);
    // Beside the list too.
    mouse(WM_MOUSEMOVE, -50, listSize().cy * 2);
    const int bottom = top();
    mouse(WM_LBUTTONUP, -50, listSize().cy * 2, 0);
    EXPECT_EQ(::SendMessageW(list(), LB_SETTOPINDEX, Items, 0), 0);
    EXPECT_EQ(top(), bottom) << "there is nothing below";
    mouse(WM_MOUSEMOVE, barX(), 0, 0);
    EXPECT_EQ(top(), bottom) << "the drag has ended";
    EXPECT_TRUE(m_combo->GetDroppedState());
    EXPECT_EQ(m_combo->GetCurSel(), 0);
}

TEST_F(DropList, IsTurnedByPagesBesideItsThumb) {
    mouse(WM_LBUTTONDOWN, barX(), listSize().cy - 2);
    mouse(WM_LBUTTONUP, barX(), listSize().cy - 2, 0);
    EXPECT_EQ(top(), page());
    const auto [first, last] = thumbOnScreen();
    const int above = first - scaled(4);
    ASSERT_GT(above, 0);
    mouse(WM_LBUTTONDOWN, barX(), above);
    mouse(WM_LBUTTONUP, barX(), above, 0);
    EXPECT_EQ(top(), 0);
    EXPECT_TRUE(m_combo->GetDroppedState());
}

TEST_F(DropList, TheWheelAndTheKeysMoveTheThumbAlong) {
    const int before = thumbOnScreen().first;
    ::SendMessageW(list(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-2 * WHEEL_DELTA)), 0);
    EXPECT_EQ(top(), 6);
    const int turned = thumbOnScreen().first;
    EXPECT_GT(turned, before);
    m_combo->SendMessage(WM_KEYDOWN, VK_END);
    support::pumpUntilIdle();
    EXPECT_GT(top(), 6);
    EXPECT_GT(thumbOnScreen().first, turned);
    EXPECT_NEAR(thumbOnScreen().second, listSize().cy, scaled(3));
}

TEST_F(DropList, AnItemIsStillTakenByAClick) {
    const int itemHeight = m_fonts.lineHeight() + scaled(6);
    mouse(WM_MOUSEMOVE, 10, itemHeight * 5 / 2, 0);
    mouse(WM_LBUTTONDOWN, 10, itemHeight * 5 / 2);
    mouse(WM_LBUTTONUP, 10, itemHeight * 5 / 2, 0);
    EXPECT_FALSE(m_combo->GetDroppedState());
    EXPECT_EQ(m_combo->GetCurSel(), 2);
}

TEST_F(DropList, ManyOfThemLeaveNoHandleBehind) {
    const auto drop = [this](int times) {
        for (int at = 0; at < times; ++at) {
            m_combo->ShowDropDown(at % 2 == 0);
            support::pumpUntilIdle();
        }
    };
    drop(4);
    const std::size_t before = support::gdiHandleCount();
    drop(30);
    EXPECT_EQ(support::gdiHandleCount(), before);
}
