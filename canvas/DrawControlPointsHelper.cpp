#include <OrtinControls/DrawControlPointsHelper.h>

#include "DeviceArithmetic.h"
#include "GdiPlusColors.h"

namespace VectorCanvas {

void DrawControlPointsHelper::DrawControlPoints(HDC device, const OrtinPoint<float>* points, unsigned __int64 count,
                                                OrtinPoint<float> offset, const PointSettings& settings) {
    if (points == nullptr) {
        return;
    }
    Gdiplus::Graphics graphics(device);
    graphics.SetSmoothingMode(settings.smooth ? Gdiplus::SmoothingModeHighQuality : Gdiplus::SmoothingModeNone);
    graphics.SetInterpolationMode(settings.smooth ? Gdiplus::InterpolationModeHighQuality
                                                  : Gdiplus::InterpolationModeNearestNeighbor);
    const BYTE alpha = toAlpha(settings.opacity);
    const Gdiplus::Pen pen(toGdiPlusColor(settings.lineColor, alpha), static_cast<float>(settings.lineWidth));
    const Gdiplus::SolidBrush brush(settings.fill ? toGdiPlusColor(settings.fillColor, alpha) : Gdiplus::Color(0));
    const auto size = withinReach(static_cast<float>(settings.pointSize));
    const auto draw = settings.circle ? &DrawControlPointCircle : &DrawControlPointRect;
    for (unsigned __int64 index = 0; index < count; ++index) {
        const OrtinPoint<float> corner = controlPointCorner(points[index], offset, size);
        draw(graphics, pen, brush, {corner.x, corner.y}, size);
    }
}

// NOLINTBEGIN(performance-unnecessary-value-param): the corner is two floats
void DrawControlPointsHelper::DrawControlPointRect(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen,
                                                   const Gdiplus::Brush& brush, Gdiplus::PointF corner, float size) {
    graphics.FillRectangle(&brush, corner.X, corner.Y, size, size);
    graphics.DrawRectangle(&pen, corner.X, corner.Y, size, size);
}

void DrawControlPointsHelper::DrawControlPointCircle(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen,
                                                     const Gdiplus::Brush& brush, Gdiplus::PointF corner, float size) {
    graphics.FillEllipse(&brush, corner.X, corner.Y, size, size);
    graphics.DrawEllipse(&pen, corner.X, corner.Y, size, size);
}
// NOLINTEND(performance-unnecessary-value-param)

} // namespace VectorCanvas
