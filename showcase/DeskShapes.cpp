#include "DeskShapes.h"

#include <algorithm>

#include "DeskFonts.h"
#include "ScopedSelection.h"

namespace Desk {

void fillRound(CDC& dc, const CRect& rect, int diameter, COLORREF fill, COLORREF frame) {
    CPen pen(PS_SOLID, 1, frame);
    CBrush brush(fill);
    const ScopedSelection selectedPen(dc, pen);
    const ScopedSelection selectedBrush(dc, brush);
    dc.RoundRect(rect.left, rect.top, rect.right, rect.bottom, diameter, diameter);
}

void drawChevron(CDC& dc, CPoint centre, bool down, COLORREF color) {
    const int reach = scaled(4);
    const int rise = down ? scaled(2) : -scaled(2);
    CPen pen(PS_SOLID, std::max(1, scaled(3) / 2), color);
    const ScopedSelection selectedPen(dc, pen);
    dc.MoveTo(centre.x - reach, centre.y - rise);
    dc.LineTo(centre.x, centre.y + rise);
    dc.LineTo(centre.x + reach + 1, centre.y - rise - (down ? 1 : -1));
}

void drawCheckMark(CDC& dc, CPoint centre, COLORREF color) {
    CPen pen(PS_SOLID, std::max(1, scaled(2)), color);
    const ScopedSelection selected(dc, pen);
    dc.MoveTo(centre.x - scaled(4), centre.y);
    dc.LineTo(centre.x - scaled(1), centre.y + scaled(3));
    dc.LineTo(centre.x + scaled(5), centre.y - scaled(4));
}

} // namespace Desk
