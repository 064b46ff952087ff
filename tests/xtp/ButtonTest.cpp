#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include "support/Capture.h"
#include "support/Pump.h"
#include "support/RealInput.h"
#include "support/Resources.h"
#include "support/TopLevelWindow.h"

namespace {

constexpr UINT kFlag = 40;
constexpr UINT kNoPicture = 41;
constexpr UINT kMissing = 42;
constexpr UINT kButtonId = 7;
constexpr COLORREF kRed = RGB(255, 0, 0);

class RoundButton : public CXTPButton {
public:
    void OnDraw(CDC* dc) override {
        CRgn region;
        region.CreateEllipticRgn(0, 0, 40, 20);
        dc->SelectClipRgn(&region);
        CXTPButton::OnDraw(dc);
        dc->SelectClipRgn(nullptr);
    }
};

class Buttons : public testing::Test {
protected:
    Buttons() {
        m_window.onMessage = [this](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
            if (message == WM_COMMAND && LOWORD(wParam) == kButtonId) {
                m_clicks += HIWORD(wParam) == BN_CLICKED ? 1 : 0;
                m_otherNotes += HIWORD(wParam) == BN_CLICKED ? 0 : 1;
            }
            if (message == WM_ERASEBKGND) {
                CRect client;
                m_window.GetClientRect(&client);
                CDC::FromHandle(reinterpret_cast<HDC>(wParam))->FillSolidRect(&client, kRed);
                return 1;
            }
            return std::nullopt;
        };
        m_window.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }

    void create(CXTPButton& button, const wchar_t* text = L"") {
        button.Create(text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, CRect(10, 10, 50, 30), &m_window, kButtonId);
        support::pumpUntilIdle();
    }

    static support::Pixels pixelsOf(CXTPButton& button) {
        button.RedrawWindow();
        return support::Pixels::ofClient(button);
    }

    static COLORREF faceOf(CXTPButton& button) { return pixelsOf(button).at(4, 4); }

    CPoint middleOf(CXTPButton& button) {
        CRect rect;
        button.GetWindowRect(&rect);
        return rect.CenterPoint();
    }

    support::ScopedTopLevelWindow m_window{CSize(100, 60)};
    int m_clicks = 0;
    int m_otherNotes = 0;
};

} // namespace

TEST_F(Buttons, HaveAFrameAroundAFace) {
    CXTPButton button;
    create(button);
    const support::Pixels pixels = pixelsOf(button);
    EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), pixels.at(0, 0));
    EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), pixels.at(39, 19));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), pixels.onlyColour({1, 1, 39, 19}));
}

TEST_F(Buttons, DrawTheirIconInTheMiddlePixelByPixel) {
    CXTPButton button;
    create(button);
    ASSERT_TRUE(button.SetIcon(CSize(4, 4), kFlag));
    const support::Pixels pixels = pixelsOf(button);
    const COLORREF face = ::GetSysColor(COLOR_3DFACE);
    EXPECT_EQ(8U, pixels.count(kRed));
    EXPECT_EQ(kRed, pixels.onlyColour({18, 8, 20, 12}));
    EXPECT_EQ(face, pixels.onlyColour({20, 9, 22, 12}));
    const COLORREF blended = pixels.at(21, 8);
    EXPECT_NEAR(GetRValue(face) / 2.0, GetRValue(blended), 1);
    EXPECT_NEAR((GetGValue(face) + 255) / 2.0, GetGValue(blended), 1);
}

TEST_F(Buttons, ScaleTheirIconToTheSizeAskedFor) {
    CXTPButton button;
    create(button);
    ASSERT_TRUE(button.SetIcon(CSize(16, 16), kFlag));
    const support::Pixels pixels = pixelsOf(button);
    EXPECT_EQ(kRed, pixels.onlyColour({12, 2, 16, 18})) << "the edge between the halves is softened";
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), pixels.onlyColour({22, 8, 28, 18}));
}

TEST_F(Buttons, KeepTheirIconWhenThereIsNoSuchPicture) {
    CXTPButton button;
    create(button);
    ASSERT_TRUE(button.SetIcon(CSize(4, 4), kFlag));
    EXPECT_FALSE(button.SetIcon(CSize(4, 4), kMissing));
    EXPECT_FALSE(button.SetIcon(CSize(4, 4), kNoPicture));
    EXPECT_FALSE(button.SetIcon(CSize(0, 4), kFlag));
    EXPECT_EQ(8U, pixelsOf(button).count(kRed));
}

TEST_F(Buttons, MayGetTheirIconBeforeTheirWindow) {
    CXTPButton button;
    EXPECT_TRUE(button.SetIcon(CSize(4, 4), kFlag));
    create(button);
    EXPECT_EQ(8U, pixelsOf(button).count(kRed));
}

TEST_F(Buttons, DrawTheirTextRightOfTheIcon) {
    CXTPButton button;
    create(button, L"A");
    const support::Pixels alone = pixelsOf(button);
    const std::optional<RECT> text = alone.boundsOf(::GetSysColor(COLOR_BTNTEXT));
    ASSERT_TRUE(text);
    EXPECT_NEAR(20, (text->left + text->right) / 2.0, 2);
    button.SetIcon(CSize(4, 4), kFlag);
    const support::Pixels both = pixelsOf(button);
    EXPECT_EQ(text->left + 4, both.boundsOf(::GetSysColor(COLOR_BTNTEXT))->left);
    EXPECT_GT(text->left, both.boundsOf(kRed)->left);
}

TEST_F(Buttons, AreGreyWhileDisabled) {
    CXTPButton button;
    create(button, L"A");
    button.SetIcon(CSize(4, 4), kFlag);
    button.EnableWindow(FALSE);
    const support::Pixels pixels = pixelsOf(button);
    EXPECT_EQ(0U, pixels.count(::GetSysColor(COLOR_BTNTEXT)));
    EXPECT_GT(pixels.count(::GetSysColor(COLOR_GRAYTEXT)), 0U);
    EXPECT_EQ(0U, pixels.count(kRed));
}

TEST_F(Buttons, GoDownWhilePressedAndLightUpUnderTheMouse) {
    CXTPButton button;
    create(button);
    const COLORREF calm = faceOf(button);
    const auto shown = [&] { return support::Pixels::ofClient(button).at(6, 6); };
    // A display that has just shown a window tells once more where its pointer was, so one move may be undone.
    int aside = 0;
    support::pumpUntil([&] {
        support::moveMouse(middleOf(button) + CSize(aside++ % 2, 0));
        return shown() != calm;
    });
    const COLORREF hot = shown();
    support::pressButton();
    support::pumpUntil([&] { return shown() != hot; });
    const COLORREF pressed = shown();
    support::releaseButton();
    support::moveMouse({500, 400});
    support::pumpUntil([&] { return shown() == calm; });
    EXPECT_GT(GetRValue(hot), GetRValue(calm));
    EXPECT_LT(GetRValue(pressed), GetRValue(calm));
    EXPECT_EQ(calm, shown());
    EXPECT_EQ(1, m_clicks);
}

TEST_F(Buttons, CountEachPressOfAQuickSeriesAsAClick) {
    CXTPButton button;
    create(button);
    support::doubleClick(middleOf(button));
    support::doubleClick(middleOf(button));
    EXPECT_EQ(4, m_clicks);
}

TEST_F(Buttons, AreClickedByTheSpaceKeyAndShowTheFocus) {
    CXTPButton button;
    create(button);
    m_window.activate();
    const support::Pixels before = pixelsOf(button);
    button.SetFocus();
    support::pumpUntilIdle();
    EXPECT_NE(before, support::Pixels::ofClient(button));
    support::typeKey(VK_SPACE);
    EXPECT_EQ(1, m_clicks);
}

TEST_F(Buttons, ShowTheParentWhereTheyDrawNothing) {
    RoundButton button;
    create(button);
    support::pumpUntilIdle();
    EXPECT_EQ(kRed, support::Pixels::ofClient(button).at(0, 0));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), support::Pixels::ofClient(button).at(20, 10));
    button.RedrawWindow();
    EXPECT_EQ(kRed, support::Pixels::ofClient(button).at(39, 19));
}

TEST_F(Buttons, LeaveNoHandleBehind) {
    const auto live = [this] {
        CXTPButton button;
        create(button, L"A");
        for (int icon = 0; icon < 20; ++icon) {
            button.SetIcon(CSize(4, 4), kFlag);
            button.SetIcon(CSize(4, 4), kNoPicture);
            button.RedrawWindow();
        }
    };
    live(); // the system keeps some of what the first ones needed
    live();
    const std::size_t before = support::gdiHandleCount();
    live();
    EXPECT_EQ(before, support::gdiHandleCount());
}
