#include "core/chart/ChartLayout.h"

#include <gtest/gtest.h>

using namespace Desk;

namespace {

constexpr ChartSizes Sizes{20, 60, 18, 6};

bool isWithin(const ChartArea& area, int width, int height) {
    return area.left >= 0 && area.top >= 0 && area.right <= width && area.bottom <= height && area.width() >= 0 &&
           area.height() >= 0;
}

bool overlap(const ChartArea& one, const ChartArea& other) {
    return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom &&
           one.width() > 0 && one.height() > 0 && other.width() > 0 && other.height() > 0;
}

} // namespace

TEST(ChartLayout, GivesTheVolumesAQuarterOfTheRoomOfBothPlots) {
    const ChartLayout layout = layoutChart(960, 444, Sizes);
    EXPECT_EQ(layout.legend, (ChartArea{0, 0, 960, 20}));
    EXPECT_EQ(layout.prices, (ChartArea{0, 20, 900, 320}));
    EXPECT_EQ(layout.volumes, (ChartArea{0, 326, 900, 426}));
    EXPECT_EQ(layout.priceAxis, (ChartArea{900, 20, 960, 320}));
    EXPECT_EQ(layout.dateAxis, (ChartArea{0, 426, 900, 444}));
}

TEST(ChartLayout, LetsTheVolumesGoFirstAndThenTheLegend) {
    std::string order;
    bool volumes = true;
    bool legend = true;
    for (int height = 300; height >= 0; --height) {
        const ChartLayout layout = layoutChart(500, height, Sizes);
        if (volumes != (layout.volumes.height() > 0))
            order += "volumes ";
        if (legend != (layout.legend.height() > 0))
            order += "legend ";
        volumes = layout.volumes.height() > 0;
        legend = layout.legend.height() > 0;
    }
    EXPECT_EQ(order, "volumes legend ");
}

TEST(ChartLayout, TurnsNoAreaInsideOutWhateverTheSize) {
    for (int width = -5; width < 200; width += 3)
        for (int height = -5; height < 300; ++height) {
            const ChartLayout layout = layoutChart(width, height, Sizes);
            const ChartArea areas[]{layout.legend, layout.prices, layout.volumes, layout.priceAxis, layout.dateAxis};
            for (const ChartArea& area : areas)
                ASSERT_TRUE(isWithin(area, std::max(0, width), std::max(0, height))) << width << ' ' << height;
            for (const ChartArea& one : areas)
                for (const ChartArea& other : areas)
                    ASSERT_FALSE(&one != &other && overlap(one, other)) << width << ' ' << height;
        }
}

TEST(ChartLayout, AreaHoldsItsLeftAndTopEdgesOnly) {
    const ChartArea area{10, 20, 30, 40};
    EXPECT_TRUE(area.holds(10, 20));
    EXPECT_TRUE(area.holds(29, 39));
    EXPECT_FALSE(area.holds(30, 39));
    EXPECT_FALSE(area.holds(29, 40));
    EXPECT_FALSE(area.holds(9, 20));
}
