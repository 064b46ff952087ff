#include "ChartStyles.h"

#include <OrtinControls/SystemColors.h>

#include "DeskColors.h"
#include "DeskFonts.h"
#include "chart/ChartPalette.h"

namespace Desk {

namespace {

constexpr int LabelHeight = 12;

/// The desk's colours are those of the current theme, and styles are made for both.
class InTheme {
public:
    explicit InTheme(DeskTheme theme) { SystemColors::SetThemeColor(static_cast<EThemeColor>(theme)); }
    ~InTheme() { SystemColors::SetThemeColor(m_before); }
    InTheme(const InTheme&) = delete;
    InTheme& operator=(const InTheme&) = delete;

private:
    EThemeColor m_before = SystemColors::GetCurrentDomainColor();
};

ChartStyle lineStyle(unsigned int dash, int width, COLORREF color, double opacity = 1) {
    ChartStyle style;
    style.pen.FromDescription(dash, width, color);
    style.opacity = opacity;
    return style;
}

ChartStyle shapeStyle(int width, COLORREF color, double opacity = 1) {
    ChartStyle style = lineStyle(PS_SOLID, width, color, opacity);
    style.fill = color;
    return style;
}

ChartStyle textStyle(COLORREF color) {
    ChartStyle style;
    style.text = color;
    style.font.FromLOGFONT(deskFont(LabelHeight, FW_NORMAL), 0);
    return style;
}

} // namespace

StyleAspects aspectsOf(ChartPart part) {
    switch (part) {
    case ChartPart::RisingCandles:
    case ChartPart::FallingCandles:
        return {.line = true, .fill = true};
    case ChartPart::Volume:
        return {.fill = true};
    case ChartPart::Average:
    case ChartPart::Grid:
        // Drawn with pens of GDI, which are dashed at the width 1 only.
        return {.line = true, .dash = true};
    case ChartPart::Labels:
        return {.font = true};
    case ChartPart::Range:
        return {.line = true, .fill = true, .opacity = true};
    case ChartPart::EllipseMarker:
        return {.line = true, .width = true, .dash = true, .fill = true, .opacity = true};
    case ChartPart::ArcMarker:
    case ChartPart::NewLine:
        return {.line = true, .width = true, .dash = true, .opacity = true};
    }
    return {};
}

const wchar_t* nameOf(ChartPart part) {
    switch (part) {
    case ChartPart::RisingCandles:
        return L"Świece rosnące";
    case ChartPart::FallingCandles:
        return L"Świece spadające";
    case ChartPart::Volume:
        return L"Wolumen";
    case ChartPart::Average:
        return L"Średnia krocząca";
    case ChartPart::Grid:
        return L"Siatka";
    case ChartPart::Labels:
        return L"Opisy osi";
    case ChartPart::Range:
        return L"Zaznaczony zakres";
    case ChartPart::ArcMarker:
        return L"Alert szczytu";
    case ChartPart::EllipseMarker:
        return L"Alert wolumenu";
    case ChartPart::NewLine:
        return L"Nowa linia trendu";
    }
    return L"";
}

ChartStyles defaultStyles(DeskTheme theme) {
    const InTheme inTheme(theme);
    ChartStyles styles;
    const auto set = [&styles](ChartPart part, ChartStyle style) {
        styles[static_cast<std::size_t>(part)] = std::move(style);
    };
    set(ChartPart::RisingCandles, shapeStyle(1, Colors::risen()));
    set(ChartPart::FallingCandles, shapeStyle(1, Colors::fallen()));
    set(ChartPart::Volume, shapeStyle(1, Colors::blend(Colors::rowBackground(), Colors::accent(), 0.45)));
    set(ChartPart::Average, lineStyle(PS_DASH, 1, paletteColor(PaletteColor::Orange)));
    set(ChartPart::Grid, lineStyle(PS_SOLID, 1, paletteColor(PaletteColor::Faint)));
    set(ChartPart::Labels, textStyle(paletteColor(PaletteColor::Grey)));
    set(ChartPart::Range, shapeStyle(1, paletteColor(PaletteColor::Blue), 0.2));
    set(ChartPart::ArcMarker, lineStyle(PS_SOLID, 2, paletteColor(PaletteColor::Orange)));
    set(ChartPart::EllipseMarker, shapeStyle(2, paletteColor(PaletteColor::Violet), 0.5));
    set(ChartPart::NewLine, lineStyle(PS_SOLID, 2, paletteColor(PaletteColor::LightBlue)));
    return styles;
}

ChartMemory::ChartMemory() : styles{defaultStyles(DeskTheme::White), defaultStyles(DeskTheme::Black)} {}

} // namespace Desk
