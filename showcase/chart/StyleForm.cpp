#include "StyleForm.h"

#include <OrtinControls/GdiBrushWrapper.h>
#include <OrtinFoundation/Settings.h>

#include <boost/json/parse.hpp>
#include <boost/json/serialize.hpp>

#include <cstdlib>
#include <stdexcept>

#include "DeskFonts.h"
#include "chart/ChartStyles.h"

namespace Desk::StyleForm {

namespace {

constexpr COLORREF GreatestColor = RGB(255, 255, 255);
/// At 96 pixels to the inch.
constexpr int GreatestFontHeight = 100;
constexpr long GreatestWeight = 1000;

std::optional<boost::json::value> parsed(std::string_view text) {
    boost::json::error_code error;
    boost::json::value document = boost::json::parse({text.data(), text.size()}, error);
    return error ? std::nullopt : std::optional(std::move(document));
}

} // namespace

std::string textOf(const GdiPenWrapper& pen) {
    Settings node;
    pen.Serialize(node);
    return static_cast<const std::string&>(node);
}

std::optional<GdiPenWrapper> penFrom(const std::string& text, unsigned int version) {
    Settings node;
    node = text;
    node.Version = version;
    // The colour is read last and nothing is reported: a pen that begins with none tells whether all was read.
    GdiPenWrapper pen(PS_SOLID, 0, CLR_INVALID);
    pen.Unserialize(node);
    const bool canBeDrawn = pen.LineStyle() <= PS_DASHDOTDOT && pen.Width() >= 1 && pen.Width() <= GreatestPenWidth &&
                            pen.Color() <= GreatestColor;
    return canBeDrawn ? std::optional(pen) : std::nullopt;
}

std::string brushTextOf(COLORREF color) {
    GdiBrushWrapper brush;
    brush.FromColor(color);
    return boost::json::serialize(brush.ToJson());
}

std::optional<COLORREF> colorFrom(std::string_view text) {
    const std::optional<boost::json::value> document = parsed(text);
    if (!document)
        return std::nullopt;
    GdiBrushWrapper brush;
    try {
        brush.FromJson(*document);
    } catch (const std::logic_error&) {
        // This version's reader refuses each document, a well-formed one after it has taken style and colour. So what
        // counts is whether the brush would now be written as the document is.
    }
    if (brush.ToJson() != *document)
        return std::nullopt;
    LOGBRUSH description{};
    return ::GetObjectW(brush.GetHBRUSH(), sizeof(description), &description) > 0 ? std::optional(description.lbColor)
                                                                                  : std::nullopt;
}

std::string textOf(const GdiFontWrapper& font) {
    return boost::json::serialize(font.ToJson());
}

std::optional<GdiFontWrapper> fontFrom(std::string_view text) {
    const std::optional<boost::json::value> document = parsed(text);
    if (!document)
        return std::nullopt;
    try {
        const GdiFontWrapper font(*document, 0);
        const LOGFONTW description = font.GetLOGFONT();
        const bool canBeRead = description.lfHeight != 0 && description.lfHeight >= -scaled(GreatestFontHeight) &&
                               description.lfHeight <= scaled(GreatestFontHeight) && description.lfWidth == 0 &&
                               description.lfEscapement == 0 && description.lfOrientation == 0 &&
                               description.lfWeight >= 0 && description.lfWeight <= GreatestWeight &&
                               !font.GetFaceName().empty();
        return canBeRead ? std::optional(font) : std::nullopt;
    } catch (const std::logic_error&) {
        return std::nullopt;
    }
}

bool isOpacity(double number) {
    return number >= 0.0 && number <= 1.0;
}

} // namespace Desk::StyleForm
