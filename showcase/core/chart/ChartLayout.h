#pragma once

namespace Desk {

/// `right` and `bottom` lie outside. Pixels of the canvas.
struct ChartArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    bool holds(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }
    bool operator==(const ChartArea&) const = default;
};

/// What the parts around the plots need, in pixels.
struct ChartSizes {
    int legend = 0;    ///< height of the line with the instrument and its values, at the top
    int priceAxis = 0; ///< width of the labels at the right
    int dateAxis = 0;  ///< height of the labels at the bottom
    int gap = 0;       ///< between the plots
};

/// The plot of prices above that of volumes (a quarter of it), the labels of prices at their right, those of dates
/// below. In a canvas too small for all, the volumes go first, then the legend; no area is ever turned inside out.
struct ChartLayout {
    ChartArea legend;
    ChartArea prices;
    ChartArea volumes;
    ChartArea priceAxis;
    ChartArea dateAxis;
};
ChartLayout layoutChart(int width, int height, const ChartSizes& sizes);

} // namespace Desk
