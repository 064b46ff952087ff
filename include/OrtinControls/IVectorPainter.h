#pragma once

#include <cstddef>
#include <string_view>
#include <utility>

#include <OrtinControls/CRect2D.h>
#include <OrtinControls/DrawControlPointsHelper.h>
#include <OrtinControls/Export.h>
#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinFoundation/OrtinPoint.h>
#include <afxwin.h>

namespace VectorCanvas {

class DrawContextBase;
class DrawContextGdiLine;
class DrawContextGdiText;

/// Draws a picture off the screen, for a window to show, and beside it a shadow that is never shown: each object whose
/// context has an id is drawn there as well, in its id as a colour, so that GetObjectId finds it under the mouse.
///
/// A frame, in the thread that renders: InitRender; if it gives true, SetClipRegion and Clear as wanted, drawing calls,
/// EndRender. Once before the first one InitWindowIdAndViewPort, and EnableShadows(1) if objects are to be found.
///
/// Coordinates are pixels of the picture; the `offset` of a call is added to all of them. Contexts, points and texts
/// stay the caller's and are not kept. `count` counts points. A missing argument, a count of 0 or a context of a class
/// that the call has no use for draws nothing; nothing is reported. NaN counts as 0, coordinates out of range saturate.
class ORTIN_CONTROLS_API IVectorPainter {
public:
    virtual ~IVectorPainter();

    /// Stores the window that is told of finished frames, and the size that InitRender begins with.
    virtual void InitWindowIdAndViewPort(HWND window, CSize viewport) = 0;
    /// Lets picture and shadow go. A later InitRender makes them anew.
    virtual void Release() = 0;
    /// Begins a frame of this size. The shadow is emptied, the picture is not: that is what Clear is for. False, and no
    /// frame, if there is no memory for it; a later call may go well.
    virtual bool InitRender(const CSize& size) = 0;
    /// Ends the frame and the clipping, and sends (`synchronous`) or posts
    /// VectorCanvasCtrl::GetUpdatePaintingMessage() to the window.
    virtual void EndRender(bool synchronous) = 0;
    /// Fills the picture; the shadow stays as it is.
    virtual void Clear(unsigned long color) = 0;

    /// Independent lines between points 0 and 1, 2 and 3 and so on; an odd last point has none.
    virtual void DrawLineList(const OrtinPoint<float>* points, std::size_t count, DrawContextGdiLine& line,
                              const OrtinPoint<float>& offset) = 0;
    /// The context is a DrawContextGdiLine.
    virtual void DrawPolyline(const OrtinPoint<float>* points, std::size_t count, DrawContextBase* context,
                              const OrtinPoint<float>& offset) = 0;
    /// The context is a DrawContextGdiLineAndFill. Only the outline is found in the shadow.
    virtual void DrawPolygon(const OrtinPoint<float>* points, std::size_t count, const DrawContextBase* context,
                             const OrtinPoint<float>& offset) = 0;
    /// Between two corners of its box; otherwise as DrawPolygon.
    virtual void DrawEllipse(const OrtinPoint<float>& first, const OrtinPoint<float>& second,
                             const DrawContextBase* context, const OrtinPoint<float>& offset) = 0;
    /// Several polylines, as many points each as `segmentCounts` says; together that is `count`. `points` is not looked
    /// at for null. The context is a DrawContextGdiLine.
    virtual void DrawPolyPolyline(const OrtinPoint<float>* points, std::size_t count,
                                  const unsigned long* segmentCounts, std::size_t segmentCountCount,
                                  DrawContextBase* context, const OrtinPoint<float>& offset) = 0;
    /// One pixel. The context is a DrawContextGdiLine.
    virtual void DrawPoint(const OrtinPoint<float>& point, const DrawContextBase* context,
                           const OrtinPoint<float>& offset) = 0;
    /// Quadrilaterals of four points each, without outline, filled whatever the context, a DrawContextGdiLineAndFill,
    /// says about filling. Points beyond the last four are left out.
    virtual void FillRects(const OrtinPoint<float>* points, std::size_t count, DrawContextBase* context,
                           const OrtinPoint<float>& offset) = 0;
    /// The context is a DrawContextGdiLine; that of the next two as well.
    virtual void DrawLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to, const DrawContextBase* context,
                          const OrtinPoint<float>& offset) = 0;
    /// Without smooth edges.
    virtual void DrawOrdinaryLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to,
                                  const DrawContextBase* context) = 0;
    /// Of an ellipse; angles are degrees, clockwise from the x axis.
    virtual void DrawArc(OrtinPoint<float> center, int radiusX, int radiusY, float startAngle, float sweepAngle,
                         const DrawContextBase* context, const OrtinPoint<float>& offset) = 0;
    /// `position` is the top left corner. The text is drawn up to its terminator, which it must have. The shadow gets
    /// the glyphs.
    virtual void DrawTextW(OrtinPoint<float> position, std::wstring_view text, DrawContextGdiText& context,
                           const OrtinPoint<float>& offset) = 0;
    /// On one line in a rectangle; `format` holds the DT_ values of Windows. The shadow gets the background of the
    /// text.
    virtual void DrawTextW(std::wstring_view text, const CRect2D& rect, DrawContextGdiText& context,
                           unsigned int format) = 0;
    /// What a window copies the picture from; null between Release and InitRender. The painter's own.
    virtual HDC GetSource() const = 0;
    /// An HICON. No shadow.
    virtual void DrawIcon(unsigned __int64 icon, int x, int y) = 0;
    /// Stretched to `size`; all of its area is found in the shadow.
    virtual void DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset,
                            const OrtinPoint<float>& size, const DrawContextBase* context, Gdiplus::Bitmap* bitmap) = 0;
    /// The same at its own size.
    virtual void DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset,
                            const DrawContextBase* context, Gdiplus::Bitmap* bitmap) = 0;
    /// A frame one pixel wide, filled unless `fill` is 0xFFFFFFFF. An `id` other than 0 is found in all of the
    /// rectangle.
    virtual void DrawRect(const CRect2D& rect, unsigned long frame, unsigned long fill, unsigned int id) = 0;
    /// 1 gives the next surfaces a shadow; what exists already gets none.
    virtual void EnableShadows(int mode) = 0;
    /// What was drawn last at this pixel in this frame, of that which has an id; 0 for nothing and outside the picture.
    virtual unsigned int GetObjectId(int x, int y) const = 0;
    /// Clips what is drawn from now on to the rectangle, at most until EndRender; null takes the clip away.
    virtual void SetClipRegion(const RECT* rect) = 0;
    /// The size of picture and shadow.
    virtual CSize GetViewport() const = 0;
    virtual void DrawControlPoints(unsigned int id, const OrtinPoint<float>* points, std::size_t count,
                                   OrtinPoint<float> offset,
                                   const DrawControlPointsHelper::PointSettings& settings) = 0;
    /// The height of the ink of letters and digits, and how far below the top of the text it begins.
    virtual std::pair<int, int> GetTextHeight(HFONT font) const = 0;
};

} // namespace VectorCanvas
