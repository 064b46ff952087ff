#pragma once

#include <optional>
#include <vector>

#include <OrtinControls/OrtinControls.h>

#include "chart/ChartModel.h"
#include "core/chart/ChartFrame.h"

namespace Desk {

using PaintPoints = std::vector<OrtinPoint<float>>;

/// The pixel that a place of the frame lies in.
int pixelOf(double place);
OrtinPoint<float> floating(const ChartPixel& pixel);
VectorCanvas::CRect2D floating(const CRect& area);
HFONT fontOf(VectorCanvas::DrawContextGdiText& style);

/// Up to, but without, the second point, as lines of the system are.
void addLine(PaintPoints& points, int fromX, int fromY, int toX, int toY);
void addRect(PaintPoints& points, int left, int top, int right, int bottom);
/// The lines around a rectangle, within it.
void addFrame(PaintPoints& points, const OrtinPoint<float>& corner, const OrtinPoint<float>& opposite);

/// Around the top of the greatest volume, which there is.
CRect ellipseArea(const ChartFrame& frame, int radius);
/// The marks on the selected object; none if none is seen.
void controlPoints(const ChartFrame& frame, const ChartModel& model, const std::optional<CRect>& span,
                   PaintPoints& points);

} // namespace Desk
