#pragma once

#include <OrtinControls/GdiPlusHeaders.h>

namespace VectorCanvas {

/// Opaque unless told otherwise.
inline Gdiplus::Color toGdiPlusColor(COLORREF color, BYTE alpha = 0xFF) {
    return {alpha, GetRValue(color), GetGValue(color), GetBValue(color)};
}

inline Gdiplus::Color withAlpha(const Gdiplus::Color& color, BYTE alpha) {
    return {alpha, color.GetRed(), color.GetGreen(), color.GetBlue()};
}

} // namespace VectorCanvas
