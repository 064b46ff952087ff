// What the painter does with text, and what it hands on to GDI+.

#include <OrtinControls/VectorPainterGdi.h>

#include <OrtinControls/DrawContextGdiText.h>
#include <OrtinFoundation/TextSizeCalculator.h>

#include "DeviceArithmetic.h"

namespace VectorCanvas {

void VectorPainterGdi::DrawTextW(std::wstring_view text, const CRect2D& rect, DrawContextGdiText& context,
                                 unsigned int format) {
    if (m_source == nullptr || text.empty()) {
        return;
    }
    const DeviceRect area = rectBySize(rect);
    const auto draw = [&](HDC device) {
        CRect room(area.left, area.top, area.right, area.bottom);
        ::DrawTextW(device, text.data(), static_cast<int>(text.size()), room, format | DT_SINGLELINE);
    };
    // Neither font nor modes are set back; meant so.
    ::SelectObject(m_source.get(), context.GetHGDIOBJ());
    ::SetTextColor(m_source.get(), context.GetColor());
    ::SetBkMode(m_source.get(), TRANSPARENT);
    draw(m_source.get());
    if (HasShadow(context.GetId())) {
        // The background of the text, and the glyphs as if they were part of it, so that no pixel has another colour
        // than the id. The font stays the one that the shadow has, so the area is only about that of the text; meant
        // so.
        ::SetTextColor(m_shadowDevice.get(), toShadowColor(context.GetId()));
        ::SetBkColor(m_shadowDevice.get(), toShadowColor(context.GetId()));
        ::SetBkMode(m_shadowDevice.get(), OPAQUE);
        draw(m_shadowDevice.get());
    }
}

std::pair<int, int> VectorPainterGdi::GetTextHeight(HFONT font) const {
    static constexpr std::wstring_view kSample = L"j029pqA";
    constexpr COLORREF kInk = RGB(0, 0, 0);
    const CSize size = TextSizeCalculator::GetTextSize(std::pair(m_source.get(), font), kSample, false);
    CompatibleBitmapOwner picture;
    const OwnedDevice device(::CreateCompatibleDC(nullptr));
    picture.CreateCompatibleBitmap(device.get(), size.cx, size.cy); // of two colours, as the device begins
    ::SelectObject(device.get(), font);
    ::SelectObject(device.get(), picture.GetHandle());
    ::PatBlt(device.get(), 0, 0, size.cx, size.cy, WHITENESS);
    ::SetTextColor(device.get(), kInk);
    ::SetBkMode(device.get(), TRANSPARENT);
    ::TextOutW(device.get(), 0, 0, kSample.data(), static_cast<int>(kSample.size()));
    const auto hasInk = [&](int y) { return IsPixelInColorOnLine(device.get(), kInk, size.cx, y); };
    int top = 0;
    while (top < size.cy && !hasInk(top)) {
        ++top;
    }
    if (top == size.cy) {
        return {0, 0};
    }
    int bottom = size.cy - 1;
    while (!hasInk(bottom)) {
        --bottom;
    }
    return {bottom - top, top};
}

bool VectorPainterGdi::IsPixelInColorOnLine(HDC device, unsigned long color, int width, int y) {
    for (int x = 0; x < width; ++x) {
        if (::GetPixel(device, x, y) == color) {
            return true;
        }
    }
    return false;
}

void VectorPainterGdi::DrawPolygon(const OrtinPoint<float>* points, std::size_t count, const DrawContextBase* context,
                                   const OrtinPoint<float>& offset) {
    m_gdiPlus.DrawPolygon(points, count, context, offset);
}

void VectorPainterGdi::DrawEllipse(const OrtinPoint<float>& first, const OrtinPoint<float>& second,
                                   const DrawContextBase* context, const OrtinPoint<float>& offset) {
    m_gdiPlus.DrawEllipse(first, second, context, offset);
}

void VectorPainterGdi::DrawLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to,
                                const DrawContextBase* context, const OrtinPoint<float>& offset) {
    m_gdiPlus.DrawLine(from, to, context, offset);
}

void VectorPainterGdi::DrawOrdinaryLine(const OrtinPoint<float>& from, const OrtinPoint<float>& to,
                                        const DrawContextBase* context) {
    m_gdiPlus.DrawOrdinaryLine(from, to, context);
}

void VectorPainterGdi::DrawArc(OrtinPoint<float> center, int radiusX, int radiusY, float startAngle, float sweepAngle,
                               const DrawContextBase* context, const OrtinPoint<float>& offset) {
    m_gdiPlus.DrawArc(center, radiusX, radiusY, startAngle, sweepAngle, context, offset);
}

void VectorPainterGdi::DrawTextW(OrtinPoint<float> position, std::wstring_view text, DrawContextGdiText& context,
                                 const OrtinPoint<float>& offset) {
    m_gdiPlus.DrawTextW(position, text, context, offset);
}

void VectorPainterGdi::DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset,
                                  const OrtinPoint<float>& size, const DrawContextBase* context,
                                  Gdiplus::Bitmap* bitmap) {
    m_gdiPlus.DrawBitmap(position, offset, size, context, bitmap);
}

void VectorPainterGdi::DrawBitmap(const OrtinPoint<float>& position, const OrtinPoint<float>& offset,
                                  const DrawContextBase* context, Gdiplus::Bitmap* bitmap) {
    m_gdiPlus.DrawBitmap(position, offset, context, bitmap);
}

} // namespace VectorCanvas
