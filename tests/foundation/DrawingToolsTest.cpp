#include "OrtinFoundation/ClipRegion.h"
#include "OrtinFoundation/CompatibleBitmapOwner.h"
#include "OrtinFoundation/OrtinPoint.h"
#include "OrtinFoundation/TextSizeCalculator.h"

#include "../mfc/gdi/LiveGdiHandles.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

CSize sizeOf(std::wstring_view text, bool multiline = false) {
    return TextSizeCalculator::GetTextSize(std::nullopt, text, multiline);
}

class Device : public testing::Test {
protected:
    Device() { dc.CreateCompatibleDC(nullptr); }

    CDC dc;
};

TEST(Points, AreTwoNumbersThatAdd) {
    static_assert(sizeof(OrtinPoint<float>) == 2 * sizeof(float));
    const OrtinPoint<float> sum = OrtinPoint<float>{1.5F, -2.0F} + OrtinPoint<float>{0.25F, 5.0F};
    EXPECT_EQ((OrtinPoint<float>{1.75F, 3.0F}), sum);
    EXPECT_EQ((OrtinPoint<float>{0.0F, 0.0F}), OrtinPoint<float>{});
}

TEST(ClipRegions, AreMadeOfARectangleAndReplaced) {
    const int before = liveGdiHandles();
    {
        ClipRegion region;
        EXPECT_EQ(nullptr, region.GetHandle());
        const RECT first{1, 2, 11, 22};
        ASSERT_TRUE(region.Create(&first));
        CRect box;
        ::GetRgnBox(region.GetHandle(), box);
        EXPECT_EQ(CRect(first), box);
        const RECT second{3, 4, 5, 6};
        ASSERT_TRUE(region.Create(&second));
        ::GetRgnBox(region.GetHandle(), box);
        EXPECT_EQ(CRect(second), box);
        const int one = liveGdiHandles();
        ClipRegion taker = std::move(region);
        EXPECT_EQ(nullptr, region.GetHandle()); // NOLINT(bugprone-use-after-move): this is what is asked
        EXPECT_NE(nullptr, taker.GetHandle());
        EXPECT_EQ(one, liveGdiHandles());
        EXPECT_FALSE(taker.Create(nullptr));
        EXPECT_EQ(nullptr, taker.GetHandle()) << "the old one is gone, too";
        taker.Delete();
    }
    EXPECT_EQ(before, liveGdiHandles());
}

TEST_F(Device, GetsBitmapsFromTheirOwner) {
    const int before = liveGdiHandles();
    {
        CompatibleBitmapOwner owner;
        BITMAPINFO format{};
        format.bmiHeader.biSize = sizeof format.bmiHeader;
        format.bmiHeader.biWidth = 7;
        format.bmiHeader.biHeight = 5;
        format.bmiHeader.biPlanes = 1;
        format.bmiHeader.biBitCount = 24;
        ASSERT_TRUE(owner.CreateDIBSection(dc, &format));
        DIBSECTION section{};
        ASSERT_NE(0, ::GetObjectW(owner.GetHandle(), sizeof section, &section));
        EXPECT_EQ(24, section.dsBm.bmBitsPixel);
        EXPECT_EQ(7, section.dsBm.bmWidth);
        EXPECT_NE(nullptr, section.dsBm.bmBits);
        format.bmiHeader.biBitCount = 23;
        EXPECT_FALSE(owner.CreateDIBSection(dc, &format));
        EXPECT_EQ(nullptr, owner.GetHandle());

        ASSERT_TRUE(owner.CreateCompatibleBitmap(dc, 9, 3));
        BITMAP bitmap{};
        ::GetObjectW(owner.GetHandle(), sizeof bitmap, &bitmap);
        EXPECT_EQ(9, bitmap.bmWidth);
        EXPECT_EQ(1, bitmap.bmBitsPixel) << "as the device has it";
        CompatibleBitmapOwner taker = std::move(owner);
        EXPECT_EQ(nullptr, owner.GetHandle()); // NOLINT(bugprone-use-after-move): this is what is asked
        EXPECT_NE(nullptr, taker.GetHandle());
    }
    EXPECT_EQ(before, liveGdiHandles());
}

TEST_F(Device, MeasuresTextInItsFontAndKeepsItsOwn) {
    CFont font;
    font.CreatePointFont(240, L"Tahoma");
    const HGDIOBJ before = ::GetCurrentObject(dc, OBJ_FONT);
    const CSize large = TextSizeCalculator::GetTextSize(std::pair(dc.m_hDC, static_cast<HFONT>(font)), L"Kurs", false);
    EXPECT_EQ(before, ::GetCurrentObject(dc, OBJ_FONT));
    CSize expected;
    CFont* previous = dc.SelectObject(&font);
    expected = dc.GetTextExtent(L"Kurs", 4);
    EXPECT_EQ(expected, large);
    EXPECT_EQ(expected,
              TextSizeCalculator::GetTextSize(std::pair(dc.m_hDC, static_cast<HFONT>(nullptr)), L"Kurs", false))
        << "without a font in the one that the device has";
    dc.SelectObject(previous);
    EXPECT_EQ(expected, TextSizeCalculator::GetTextSize(std::pair(static_cast<HDC>(nullptr), static_cast<HFONT>(font)),
                                                        L"Kurs", false))
        << "without a device as on the screen";
}

TEST(TextSizes, CountLinesOnlyWhenTold) {
    const CSize one = sizeOf(L"Kurs");
    EXPECT_GT(one.cx, 0);
    EXPECT_GT(one.cy, 0);
    EXPECT_EQ(one, sizeOf(L"Kurs", true));
    const CSize two = sizeOf(L"Kurs\nKurs", true);
    EXPECT_EQ(one.cx, two.cx);
    EXPECT_EQ(2 * one.cy, two.cy);
    EXPECT_EQ(one.cy, sizeOf(L"Kurs\nKurs").cy);
    EXPECT_EQ(sizeOf(L"&&"), sizeOf(L"&&", true)) << "no prefixes";
    EXPECT_EQ(CSize(), sizeOf(L""));
    EXPECT_EQ(CSize(), sizeOf(L"", true));
}

TEST(TextSizes, LeaveNothingBehind) {
    sizeOf(L"Kurs");
    const int before = liveGdiHandles();
    for (int round = 0; round < 1000; ++round) {
        sizeOf(L"Kurs", round % 2 == 0);
    }
    EXPECT_EQ(before, liveGdiHandles());
}

} // namespace
