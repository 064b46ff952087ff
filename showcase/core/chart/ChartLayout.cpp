#include "ChartLayout.h"

#include <algorithm>

namespace Desk {

namespace {

/// A plot of prices is of use from this many labels of dates in height on.
constexpr int LeastPricesInDateAxes = 3;

int withoutGap(int room, int gap) {
    return std::max(0, room - gap);
}

} // namespace

ChartLayout layoutChart(int width, int height, const ChartSizes& sizes) {
    const int right = std::max(0, width);
    const int bottom = std::max(0, height);
    const int plotRight = std::max(0, right - sizes.priceAxis);
    const int plotBottom = std::max(0, bottom - sizes.dateAxis);
    const int leastPrices = LeastPricesInDateAxes * sizes.dateAxis;

    int legend = sizes.legend;
    int volumes = withoutGap(plotBottom - legend, sizes.gap) / 4;
    if (plotBottom - legend - sizes.gap - volumes < leastPrices)
        volumes = 0;
    if (plotBottom - legend < leastPrices)
        legend = 0;
    const int pricesBottom = volumes > 0 ? plotBottom - volumes - sizes.gap : plotBottom;

    ChartLayout layout;
    layout.legend = {0, 0, right, legend};
    layout.prices = {0, legend, plotRight, pricesBottom};
    layout.volumes = {0, plotBottom - volumes, plotRight, plotBottom};
    layout.priceAxis = {plotRight, legend, right, pricesBottom};
    layout.dateAxis = {0, plotBottom, plotRight, bottom};
    return layout;
}

} // namespace Desk
