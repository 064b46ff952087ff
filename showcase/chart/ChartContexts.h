#pragma once

#include <OrtinControls/OrtinControls.h>

#include "chart/ChartModel.h"

namespace Desk {

/// The styles of a chart as the painter takes them, with the ids of their objects. What lies under the mouse is
/// lighter; what is drawn as a thin line has a halo behind it, which has no id: the shadow of a picture is the same
/// wherever the mouse is. Colours without a style of their own are those of the theme.
class ChartContexts {
public:
    /// Once before each picture.
    void update(const ChartModel& model);
    /// `line` and `halo` become those of one trend line.
    void updateLine(const ChartModel& model, std::size_t index);
    /// `halo` becomes that of a part.
    void updateHalo(const ChartStyle& style);

    VectorCanvas::DrawContextGdiLine grid;
    VectorCanvas::DrawContextGdiLine risingEdges;
    VectorCanvas::DrawContextGdiLine fallingEdges;
    VectorCanvas::DrawContextGdiLine average;
    VectorCanvas::DrawContextGdiLine arc;
    VectorCanvas::DrawContextGdiLine line;
    VectorCanvas::DrawContextGdiLine halo;
    VectorCanvas::DrawContextGdiLine frame;     ///< between the plots and their labels
    VectorCanvas::DrawContextGdiLine lastPrice; ///< across the plot
    VectorCanvas::DrawContextGdiLineAndFill risingBodies;
    VectorCanvas::DrawContextGdiLineAndFill fallingBodies;
    VectorCanvas::DrawContextGdiLineAndFill volume;
    VectorCanvas::DrawContextGdiLineAndFill range;
    VectorCanvas::DrawContextGdiLineAndFill ellipse;
    VectorCanvas::DrawContextGdiText labels;
    VectorCanvas::DrawContextGdiText tag;     ///< on a coloured ground
    VectorCanvas::DrawContextGdiText tool;    ///< on the button of the line tool
    VectorCanvas::DrawContextGdiText missing; ///< the sentence in place of candles
    VectorCanvas::DrawContextBase picture;    ///< of what is no object
};

/// A width at 96 pixels to the inch as a pen's; dashes of the system are one pixel wide at most.
int scaledPen(long width, unsigned int lineStyle);
/// Black or white, whichever is read more easily on it.
COLORREF inkOn(COLORREF ground);
/// A style's colour in the way in which what is hovered stands out.
COLORREF lighter(COLORREF color);

} // namespace Desk
