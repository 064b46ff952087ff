#include "GdiDescriptions.h"

#include <OrtinFoundation/StringTools.h>

bool isAlive(HGDIOBJ object) {
    return ::GetObjectType(object) != 0;
}

std::string describe(const LOGPEN& pen) {
    return std::to_string(pen.lopnStyle) + ' ' + std::to_string(pen.lopnWidth.x) + ',' +
           std::to_string(pen.lopnWidth.y) + ' ' + std::to_string(pen.lopnColor);
}

std::string describe(const GdiPenWrapper& pen) {
    return describe(pen.GetLOGPEN());
}

LOGFONTW tahoma(LONG height) {
    LOGFONTW description{};
    description.lfHeight = height;
    description.lfWeight = FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    lstrcpyW(description.lfFaceName, L"Tahoma");
    return description;
}

LOGFONTW eachFieldItsOwn(LONG height) {
    return {height, 2, 3, 4, 500, 1, 7, 8, 9, 10, 11, 12, 13, L"Segoe UI"};
}

std::string describe(const LOGFONTW& font) {
    std::string text;
    for (const long number :
         {font.lfHeight, font.lfWidth, font.lfEscapement, font.lfOrientation, font.lfWeight, LONG{font.lfItalic},
          LONG{font.lfUnderline}, LONG{font.lfStrikeOut}, LONG{font.lfCharSet}, LONG{font.lfOutPrecision},
          LONG{font.lfClipPrecision}, LONG{font.lfQuality}, LONG{font.lfPitchAndFamily}}) {
        text += std::to_string(number) + ' ';
    }
    return text + OrtinTools::String::WideToUtf8(GdiFontWrapper(font, 0).GetFaceName());
}

std::string describe(const GdiFontWrapper& font) {
    return describe(font.GetLOGFONT());
}
