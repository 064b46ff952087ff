#include "PainterFixture.h"

#include <string>

#include <OrtinFoundation/TextSizeCalculator.h>

#include "support/ImportPatch.h"
#include "support/Resources.h"

using VectorCanvas::DrawContextGdiText;

namespace {

LOGFONTW descriptionOf(HGDIOBJ font) {
    LOGFONTW description{};
    ::GetObjectW(font, sizeof description, &description);
    return description;
}

std::vector<int> qualities;

HFONT WINAPI noteQuality(const LOGFONTW* description) {
    qualities.push_back(description->lfQuality);
    return ::CreateFontIndirectW(description);
}

/// A font without smoothing, unless told otherwise.
class Font {
public:
    explicit Font(int height, BYTE quality = NONANTIALIASED_QUALITY) {
        LOGFONTW description{};
        description.lfHeight = height;
        description.lfQuality = quality;
        ::lstrcpynW(description.lfFaceName, L"Tahoma", LF_FACESIZE);
        m_font.CreateFontIndirect(&description);
    }
    operator HFONT() const { return m_font; }

private:
    CFont m_font;
};

class TextContext : public testing::Test {
protected:
    DrawContextGdiText text;
};

class PainterText : public PainterFixture {
protected:
    PainterText() {
        text.UpdateContext(font, kBlue);
        text.SetId(kId);
    }
    void SetUp() override { begin(120, 50); }

    Font font{16};
    DrawContextGdiText text;
};

} // namespace

TEST_F(TextContext, BeginsWithTheFontOfUserInterfacesInBlack) {
    const LOGFONTW stock = descriptionOf(::GetStockObject(DEFAULT_GUI_FONT));
    const LOGFONTW own = descriptionOf(text.GetHGDIOBJ());
    EXPECT_STREQ(stock.lfFaceName, own.lfFaceName);
    EXPECT_EQ(std::lround(stock.lfHeight * GraphicsHelper::GetSystemScaleFactor()), own.lfHeight);
    EXPECT_EQ(0U, text.GetColor());
    EXPECT_EQ(0U, text.GetId());
    EXPECT_EQ(text.GetHGDIOBJ(), text.GetFont());
}

TEST_F(TextContext, TakesOverAFontUnscaledAndAColour) {
    const Font font(23);
    text.UpdateContext(font, kRed);
    EXPECT_EQ(23, descriptionOf(text.GetFont()).lfHeight);
    EXPECT_EQ(kRed, text.GetColor());
    EXPECT_NE(static_cast<HFONT>(font), text.GetFont()) << "a font of its own";
    text.UpdateContext(nullptr, kBlue);
    EXPECT_EQ(23, descriptionOf(text.GetFont()).lfHeight);
    EXPECT_EQ(kBlue, text.GetColor()) << "also without a font";
}

TEST_F(TextContext, TurnsInTenthsOfADegree) {
    const Font font(29); // nobody else has one of this height
    text.UpdateContext(font, kRed);
    text.SetTextAngle(45);
    EXPECT_EQ(450, descriptionOf(text.GetFont()).lfEscapement);
    EXPECT_EQ(0, descriptionOf(text.GetFont()).lfOrientation);
}

TEST_F(TextContext, IsCopiedWithFontColourAndId) {
    const Font font(23);
    text.UpdateContext(font, kRed);
    text.SetId(kId);
    DrawContextGdiText copy(text);
    EXPECT_EQ(kRed, copy.GetColor());
    EXPECT_EQ(kId, copy.GetId());
    EXPECT_EQ(23, descriptionOf(copy.GetFont()).lfHeight);
    DrawContextGdiText assigned;
    assigned.GetFont();
    assigned = text;
    EXPECT_EQ(23, descriptionOf(assigned.GetFont()).lfHeight) << "not the font that it had";
    EXPECT_EQ(kId, assigned.GetId());
}

TEST_F(PainterText, AtAPointIsDrawnThereWithoutItsBackground) {
    painter.Clear(kGreen);
    painter.DrawTextW({10.75F, 5.5F}, L"Kurs 12,5", text, {0.5F, 0.25F});
    Reference reference(120, 50, kGreen);
    ::SelectObject(reference.dc(), font);
    ::SetBkMode(reference.dc(), TRANSPARENT);
    ::SetTextColor(reference.dc(), kBlue);
    ::TextOutW(reference.dc(), 11, 5, L"Kurs 12,5", 9);
    EXPECT_TRUE(support::samePixels(picture(), reference.pixels()));
    EXPECT_GT(reference.pixels().count(kBlue), 50U);
    ::SelectObject(reference.dc(), ::GetStockObject(SYSTEM_FONT));
}

TEST_F(PainterText, AtAPointIsFoundOnItsGlyphs) {
    painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
    const support::Pixels colours = picture();
    const support::Pixels ids = shadow();
    for (int y = 0; y < 50; ++y) {
        for (int x = 0; x < 120; ++x) {
            ASSERT_EQ(colours.at(x, y) == kBlue ? kId : 0, ids.at(x, y)) << x << ' ' << y;
        }
    }
}

TEST_F(PainterText, AtAPointIsFoundByGlyphsWithHardEdgesHoweverSmoothItsFont) {
    text.UpdateContext(Font(40, CLEARTYPE_QUALITY), kBlue); // a height of its own: the quality is no part of the key
    ASSERT_EQ(CLEARTYPE_QUALITY, descriptionOf(text.GetFont()).lfQuality);
    qualities.clear();
    {
        const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "CreateFontIndirectW",
                                         &noteQuality);
        painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
    }
    EXPECT_EQ(std::vector<int>{NONANTIALIASED_QUALITY}, qualities) << "one font, for the shadow";
    EXPECT_EQ((std::set<unsigned int>{0, kId}), idsInShadow());
}

TEST_F(PainterText, AtAPointLeavesTheDeviceAsItWas) {
    const HDC source = painter.GetSource();
    ::SetBkMode(source, OPAQUE);
    ::SetTextColor(source, kGreen);
    const HGDIOBJ before = ::GetCurrentObject(source, OBJ_FONT);
    painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
    EXPECT_EQ(OPAQUE, ::GetBkMode(source));
    EXPECT_EQ(kGreen, ::GetTextColor(source));
    EXPECT_EQ(before, ::GetCurrentObject(source, OBJ_FONT));
}

TEST_F(PainterText, AtAPointLeavesTheShadowItsFont) {
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    const support::Pixels cell = shadow();
    begin(120, 50);
    text.UpdateContext(Font(39), kBlue);
    text.SetId(0x654321);
    painter.DrawTextW({500, 5}, L"Kurs", text, {0, 0});
    text.SetId(kId);
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    EXPECT_EQ(cell, shadow());
}

TEST_F(PainterText, AtAPointEndsAtItsTerminatorWhateverTheViewSays) {
    painter.DrawTextW({10, 5}, std::wstring_view(L"Kurs\0 12,5", 10), text, {0, 0});
    const support::Pixels shorter = picture();
    begin(120, 50);
    painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
    EXPECT_TRUE(support::samePixels(picture(), shorter));
    begin(120, 50);
    painter.DrawTextW({10, 5}, std::wstring_view(L"Kurs", 2), text, {0, 0});
    EXPECT_TRUE(support::samePixels(picture(), shorter)) << "a view of a part draws all";
    begin(120, 50);
    painter.DrawTextW({10, 5}, std::wstring_view(), text, {0, 0});
    EXPECT_EQ(kWhite, picture().onlyColour(picture().bounds()));
}

TEST_F(PainterText, InARectangleIsDrawnOnOneLineAsTheFormatSays) {
    painter.DrawTextW(L"Kurs\n12,5", {10.5F, 5.5F, 90.5F, 30.75F}, text, DT_CENTER | DT_VCENTER);
    Reference reference(120, 50);
    ::SelectObject(reference.dc(), font);
    ::SetBkMode(reference.dc(), TRANSPARENT);
    ::SetTextColor(reference.dc(), kBlue);
    CRect rect(10, 5, 100, 35);
    ::DrawTextW(reference.dc(), L"Kurs\n12,5", 9, rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    EXPECT_TRUE(support::samePixels(picture(), reference.pixels()));
    EXPECT_GT(reference.pixels().count(kBlue), 50U);
    ::SelectObject(reference.dc(), ::GetStockObject(SYSTEM_FONT));
}

TEST_F(PainterText, InARectangleLeavesFontColourAndModeInTheDevice) {
    const HDC source = painter.GetSource();
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    EXPECT_EQ(text.GetFont(), ::GetCurrentObject(source, OBJ_FONT));
    EXPECT_EQ(kBlue, ::GetTextColor(source));
    EXPECT_EQ(TRANSPARENT, ::GetBkMode(source));
}

TEST_F(PainterText, InARectangleIsFoundAllOverItsCell) {
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    const auto cell = shadow().boundsOf(kId);
    ASSERT_TRUE(cell);
    EXPECT_EQ(kId, shadow().onlyColour(*cell)) << "on the glyphs and between them";
    EXPECT_EQ(10, cell->left);
    EXPECT_EQ(5, cell->top);
    // As large as the text in the font that the shadow has, which is not the one of the picture.
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    EXPECT_EQ(memory.GetTextExtent(L"Kurs", 4), CRect(*cell).Size());
    EXPECT_EQ((std::set<unsigned int>{0, kId}), idsInShadow());
}

TEST_F(PainterText, WithoutAnIdOrAShadowIsNotFound) {
    text.SetId(0);
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
    text.SetId(kId);
    painter.EnableShadows(0);
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow()) << "in a rectangle the mode counts";
    painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
    EXPECT_NE(0U, shadow().count(kId)) << "at a point the surface counts";
}

TEST_F(PainterText, OfNothingIsNothing) {
    painter.DrawTextW(L"", {10, 5, 90, 30}, text, DT_LEFT);
    painter.DrawTextW(std::wstring_view(), {10, 5, 90, 30}, text, DT_LEFT);
    painter.DrawTextW({10, 5}, L"", text, {0, 0});
    EXPECT_EQ(kWhite, picture().onlyColour(picture().bounds()));
    EXPECT_EQ(std::set<unsigned int>{0}, idsInShadow());
    painter.Release();
    painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
    painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
}

TEST_F(PainterText, HasItsInkMeasured) {
    for (const int height : {12, 16, 31}) {
        const Font measured(height);
        const auto [inkHeight, inkTop] = painter.GetTextHeight(measured);
        // The same by eye: letters on white, and the rows that are not white.
        Reference reference(300, 100);
        ::SelectObject(reference.dc(), measured);
        ::TextOutW(reference.dc(), 0, 0, L"j029pqA", 7);
        const auto ink = reference.pixels().boundsOf(kBlack);
        ASSERT_TRUE(ink);
        EXPECT_EQ(ink->top, inkTop) << height;
        EXPECT_EQ(ink->bottom - 1 - ink->top, inkHeight) << height;
        ::SelectObject(reference.dc(), ::GetStockObject(SYSTEM_FONT));
    }
}

TEST_F(PainterText, HasItsInkMeasuredAlsoBeforeTheFirstFrame) {
    const Font measured(16);
    const auto withFrame = painter.GetTextHeight(measured);
    painter.Release();
    EXPECT_EQ(withFrame, painter.GetTextHeight(measured));
    EXPECT_GT(withFrame.first, 0);
    painter.GetTextHeight(nullptr);
    painter.GetTextHeight(reinterpret_cast<HFONT>(0x7FFFFFF0));
}

TEST_F(PainterText, LeavesNothingBehind) {
    const auto draw = [&] {
        painter.DrawTextW(L"Kurs", {10, 5, 90, 30}, text, DT_LEFT);
        painter.DrawTextW({10, 5}, L"Kurs", text, {0, 0});
        painter.GetTextHeight(font);
    };
    draw();
    const std::size_t before = support::gdiHandleCount();
    for (int round = 0; round < 500; ++round) {
        draw();
    }
    EXPECT_EQ(before, support::gdiHandleCount());
}
