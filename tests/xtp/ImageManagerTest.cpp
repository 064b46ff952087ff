#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include "support/Capture.h"
#include "support/Resources.h"

namespace {

COLORREF grey(int value) {
    return RGB(value, value, value);
}

/// A colour after the conversion.
COLORREF converted(COLORREF colour, int contrast) {
    const support::MemoryDevice device(2, 2, colour);
    CDC dc;
    dc.Attach(device.dc());
    XTPImageManager()->BlackWhiteBitmap(dc, CRect(0, 0, 2, 2), contrast);
    dc.Detach();
    return device.pixels().onlyColour({0, 0, 2, 2}).value_or(CLR_INVALID);
}

struct Case {
    COLORREF colour;
    int contrast;
    int grey;
};

} // namespace

TEST(BlackWhite, FollowsTheFormula) {
    const Case cases[] = {
        {RGB(255, 255, 255), 0, 255},  {RGB(0, 0, 0), 0, 0},           {RGB(255, 0, 0), 0, 76},
        {RGB(0, 255, 0), 0, 150},      {RGB(0, 0, 255), 0, 29},        {RGB(100, 100, 100), 0, 100},
        {RGB(100, 100, 100), 128, 45}, {RGB(200, 200, 200), 128, 255}, {RGB(128, 128, 128), 255, 128},
        {RGB(127, 127, 127), 255, 0},  {RGB(129, 129, 129), 255, 255}, {RGB(255, 255, 255), 255, 255},
        {RGB(100, 100, 100), -7, 100}, {RGB(127, 127, 127), 900, 0},
    };
    for (const Case& one : cases) {
        EXPECT_EQ(support::describe(grey(one.grey)), support::describe(converted(one.colour, one.contrast)))
            << support::describe(one.colour) << " at " << one.contrast;
    }
}

TEST(BlackWhite, TurnsTheRectangleOnlyAndInLogicalUnits) {
    const support::MemoryDevice device(10, 10, RGB(255, 0, 0));
    const std::size_t before = support::gdiHandleCount();
    {
        CDC dc;
        dc.Attach(device.dc());
        dc.SetMapMode(MM_ANISOTROPIC);
        dc.SetWindowExt(5, 5);
        dc.SetViewportExt(10, 10);
        XTPImageManager()->BlackWhiteBitmap(dc, CRect(1, 1, 3, 4), 0);
        XTPImageManager()->BlackWhiteBitmap(dc, CRect(4, 4, 4, 4), 0);
        dc.Detach();
    }
    const support::Pixels pixels = device.pixels();
    EXPECT_EQ(grey(76), pixels.onlyColour({2, 2, 6, 8}));
    EXPECT_EQ(24U, pixels.count(grey(76)));
    EXPECT_EQ(before, support::gdiHandleCount());
}
