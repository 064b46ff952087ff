#include <gtest/gtest.h>

#include <OrtinControls/SystemColors.h>
#include <OrtinControls/TooltipTools.h>

namespace {

namespace Tips = OrtinTools::TooltipTools;

struct Theme {
    int theme;
    COLORREF background;
    COLORREF text;
};

constexpr Theme kThemes[] = {
    {0, 0xFFFFFF, 0x565656},
    {1, 0x282828, 0xBEBEBE},
    {2, 0xFF00FF, 0xFF00FF},
    {-1, 0xFF00FF, 0xFF00FF},
};

class HouseTips : public testing::TestWithParam<Theme> {
protected:
    HouseTips() { SystemColors::SetThemeColor(static_cast<EThemeColor>(GetParam().theme)); }
    ~HouseTips() override { SystemColors::SetThemeColor(WhiteTheme); }
};

INSTANTIATE_TEST_SUITE_P(InEachTheme, HouseTips, testing::ValuesIn(kThemes));

} // namespace

TEST_P(HouseTips, HaveTheColoursOfTheTheme) {
    EXPECT_EQ(GetParam().background, Tips::GetTipBgClr());
    EXPECT_EQ(GetParam().text, Tips::GetTipTxtClr());
}

TEST_P(HouseTips, AreMadeInTheHouseStyle) {
    const auto context = Tips::CreateTooltipContext();
    ASSERT_NE(nullptr, context);
    EXPECT_EQ(2, context->GetStyle());
    EXPECT_EQ(GetParam().background, context->GetTipBkColor());
    EXPECT_EQ(GetParam().text, context->GetTipTextColor());
}

TEST_P(HouseTips, TakeTheStyleAndTheColoursOnRequest) {
    CXTPToolTipContext context;
    context.SetStyle(xtpToolTipBalloon);
    Tips::RefreshColors(context);
    EXPECT_EQ(xtpToolTipBalloon, context.GetStyle());
    EXPECT_EQ(GetParam().background, context.GetTipBkColor());
    EXPECT_EQ(GetParam().text, context.GetTipTextColor());
    context.SetTipBkColor(1);
    Tips::SetDefaultStyle(context);
    EXPECT_EQ(2, context.GetStyle());
    EXPECT_EQ(GetParam().background, context.GetTipBkColor());
}
