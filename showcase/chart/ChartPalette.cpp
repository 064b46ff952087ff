#include "ChartPalette.h"

#include <OrtinControls/SystemColors.h>

#include "DeskColors.h"

namespace Desk {

Palette chartPalette() {
    if (SystemColors::GetCurrentDomainColor() == EThemeColor::BlackTheme)
        return {RGB(0xF0, 0xF0, 0xF0), Colors::mutedText(),   Colors::line(),        Colors::fallen(),
                RGB(0xE8, 0x96, 0x3C), RGB(0xD9, 0xBC, 0x4A), Colors::risen(),       RGB(0x3F, 0xB5, 0x9F),
                Colors::accent(),      RGB(0x6F, 0xA8, 0xEA), RGB(0xA9, 0x8B, 0xE0), RGB(0xE0, 0x7D, 0xB4)};
    return {RGB(0x20, 0x24, 0x28), Colors::mutedText(),   Colors::line(),        Colors::fallen(),
            RGB(0xE0, 0x7B, 0x00), RGB(0xC7, 0x9A, 0x00), Colors::risen(),       RGB(0x00, 0x79, 0x6B),
            Colors::accent(),      RGB(0x3C, 0x8C, 0xE0), RGB(0x7B, 0x46, 0xB8), RGB(0xC2, 0x37, 0x8A)};
}

COLORREF paletteColor(PaletteColor color) {
    return chartPalette()[static_cast<std::size_t>(color)];
}

} // namespace Desk
