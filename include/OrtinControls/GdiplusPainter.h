#pragma once

#include <string_view>
#include <vector>

#include <OrtinControls/Export.h>
#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinFoundation/OrtinPoint.h>

namespace VectorCanvas {
class DrawContextBase;
class DrawContextGdiLine;
class DrawContextGdiText;
} // namespace VectorCanvas

/// Draws what needs smooth edges or pictures, by GDI+, into two devices that it does not own: the picture, and the
/// shadow, where objects are looked up by their ids. Either may be null.
///
/// Each call draws into the picture with smooth edges, and then, if there is a shadow and the id of the context is not
/// 0, into the shadow with hard edges, opaque, in the id as a colour: outlines only, so that what is inside a filled
/// shape is not found. Coordinates are pixels; `offset` is added to each. Those that a call truncates lose their
/// fractions after that. NaN counts as 0, and what lies further than 2^20 pixels away as if it lay there: GDI+ takes
/// minutes over longer ways, and seconds over long dashed or transparent outlines. Of lines, which keep their course,
/// the part beyond is left out. A missing argument, or a context of a class that a call has no use for, draws nothing.
/// What GDI+ says of a drawing is not looked at.
class ORTIN_CONTROLS_API GdiplusPainter {
public:
    void SetDestinationDevice(HDC device) { m_destination = device; }
    void SetShadowDevice(HDC device) { m_shadow = device; }

    /// At its own size, truncated. All of its area is found in the shadow.
    void DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset,
                    const VectorCanvas::DrawContextBase* context, Gdiplus::Bitmap* bitmap);
    /// The same, stretched to `size`.
    void DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset, const OrtinPoint<float>& size,
                    const VectorCanvas::DrawContextBase* context, Gdiplus::Bitmap* bitmap);
    /// A closed one, truncated, filled by the alternate rule if the context, a DrawContextGdiLineAndFill, wants that.
    void DrawPolygon(const OrtinPoint<float>* points, unsigned __int64 count,
                     const VectorCanvas::DrawContextBase* context, const OrtinPoint<float>& offset);
    /// Between two corners of its box, not truncated; a second one to the left or above goes to GDI+ as it is. Filled
    /// as a polygon.
    void DrawEllipse(const OrtinPoint<float>& first, const OrtinPoint<float>& second,
                     const VectorCanvas::DrawContextBase* context, const OrtinPoint<float>& offset);
    /// Not truncated, as all lines.
    void DrawLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to,
                  const VectorCanvas::DrawContextBase* context, const OrtinPoint<float>& offset);
    /// In the modes that GDI+ begins with, in picture and shadow.
    void DrawOrdinaryLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to,
                          const VectorCanvas::DrawContextBase* context);
    /// `count - 1` lines, each by itself. The shadow gets them in the context's own pen, not in its id.
    void DrawPolyline(const OrtinPoint<float>* points, unsigned __int64 count,
                      const VectorCanvas::DrawContextBase* context, const OrtinPoint<float>& offset);
    /// Angles are degrees as GDI+ counts them, clockwise from the x axis. The centre is truncated.
    void DrawArc(OrtinPoint<float> center, int radiusX, int radiusY, float startAngle, float sweepAngle,
                 const VectorCanvas::DrawContextBase* context, const OrtinPoint<float>& offset);
    /// By GDI, its top left corner truncated, background left as it is; the devices keep their state. `text` is drawn
    /// up to its terminator, which it must have: the view's own length does not count. The shadow gets the glyphs.
    void DrawTextW(OrtinPoint<float> position, std::wstring_view text, VectorCanvas::DrawContextGdiText& context,
                   const OrtinPoint<float>& offset);

private:
    /// The id as an opaque colour.
    static Gdiplus::Color GetShadowPenColor(const VectorCanvas::DrawContextBase* context);
    bool HasShadow(const VectorCanvas::DrawContextBase& context) const;
    /// Makes all of `area` the object's, in the shadow that there is.
    void MarkArea(const VectorCanvas::DrawContextBase& context, const Gdiplus::Rect& area) const;
    /// In picture and shadow; `fill` in the picture only.
    template <typename Fill, typename Outline>
    void DrawShape(const VectorCanvas::DrawContextGdiLine& context, const Fill& fill, const Outline& outline) const;
    template <typename Outline>
    void DrawOutline(const VectorCanvas::DrawContextGdiLine& context, const Outline& outline) const;

    std::vector<Gdiplus::Point> m_points;
    HDC m_shadow = nullptr;
    HDC m_destination = nullptr;
};
