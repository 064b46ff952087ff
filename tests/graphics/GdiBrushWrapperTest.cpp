#include <gtest/gtest.h>

#include <boost/json.hpp>

#include <OrtinControls/GdiBrushWrapper.h>

#include "GdiDescriptions.h"
#include "support/ImportPatch.h"
#include "support/Resources.h"

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// What the brush would write: all of its description.
std::string describe(const GdiBrushWrapper& brush) {
    return boost::json::serialize(brush.ToJson());
}

LOGBRUSH descriptionOf(HBRUSH brush) {
    LOGBRUSH description{};
    EXPECT_EQ(static_cast<int>(sizeof description), ::GetObjectW(brush, sizeof description, &description));
    return description;
}

HBRUSH WINAPI refuseBrush(COLORREF) {
    return nullptr;
}

GdiBrushWrapper hatchedBrush() {
    GdiBrushWrapper brush;
    const HBRUSH hatched = ::CreateHatchBrush(HS_CROSS, kBlue);
    brush.FromHandle(hatched);
    ::DeleteObject(hatched);
    return brush;
}

} // namespace

TEST(Brush, BeginsSolidAndBlack) {
    GdiBrushWrapper brush;
    EXPECT_EQ(R"({"PenStyle":0,"PenClr":[0,0,0],"PenHatch":0})", describe(brush));
    EXPECT_EQ(0U, descriptionOf(brush.GetHBRUSH()).lbColor);
    EXPECT_EQ(brush.GetHBRUSH(), brush.GetHGDIOBJ());
}

TEST(Brush, MakesItsHandleOnceAndAgainAfterAChange) {
    GdiBrushWrapper brush;
    const std::size_t before = support::gdiHandleCount();
    const HBRUSH first = brush.GetHBRUSH();
    EXPECT_EQ(first, brush.GetHBRUSH());
    brush.FromColor(kRed);
    EXPECT_EQ(before, support::gdiHandleCount());
    EXPECT_EQ(kRed, descriptionOf(brush.GetHBRUSH()).lbColor);
    brush.DeleteBrush();
    EXPECT_EQ(before, support::gdiHandleCount());
    EXPECT_EQ(kRed, descriptionOf(brush.GetHBRUSH()).lbColor) << "the description stays";
    brush = GdiBrushWrapper();
    EXPECT_EQ(before, support::gdiHandleCount());
}

TEST(Brush, IsSolidWhateverItsStyleAndHatch) {
    GdiBrushWrapper brush = hatchedBrush();
    EXPECT_EQ(R"({"PenStyle":2,"PenClr":[0,0,255],"PenHatch":4})", describe(brush));
    const LOGBRUSH made = descriptionOf(brush.GetHBRUSH());
    EXPECT_EQ(static_cast<UINT>(BS_SOLID), made.lbStyle);
    EXPECT_EQ(kBlue, made.lbColor);
    brush.FromColor(kRed);
    EXPECT_EQ(R"({"PenStyle":2,"PenClr":[255,0,0],"PenHatch":4})", describe(brush)) << "only the colour changes";
}

TEST(Brush, SharesNoHandleWithItsCopy) {
    GdiBrushWrapper source = hatchedBrush();
    const HBRUSH handle = source.GetHBRUSH();
    GdiBrushWrapper copy(source);
    EXPECT_EQ(describe(source), describe(copy));
    EXPECT_NE(handle, copy.GetHBRUSH());
    GdiBrushWrapper assigned;
    const HBRUSH old = assigned.GetHBRUSH();
    assigned = source;
    EXPECT_FALSE(isAlive(old));
    EXPECT_EQ(describe(source), describe(assigned));
    EXPECT_NE(handle, assigned.GetHBRUSH());
    EXPECT_EQ(handle, source.GetHBRUSH());
    const GdiBrushWrapper& itself = copy;
    const HBRUSH own = copy.GetHBRUSH();
    copy = itself;
    EXPECT_FALSE(isAlive(own)) << "assigned to itself, it is no other brush, but asks anew";
    EXPECT_EQ(describe(source), describe(copy));
}

TEST(Brush, IsEqualInHandleAlone) {
    GdiBrushWrapper red;
    red.FromColor(kRed);
    GdiBrushWrapper blue;
    blue.FromColor(kBlue);
    EXPECT_TRUE(red == blue) << "neither has a handle";
    red.GetHBRUSH();
    EXPECT_FALSE(red == blue);
    const GdiBrushWrapper copy(red);
    EXPECT_FALSE(red == copy) << "the same colour, but only one has a handle";
    blue.GetHBRUSH();
    EXPECT_FALSE(red == blue) << "two handles";
    EXPECT_TRUE(red == red); // NOLINT(misc-redundant-expression)
}

TEST(Brush, TakesTheDescriptionOfAHandleAndLeavesItToItsOwner) {
    GdiBrushWrapper brush;
    const HBRUSH before = brush.GetHBRUSH();
    brush.FromHandle(nullptr);
    EXPECT_EQ(before, brush.GetHBRUSH());
    const HBRUSH foreign = ::CreateSolidBrush(kRed);
    brush.FromHandle(foreign);
    EXPECT_FALSE(isAlive(before));
    EXPECT_EQ(R"({"PenStyle":0,"PenClr":[255,0,0],"PenHatch":0})", describe(brush));
    EXPECT_NE(foreign, brush.GetHBRUSH());
    EXPECT_TRUE(::DeleteObject(foreign));
    const HBRUSH own = brush.GetHBRUSH();
    brush.FromHandle(foreign);
    EXPECT_EQ(own, brush.GetHBRUSH()) << "nothing is done for a dead handle";
    brush.FromHandle(own);
    EXPECT_FALSE(isAlive(own)) << "its own handle is one like another";
    EXPECT_EQ(R"({"PenStyle":0,"PenClr":[255,0,0],"PenHatch":0})", describe(brush));
}

TEST(Brush, HasANullHandleIfTheSystemRefusesIt) {
    GdiBrushWrapper brush;
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreateSolidBrush",
                                         &refuseBrush);
        EXPECT_EQ(nullptr, brush.GetHBRUSH());
    }
    EXPECT_NE(nullptr, brush.GetHBRUSH());
}

TEST(BrushDocument, ThatItWroteItselfThrowsWithStyleAndColourTaken) {
    const boost::json::value document = boost::json::parse(describe(hatchedBrush()));
    GdiBrushWrapper brush;
    const HBRUSH handle = brush.GetHBRUSH();
    try {
        brush.FromJson(document);
        FAIL() << "it is read";
    } catch (const std::invalid_argument& error) {
        EXPECT_STREQ("not an int64", error.what());
    }
    EXPECT_EQ(R"({"PenStyle":2,"PenClr":[0,0,255],"PenHatch":0})", describe(brush));
    EXPECT_EQ(handle, brush.GetHBRUSH()) << "and the handle of before";
    EXPECT_EQ(0U, descriptionOf(handle).lbColor);
    EXPECT_THROW(GdiBrushWrapper{document}, std::invalid_argument);
}

TEST(BrushDocument, WithoutATextBetweenThrowsBeforeAnythingIsTaken) {
    GdiBrushWrapper brush;
    EXPECT_THROW(brush.FromJson(hatchedBrush().ToJson()), std::invalid_argument);
    EXPECT_EQ(R"({"PenStyle":0,"PenClr":[0,0,0],"PenHatch":0})", describe(brush));
}

TEST(BrushDocument, ThatIsNullChangesNothing) {
    GdiBrushWrapper brush = hatchedBrush();
    const std::string before = describe(brush);
    const HBRUSH handle = brush.GetHBRUSH();
    EXPECT_FALSE(brush.FromJson(nullptr));
    EXPECT_EQ(before, describe(brush));
    EXPECT_EQ(handle, brush.GetHBRUSH());
    const boost::json::value null;
    EXPECT_EQ(R"({"PenStyle":0,"PenClr":[0,0,0],"PenHatch":0})", describe(GdiBrushWrapper(null)));
}

TEST(BrushDocument, WithoutAKeyIsOutOfRange) {
    GdiBrushWrapper brush;
    EXPECT_THROW(brush.FromJson(boost::json::parse("{}")), std::out_of_range);
    EXPECT_THROW(brush.FromJson(boost::json::parse(R"({"PenStyle":1})")), std::out_of_range);
    EXPECT_THROW(brush.FromJson(boost::json::parse(R"({"PenStyle":1,"PenClr":[1,2]})")), std::out_of_range);
}

TEST(Brush, LeavesNoHandleBehind) {
    const std::size_t before = support::gdiHandleCount();
    for (int cycle = 0; cycle < 5000; ++cycle) {
        GdiBrushWrapper brush;
        brush.GetHBRUSH();
        GdiBrushWrapper copy(brush);
        copy.GetHBRUSH();
        copy.FromColor(kRed);
        copy.GetHBRUSH();
        brush = copy;
        brush.GetHBRUSH();
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}
