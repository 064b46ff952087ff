#include <gtest/gtest.h>

#include <OrtinControls/GdiTools.h>

#include "GdiDescriptions.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

GdiPenWrapper penOf(const LOGPEN& description) {
    GdiPenWrapper pen;
    pen.FromLOGPEN(description);
    return pen;
}

} // namespace

TEST(MergedPen, KeepsWhatItIsToldTo) {
    const GdiPenWrapper source = penOf({PS_DASH, {2, 3}, kRed});
    struct Case {
        bool keepStyle;
        bool keepColor;
        bool keepWidth;
        const char* outcome;
    };
    const Case cases[] = {
        {false, false, false, "1 2,3 255"},     {true, false, false, "4 2,3 255"},
        {false, true, false, "1 2,3 16711680"}, {true, true, false, "4 2,3 16711680"},
        {false, false, true, "1 8,3 255"},      {true, false, true, "4 8,3 255"},
        {false, true, true, "1 8,3 16711680"},  {true, true, true, "4 8,3 16711680"},
    };
    for (const Case& c : cases) {
        GdiPenWrapper target = penOf({PS_DASHDOTDOT, {8, 9}, kBlue});
        const HPEN handle = target.GetHPEN();
        GdiTools::UpdatePen(c.keepStyle, c.keepColor, c.keepWidth, source, target);
        EXPECT_EQ(c.outcome, describe(target));
        EXPECT_FALSE(isAlive(handle)) << c.outcome;
    }
    EXPECT_EQ("1 2,3 255", describe(source));
}

TEST(MergedPen, KeepsItsHandleIfNothingChanges) {
    GdiPenWrapper target = penOf({PS_DASHDOTDOT, {8, 3}, kBlue});
    const HPEN handle = target.GetHPEN();
    GdiTools::UpdatePen(true, true, true, penOf({PS_DASH, {2, 3}, kRed}), target);
    EXPECT_EQ(handle, target.GetHPEN());
    EXPECT_EQ("4 8,3 16711680", describe(target));
    GdiTools::UpdatePen(false, false, false, penOf({PS_DASHDOTDOT, {8, 3}, kBlue}), target);
    EXPECT_EQ(handle, target.GetHPEN());
    GdiTools::UpdatePen(false, false, false, target, target);
    EXPECT_EQ(handle, target.GetHPEN());
}

TEST(MergedFont, KeepsItsHeightIfItIsToldTo) {
    LOGFONTW description = tahoma(-20);
    description.lfItalic = TRUE;
    const GdiFontWrapper source(description, 0);
    GdiFontWrapper target(tahoma(-10), 0);
    GdiTools::UpdateFont(true, source, target);
    description.lfHeight = -10;
    EXPECT_EQ(describe(description), describe(target));
    GdiTools::UpdateFont(false, source, target);
    EXPECT_TRUE(source == target);
}

TEST(MergedFont, AsksForAnotherFontOnlyIfSomethingChanges) {
    GdiFontWrapper target(tahoma(-71), 0);
    const HFONT handle = target.GetHFONT();
    GdiTools::UpdateFont(true, GdiFontWrapper(tahoma(-5), 0), target);
    EXPECT_EQ(handle, target.GetHFONT()) << "only the height would differ";
    GdiTools::UpdateFont(false, GdiFontWrapper(tahoma(-5), 0), target);
    EXPECT_NE(handle, target.GetHFONT());
}
