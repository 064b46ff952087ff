#pragma once

#include <OrtinControls/Export.h>
#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinFoundation/OrtinPoint.h>

namespace VectorCanvas {

/// Draws the marks by which an object is grasped: a square or a circle around each point of a list.
class ORTIN_CONTROLS_API DrawControlPointsHelper {
public:
    /// Sizes are pixels.
    struct PointSettings {
        COLORREF lineColor = 0;
        int lineWidth = 0;
        COLORREF fillColor = 0;
        bool fill = false;   ///< false leaves the inside as it is
        int pointSize = 0;   ///< side or diameter
        bool circle = false; ///< else a square
        float opacity = 0;   ///< 0 to 1, of outline and inside
        bool smooth = false; ///< false gives hard edges, with no colour but the two
    };

    /// Around each point, whose fractions are cut off before `offset` is added. Draws nothing for null points.
    static void DrawControlPoints(HDC device, const OrtinPoint<float>* points, unsigned __int64 count,
                                  OrtinPoint<float> offset, const PointSettings& settings);

private:
    static void DrawControlPointRect(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Gdiplus::Brush& brush,
                                     Gdiplus::PointF corner, float size);
    static void DrawControlPointCircle(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen,
                                       const Gdiplus::Brush& brush, Gdiplus::PointF corner, float size);
};

} // namespace VectorCanvas
