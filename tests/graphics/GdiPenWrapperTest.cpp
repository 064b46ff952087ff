#include <gtest/gtest.h>

#include <string>

#include <OrtinControls/GdiPenWrapper.h>
#include <OrtinFoundation/Settings.h>

#include "GdiDescriptions.h"
#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

LOGPEN descriptionOf(HPEN pen) {
    LOGPEN description{};
    EXPECT_EQ(static_cast<int>(sizeof description), ::GetObjectW(pen, sizeof description, &description));
    return description;
}

HPEN WINAPI refusePen(const LOGPEN*) {
    return nullptr;
}

/// A node of settings as somebody has written it.
Settings node(std::uint32_t version, const std::string& text) {
    Settings settings;
    settings.Version = version;
    settings = text;
    return settings;
}

} // namespace

TEST(Pen, BeginsSolidAndBlackWithoutAWidth) {
    GdiPenWrapper pen;
    EXPECT_EQ("0 0,0 0", describe(pen));
    EXPECT_EQ("0 0,0 0", describe(descriptionOf(pen.GetHPEN())));
}

TEST(Pen, IsWhatItWasMadeOf) {
    GdiPenWrapper pen(PS_DASH, 3, kRed);
    EXPECT_EQ("1 3,0 255", describe(pen));
    EXPECT_EQ(static_cast<unsigned>(PS_DASH), pen.LineStyle());
    EXPECT_EQ(3, pen.Width());
    EXPECT_EQ(kRed, pen.Color());
    EXPECT_EQ(pen.GetHPEN(), pen.GetHGDIOBJ());
    pen.LineStyle(PS_SOLID);
    EXPECT_EQ("0 3,0 255", describe(descriptionOf(pen.GetHPEN())));
}

TEST(Pen, MakesItsHandleOnceAndAgainAfterEachChange) {
    GdiPenWrapper pen(PS_SOLID, 1, kRed);
    const std::size_t before = support::gdiHandleCount();
    const HPEN first = pen.GetHPEN();
    EXPECT_EQ(first, pen.GetHPEN());
    EXPECT_EQ(before + 1, support::gdiHandleCount());
    const auto changes = {
        +[](GdiPenWrapper& p) { p.Color(kBlue); },
        +[](GdiPenWrapper& p) { p.Width(4); },
        +[](GdiPenWrapper& p) { p.LineStyle(PS_DOT); },
        +[](GdiPenWrapper& p) {
            p.FromLOGPEN({PS_DASHDOT, {5, 6}, kRed});
        },
        +[](GdiPenWrapper& p) { p.FromDescription(PS_SOLID, 7, kBlue); },
        +[](GdiPenWrapper& p) { p.DeletePen(); },
        +[](GdiPenWrapper& p) { p = GdiPenWrapper(PS_SOLID, 1, kRed); },
        +[](GdiPenWrapper& p) { p.Unserialize(node(1, "0 2 255")); },
        +[](GdiPenWrapper& p) { p.Unserialize(node(0, "00000000020000000000000000FF0000")); },
    };
    const char* descriptions[] = {"0 1,0 16711680", "0 4,0 16711680", "2 4,0 16711680", "3 5,6 255",  "0 7,6 16711680",
                                  "0 7,6 16711680", "0 1,0 255",      "0 2,0 255",      "0 2,0 65280"};
    std::size_t index = 0;
    for (const auto change : changes) {
        change(pen);
        EXPECT_EQ(before, support::gdiHandleCount()) << "the handle is gone after change " << index;
        EXPECT_EQ(descriptions[index], describe(pen)) << index;
        pen.GetHPEN();
        EXPECT_EQ(before + 1, support::gdiHandleCount());
        ++index;
    }
}

TEST(Pen, SharesNoHandleWithItsCopy) {
    GdiPenWrapper source(PS_SOLID, 2, kRed);
    const HPEN handle = source.GetHPEN();
    GdiPenWrapper copy(source);
    EXPECT_EQ(describe(source), describe(copy));
    EXPECT_NE(handle, copy.GetHPEN());
    EXPECT_EQ(handle, source.GetHPEN());
    GdiPenWrapper assigned;
    assigned.GetHPEN();
    assigned = source;
    EXPECT_NE(handle, assigned.GetHPEN());
    EXPECT_NE(copy.GetHPEN(), assigned.GetHPEN());
    source.DeletePen();
    EXPECT_TRUE(isAlive(copy.GetHPEN()));
    const GdiPenWrapper& itself = copy;
    const HPEN own = copy.GetHPEN();
    copy = itself;
    EXPECT_EQ("0 2,0 255", describe(copy));
    EXPECT_FALSE(isAlive(own)) << "assigned to itself, it is no other pen, but asks anew";
}

TEST(Pen, IsEqualInDescriptionAndHandle) {
    GdiPenWrapper left(PS_SOLID, 2, kRed);
    const GdiPenWrapper right(left);
    EXPECT_TRUE(left == right);
    EXPECT_FALSE(left != right);
    left.GetHPEN();
    EXPECT_FALSE(left == right) << "one has a handle";
    EXPECT_TRUE(left != right);
    left.DeletePen();
    EXPECT_TRUE(left == right);
    for (const LOGPEN& other : {LOGPEN{PS_DASH, {2, 0}, kRed}, LOGPEN{PS_SOLID, {3, 0}, kRed},
                                LOGPEN{PS_SOLID, {2, 1}, kRed}, LOGPEN{PS_SOLID, {2, 0}, kBlue}}) {
        left.FromLOGPEN(other);
        EXPECT_TRUE(left != right) << describe(other);
    }
}

TEST(Pen, TakesTheDescriptionOfAHandleAndLeavesItToItsOwner) {
    GdiPenWrapper pen;
    const HPEN before = pen.GetHPEN();
    const HPEN foreign = ::CreatePen(PS_DASHDOTDOT, 1, kBlue);
    pen.FromHandle(nullptr);
    EXPECT_EQ(before, pen.GetHPEN()) << "nothing is done for null";
    pen.FromHandle(foreign);
    EXPECT_FALSE(isAlive(before));
    EXPECT_EQ(describe(descriptionOf(foreign)), describe(pen));
    EXPECT_NE(foreign, pen.GetHPEN());
    EXPECT_TRUE(::DeleteObject(foreign));
    const HPEN own = pen.GetHPEN();
    pen.FromHandle(foreign);
    EXPECT_EQ(own, pen.GetHPEN()) << "nor for a handle that is dead";
    const std::string description = describe(pen);
    pen.FromHandle(own);
    EXPECT_FALSE(isAlive(own)) << "its own handle is one like another";
    EXPECT_EQ(description, describe(pen));
}

TEST(Pen, HasANullHandleIfTheSystemRefusesIt) {
    GdiPenWrapper pen(PS_SOLID, 2, kRed);
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreatePenIndirect",
                                         &refusePen);
        EXPECT_EQ(nullptr, pen.GetHPEN());
    }
    EXPECT_NE(nullptr, pen.GetHPEN()) << "and asks again";
}

TEST(PenSettings, AreThreeDecimalNumbers) {
    Settings settings;
    GdiPenWrapper pen(PS_SOLID, 2, kRed);
    pen.FromLOGPEN({PS_SOLID, {2, 9}, kRed});
    pen.Serialize(settings);
    EXPECT_EQ("OrtinSettings 1\n#1=0 2 255\n", settings.ToFileText());
    GdiPenWrapper(0xFFFFFFFF, -5, 0xFFFFFFFF).Serialize(settings);
    EXPECT_STREQ("4294967295 -5 4294967295", settings);
}

TEST(PenSettings, ComeBack) {
    for (const GdiPenWrapper& pen :
         {GdiPenWrapper(PS_SOLID, 2, kRed), GdiPenWrapper(PS_DASHDOTDOT, 0, kBlue),
          GdiPenWrapper(0xFFFFFFFF, -2147483647 - 1, 0x80000000), GdiPenWrapper(7, 2147483647, 0x00FFFFFF)}) {
        Settings settings;
        pen.Serialize(settings);
        GdiPenWrapper read;
        read.Unserialize(settings);
        EXPECT_TRUE(pen == read) << describe(read);
    }
}

TEST(PenSettings, AreReadAsFarAsTheyGo) {
    struct Case {
        const char* what;
        std::uint32_t version;
        std::string text;
        const char* outcome;
        bool keepsHandle;
    };
    const Case cases[] = {
        {"a whole text", 1, "0 2 255", "0 2,6 255", false},
        {"more than a whole text", 1, "0 2 255 7 x", "0 2,6 255", false},
        {"two numbers", 1, "0 2", "0 2,6 16711680", true},
        {"one number", 1, "0", "0 5,6 16711680", true},
        {"no number", 1, "", "3 5,6 16711680", true},
        {"words", 1, "x 2 255", "3 5,6 16711680", true},
        {"numbers beyond 32 bits", 1, "4294967297 4294967298 4294967299", "1 2,6 3", false},
        {"negative numbers", 1, "-1 -2 -3", "4294967295 -2,6 4294967293", false},
        {"a NUL", 1, std::string("0 2\0 255", 8), "0 2,6 16711680", true},
        {"another version", 7, "0 2 255", "3 5,6 16711680", true},
        {"the next version", 2, "0 2 255", "3 5,6 16711680", true},
        {"the last version", 0xFFFFFFFF, "0 2 255", "3 5,6 16711680", true},
        {"legacy", 0, "01000000070000000800000012345600", "1 7,8 5649426", false},
        {"legacy, a byte too few", 0, "010000000700000008000000123456", "3 5,6 16711680", true},
        {"legacy, a byte too many", 0, "0100000007000000080000001234560000", "3 5,6 16711680", true},
        {"legacy, no bytes", 0, "0 2 255", "3 5,6 16711680", true},
        {"legacy, nothing", 0, "", "3 5,6 16711680", true},
    };
    for (const Case& c : cases) {
        GdiPenWrapper pen;
        pen.FromLOGPEN({PS_DASHDOT, {5, 6}, kBlue});
        const HPEN handle = pen.GetHPEN();
        pen.Unserialize(node(c.version, c.text));
        EXPECT_EQ(c.outcome, describe(pen)) << c.what;
        EXPECT_EQ(c.keepsHandle, isAlive(handle)) << c.what;
    }
}

TEST(PenSettings, OfAMissingNodeAreLegacyAndChangeNothing) {
    const Settings nothing;
    GdiPenWrapper pen(PS_DASH, 1, kRed);
    pen.Unserialize(nothing["pen"]);
    EXPECT_EQ("1 1,0 255", describe(pen));
}

TEST(Pen, LeavesNoHandleBehind) {
    const std::size_t before = support::gdiHandleCount();
    for (int cycle = 0; cycle < 5000; ++cycle) {
        GdiPenWrapper pen(PS_SOLID, cycle % 5, kRed);
        pen.GetHPEN();
        GdiPenWrapper copy(pen);
        copy.GetHPEN();
        copy.Width(2);
        copy.GetHPEN();
        pen = copy;
        pen.GetHPEN();
        pen.Unserialize(node(1, "0 2 255"));
        pen.GetHPEN();
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}
