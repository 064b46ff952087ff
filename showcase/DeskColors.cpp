#include "DeskColors.h"

#include <OrtinControls/SystemColors.h>

#include <cmath>

namespace Desk::Colors {

namespace {

/// The roles of the theme that the desk uses, by what they are in it.
enum Role : int {
    RoleText = 0,
    RoleScrollThumb = 1,
    RoleStrip = 4,
    RoleAccent = 6,
    RoleFound = 7,
    RoleMutedText = 9,
    RoleInputFrame = 11,
    RoleLine = 12,
    RoleKnob = 15,
    RoleBackground = 18,
    RoleOtherBackground = 19,
    RoleFallen = 22,
    RoleRangeMarker = 24,
    RoleRisen = 27,
    RoleTrack = 28,
};

COLORREF color(Role role) {
    return SystemColors::GetThemeColor(static_cast<EThemeColorType>(role));
}

} // namespace

COLORREF rowBackground() {
    return color(RoleBackground);
}

COLORREF otherRowBackground() {
    return color(RoleOtherBackground);
}

COLORREF selectedRow() {
    return blend(color(RoleBackground), color(RoleAccent), 0.28);
}

COLORREF text() {
    return color(RoleText);
}

COLORREF mutedText() {
    return color(RoleMutedText);
}

COLORREF strip() {
    return color(RoleStrip);
}

COLORREF stripText() {
    return color(RoleText);
}

COLORREF line() {
    return color(RoleLine);
}

COLORREF accent() {
    return color(RoleAccent);
}

COLORREF headerBackground() {
    return color(RoleStrip);
}

COLORREF headerText() {
    return color(RoleText);
}

COLORREF input() {
    return color(RoleBackground);
}

COLORREF inputFrame() {
    return color(RoleInputFrame);
}

COLORREF hotItem() {
    return blend(color(RoleStrip), color(RoleAccent), 0.25);
}

COLORREF knob() {
    return color(RoleKnob);
}

COLORREF scrollTrack() {
    return color(RoleOtherBackground);
}

COLORREF scrollThumb() {
    return color(RoleScrollThumb);
}

COLORREF scrollThumbHot() {
    return color(RoleMutedText);
}

COLORREF foundPiece() {
    return blend(color(RoleBackground), color(RoleFound), 0.5);
}

COLORREF rangeTrack() {
    return color(RoleTrack);
}

COLORREF rangeReached() {
    return blend(color(RoleTrack), color(RoleAccent), 0.5);
}

COLORREF rangeMarker() {
    return color(RoleRangeMarker);
}

COLORREF previewGround() {
    return blend(color(RoleStrip), color(RoleMutedText), 0.25);
}

COLORREF previewShadow() {
    return blend(previewGround(), RGB(0, 0, 0), 0.5);
}

COLORREF risen() {
    return color(RoleRisen);
}

COLORREF fallen() {
    return color(RoleFallen);
}

COLORREF complaint() {
    return blend(color(RoleFallen), color(RoleText), 0.4);
}

COLORREF blend(COLORREF base, COLORREF over, double share) {
    const auto mixed = [share](int from, int to) { return static_cast<BYTE>(std::lround(from + (to - from) * share)); };
    return RGB(mixed(GetRValue(base), GetRValue(over)), mixed(GetGValue(base), GetGValue(over)),
               mixed(GetBValue(base), GetBValue(over)));
}

} // namespace Desk::Colors
