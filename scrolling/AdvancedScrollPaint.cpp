// The picture of the scroll and zoom bar.

#include <OrtinControls/AdvancedScroll.h>
#include <OrtinControls/GdiPlusHeaders.h>
#include <OrtinControls/SystemColors.h>
#include <XTToolkitPro.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

#include "AdvancedScrollState.h"

namespace {

constexpr int kFiner = BarPicture::kFiner;
/// Finer pixels left out at the top and the left when the picture is brought down.
constexpr int kCut = 2;

enum Role { Idle = 2, GripLine = 3, Background = 4, Hover = 5, Pressed = 6 };

Role thumbRole(const AdvancedScrollState::Gesture& gesture) {
    if (gesture.pressed) {
        return Pressed;
    }
    return gesture.hover ? Hover : Idle;
}

Role roleOf(BarPicture::Part part, const AdvancedScrollState::Gesture& gesture) {
    switch (part) {
    case BarPicture::Part::Background:
        return Background;
    case BarPicture::Part::Grip:
        return GripLine;
    default:
        return thumbRole(gesture);
    }
}

/// Opaque colours, row by row.
using Colors = std::vector<std::uint32_t>;

/// Shares the colours.
Gdiplus::Bitmap bitmapOf(Colors& colors, BarSize size) {
    const int rowBytes = size.width * static_cast<int>(sizeof(Colors::value_type));
    return {size.width, size.height, rowBytes, PixelFormat32bppRGB, reinterpret_cast<BYTE*>(colors.data())};
}

/// Brings a finer picture down to `size` by the nearest pixel. False without memory for it.
bool bringDown(Colors& finer, Colors& colors, BarSize size) {
    const BarSize finerSize{kFiner * size.width, kFiner * size.height};
    Gdiplus::Bitmap from = bitmapOf(finer, finerSize);
    Gdiplus::Bitmap to = bitmapOf(colors, size);
    Gdiplus::Graphics graphics(&to);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeDefault);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    return graphics.DrawImage(&from, Gdiplus::Rect(0, 0, size.width, size.height), kCut, kCut, finerSize.width - kCut,
                              finerSize.height - kCut, Gdiplus::UnitPixel) == Gdiplus::Ok;
}

enum class Axis { Columns, Rows };

/// Which finer pixels GDI+ takes along one axis, asked with a ruler whose colours are numbers; empty where it refuses.
/// So the finer picture, which takes milliseconds to fill and to bring down, is never needed.
std::vector<int> samplesAlong(Axis axis, int length) {
    const BarSize size = axis == Axis::Columns ? BarSize{length, 1} : BarSize{1, length};
    Colors ruler(static_cast<std::size_t>(kFiner) * kFiner * length);
    const std::size_t finerWidth = static_cast<std::size_t>(kFiner) * size.width;
    for (std::size_t index = 0; index < ruler.size(); ++index) {
        ruler[index] = static_cast<std::uint32_t>(axis == Axis::Columns ? index % finerWidth : index / finerWidth);
    }
    Colors taken(static_cast<std::size_t>(length));
    std::vector<int> samples;
    if (bringDown(ruler, taken, size)) {
        constexpr std::uint32_t kWithoutAlpha = 0xFFFFFF;
        std::transform(taken.begin(), taken.end(), std::back_inserter(samples),
                       [](std::uint32_t color) { return static_cast<int>(color & kWithoutAlpha); });
    }
    return samples;
}

void keepSamples(std::vector<int>& samples, Axis axis, int length) {
    if (samples.size() != static_cast<std::size_t>(length)) {
        samples = samplesAlong(axis, length);
    }
}

} // namespace

void AdvancedScroll::OnPaint() {
    CPaintDC dc(this);
    UpdateRects();
    const BarLayout& layout = m_state->layout;
    BarPicture::Samples& samples = m_state->samples;
    keepSamples(samples.columns, Axis::Columns, layout.client.width());
    keepSamples(samples.rows, Axis::Rows, layout.client.height());
    const BarPicture picture = BarPicture::of(layout, samples, XTPDpiHelper().ScaleX(1, 96));
    for (const BarPicture::Patch& patch : picture.patches) {
        const CRect rect(patch.rect.left, patch.rect.top, patch.rect.right, patch.rect.bottom);
        if (!rect.IsRectEmpty()) {
            const Role role = roleOf(patch.part, m_state->gesture);
            dc.FillSolidRect(rect, SystemColors::GetThemeColor(static_cast<EThemeColorType>(role)));
            // Nothing is painted twice, so that nothing flickers.
            dc.ExcludeClipRect(rect);
        }
    }
}
