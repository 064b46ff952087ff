#pragma once

#include <afxwin.h>

namespace Desk {

/// The styles of pens from PS_SOLID to PS_DASHDOTDOT.
inline constexpr int DashCount = 5;

// What the cells of a style panel show, in the colours of the theme.

void drawSwatch(CDC& dc, const CRect& cell, COLORREF color);
/// As thick as the chart draws it.
void drawWidthSample(CDC& dc, const CRect& cell, int width);
void drawDashSample(CDC& dc, const CRect& cell, int dash);
void drawNumber(CDC& dc, const CRect& cell, int number, CFont& font);

} // namespace Desk
