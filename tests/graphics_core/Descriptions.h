#pragma once

#include <cstdint>

/// Fonts and brushes as they are where there are no windows: fields of the same names and widths.
struct FontDescription {
    std::int32_t lfHeight;
    std::int32_t lfWidth;
    std::int32_t lfEscapement;
    std::int32_t lfOrientation;
    std::int32_t lfWeight;
    std::uint8_t lfItalic;
    std::uint8_t lfUnderline;
    std::uint8_t lfStrikeOut;
    std::uint8_t lfCharSet;
    std::uint8_t lfOutPrecision;
    std::uint8_t lfClipPrecision;
    std::uint8_t lfQuality;
    std::uint8_t lfPitchAndFamily;

    friend bool operator==(const FontDescription&, const FontDescription&) = default;
};

struct BrushDescription {
    std::uint32_t lbStyle;
    std::uint32_t lbColor;
    std::uint64_t lbHatch;

    friend bool operator==(const BrushDescription&, const BrushDescription&) = default;
};
