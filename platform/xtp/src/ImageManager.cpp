#include "XTPImageManager.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace {

using Greys = std::array<std::uint32_t, 256>; ///< pixels by their luma

Greys greysOf(int contrast) {
    const double factor = 259.0 * (contrast + 255) / (255.0 * (259 - contrast));
    Greys greys{};
    for (std::size_t luma = 0; luma < greys.size(); ++luma) {
        const double moved = factor * (static_cast<double>(luma) - 128.0) + 128.0;
        const auto grey = static_cast<std::uint32_t>(std::lround(std::clamp(moved, 0.0, 255.0)));
        greys[luma] = grey << 16 | grey << 8 | grey;
    }
    return greys;
}

std::size_t lumaOf(std::uint32_t pixel) {
    const std::uint32_t red = pixel >> 16 & 0xFF;
    const std::uint32_t green = pixel >> 8 & 0xFF;
    const std::uint32_t blue = pixel & 0xFF;
    return (299 * red + 587 * green + 114 * blue + 500) / 1000;
}

} // namespace

void CXTPImageManager::BlackWhiteBitmap(CDC& dc, const CRect& rect, int contrast) {
    CRect part = rect;
    part.NormalizeRect();
    CRect device = part;
    dc.LPtoDP(&device);
    device.NormalizeRect();
    const CSize size = device.Size();
    BITMAPINFO info{};
    info.bmiHeader = {sizeof info.bmiHeader, size.cx, -size.cy, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
    void* bits = nullptr;
    CBitmap copy;
    CDC memory;
    if (size.cx == 0 || size.cy == 0 ||
        !copy.Attach(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0)) ||
        !memory.CreateCompatibleDC(&dc)) {
        return;
    }
    CBitmap* const previous = memory.SelectObject(&copy);
    if (memory.StretchBlt(0, 0, size.cx, size.cy, &dc, part.left, part.top, part.Width(), part.Height(), SRCCOPY)) {
        ::GdiFlush();
        const Greys greys = greysOf(std::clamp(contrast, 0, 255));
        auto* const pixels = static_cast<std::uint32_t*>(bits);
        std::transform(pixels, pixels + static_cast<std::ptrdiff_t>(size.cx) * size.cy, pixels,
                       [&](std::uint32_t pixel) { return greys[lumaOf(pixel)]; });
        dc.StretchBlt(part.left, part.top, part.Width(), part.Height(), &memory, 0, 0, size.cx, size.cy, SRCCOPY);
    }
    memory.SelectObject(previous);
}

CXTPImageManager* XTPImageManager() {
    static CXTPImageManager manager;
    return &manager;
}
