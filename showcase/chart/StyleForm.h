#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinControls/GdiPenWrapper.h>

/// The pieces of a style in their persisted forms. What is read gives nothing where the form is damaged, where it says
/// what the chart cannot draw, or where there is none; no text makes a reader throw.
namespace Desk::StyleForm {

/// "0 2 255": style, width and colour, as GdiPenWrapper has them.
std::string textOf(const GdiPenWrapper& pen);
std::optional<GdiPenWrapper> penFrom(const std::string& text, unsigned int version);
/// The version of `textOf`.
inline constexpr unsigned int PenVersion = 1;

/// The JSON of a brush of that colour.
std::string brushTextOf(COLORREF color);
std::optional<COLORREF> colorFrom(std::string_view text);

std::string textOf(const GdiFontWrapper& font);
std::optional<GdiFontWrapper> fontFrom(std::string_view text);

bool isOpacity(double number);

} // namespace Desk::StyleForm
