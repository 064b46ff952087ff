#include "FontDescriptions.h"

#include <OrtinFoundation/StringTools.h>

LOGFONTW tahoma(LONG height) {
    LOGFONTW description{};
    description.lfHeight = height;
    description.lfWeight = FW_NORMAL;
    description.lfCharSet = DEFAULT_CHARSET;
    lstrcpyW(description.lfFaceName, L"Tahoma");
    return description;
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
