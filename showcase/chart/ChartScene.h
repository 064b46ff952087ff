#pragma once

#include "chart/ChartPane.h"

namespace Desk {

/// Brings a chart into the states that are shown in pictures, by the presses, moves and keys of a user, as messages.
class ChartScene {
public:
    explicit ChartScene(ChartPane& chart) : m_canvas(chart.canvas()) {}

    /// A line under the lows, by the tool; it is selected then.
    void drawTrendLine();
    /// A range of candles; it is selected then.
    void selectRange();
    /// The cross-hair over the average.
    void pointAtAverage();
    void zoomIn();

private:
    CPoint lowOf(double share) const;
    void drag(CPoint from, CPoint to, WPARAM keys);
    void press(WPARAM key);

    ChartCanvas& m_canvas;
};

/// The shadow of the picture: black where there is no object, and for each id a colour of its own. False if the file
/// cannot be written. GDI+ has to be started.
bool writeIds(const VectorCanvas::IVectorPainter& picture, const std::wstring& file);
/// The colour of an id in that picture.
COLORREF colorOfId(unsigned int id);

} // namespace Desk
