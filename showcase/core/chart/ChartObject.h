#pragma once

#include <cstddef>
#include <functional>

namespace Desk {

/// What of a chart has a style of its own, besides each drawn line.
enum class ChartPart : std::size_t {
    RisingCandles,
    FallingCandles,
    Volume,
    Average,
    Grid,
    Labels,
    Range,         ///< the selected range
    ArcMarker,     ///< an alert at the greatest high that is seen
    EllipseMarker, ///< an alert at the greatest volume that is seen
    NewLine,       ///< what a line begins with when it is drawn
};
inline constexpr std::size_t ChartPartCount = 10;

/// What the mouse can point at.
struct ChartObject {
    enum class Kind { Nothing, Part, Line, LineTool };

    Kind kind = Kind::Nothing;
    std::size_t index = 0; ///< of a part its `ChartPart`, of a line its place among those of the chart

    bool operator==(const ChartObject&) const = default;
};

inline ChartObject objectOf(ChartPart part) {
    return {ChartObject::Kind::Part, static_cast<std::size_t>(part)};
}
inline ChartObject lineObject(std::size_t line) {
    return {ChartObject::Kind::Line, line};
}
inline bool isPart(const ChartObject& object, ChartPart part) {
    return object == objectOf(part);
}

/// The number by which the picture's shadow tells of an object: 0 is none, and 24 bits are enough for all.
unsigned int idOf(const ChartObject& object);
/// Nothing for a number that is none of an object.
ChartObject objectWithId(unsigned int id);

/// What lies at a pixel or, for the hand is not that steady, within `reach` pixels of it: the nearest line comes before
/// anything else. `idAt` gives the id at a pixel.
ChartObject objectNear(int x, int y, int reach, const std::function<unsigned int(int x, int y)>& idAt);

} // namespace Desk
