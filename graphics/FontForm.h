#pragma once

#include <boost/json/array.hpp>
#include <boost/json/value.hpp>

#include <cstdint>
#include <string>
#include <string_view>

#include <gsl/narrow>

#include "DpiArithmetic.h"
#include "NumberText.h"
#include "Rounding.h"

/// The thirteen numbers of a font in its persisted forms, whose heights are those at 96 pixels an inch. `Font` is a
/// LOGFONTW or has fields of the same names. No windows.
namespace FontForm {

constexpr std::size_t parameterCount = 13;

template <class Font, class Visit>
void visitAllButHeight(Font& font, Visit visit) {
    visit(font.lfWidth);
    visit(font.lfEscapement);
    visit(font.lfOrientation);
    visit(font.lfWeight);
    visit(font.lfItalic);
    visit(font.lfUnderline);
    visit(font.lfStrikeOut);
    visit(font.lfCharSet);
    visit(font.lfOutPrecision);
    visit(font.lfClipPrecision);
    visit(font.lfQuality);
    visit(font.lfPitchAndFamily);
}

/// In the order of the persisted forms.
template <class Font, class Visit>
void visitAll(Font& font, Visit visit) {
    visit(font.lfHeight);
    visitAllButHeight(font, visit);
}

/// Throws gsl::narrowing_error for a whole number beyond 32 bits, as gsl::narrow does, but without a conversion that is
/// undefined.
inline std::int32_t narrowed(double whole) {
    const std::int32_t saturated = truncateToInt(whole);
    if (static_cast<double>(saturated) != whole) {
        throw gsl::narrowing_error();
    }
    return saturated;
}

/// The height is written as it stands.
template <class Font>
std::string toText(const Font& font) {
    std::string text;
    visitAll(font, [&](auto field) { NumberText::append(text, +field); });
    return text;
}

/// Fills the fields one by one until the text has no number more; true if it had all. The height is taken as it stands.
template <class Font>
bool fromText(std::string_view text, Font& font) {
    bool isComplete = true;
    visitAll(font, [&](auto& field) { isComplete = isComplete && NumberText::scan(text, field); });
    return isComplete;
}

template <class Font>
boost::json::array toJson(const Font& font, double scale) {
    boost::json::array parameters;
    parameters.reserve(parameterCount);
    parameters.emplace_back(std::int64_t{truncateToInt(DpiArithmetic::heightWithoutScale(scale, font.lfHeight))});
    visitAllButHeight(font, [&](auto field) { parameters.emplace_back(std::int64_t{field}); });
    return parameters;
}

/// `parameters` are as many as there have to be. One that is no int64 throws, with those before it stored. The height
/// saturates, other numbers are cut to the width of their field.
template <class Font>
void fromJson(const boost::json::array& parameters, double scale, Font& font) {
    const auto* parameter = parameters.begin();
    font.lfHeight = truncateToInt(DpiArithmetic::heightAtScale(scale, static_cast<double>((parameter++)->as_int64())));
    visitAllButHeight(font, [&]<class Field>(Field& field) { field = static_cast<Field>((parameter++)->as_int64()); });
}

} // namespace FontForm
