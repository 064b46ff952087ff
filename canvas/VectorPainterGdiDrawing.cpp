// What the painter draws by GDI.

#include <OrtinControls/VectorPainterGdi.h>

#include <algorithm>
#include <memory>

#include <OrtinControls/DrawContextGdiLineAndFill.h>

#include "DeviceArithmetic.h"

namespace VectorCanvas {
namespace {

constexpr DWORD kPointsOfLine = 2;
constexpr int kPointsOfRect = 4;
constexpr unsigned long kNoFill = 0xFFFFFFFF;

/// Owner of an object that is made for one call. Where it is still selected at its end, the system lets it go with the
/// next selection.
struct ObjectDeleter {
    void operator()(HGDIOBJ object) const { ::DeleteObject(object); }
};
using OwnedObject = std::unique_ptr<void, ObjectDeleter>;

OwnedObject penOfId(const DrawContextGdiLine& context) {
    LOGPEN description = context.GetLOGPEN();
    description.lopnColor = toShadowColor(context.GetId());
    return OwnedObject(::CreatePenIndirect(&description));
}

DrawContextGdiLine* asLine(DrawContextBase* context) {
    return dynamic_cast<DrawContextGdiLine*>(context);
}

/// Gaps of dashes are left as they are.
void leaveGaps(HDC device) {
    ::SetBkMode(device, TRANSPARENT);
    ::SetBkColor(device, 0);
}

template <typename Count>
const Count* counts(std::vector<Count>& all, std::size_t wanted, Count each) {
    if (all.size() < wanted) {
        all.resize(wanted, each);
    }
    return all.data();
}

void drawFrame(HDC device, const CRect& rect, unsigned long frame, unsigned long fill) {
    CDC dc;
    dc.Attach(device);
    if (fill < kNoFill) {
        dc.FillSolidRect(rect, fill);
    }
    dc.Draw3dRect(rect, frame, frame);
    dc.Detach();
}

CRect toRect(const DeviceRect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

} // namespace

bool VectorPainterGdi::HasShadow(unsigned int id) const {
    return m_shadowMode == 1 && id != 0;
}

template <typename ToPixel>
const POINT* VectorPainterGdi::Convert(const OrtinPoint<float>* points, std::size_t count,
                                       const OrtinPoint<float>& offset, const ToPixel& convert) {
    if (m_points.size() < count) {
        m_points.resize(count);
    }
    const auto convertAll = [&](const auto& each) {
        std::transform(points, points + count, m_points.begin(), [&each, offset](const OrtinPoint<float>& point) {
            return POINT{each(point.x + offset.x), each(point.y + offset.y)};
        });
    };
    if (allWithinReach(points, count, offset)) {
        convertAll([](float coordinate) { return static_cast<LONG>(coordinate); });
    } else {
        convertAll(convert);
    }
    return m_points.data();
}

void VectorPainterGdi::Clear(unsigned long color) {
    CDC dc;
    if (dc.Attach(m_source.get())) {
        dc.FillSolidRect(0, 0, m_viewport.cx, m_viewport.cy, color);
        dc.Detach();
    }
}

// Neither here nor in FillRects is the old object selected back, and the modes stay, too; meant so.
template <typename Lines>
void VectorPainterGdi::DrawLines(DrawContextGdiLine& context, const Lines& lines) {
    ::SelectObject(m_source.get(), context.GetHGDIOBJ());
    lines(m_source.get());
    if (HasShadow(context.GetId())) {
        const OwnedObject pen = penOfId(context);
        leaveGaps(m_shadowDevice.get());
        ::SelectObject(m_shadowDevice.get(), pen.get());
        lines(m_shadowDevice.get());
    }
}

void VectorPainterGdi::DrawLineList(const OrtinPoint<float>* points, std::size_t count, DrawContextGdiLine& line,
                                    const OrtinPoint<float>& offset) {
    if (points == nullptr || count == 0) {
        return;
    }
    const POINT* pixels = Convert(points, count, offset, toPixel);
    const std::size_t lineCount = count / kPointsOfLine;
    const DWORD* lengths = counts(m_lineCounts, lineCount, kPointsOfLine);
    DrawLines(line, [&](HDC device) { ::PolyPolyline(device, pixels, lengths, static_cast<DWORD>(lineCount)); });
}

void VectorPainterGdi::DrawPolyline(const OrtinPoint<float>* points, std::size_t count, DrawContextBase* context,
                                    const OrtinPoint<float>& offset) {
    DrawContextGdiLine* line = asLine(context);
    if (line == nullptr || points == nullptr || count == 0) {
        return;
    }
    const POINT* pixels = Convert(points, count, offset, toPixel);
    DrawLines(*line, [&](HDC device) { ::Polyline(device, pixels, static_cast<int>(count)); });
}

void VectorPainterGdi::DrawPolyPolyline(const OrtinPoint<float>* points, std::size_t count,
                                        const unsigned long* segmentCounts, std::size_t segmentCountCount,
                                        DrawContextBase* context, const OrtinPoint<float>& offset) {
    DrawContextGdiLine* line = asLine(context);
    if (line == nullptr || count == 0) {
        return;
    }
    const POINT* pixels = Convert(points, count, offset, toPixel);
    DrawLines(*line, [&](HDC device) {
        ::PolyPolyline(device, pixels, segmentCounts, static_cast<DWORD>(segmentCountCount));
    });
}

void VectorPainterGdi::DrawPoint(const OrtinPoint<float>& point, const DrawContextBase* context,
                                 const OrtinPoint<float>& offset) {
    const auto* line = dynamic_cast<const DrawContextGdiLine*>(context);
    if (line == nullptr) {
        return;
    }
    const int x = toPixel(point.x + offset.x);
    const int y = toPixel(point.y + offset.y);
    ::SetPixel(m_source.get(), x, y, line->GetLOGPEN().lopnColor);
    if (HasShadow(line->GetId())) {
        ::SetPixel(m_shadowDevice.get(), x, y, toShadowColor(line->GetId()));
    }
}

void VectorPainterGdi::FillRects(const OrtinPoint<float>* points, std::size_t count, DrawContextBase* context,
                                 const OrtinPoint<float>& offset) {
    auto* style = dynamic_cast<DrawContextGdiLineAndFill*>(context);
    if (style == nullptr || points == nullptr || count == 0) {
        return;
    }
    const std::size_t rectCount = count / kPointsOfRect;
    const int* corners = counts(m_rectCounts, rectCount, kPointsOfRect);
    const POINT* pixels = Convert(points, count, offset, toPixelWithinReach);
    const auto fill = [&](HDC device) {
        ::SelectObject(device, ::GetStockObject(NULL_PEN));
        ::SetPolyFillMode(device, WINDING);
        ::PolyPolygon(device, pixels, corners, static_cast<int>(rectCount));
    };
    // Whether the context wants a fill is not asked; meant so.
    if (const HBRUSH brush = style->GetHBrush()) {
        ::SelectObject(m_source.get(), brush);
    }
    fill(m_source.get());
    if (HasShadow(style->GetId())) {
        const OwnedObject brush(::CreateSolidBrush(toShadowColor(style->GetId())));
        ::SelectObject(m_shadowDevice.get(), brush.get());
        leaveGaps(m_shadowDevice.get());
        fill(m_shadowDevice.get());
    }
}

void VectorPainterGdi::DrawRect(const CRect2D& rect, unsigned long frame, unsigned long fill, unsigned int id) {
    if (m_source == nullptr) {
        return;
    }
    const CRect area = toRect(rectByEdges(rect));
    drawFrame(m_source.get(), area, frame, fill);
    // Here the shadow counts, not whether it is enabled, and all of the rectangle is the object; meant so.
    if (id != 0 && m_shadowDevice != nullptr) {
        drawFrame(m_shadowDevice.get(), area, toShadowColor(id), toShadowColor(id));
    }
}

void VectorPainterGdi::DrawIcon(unsigned __int64 icon, int x, int y) {
    if (m_source != nullptr) {
        ::DrawIcon(m_source.get(), x, y, reinterpret_cast<HICON>(icon));
    }
}

void VectorPainterGdi::DrawControlPoints(unsigned int id, const OrtinPoint<float>* points, std::size_t count,
                                         OrtinPoint<float> offset,
                                         const DrawControlPointsHelper::PointSettings& settings) {
    DrawControlPointsHelper::DrawControlPoints(m_source.get(), points, count, offset, settings);
    // Other than the calls by GDI it takes any mode but 0 for enabled; meant so.
    if (id != 0 && m_shadowMode != 0) {
        DrawControlPointsHelper::PointSettings mark = settings;
        mark.lineColor = id;
        mark.fillColor = id;
        mark.fill = true;
        mark.opacity = 1.0F;
        mark.smooth = false;
        DrawControlPointsHelper::DrawControlPoints(m_shadowDevice.get(), points, count, offset, mark);
    }
}

} // namespace VectorCanvas
