#include "StyleSamples.h"

#include <algorithm>
#include <array>
#include <string>

#include "DeskColors.h"
#include "DeskFonts.h"
#include "DeskShapes.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

/// At 96 pixels to the inch.
constexpr int SwatchSide = 2;
constexpr int SwatchEnd = 3;
constexpr int LineEnd = 4;
/// Strokes and gaps in turn.
constexpr std::array<std::array<int, 6>, DashCount> Dashes{{{100}, {6, 3}, {2, 2}, {6, 2, 2, 2}, {6, 2, 2, 2, 2, 2}}};

/// Across the middle of the cell.
CRect lineIn(const CRect& cell, int thickness) {
    const int top = cell.top + (cell.Height() - thickness) / 2;
    return {cell.left + scaled(LineEnd), top, cell.right - scaled(LineEnd), top + thickness};
}

} // namespace

void drawSwatch(CDC& dc, const CRect& cell, COLORREF color) {
    CRect swatch = cell;
    swatch.DeflateRect(scaled(SwatchSide), scaled(SwatchEnd));
    fillRound(dc, swatch, scaled(2), color, Colors::inputFrame());
}

void drawWidthSample(CDC& dc, const CRect& cell, int width) {
    const CRect line = lineIn(cell, scaled(width));
    dc.FillSolidRect(&line, Colors::text());
}

void drawDashSample(CDC& dc, const CRect& cell, int dash) {
    const CRect line = lineIn(cell, scaled(2));
    const std::array<int, 6>& lengths = Dashes[static_cast<std::size_t>(dash)];
    std::size_t step = 0;
    for (int x = line.left; x < line.right;) {
        const int end = x + scaled(lengths[step]);
        if (step % 2 == 0) {
            const CRect stroke(x, line.top, std::min<int>(end, line.right), line.bottom);
            dc.FillSolidRect(&stroke, Colors::text());
        }
        x = end;
        step = step + 1 < lengths.size() && lengths[step + 1] > 0 ? step + 1 : 0;
    }
}

void drawNumber(CDC& dc, const CRect& cell, int number, CFont& font) {
    const ScopedSelection selected(dc, font);
    const std::wstring text = std::to_wstring(number);
    CRect area = cell;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(Colors::text());
    dc.DrawText(text.c_str(), -1, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
}

} // namespace Desk
