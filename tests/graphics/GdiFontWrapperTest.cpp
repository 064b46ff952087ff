#include <gtest/gtest.h>

#include <OrtinControls/FontsObjManager.h>
#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiTools.h>
#include <OrtinFoundation/Settings.h>

#include "GdiDescriptions.h"
#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

HFONT WINAPI refuseFont(const LOGFONTW*) {
    return nullptr;
}

LOGFONTW descriptionOf(HFONT font) {
    LOGFONTW description{};
    EXPECT_EQ(static_cast<int>(sizeof description), ::GetObjectW(font, sizeof description, &description));
    return description;
}

/// Half of a text is read beneath a font that stays in use, so that the cache would now give another one.
void changeBeneathItsFont(GdiFontWrapper& font) {
    font.GetHFONT();
    Settings settings;
    settings.Version = 1;
    settings["Params"] = L"-90";
    font.Unserialize(settings);
}

} // namespace

TEST(Font, KeepsTheHeightOfADescriptionAsItStands) {
    const GdiFontWrapper font(tahoma(-11), 0);
    EXPECT_EQ(-11, font.GetHeight());
    EXPECT_EQ(L"Tahoma", font.GetFaceName());
    EXPECT_EQ(describe(tahoma(-11)), describe(font));
}

TEST(Font, TakesAnotherWeightUnlessItIsNought) {
    EXPECT_EQ(FW_NORMAL, GdiFontWrapper(tahoma(), 0).GetLOGFONT().lfWeight);
    EXPECT_EQ(FW_BOLD, GdiFontWrapper(tahoma(), FW_BOLD).GetLOGFONT().lfWeight);
    GdiFontWrapper font(0);
    font.FromLOGFONT(tahoma(), 300);
    EXPECT_EQ(300, font.GetLOGFONT().lfWeight);
    EXPECT_EQ(600, GdiFontWrapper(600).GetLOGFONT().lfWeight);
}

TEST(Font, GivesItsFaceNameUpToItsEnd) {
    LOGFONTW description = tahoma();
    std::fill(std::begin(description.lfFaceName), std::end(description.lfFaceName), L'x');
    EXPECT_EQ(std::wstring(32, L'x'), GdiFontWrapper(description, 0).GetFaceName()) << "also if nothing ends it";
    description.lfFaceName[5] = L'\0';
    EXPECT_EQ(L"xxxxx", GdiFontWrapper(description, 0).GetFaceName());
}

TEST(Font, SharesItsHandleWithAllOfItsKey) {
    GdiFontWrapper first(tahoma(), 0);
    GdiFontWrapper second(tahoma(), 0);
    EXPECT_NE(nullptr, first.GetHFONT());
    EXPECT_EQ(first.GetHFONT(), second.GetHFONT());
    EXPECT_EQ(first.GetHFONT(), first.GetHGDIOBJ());
    EXPECT_EQ(first.GetHFONT(), FontsObjManager::Instance()->AddFont(tahoma())->GetSafeHandle());
}

TEST(Font, KeepsItsHandleThoughAllWrappersOfItGo) {
    HFONT handle = nullptr;
    {
        GdiFontWrapper font(tahoma(-41), 0);
        handle = font.GetHFONT();
    }
    GdiFontWrapper font(tahoma(-41), 0);
    EXPECT_EQ(handle, font.GetHFONT());
}

TEST(Font, AsksForItsHandleAnewAfterEachChange) {
    GdiFontWrapper font(tahoma(-11), 0);
    const HFONT eleven = font.GetHFONT();
    font.FromLOGFONT(tahoma(-12), 0);
    const HFONT twelve = font.GetHFONT();
    EXPECT_NE(eleven, twelve);
    font = GdiFontWrapper(tahoma(-11), 0);
    EXPECT_EQ(eleven, font.GetHFONT());
    font.FromHandle(twelve, 0);
    EXPECT_EQ(twelve, font.GetHFONT()) << "the cache's font of that description";
    font.FromHandle(eleven, FW_BOLD);
    EXPECT_EQ(FW_BOLD, descriptionOf(font.GetHFONT()).lfWeight);
}

TEST(Font, BegunWithAnAngleDecidesOnIt) {
    GdiFontWrapper turned(tahoma(-51), 0);
    turned.SetAngle(45);
    EXPECT_EQ(450, descriptionOf(turned.GetHFONT()).lfEscapement);
    GdiFontWrapper straight(tahoma(-51), 0);
    EXPECT_EQ(turned.GetHFONT(), straight.GetHFONT()) << "the angle is no part of the key";
}

TEST(Font, TurnsByWholeDegreesAndKeepsItsOrientation) {
    LOGFONTW description = tahoma();
    description.lfOrientation = 77;
    GdiFontWrapper font(description, 0);
    font.GetHFONT();
    font.SetAngle(45);
    EXPECT_EQ(450, font.GetLOGFONT().lfEscapement);
    EXPECT_EQ(77, font.GetLOGFONT().lfOrientation);
    font.SetAngle(-90);
    EXPECT_EQ(-900, font.GetLOGFONT().lfEscapement);
}

TEST(Font, CopiesItsDescriptionAlone) {
    GdiFontWrapper source(tahoma(-61), 0);
    const HFONT handle = source.GetHFONT();
    GdiFontWrapper copy(source);
    EXPECT_TRUE(copy == source);
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreateFontIndirectW",
                                     &refuseFont);
    EXPECT_EQ(handle, copy.GetHFONT());
    copy.FromLOGFONT(tahoma(-62), 0);
    EXPECT_EQ(handle, source.GetHFONT());
    EXPECT_EQ(nullptr, copy.GetHFONT()) << "null if the system refuses the font";
}

TEST(Font, GivesUpItsGdiFontWithEachChangeThoughTheKeyStays) {
    struct Case {
        const char* what;
        void (*change)(GdiFontWrapper& font);
    };
    const Case cases[] = {
        {"its own description", [](GdiFontWrapper& font) { font.FromLOGFONT(font.GetLOGFONT(), 0); }},
        {"a handle of its own description",
         [](GdiFontWrapper& font) {
             const LOGFONTW description = font.GetLOGFONT();
             const HFONT foreign = ::CreateFontIndirectW(&description);
             font.FromHandle(foreign, 0);
             ::DeleteObject(foreign);
         }},
        {"an angle", [](GdiFontWrapper& font) { font.SetAngle(45); }},
        {"a copy of itself", [](GdiFontWrapper& font) { font = GdiFontWrapper(font); }},
        {"itself",
         [](GdiFontWrapper& font) {
             const GdiFontWrapper& itself = font;
             font = itself;
         }},
    };
    for (const Case& c : cases) {
        GdiFontWrapper font(tahoma(-61), 0);
        changeBeneathItsFont(font);
        ASSERT_EQ(-61, descriptionOf(font.GetHFONT()).lfHeight);
        c.change(font);
        EXPECT_EQ(font.GetHeight(), descriptionOf(font.GetHFONT()).lfHeight) << c.what;
    }
}

TEST(Font, SharesNoGdiFontWithItsCopy) {
    GdiFontWrapper source(tahoma(-61), 0);
    changeBeneathItsFont(source);
    GdiFontWrapper copy(source);
    GdiFontWrapper assigned(tahoma(-62), 0);
    assigned = source;
    for (GdiFontWrapper* other : {&copy, &assigned}) {
        EXPECT_EQ(source.GetHeight(), descriptionOf(other->GetHFONT()).lfHeight);
    }
    EXPECT_EQ(-61, descriptionOf(source.GetHFONT()).lfHeight);
}

TEST(Font, KeepsItsGdiFontIfItIsMergedWithItsEqual) {
    GdiFontWrapper font(tahoma(-61), 0);
    changeBeneathItsFont(font);
    const GdiFontWrapper equal(font);
    GdiTools::UpdateFont(false, equal, font);
    EXPECT_EQ(-61, descriptionOf(font.GetHFONT()).lfHeight) << "nothing happens";
}

TEST(Font, IsEqualInEveryByteOfItsDescription) {
    const GdiFontWrapper font(tahoma(), 0);
    GdiFontWrapper other(tahoma(), 0);
    EXPECT_TRUE(font == other);
    EXPECT_FALSE(font != other);
    other.GetHFONT();
    EXPECT_TRUE(font == other) << "whatever its handle";
    LOGFONTW description = tahoma();
    description.lfFaceName[20] = L'x';
    other.FromLOGFONT(description, 0);
    EXPECT_FALSE(font == other) << "behind the end of the name";
    EXPECT_TRUE(font != other);
    EXPECT_EQ(font.GetFaceName(), other.GetFaceName());
}

TEST(Font, TakesTheDescriptionOfAHandleUnscaled) {
    const LOGFONTW description = tahoma(-33);
    const HFONT foreign = ::CreateFontIndirectW(&description);
    GdiFontWrapper font(tahoma(), 0);
    const HFONT before = font.GetHFONT();
    font.FromHandle(nullptr, FW_BOLD);
    EXPECT_EQ(before, font.GetHFONT());
    EXPECT_EQ(describe(tahoma()), describe(font));
    font.FromHandle(foreign, 0);
    EXPECT_EQ(describe(descriptionOf(foreign)), describe(font));
    EXPECT_EQ(-33, font.GetHeight());
    EXPECT_TRUE(::DeleteObject(foreign));
    font.FromHandle(foreign, FW_BOLD);
    EXPECT_EQ(FW_NORMAL, font.GetLOGFONT().lfWeight) << "nothing is done for a dead handle";
}

TEST(Font, LeavesNoHandleBehindButTheCache) {
    for (int height = 1; height <= 4; ++height) {
        GdiFontWrapper(tahoma(-height), 0).GetHeight();
        FontsObjManager::Instance()->AddFont(tahoma(-height));
    }
    const std::size_t before = support::gdiHandleCount();
    for (int cycle = 0; cycle < 5000; ++cycle) {
        GdiFontWrapper font(tahoma(-1 - cycle % 4), 0);
        font.GetHFONT();
        GdiFontWrapper copy(font);
        copy.GetHFONT();
        copy.SetAngle(cycle);
        copy.GetHFONT();
        font = copy;
        font.GetHFONT();
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}
