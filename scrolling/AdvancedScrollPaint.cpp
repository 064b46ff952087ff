// The picture of the scroll and zoom bar.

#include <OrtinControls/AdvancedScroll.h>
#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinControls/SystemColors.h>
#include <XTToolkitPro.h>

#include "AdvancedScrollState.h"

namespace {

/// The bar is drawn so many times larger and brought down to its size.
constexpr int kScale = 4;
/// Finer pixels left out at the top and the left when it is.
constexpr int kCut = 2;

enum Role { Idle = 2, GripLine = 3, Background = 4, Hover = 5, Pressed = 6 };

Gdiplus::Color themeColor(Role role) {
    const COLORREF color = SystemColors::GetThemeColor(static_cast<EThemeColorType>(role));
    return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

Role thumbRole(const AdvancedScrollState::Gesture& gesture) {
    if (gesture.pressed) {
        return Pressed;
    }
    return gesture.hover ? Hover : Idle;
}

void usePlainModes(Gdiplus::Graphics& graphics) {
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeDefault);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
}

void fill(Gdiplus::Graphics& graphics, const BarRect& rect, Role role) {
    const Gdiplus::SolidBrush brush(themeColor(role));
    graphics.FillRectangle(&brush, kScale * rect.left, kScale * rect.top, kScale * rect.width(),
                           kScale * rect.height());
}

void drawGrip(Gdiplus::Graphics& graphics, const BarRect& thumb) {
    const int unit = XTPDpiHelper().ScaleX(1, 96);
    const Gdiplus::SolidBrush brush(themeColor(GripLine));
    const Gdiplus::Pen pen(&brush, static_cast<Gdiplus::REAL>(kScale * unit));
    const Grip grip = gripOf(thumb, unit);
    for (const int x : grip.x) {
        graphics.DrawLine(&pen, kScale * x, kScale * grip.top, kScale * x, kScale * grip.bottom);
    }
}

void drawBar(Gdiplus::Graphics& graphics, const BarLayout& layout, Role thumb) {
    usePlainModes(graphics);
    // All of it is opaque: what lies below is not read and mixed in, which would take a third of the paint.
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    fill(graphics, layout.client, Background);
    fill(graphics, layout.thumb, thumb);
    if (hasGrip(layout.thumb)) {
        drawGrip(graphics, layout.thumb);
    }
}

} // namespace

void AdvancedScroll::OnPaint() {
    CPaintDC dc(this);
    UpdateRects();
    const BarLayout& layout = m_state->layout;
    const int width = layout.client.width();
    const int height = layout.client.height();
    // A picture that cannot be made leaves the bar as it is: GDI+ carries the failure through all that follows.
    Gdiplus::Bitmap picture(kScale * width, kScale * height, PixelFormat32bppRGB);
    Gdiplus::Graphics onPicture(&picture);
    drawBar(onPicture, layout, thumbRole(m_state->gesture));
    Gdiplus::Graphics onScreen(dc.GetSafeHdc());
    usePlainModes(onScreen);
    onScreen.DrawImage(&picture, Gdiplus::Rect(0, 0, width, height), kCut, kCut, kScale * width - kCut,
                       kScale * height - kCut, Gdiplus::UnitPixel);
}
