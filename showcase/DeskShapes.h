#pragma once

#include <afxwin.h>

namespace Desk {

/// A rectangle with round corners of the given diameter and a frame of one pixel.
void fillRound(CDC& dc, const CRect& rect, int diameter, COLORREF fill, COLORREF frame);
/// The head of an arrow.
void drawChevron(CDC& dc, CPoint centre, bool down, COLORREF color);
void drawCheckMark(CDC& dc, CPoint centre, COLORREF color);

} // namespace Desk
