#include "ColorDialog.h"

#include <commdlg.h>

#include <array>

namespace Desk {

namespace {

std::array<COLORREF, 16> whiteOnly() {
    std::array<COLORREF, 16> colors;
    colors.fill(RGB(255, 255, 255));
    return colors;
}

} // namespace

std::optional<COLORREF> askForColor(CWnd& owner, COLORREF first) {
    static std::array<COLORREF, 16> mixed = whiteOnly();
    CHOOSECOLORW choice{};
    choice.lStructSize = sizeof(choice);
    choice.hwndOwner = owner;
    choice.rgbResult = first;
    choice.lpCustColors = mixed.data();
    choice.Flags = CC_RGBINIT | CC_FULLOPEN | CC_ANYCOLOR;
    return ::ChooseColorW(&choice) ? std::optional(choice.rgbResult) : std::nullopt;
}

} // namespace Desk
