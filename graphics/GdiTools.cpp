#include <OrtinControls/GdiTools.h>

#include <cstring>

void GdiTools::UpdatePen(bool keepStyle, bool keepColor, bool keepWidth, const GdiPenWrapper& source,
                         GdiPenWrapper& target) {
    const LOGPEN before = target.GetLOGPEN();
    LOGPEN merged = source.GetLOGPEN();
    if (keepStyle) {
        merged.lopnStyle = before.lopnStyle;
    }
    if (keepColor) {
        merged.lopnColor = before.lopnColor;
    }
    if (keepWidth) {
        merged.lopnWidth.x = before.lopnWidth.x;
    }
    if (std::memcmp(&merged, &before, sizeof merged) != 0) {
        target.FromLOGPEN(merged);
    }
}

void GdiTools::UpdateFont(bool keepHeight, const GdiFontWrapper& source, GdiFontWrapper& target) {
    const LOGFONTW before = target.GetLOGFONT();
    LOGFONTW merged = source.GetLOGFONT();
    if (keepHeight) {
        merged.lfHeight = before.lfHeight;
    }
    if (std::memcmp(&merged, &before, sizeof merged) != 0) {
        target.FromLOGFONT(merged, 0);
    }
}
