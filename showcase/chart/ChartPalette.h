#pragma once

#include <array>
#include <cstddef>

#include <afxwin.h>

namespace Desk {

/// The colours that a chart's styles are offered, in the order in which they are shown.
enum class PaletteColor : std::size_t {
    Strong,
    Grey,
    Faint,
    Fallen,
    Orange,
    Yellow,
    Risen,
    Teal,
    Blue,
    LightBlue,
    Violet,
    Pink,
};
inline constexpr std::size_t PaletteSize = 12;

using Palette = std::array<COLORREF, PaletteSize>;

/// Of the current theme: each stands out from its background but for `Faint`, which hardly does.
Palette chartPalette();
COLORREF paletteColor(PaletteColor color);

} // namespace Desk
