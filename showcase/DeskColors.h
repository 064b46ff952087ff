#pragma once

#include <afxwin.h>

/// What the desk paints in which colour: the one place where the theme's roles get a meaning. Each colour is of the
/// current theme, so nobody keeps one.
namespace Desk::Colors {

COLORREF rowBackground();
COLORREF otherRowBackground();
COLORREF selectedRow();
COLORREF text();
COLORREF mutedText();
COLORREF strip();
COLORREF stripText();
COLORREF line();
COLORREF accent();
COLORREF headerBackground();
COLORREF headerText();
COLORREF input();
COLORREF inputFrame();
COLORREF hotItem();
/// The knob of a switch that is on.
COLORREF knob();
COLORREF scrollTrack();
COLORREF scrollThumb();
COLORREF scrollThumbHot();
COLORREF foundPiece();
COLORREF rangeTrack();
COLORREF rangeReached();
COLORREF rangeMarker();
/// Around the pages of a preview, and under their edges.
COLORREF previewGround();
COLORREF previewShadow();
COLORREF risen();
COLORREF fallen();
/// A sentence about what the user typed wrong.
COLORREF complaint();

/// `share` 0 is `base`, 1 is `over`.
COLORREF blend(COLORREF base, COLORREF over, double share);

} // namespace Desk::Colors
