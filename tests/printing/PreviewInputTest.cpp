// Mouse and wheel of a user, and the timer of the buttons.
#include "PreviewFixture.h"
#include "support/ImportPatch.h"

namespace {

class PreviewInput : public PreviewFixture {
protected:
    PreviewInput() {
        document.pages = 5;
        update();
        window.activate();
        support::click(onScreen(3, 3));
    }

    POINT middle() const { return onScreen(client().cx / 2, client().cy / 3); }
};

class PreviewButtons : public PreviewFixture {};

CRect S_clip;
int(WINAPI* S_selectClip)(HDC, HRGN);

int WINAPI notedClip(HDC dc, HRGN region) {
    if (region != nullptr) {
        ::GetRgnBox(region, &S_clip);
    }
    return S_selectClip(dc, region);
}

} // namespace

TEST_F(PreviewInput, APressTakesTheFocus) {
    EXPECT_EQ(preview.m_hWnd, ::GetFocus());
}

TEST_F(PreviewInput, TheButtonsChangeTheScaleByATenth) {
    support::click(middleOf(1));
    EXPECT_EQ(5 * 330 + 4 * 15 + 10, preview.CalculateTotalHeight());
    support::click(middleOf(2));
    support::click(middleOf(2));
    EXPECT_EQ(5 * 270 + 4 * 15 + 10, preview.CalculateTotalHeight());
}

TEST_F(PreviewInput, TheWheelScrollsByFourUnits) {
    support::turnWheel(middle(), -120);
    EXPECT_EQ(4, position());
    EXPECT_FALSE(buttonsShown());
    support::turnWheel(middle(), -240);
    EXPECT_EQ(12, position());
    support::turnWheel(middle(), 120);
    EXPECT_EQ(8, position());
    EXPECT_EQ(1550 + 20, preview.CalculateTotalHeight());
}

TEST_F(PreviewInput, TheWheelCountsWholeNotches) {
    const auto afterTurn = [this](int delta) {
        preview.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, delta));
        return position();
    };
    EXPECT_EQ(0, afterTurn(-119));
    EXPECT_EQ(4, afterTurn(-239));
    EXPECT_EQ(4, afterTurn(119));
    EXPECT_EQ(0, afterTurn(120));
}

TEST_F(PreviewInput, TheWheelThatScrollsRepaintsAndGoesOnToTheParent) {
    int passedOn = 0;
    window.onMessage = [&](UINT message, WPARAM, LPARAM) -> std::optional<LRESULT> {
        passedOn += message == WM_MOUSEWHEEL ? 1 : 0;
        return std::nullopt;
    };
    pixels();
    preview.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
    EXPECT_TRUE(preview.GetUpdateRect(nullptr));
    EXPECT_EQ(1, passedOn);
    document.pages = 1;
    update();
    preview.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0);
    EXPECT_EQ(1, passedOn) << "but not where there is nothing to scroll";
}

TEST_F(PreviewInput, TheWheelOnAnEmptyBarMovesNothing) {
    document.pages = 1;
    update();
    EXPECT_EQ(1, preview.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0));
    EXPECT_EQ(0, position());
}

TEST_F(PreviewInput, CtrlAndTheWheelChangeTheScaleByFourTenths) {
    const auto turnWithCtrl = [this](int delta) {
        // A display tells a window that the mouse enters which keys are down, and would release the key again.
        support::moveMouse(middle());
        support::pumpFor(std::chrono::milliseconds(300));
        const support::HeldKey ctrl(VK_CONTROL);
        support::turnWheel(middle(), delta);
    };
    turnWithCtrl(120);
    EXPECT_EQ(5 * 420 + 4 * 15 + 10, preview.CalculateTotalHeight());
    turnWithCtrl(-120);
    EXPECT_EQ(5 * 299 + 4 * 15 + 10, preview.CalculateTotalHeight()) << "back to almost 1, and truncated";
    EXPECT_EQ(0, position());
}

TEST_F(PreviewButtons, StayForFiveSecondsAndGoWhereTheMouseIsNot) {
    update();
    support::moveMouse(onScreen(20, 20));
    support::moveMouse(onScreen(25, 25));
    EXPECT_TRUE(buttonsShown()) << "whatever the mouse does";
    EXPECT_TRUE(support::pumpUntil([this] { return !buttonsShown(); }, std::chrono::seconds(8)));
    support::moveMouse(onScreen(client().cx / 2 - 60, client().cy - 55));
    EXPECT_TRUE(buttonsShown());
    support::moveMouse(onScreen(20, 20));
    EXPECT_FALSE(buttonsShown());
}

TEST_F(PreviewButtons, StayUnderTheMouseAtTheFiveSecondMark) {
    update();
    support::moveMouse(onScreen(client().cx / 2 - 60, client().cy - 55));
    support::pumpFor(std::chrono::milliseconds(5500));
    EXPECT_TRUE(buttonsShown());
    support::moveMouse(onScreen(20, 20));
    EXPECT_FALSE(buttonsShown());
}

TEST_F(PreviewButtons, AreDrawnWithinARoundedRectangle) {
    document.pages = 0;
    update();
    CRgn region;
    region.CreateRoundRectRgn(0, 0, 41, 21, 2, 2);
    for (const int id : {1, 2}) {
        const support::Pixels picture = support::Pixels::ofClient(button(id));
        ASSERT_EQ(40, picture.width());
        ASSERT_EQ(20, picture.height());
        for (const CPoint point : {CPoint(0, 0), CPoint(39, 0), CPoint(0, 19), CPoint(39, 19), CPoint(20, 0)}) {
            EXPECT_EQ(region.PtInRegion(point), picture.at(point.x, point.y) != kScene);
        }
        EXPECT_EQ(::GetSysColor(COLOR_3DFACE), picture.at(2, 2));
        EXPECT_GT(picture.count(::GetSysColor(COLOR_3DFACE)), 400U);
        EXPECT_LT(picture.count(::GetSysColor(COLOR_3DFACE)), 38U * 18U) << "the icon";
    }
}

TEST_F(PreviewButtons, AreClippedWhereTheyStandAlsoWhenAPartIsDrawnAgain) {
    update();
    CRgn region;
    region.CreateRoundRectRgn(0, 0, 41, 21, 2, 2);
    CRect whole;
    region.GetRgnBox(&whole);
    const CRect part(20, 10, 40, 20);
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinMfc.dll"), "gdi32.dll", "SelectClipRgn", notedClip);
    S_selectClip = patch.original<int WINAPI(HDC, HRGN)>();
    button(1).RedrawWindow(&part);
    EXPECT_EQ(whole - part.TopLeft(), S_clip);
}
