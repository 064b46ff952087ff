#pragma once

#include <boost/json/array.hpp>
#include <boost/json/object.hpp>
#include <boost/json/value.hpp>

#include <cstdint>

/// The JSON form of a brush. `Brush` is a LOGBRUSH or has fields of the same names. No windows.
namespace BrushForm {

// The keys are those of a pen; that is the format.
constexpr const char* Style = "PenStyle";
constexpr const char* Color = "PenClr";
constexpr const char* Hatch = "PenHatch";

template <class Brush>
boost::json::value toJson(const Brush& brush) {
    const auto component = [&](int shift) { return std::uint64_t{brush.lbColor >> shift & 0xFFU}; };
    boost::json::object form;
    form.emplace(Style, std::uint64_t{brush.lbStyle});
    form.emplace(Color, boost::json::array{component(0), component(8), component(16)});
    form.emplace(Hatch, std::uint64_t{brush.lbHatch});
    return form;
}

/// False for null. Throws for everything else, see below, with what came before the reason stored.
template <class Brush>
bool fromJson(const boost::json::value& json, Brush& brush) {
    if (json.is_null()) {
        return false;
    }
    const auto low32Bits = [](const boost::json::value& number) {
        return static_cast<std::uint32_t>(number.as_int64());
    };
    const boost::json::object& form = json.as_object();
    brush.lbStyle = low32Bits(form.at(Style));
    const boost::json::array& components = form.at(Color).as_array();
    const std::uint32_t red = low32Bits(components.at(0));
    const std::uint32_t green = low32Bits(components.at(1));
    const std::uint32_t blue = low32Bits(components.at(2));
    // Only red is cut to a byte: the others carry into the bits above them.
    brush.lbColor = (red & 0xFF) | green << 8 | blue << 16;
    // The hatch is looked for in the colour, which is no number, so no document is ever read to its end: this exported
    // behaviour is meant to stay.
    brush.lbHatch = low32Bits(form.at(Color));
    return true;
}

} // namespace BrushForm
