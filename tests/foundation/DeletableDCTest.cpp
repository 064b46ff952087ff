#include "OrtinFoundation/DeletableDC.h"

#include "../mfc/gdi/LiveGdiHandles.h"

#include <gtest/gtest.h>

namespace {

TEST(DeletableContexts, AreLikeAnotherAndLeaveNothingBehind) {
    CClientDC screen(nullptr);
    const int before = liveGdiHandles();
    {
        DeletableDC dc(&screen);
        EXPECT_NE(nullptr, dc.GetSafeHdc());
        EXPECT_EQ(screen.GetDeviceCaps(BITSPIXEL), dc.GetDeviceCaps(BITSPIXEL));
        EXPECT_FALSE(dc.IsPrinting());
        EXPECT_TRUE(DeletableDC(&screen, true).IsPrinting());
        EXPECT_NE(nullptr, DeletableDC(nullptr).GetSafeHdc());
        EXPECT_GT(liveGdiHandles(), before);
    }
    EXPECT_EQ(before, liveGdiHandles());
}

TEST(DeletableContexts, SetFreeWhatWasSelected) {
    CClientDC screen(nullptr);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 4, 4);
    {
        DeletableDC dc(&screen);
        dc.SelectObject(&bitmap);
        dc.FillSolidRect(CRect(0, 0, 4, 4), RGB(1, 2, 3));
    }
    DeletableDC next(&screen);
    EXPECT_NE(nullptr, next.SelectObject(&bitmap)) << "a bitmap fits into one context at a time";
    EXPECT_EQ(RGB(1, 2, 3), next.GetPixel(3, 3));
}

TEST(DeletableContexts, OutliveWhatIsSelected) {
    const int before = liveGdiHandles();
    {
        DeletableDC dc(nullptr);
        const CPen pen(PS_SOLID, 3, RGB(1, 2, 3));
        ::SelectObject(dc, pen);
        CPen second(PS_SOLID, 4, RGB(1, 2, 3));
        dc.SelectObject(&second);
    }
    CGdiObject::DeleteTempMap();
    EXPECT_EQ(before, liveGdiHandles());
}

} // namespace
