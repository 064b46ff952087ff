#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/InfoParts.h"

namespace Desk {

enum class InfoFont { Title, Heading, Name, Text };

/// In pixels.
struct InfoSizes {
    int width = 0;  ///< of the page, its margins included
    int margin = 0; ///< around all
    int names = 0;  ///< where the texts of entries begin, right of the margin
    int gap = 0;    ///< between two parts; headings have more above
};

/// What the typefaces take, in pixels.
struct InfoTypefaces {
    std::function<int(InfoFont font, std::wstring_view text)> widthOf;
    std::function<int(InfoFont font)> lineHeight;
};

/// One line of text; `left` and `top` are those of its cell. All places are pixels of the page.
struct InfoLine {
    int left = 0;
    int top = 0;
    int height = 0;
    InfoFont font = InfoFont::Text;
    std::wstring text;

    bool operator==(const InfoLine&) const = default;
};

/// A field of a colour, from `left` and `top` on.
struct InfoField {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    InfoColor color = {};

    bool operator==(const InfoField&) const = default;
};

/// A page of parts one under another.
struct InfoPage {
    std::vector<InfoLine> lines; ///< from the top
    std::vector<InfoField> fields;
    std::vector<int> rules; ///< where a line of one pixel goes across the page, under each heading
    int width = 0;
    int height = 0;
};
InfoPage layoutInfo(const std::vector<InfoPart>& parts, const InfoSizes& sizes, const InfoTypefaces& typefaces);

/// The text in lines no wider than `width`, broken at blanks; a word that is wider has a line of its own.
std::vector<std::wstring> wrapped(std::wstring_view text, int width,
                                  const std::function<int(std::wstring_view)>& widthOf);

} // namespace Desk
