#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiPenWrapper.h>

#include "core/CommandLine.h"
#include "core/chart/ChartObject.h"
#include "core/chart/TrendLine.h"

namespace Desk {

/// Pens are from 1 to this wide, at 96 pixels to the inch.
inline constexpr int GreatestPenWidth = 5;

/// The looks of one object. Which of it is used is `aspectsOf`'s to say.
struct ChartStyle {
    GdiPenWrapper pen; ///< its style is one of PS_SOLID to PS_DASHDOTDOT
    COLORREF fill = 0;
    COLORREF text = 0;
    GdiFontWrapper font{};
    double opacity = 1; ///< 0 to 1
};

/// What of a style can be seen, and so changed.
struct StyleAspects {
    bool line = false; ///< colour of the pen
    bool width = false;
    bool dash = false;
    bool fill = false;
    bool font = false; ///< with the colour of the text
    bool opacity = false;

    bool operator==(const StyleAspects&) const = default;
};
StyleAspects aspectsOf(ChartPart part);
/// "Świece rosnące".
const wchar_t* nameOf(ChartPart part);

using ChartStyles = std::array<ChartStyle, ChartPartCount>;
ChartStyles defaultStyles(DeskTheme theme);

/// A line on the chart of one instrument.
struct DrawnLine {
    std::string symbol; ///< in UTF-8
    AnchoredLine line;
    ChartStyle style;
};

/// What the chart keeps from one start to the next.
struct ChartMemory {
    std::array<ChartStyles, 2> styles; ///< by theme
    std::vector<DrawnLine> lines;

    ChartMemory();
    ChartStyles& stylesOf(DeskTheme theme) { return styles[static_cast<std::size_t>(theme)]; }
};

} // namespace Desk
