#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <afxwin.h>

#include <optional>
#include <string_view>
#include <utility>

/// How much room a text takes.
class ORTIN_FOUNDATION_API TextSizeCalculator {
public:
    /// Measured in the given context and font, in logical units of the context, which has its own font afterwards. A
    /// null context stands for one like the screen, a null font for the one that the context has; without the pair the
    /// font is the system's for its own windows. With `multiline` line breaks in the text begin new lines, otherwise
    /// they are characters like others. An empty text takes no room.
    static CSize GetTextSize(std::optional<std::pair<HDC, HFONT>> where, std::wstring_view text, bool multiline);
};
