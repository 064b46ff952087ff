#pragma once

#include <string>

#include "chart/ChartStyles.h"

/// The fields of a style, one a line, so that two styles can be compared and what differs be read.
inline std::string describe(const Desk::ChartStyle& style) {
    const LOGPEN pen = style.pen.GetLOGPEN();
    const LOGFONTW font = style.font.GetLOGFONT();
    std::string text = "colour " + std::to_string(pen.lopnColor) + "\nwidth " + std::to_string(pen.lopnWidth.x) +
                       "\ndash " + std::to_string(pen.lopnStyle) + "\nfill " + std::to_string(style.fill) + "\ntext " +
                       std::to_string(style.text) + "\nopacity " + std::to_string(style.opacity) + "\nsize " +
                       std::to_string(font.lfHeight) + "\nweight " + std::to_string(font.lfWeight) + "\nface ";
    for (const wchar_t letter : style.font.GetFaceName())
        text += letter < 128 ? std::string(1, static_cast<char>(letter)) : "<" + std::to_string(letter) + ">";
    return text + "\n";
}

/// The first words of the lines in which the two differ, parted by blanks.
inline std::string fieldsThatDiffer(const Desk::ChartStyle& before, const Desk::ChartStyle& after) {
    std::string fields;
    std::string left = describe(before);
    std::string right = describe(after);
    while (!left.empty()) {
        const std::string first = left.substr(0, left.find('\n'));
        const std::string second = right.substr(0, right.find('\n'));
        if (first != second)
            fields += (fields.empty() ? "" : " ") + first.substr(0, first.find(' '));
        left.erase(0, first.size() + 1);
        right.erase(0, second.size() + 1);
    }
    return fields;
}
