#include <XTToolkitPro.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct Case {
    int value;
    int fromDpi;
    int expected;
};

std::vector<Case> casesFor(int dpi) {
    switch (dpi) {
    case 96:
        return {{16, 96, 16}, {0, 96, 0}, {-7, 96, -7}, {3, 192, 2}, {-3, 192, -2}, {1, 192, 1}, {5, 48, 10}};
    case 144:
        return {{16, 96, 24}, {0, 96, 0}, {1, 96, 2}, {-1, 96, -2}, {3, 96, 5}, {-3, 96, -5}, {2, 96, 3}, {5, 144, 5}};
    default:
        return {};
    }
}

TEST(Dpi, ScalesToTheNearestPixelAndHalvesAwayFromZero) {
    const CXTPDpi& dpi = XTPDpiHelper();
    const std::vector<Case> cases = casesFor(dpi.GetDpiX());
    ASSERT_FALSE(cases.empty()) << "no cases for " << dpi.GetDpiX() << " DPI";
    for (const Case& each : cases) {
        EXPECT_EQ(each.expected, dpi.ScaleX(each.value, each.fromDpi)) << each.value << " from " << each.fromDpi;
        EXPECT_EQ(each.expected, dpi.ScaleY(each.value, each.fromDpi)) << each.value << " from " << each.fromDpi;
    }
    EXPECT_EQ(dpi.ScaleX(16, 96), dpi.ScaleX(16));
}

TEST(Dpi, LeavesAValueAsItIsWhereTheSourceIsNoDpi) {
    EXPECT_EQ(7, XTPDpiHelper().ScaleX(7, 0));
    EXPECT_EQ(7, XTPDpiHelper().ScaleY(7, -96));
}

TEST(Dpi, IsThatOfTheScreen) {
    CClientDC screen(nullptr);
    EXPECT_EQ(screen.GetDeviceCaps(LOGPIXELSX), XTPDpiHelper().GetDpiX());
    EXPECT_EQ(screen.GetDeviceCaps(LOGPIXELSY), XTPDpiHelper().GetDpiY());
    EXPECT_EQ(&XTPDpiHelper(), &XTPDpiHelper());
}

} // namespace
