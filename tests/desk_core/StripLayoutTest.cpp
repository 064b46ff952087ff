#include "core/StripLayout.h"

#include <vector>

#include <gtest/gtest.h>

using namespace Desk;

namespace {

const StripSizes Sizes{10, 5, 200, 100, 20, 60, {80, 90, 70}};

std::vector<StripSpan> spansFromLeft(const StripLayout& layout) {
    std::vector<StripSpan> spans{layout.findBox, layout.findPrevious, layout.findNext, layout.findCount};
    spans.insert(spans.end(), layout.switches.begin(), layout.switches.end());
    return spans;
}

} // namespace

TEST(StripLayout, PutsTheSearchLeftAndTheSwitchesRight) {
    const StripLayout layout = layoutStrip(1000, Sizes);
    EXPECT_EQ(layout.findBox, (StripSpan{10, 210}));
    EXPECT_EQ(layout.findPrevious, (StripSpan{215, 235}));
    EXPECT_EQ(layout.findNext, (StripSpan{240, 260}));
    EXPECT_EQ(layout.findCount, (StripSpan{265, 325}));
    EXPECT_EQ(layout.switches[2], (StripSpan{920, 990}));
    EXPECT_EQ(layout.switches[0], (StripSpan{740, 820}));
}

TEST(StripLayout, ShrinksTheSearchBoxFirst) {
    const int least = leastStripWidth(Sizes);
    const StripLayout layout = layoutStrip(least + 30, Sizes);
    EXPECT_EQ(layout.findBox, (StripSpan{10, 140}));
    EXPECT_EQ(layout.findCount.right - layout.findCount.left, 60);
    EXPECT_EQ(layout.switches[2].right, least + 30 - 10);
}

TEST(StripLayout, NeverLetsItemsOverlap) {
    for (int width = 0; width < 1200; ++width) {
        const auto spans = spansFromLeft(layoutStrip(width, Sizes));
        for (std::size_t item = 1; item < spans.size(); ++item)
            ASSERT_GE(spans[item].left, spans[item - 1].right) << "width " << width << " item " << item;
    }
}

TEST(StripLayout, ShowsEverythingFromItsLeastWidthOn) {
    for (int width = leastStripWidth(Sizes); width < 1200; ++width) {
        const StripLayout layout = layoutStrip(width, Sizes);
        ASSERT_EQ(layout.switches[2].right, width - Sizes.margin);
        ASSERT_EQ(layout.findCount.right - layout.findCount.left, Sizes.findCount);
    }
}
