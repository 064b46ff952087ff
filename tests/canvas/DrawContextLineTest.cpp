#include "PainterFixture.h"

#include <cmath>
#include <limits>
#include <memory>
#include <string>

#include "support/ImportPatch.h"
#include "support/Resources.h"

using VectorCanvas::DrawContextBase;
using VectorCanvas::DrawContextGdiLine;
using VectorCanvas::DrawContextGdiLineAndFill;

namespace {

Gdiplus::ARGB colorOf(const Gdiplus::Pen& pen) {
    Gdiplus::Color color(0);
    pen.GetColor(&color);
    return color.GetValue();
}

Gdiplus::ARGB colorOf(const Gdiplus::SolidBrush& brush) {
    Gdiplus::Color color(0);
    brush.GetColor(&color);
    return color.GetValue();
}

COLORREF colorOf(HBRUSH brush) {
    LOGBRUSH description{};
    ::GetObjectW(brush, sizeof description, &description);
    return description.lbColor;
}

Gdiplus::GpStatus WINGDIPAPI refuseDashes(Gdiplus::GpPen*, Gdiplus::GpDashStyle) {
    return Gdiplus::OutOfMemory;
}

Gdiplus::GpStatus WINGDIPAPI refuseColor(Gdiplus::GpPen*, Gdiplus::ARGB*) {
    return Gdiplus::OutOfMemory;
}

Gdiplus::GpStatus WINGDIPAPI refuseBrushColor(Gdiplus::GpSolidFill*, Gdiplus::ARGB*) {
    return Gdiplus::OutOfMemory;
}

HMODULE controls() {
    return ::GetModuleHandleW(L"OrtinControls.dll");
}

std::string letGo;

BOOL WINAPI noteObject(HGDIOBJ object) {
    letGo += ::GetObjectType(object) == OBJ_PEN ? "pen; " : "brush; ";
    return ::DeleteObject(object);
}

Gdiplus::GpStatus WINGDIPAPI noteGdiPlusPen(Gdiplus::GpPen* pen) {
    letGo += "GDI+ pen; ";
    return Gdiplus::DllExports::GdipDeletePen(pen);
}

Gdiplus::GpStatus WINGDIPAPI noteGdiPlusBrush(Gdiplus::GpBrush* brush) {
    letGo += "GDI+ brush; ";
    return Gdiplus::DllExports::GdipDeleteBrush(brush);
}

class LineContext : public testing::Test {
protected:
    DrawContextGdiLine line;
};

class FillContext : public testing::Test {
protected:
    DrawContextGdiLineAndFill shape;
};

} // namespace

TEST(Contexts, CarryTheirIdWithCopiesAndMoves) {
    DrawContextBase first;
    EXPECT_EQ(0U, first.GetId());
    first.SetId(0xFFFFFFFF);
    DrawContextBase copy(first);
    EXPECT_EQ(0xFFFFFFFFU, copy.GetId());
    DrawContextBase assigned;
    assigned = std::move(copy);
    EXPECT_EQ(0xFFFFFFFFU, assigned.GetId());
    static_assert(!std::is_copy_constructible_v<DrawContextGdiLine>);
    static_assert(!std::is_copy_assignable_v<DrawContextGdiLine>);
    static_assert(!std::is_copy_constructible_v<DrawContextGdiLineAndFill>);
}

TEST_F(LineContext, BeginsBlackWithAThinnerPenInGdiThanInGdiPlus) {
    EXPECT_EQ(0U, line.GetId());
    const LOGPEN& description = line.GetLOGPEN();
    EXPECT_EQ(0, description.lopnWidth.x);
    EXPECT_EQ(0U, description.lopnColor);
    EXPECT_EQ(static_cast<UINT>(PS_SOLID), description.lopnStyle);
    EXPECT_EQ(1.0F, line.GetPen().GetWidth());
    EXPECT_EQ(0xFF000000, colorOf(line.GetPen()));
    EXPECT_EQ(Gdiplus::DashStyleSolid, line.GetPen().GetDashStyle());
}

TEST_F(LineContext, MakesItsGdiPenWhenItIsAskedFor) {
    const std::size_t before = support::gdiHandleCount();
    const HGDIOBJ pen = line.GetHGDIOBJ();
    EXPECT_EQ(static_cast<DWORD>(OBJ_PEN), ::GetObjectType(pen));
    EXPECT_EQ(pen, line.GetHGDIOBJ());
    EXPECT_EQ(before + 1, support::gdiHandleCount());
    line.ReleaseContext();
    EXPECT_EQ(before, support::gdiHandleCount());
    line.ReleaseContext();
    LOGPEN made{};
    ::GetObjectW(line.GetHGDIOBJ(), sizeof made, &made);
    EXPECT_EQ(line.GetLOGPEN().lopnColor, made.lopnColor) << "the description has stayed";
}

TEST_F(LineContext, TakesOverAPen) {
    struct Case {
        int style;
        Gdiplus::DashStyle dashes;
    };
    const Case cases[] = {
        {PS_SOLID, Gdiplus::DashStyleSolid},
        {PS_DASH, Gdiplus::DashStyleDash},
        {PS_DOT, Gdiplus::DashStyleDot},
        {PS_DASHDOT, Gdiplus::DashStyleDashDot},
        {PS_DASHDOTDOT, Gdiplus::DashStyleDashDotDot},
    };
    for (const Case& c : cases) {
        LOGPEN wanted{static_cast<UINT>(c.style), {3, 0}, RGB(1, 2, 3)};
        const HPEN handle = ::CreatePenIndirect(&wanted);
        line.GetHGDIOBJ();
        line.UpdateContext(handle);
        EXPECT_EQ(wanted.lopnStyle, line.GetLOGPEN().lopnStyle);
        EXPECT_EQ(3, line.GetLOGPEN().lopnWidth.x);
        EXPECT_EQ(RGB(1, 2, 3), line.GetLOGPEN().lopnColor);
        EXPECT_EQ(0xFF010203, colorOf(line.GetPen())) << "red and blue in their places";
        EXPECT_EQ(3.0F, line.GetPen().GetWidth());
        EXPECT_EQ(48.0F, line.GetPen().GetDashOffset()) << "16 widths";
        EXPECT_EQ(c.dashes, line.GetPen().GetDashStyle());
        LOGPEN made{};
        ::GetObjectW(line.GetHGDIOBJ(), sizeof made, &made);
        EXPECT_EQ(wanted.lopnStyle, made.lopnStyle) << "the GDI pen is made anew";
        EXPECT_NE(0U, ::GetObjectType(handle)) << "the pen is still the caller's";
        ::DeleteObject(handle);
    }
}

TEST_F(LineContext, TakesOverAPenObject) {
    CPen pen;
    LOGPEN wanted{PS_DASH, {5, 0}, RGB(9, 8, 7)};
    pen.CreatePenIndirect(&wanted);
    line.UpdateContext(pen);
    EXPECT_EQ(RGB(9, 8, 7), line.GetLOGPEN().lopnColor);
    EXPECT_EQ(5.0F, line.GetPen().GetWidth());
}

TEST_F(LineContext, KeepsItsDashesUnderAStyleThatHasNone) {
    LOGPEN dashed{PS_DASHDOT, {1, 0}, kRed};
    const HPEN first = ::CreatePenIndirect(&dashed);
    line.UpdateContext(first);
    const HPEN invisible = static_cast<HPEN>(::GetStockObject(NULL_PEN));
    line.UpdateContext(invisible);
    EXPECT_EQ(static_cast<UINT>(PS_NULL), line.GetLOGPEN().lopnStyle);
    EXPECT_EQ(Gdiplus::DashStyleDashDot, line.GetPen().GetDashStyle());
    ::DeleteObject(first);
}

TEST_F(LineContext, WithoutAPenAppliesTheOneItHas) {
    line.UpdateContext(redPen());
    line.SetHollow(0.5F);
    const HGDIOBJ pen = line.GetHGDIOBJ();
    line.UpdateContext(static_cast<HPEN>(nullptr));
    EXPECT_EQ(0xFFFF0000, colorOf(line.GetPen())) << "opaque again";
    EXPECT_EQ(pen, line.GetHGDIOBJ()) << "the GDI pen stays";

    DrawContextGdiLine fresh;
    fresh.UpdateContext(nullptr);
    EXPECT_EQ(0.0F, fresh.GetPen().GetWidth()) << "the width of the description";
}

TEST_F(LineContext, KeepsItsDescriptionWhenTheHandleIsNoPen) {
    line.UpdateContext(redPen());
    const HGDIOBJ pen = line.GetHGDIOBJ();
    line.UpdateContext(reinterpret_cast<HPEN>(0x7FFFFFF0));
    EXPECT_EQ(kRed, line.GetLOGPEN().lopnColor);
    EXPECT_EQ(pen, line.GetHGDIOBJ());
}

TEST_F(LineContext, ChangesItsColourOnly) {
    LOGPEN dashed{PS_DASH, {3, 0}, kRed};
    const HPEN pen = ::CreatePenIndirect(&dashed);
    line.UpdateContext(pen);
    ::DeleteObject(pen);
    line.SetHollow(0.25F);
    line.GetHGDIOBJ();
    line.ChangeColor(RGB(1, 2, 3));
    EXPECT_EQ(0xFF010203, colorOf(line.GetPen())) << "opaque again";
    EXPECT_EQ(3.0F, line.GetPen().GetWidth());
    EXPECT_EQ(Gdiplus::DashStyleDash, line.GetPen().GetDashStyle());
    LOGPEN made{};
    ::GetObjectW(line.GetHGDIOBJ(), sizeof made, &made);
    EXPECT_EQ(RGB(1, 2, 3), made.lopnColor);
    EXPECT_EQ(static_cast<UINT>(PS_DASH), made.lopnStyle);
}

TEST_F(LineContext, TakesDashesOfItsOwnUntilAPenBringsOthers) {
    EXPECT_TRUE(line.SetCustomDashStyle({4.0F, 1.5F, 2.0F}));
    EXPECT_EQ(Gdiplus::DashStyleCustom, line.GetPen().GetDashStyle());
    ASSERT_EQ(3, line.GetPen().GetDashPatternCount());
    float lengths[3]{};
    line.GetPen().GetDashPattern(lengths, 3);
    EXPECT_EQ(1.5F, lengths[1]);
    line.UpdateContext(redPen());
    EXPECT_EQ(Gdiplus::DashStyleSolid, line.GetPen().GetDashStyle());
}

TEST_F(LineContext, ReportsDashesThatAreRefused) {
    EXPECT_FALSE(line.SetCustomDashStyle({}));
    EXPECT_NE(Gdiplus::Ok, line.GetPen().GetLastStatus());
    EXPECT_FALSE(line.SetCustomDashStyle({3.0F, -1.0F}));
    EXPECT_NE(Gdiplus::Ok, line.GetPen().GetLastStatus());
    const support::ImportPatch patch(controls(), "gdiplus.dll", "GdipSetPenDashStyle", &refuseDashes);
    EXPECT_FALSE(line.SetCustomDashStyle({3.0F, 1.0F}));
    EXPECT_EQ(Gdiplus::OutOfMemory, line.GetPen().GetLastStatus());
}

TEST_F(LineContext, GetsHollowInGdiPlusOnly) {
    line.UpdateContext(redPen());
    const HGDIOBJ pen = line.GetHGDIOBJ();
    struct Case {
        float opacity;
        Gdiplus::ARGB color;
    };
    const Case cases[] = {{0.5F, 0x7FFF0000},
                          {0.0F, 0x00FF0000},
                          {1.0F, 0xFFFF0000},
                          {2.0F, 0xFEFF0000},
                          {std::numeric_limits<float>::quiet_NaN(), 0x00FF0000}};
    for (const Case& c : cases) {
        line.SetHollow(c.opacity);
        EXPECT_EQ(c.color, colorOf(line.GetPen())) << c.opacity;
    }
    EXPECT_EQ(kRed, line.GetLOGPEN().lopnColor);
    EXPECT_EQ(pen, line.GetHGDIOBJ());
}

TEST_F(LineContext, GetsHollowBlackWhenItsColourCannotBeRead) {
    line.UpdateContext(redPen());
    {
        const support::ImportPatch patch(controls(), "gdiplus.dll", "GdipGetPenColor", &refuseColor);
        line.SetHollow(0.5F);
    }
    EXPECT_EQ(0x7F000000U, colorOf(line.GetPen()));
    EXPECT_EQ(Gdiplus::OutOfMemory, line.GetPen().GetLastStatus());
}

TEST_F(LineContext, GetsHollowBlackWhileItsPenRemembersAFailure) {
    line.UpdateContext(redPen());
    EXPECT_FALSE(line.SetCustomDashStyle({}));
    line.SetHollow(0.5F);
    EXPECT_EQ(0x7F000000U, colorOf(line.GetPen()));
    EXPECT_NE(Gdiplus::Ok, line.GetPen().GetLastStatus()) << "still remembered; asking makes it forget";
    line.UpdateContext(redPen());
    line.SetHollow(0.5F);
    EXPECT_EQ(0x7FFF0000U, colorOf(line.GetPen()));
}

TEST_F(LineContext, LeavesNothingBehind) {
    const auto live = [] {
        DrawContextGdiLine context;
        context.UpdateContext(redPen());
        context.GetHGDIOBJ();
        context.SetHollow(0.5F);
        DrawContextGdiLineAndFill filled;
        filled.ChangeColors(kRed, kBlue);
        filled.GetHGDIOBJ();
        filled.GetHBrush();
        filled.SetHollow(0.5F);
    };
    live();
    const support::Resources before = support::Resources::inUse();
    for (int round = 0; round < 2000; ++round) {
        live();
    }
    const support::Resources after = support::Resources::inUse();
    EXPECT_EQ(before.gdiHandles, after.gdiHandles);
    EXPECT_LE(after.heapBytes, before.heapBytes + 4096);
}

TEST_F(FillContext, BeginsBlackAndFilled) {
    EXPECT_TRUE(shape.FillRequired());
    EXPECT_EQ(0xFF000000, colorOf(shape.GetGdiplusBrush()));
    EXPECT_EQ(kBlack, colorOf(shape.GetHBrush()));
    shape.FillRequired(false);
    EXPECT_FALSE(shape.FillRequired());
}

TEST_F(FillContext, TakesABrushForGdiOnly) {
    const HBRUSH blue = ::CreateSolidBrush(kBlue);
    shape.GetHBrush();
    shape.UpdateContext(redPen(), blue);
    EXPECT_EQ(kRed, shape.GetLOGPEN().lopnColor);
    EXPECT_EQ(kBlue, colorOf(shape.GetHBrush()));
    EXPECT_EQ(0xFF000000, colorOf(shape.GetGdiplusBrush()));
    EXPECT_NE(blue, shape.GetHBrush()) << "a brush of its own";
    ::DeleteObject(blue);
    const HBRUSH own = shape.GetHBrush();
    shape.UpdateContext(redPen(), static_cast<HBRUSH>(nullptr));
    EXPECT_EQ(own, shape.GetHBrush()) << "without a brush the fill stays";
}

TEST_F(FillContext, TakesAColourForGdiPlusOnly) {
    const HBRUSH own = shape.GetHBrush();
    shape.UpdateContext(redPen(), Gdiplus::Color(0x40, 1, 2, 3));
    EXPECT_EQ(kRed, shape.GetLOGPEN().lopnColor);
    EXPECT_EQ(0x40010203U, colorOf(shape.GetGdiplusBrush())) << "with its alpha";
    EXPECT_EQ(own, shape.GetHBrush());
}

TEST_F(FillContext, ChangesTheColoursOfBoth) {
    shape.SetHollow(0.5F);
    shape.GetHBrush();
    shape.ChangeColors(RGB(1, 2, 3), RGB(4, 5, 6));
    EXPECT_EQ(0xFF010203, colorOf(shape.GetPen()));
    EXPECT_EQ(0xFF040506, colorOf(shape.GetGdiplusBrush()));
    EXPECT_EQ(RGB(4, 5, 6), colorOf(shape.GetHBrush()));
    EXPECT_EQ(RGB(1, 2, 3), shape.GetLOGPEN().lopnColor);
}

TEST_F(FillContext, IsSolidAlsoUnderAHatch) {
    const HBRUSH hatch = ::CreateHatchBrush(HS_CROSS, kBlue);
    shape.UpdateContext(redPen(), hatch);
    LOGBRUSH made{};
    ::GetObjectW(shape.GetHBrush(), sizeof made, &made);
    EXPECT_EQ(static_cast<UINT>(BS_SOLID), made.lbStyle);
    EXPECT_EQ(kBlue, made.lbColor);
    ::DeleteObject(hatch);
}

TEST_F(FillContext, GetsHollowInOutlineAndFill) {
    shape.ChangeColors(kRed, kBlue);
    shape.SetHollow(0.5F);
    EXPECT_EQ(0x7FFF0000U, colorOf(shape.GetPen()));
    EXPECT_EQ(0x7F0000FFU, colorOf(shape.GetGdiplusBrush()));
    EXPECT_EQ(kBlue, colorOf(shape.GetHBrush()));
}

TEST_F(FillContext, GetsHollowBlackInsideWhenItsColourCannotBeRead) {
    shape.ChangeColors(kRed, kBlue);
    {
        const support::ImportPatch patch(controls(), "gdiplus.dll", "GdipGetSolidFillColor", &refuseBrushColor);
        shape.SetHollow(0.5F);
    }
    EXPECT_EQ(0x7FFF0000U, colorOf(shape.GetPen()));
    EXPECT_EQ(0x7F000000U, colorOf(shape.GetGdiplusBrush()));
    EXPECT_EQ(Gdiplus::OutOfMemory, shape.GetGdiplusBrush().GetLastStatus());
}

TEST(Contexts, EndFromTheGdiPlusBrushToTheGdiPen) {
    auto shape = std::make_unique<DrawContextGdiLineAndFill>();
    shape->GetHGDIOBJ();
    shape->GetHBrush();
    const support::ImportPatch objects(::GetModuleHandleW(L"OrtinMfc.dll"), "gdi32.dll", "DeleteObject", &noteObject);
    const support::ImportPatch pens(controls(), "gdiplus.dll", "GdipDeletePen", &noteGdiPlusPen);
    const support::ImportPatch brushes(controls(), "gdiplus.dll", "GdipDeleteBrush", &noteGdiPlusBrush);
    letGo.clear();
    shape.reset();
    EXPECT_EQ("GDI+ brush; brush; GDI+ pen; pen; ", letGo);
}

TEST_F(FillContext, LetsBothGdiObjectsGo) {
    const std::size_t before = support::gdiHandleCount();
    DrawContextGdiLine& asLine = shape;
    shape.GetHGDIOBJ();
    shape.GetHBrush();
    EXPECT_EQ(before + 2, support::gdiHandleCount());
    asLine.ReleaseContext();
    EXPECT_EQ(before, support::gdiHandleCount());
}
