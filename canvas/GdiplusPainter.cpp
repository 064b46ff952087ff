#include <OrtinControls/GdiplusPainter.h>

#include <algorithm>
#include <cwchar>
#include <memory>
#include <type_traits>

#include <OrtinControls/DrawContextGdiLineAndFill.h>
#include <OrtinControls/DrawContextGdiText.h>

#include "DeviceArithmetic.h"
#include "GdiPlusColors.h"

using VectorCanvas::DrawContextBase;
using VectorCanvas::DrawContextGdiLine;
using VectorCanvas::DrawContextGdiLineAndFill;
using VectorCanvas::DrawContextGdiText;

namespace {

using Point = OrtinPoint<float>;

const DrawContextGdiLine* asLine(const DrawContextBase* context) {
    return dynamic_cast<const DrawContextGdiLine*>(context);
}

const DrawContextGdiLineAndFill* asFill(const DrawContextBase* context) {
    return dynamic_cast<const DrawContextGdiLineAndFill*>(context);
}

void makeSmooth(Gdiplus::Graphics& graphics) {
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeHighQuality);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeHighQuality);
}

/// No pixel gets a blend of two colours, which in the shadow would be the id of nobody.
void makeHardEdged(Gdiplus::Graphics& graphics) {
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeNone);
}

Gdiplus::Point toGdiPlusPoint(const Point& point) {
    return {VectorCanvas::toPixelWithinReach(point.x), VectorCanvas::toPixelWithinReach(point.y)};
}

void drawSegment(Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen, const Point& from, const Point& to) {
    const VectorCanvas::Segment line = VectorCanvas::segmentWithinReach({from, to});
    graphics.DrawLine(&pen, line.from.x, line.from.y, line.to.x, line.to.y);
}

/// The same font with hard edges: smoothed glyphs would leave ids of nobody in the shadow.
class HardEdgedFont {
public:
    explicit HardEdgedFont(HFONT font) {
        LOGFONTW description;
        if (font != nullptr && ::GetObjectW(font, sizeof description, &description) != 0) {
            description.lfQuality = NONANTIALIASED_QUALITY;
            m_font.reset(::CreateFontIndirectW(&description));
        }
    }
    HFONT handle() const { return m_font.get(); }

private:
    struct Deleter {
        void operator()(HFONT font) const { ::DeleteObject(font); }
    };
    std::unique_ptr<std::remove_pointer_t<HFONT>, Deleter> m_font;
};

void drawText(HDC device, HFONT font, COLORREF color, const Point& position, std::wstring_view text) {
    const int previousMode = ::SetBkMode(device, TRANSPARENT);
    const COLORREF previousColor = ::SetTextColor(device, color);
    const HGDIOBJ previousFont = font != nullptr ? ::SelectObject(device, font) : nullptr;
    // Up to the terminator, whatever the view says of its length; meant so.
    const std::size_t length = text.data() != nullptr ? std::wcslen(text.data()) : 0;
    ::TextOutW(device, VectorCanvas::toPixel(position.x), VectorCanvas::toPixel(position.y), text.data(),
               static_cast<int>(length));
    ::SetBkMode(device, previousMode);
    ::SetTextColor(device, previousColor);
    if (previousFont != nullptr) {
        ::SelectObject(device, previousFont);
    }
}

} // namespace

Gdiplus::Color GdiplusPainter::GetShadowPenColor(const DrawContextBase* context) {
    return VectorCanvas::toGdiPlusColor(context->GetId());
}

bool GdiplusPainter::HasShadow(const DrawContextBase& context) const {
    return m_shadow != nullptr && context.GetId() != 0;
}

void GdiplusPainter::MarkArea(const DrawContextBase& context, const Gdiplus::Rect& area) const {
    Gdiplus::Graphics graphics(m_shadow);
    const Gdiplus::SolidBrush brush(GetShadowPenColor(&context));
    graphics.FillRectangle(&brush, area);
}

template <typename Fill, typename Outline>
void GdiplusPainter::DrawShape(const DrawContextGdiLine& context, const Fill& fill, const Outline& outline) const {
    if (m_destination != nullptr) {
        Gdiplus::Graphics graphics(m_destination);
        makeSmooth(graphics);
        fill(graphics);
        outline(graphics, context.GetPen());
    }
    if (HasShadow(context)) {
        Gdiplus::Graphics graphics(m_shadow);
        const Gdiplus::Pen pen(GetShadowPenColor(&context), context.GetPen().GetWidth());
        makeHardEdged(graphics);
        // Without what is inside; meant so.
        outline(graphics, pen);
    }
}

template <typename Outline>
void GdiplusPainter::DrawOutline(const DrawContextGdiLine& context, const Outline& outline) const {
    DrawShape(
        context, [](Gdiplus::Graphics&) {}, outline);
}

void GdiplusPainter::DrawBitmap(const Point& position, const Point& offset, const DrawContextBase* context,
                                Gdiplus::Bitmap* bitmap) {
    if (bitmap == nullptr || context == nullptr || m_destination == nullptr) {
        return;
    }
    const Gdiplus::Point corner = toGdiPlusPoint(position + offset);
    Gdiplus::Graphics(m_destination).DrawImage(bitmap, corner.X, corner.Y);
    if (HasShadow(*context)) {
        const auto width = static_cast<INT>(bitmap->GetWidth());
        const auto height = static_cast<INT>(bitmap->GetHeight());
        MarkArea(*context, {corner.X, corner.Y, width, height});
    }
}

void GdiplusPainter::DrawBitmap(const Point& position, const Point& offset, const Point& size,
                                const DrawContextBase* context, Gdiplus::Bitmap* bitmap) {
    if (bitmap == nullptr || context == nullptr || m_destination == nullptr) {
        return;
    }
    const Gdiplus::Point extent = toGdiPlusPoint(size);
    const Gdiplus::Rect area(toGdiPlusPoint(position + offset), {extent.X, extent.Y});
    Gdiplus::Graphics(m_destination).DrawImage(bitmap, area);
    if (HasShadow(*context)) {
        MarkArea(*context, area);
    }
}

void GdiplusPainter::DrawPolygon(const Point* points, unsigned __int64 count, const DrawContextBase* context,
                                 const Point& offset) {
    const auto* style = asFill(context);
    if (style == nullptr || points == nullptr || count == 0 || m_destination == nullptr) {
        return;
    }
    if (m_points.size() < count) {
        m_points.resize(count);
    }
    std::transform(points, points + count, m_points.begin(),
                   [&](const Point& point) { return toGdiPlusPoint(point + offset); });
    const auto corners = static_cast<INT>(count);
    DrawShape(
        *style,
        [&](Gdiplus::Graphics& graphics) {
            if (style->FillRequired()) {
                graphics.FillPolygon(&style->GetGdiplusBrush(), m_points.data(), corners, Gdiplus::FillModeAlternate);
            }
        },
        [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) {
            graphics.DrawPolygon(&pen, m_points.data(), corners);
        });
}

void GdiplusPainter::DrawEllipse(const Point& first, const Point& second, const DrawContextBase* context,
                                 const Point& offset) {
    const auto* style = asFill(context);
    if (style == nullptr || m_destination == nullptr) {
        return;
    }
    const Point corner = VectorCanvas::withinReach(first + offset);
    const Point size = VectorCanvas::withinReach({second.x - first.x, second.y - first.y});
    const Gdiplus::RectF box(corner.x, corner.y, size.x, size.y);
    DrawShape(
        *style,
        [&](Gdiplus::Graphics& graphics) {
            if (style->FillRequired()) {
                graphics.FillEllipse(&style->GetGdiplusBrush(), box);
            }
        },
        [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) { graphics.DrawEllipse(&pen, box); });
}

void GdiplusPainter::DrawLine(const Point& from, const Point& to, const DrawContextBase* context, const Point& offset) {
    const auto* style = asLine(context);
    if (style == nullptr || m_destination == nullptr) {
        return;
    }
    DrawOutline(*style, [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) {
        drawSegment(graphics, pen, from + offset, to + offset);
    });
}

void GdiplusPainter::DrawOrdinaryLine(const Point& from, const Point& to, const DrawContextBase* context) {
    const auto* style = asLine(context);
    if (style == nullptr || m_destination == nullptr) {
        return;
    }
    // No offset, and the modes that GDI+ begins with, in the shadow as well; meant so.
    {
        Gdiplus::Graphics graphics(m_destination);
        drawSegment(graphics, style->GetPen(), from, to);
    }
    if (HasShadow(*style)) {
        Gdiplus::Graphics graphics(m_shadow);
        const Gdiplus::Pen pen(GetShadowPenColor(style), style->GetPen().GetWidth());
        drawSegment(graphics, pen, from, to);
    }
}

void GdiplusPainter::DrawPolyline(const Point* points, unsigned __int64 count, const DrawContextBase* context,
                                  const Point& offset) {
    const auto* style = asLine(context);
    if (style == nullptr || points == nullptr || m_destination == nullptr) {
        return;
    }
    // In the shadow, too, by the context's own pen instead of the one of the id's colour; meant so.
    DrawOutline(*style, [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen&) {
        for (unsigned __int64 index = 1; index < count; ++index) {
            drawSegment(graphics, style->GetPen(), points[index - 1] + offset, points[index] + offset);
        }
    });
}

void GdiplusPainter::DrawArc(Point center, int radiusX, int radiusY, float startAngle, float sweepAngle,
                             const DrawContextBase* context, const Point& offset) {
    const auto* style = asLine(context);
    if (style == nullptr) {
        return; // without a picture it is drawn in the shadow; meant so
    }
    const VectorCanvas::DeviceRect edges = VectorCanvas::boxAround(center + offset, radiusX, radiusY);
    const Gdiplus::Rect box(edges.left, edges.top, edges.right - edges.left, edges.bottom - edges.top);
    DrawOutline(*style, [&](Gdiplus::Graphics& graphics, const Gdiplus::Pen& pen) {
        graphics.DrawArc(&pen, box, startAngle, sweepAngle);
    });
}

void GdiplusPainter::DrawTextW(Point position, std::wstring_view text, DrawContextGdiText& context,
                               const Point& offset) {
    const auto font = static_cast<HFONT>(context.GetHGDIOBJ());
    const Point corner = position + offset;
    if (m_destination != nullptr) {
        drawText(m_destination, font, context.GetColor(), corner, text);
    }
    if (HasShadow(context)) {
        drawText(m_shadow, HardEdgedFont(font).handle(), VectorCanvas::toShadowColor(context.GetId()), corner, text);
    }
}
