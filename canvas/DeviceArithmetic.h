#pragma once

// From the real coordinates of a canvas to those of a device. No windows.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

#include <OrtinControls/CRect2D.h>
#include <OrtinFoundation/OrtinPoint.h>

#include "../graphics/Rounding.h"

namespace VectorCanvas {

/// Half-open.
struct DeviceRect {
    int left;
    int top;
    int right;
    int bottom;

    friend bool operator==(const DeviceRect&, const DeviceRect&) = default;
};

/// Of the sum of a coordinate and its offset. NaN gives 0, what 32 bits do not hold saturates.
inline int toPixel(float coordinate) {
    return truncateToInt(coordinate);
}

/// How far from the origin the system is led with shapes: it walks them pixel row by pixel row or dash by dash, which
/// takes minutes over 32 bits.
inline constexpr float kReach = 1 << 20;

/// NaN gives 0, what lies beyond reach saturates.
inline float withinReach(float coordinate) {
    return std::isnan(coordinate) ? 0.0F : std::clamp(coordinate, -kReach, kReach);
}

inline OrtinPoint<float> withinReach(const OrtinPoint<float>& point) {
    return {withinReach(point.x), withinReach(point.y)};
}

/// A line between two points.
struct Segment {
    OrtinPoint<float> from;
    OrtinPoint<float> to;

    friend bool operator==(const Segment&, const Segment&) = default;
};

/// What lies within reach of a line, which keeps its course: a trend that begins years before the picture crosses it
/// where it should. A line that comes nowhere near, and one too long to be followed, is led by its ends alone.
inline Segment segmentWithinReach(const Segment& line) {
    constexpr double kTooLong = 1e12; // a double still tells pixels apart there
    const Segment ends{withinReach(line.from), withinReach(line.to)};
    const double width = static_cast<double>(line.to.x) - line.from.x;
    const double height = static_cast<double>(line.to.y) - line.from.y;
    if (ends == line || !(std::abs(width) < kTooLong && std::abs(height) < kTooLong)) {
        return ends;
    }
    double entry = 0;
    double exit = 1;
    const auto cut = [&](double start, double length) {
        if (length != 0) {
            const auto [first, last] = std::minmax({(-kReach - start) / length, (kReach - start) / length});
            entry = std::max(entry, first);
            exit = std::min(exit, last);
        }
    };
    cut(line.from.x, width);
    cut(line.from.y, height);
    if (entry > exit) {
        return ends;
    }
    const auto at = [&](double part) {
        return withinReach(OrtinPoint<float>{static_cast<float>(line.from.x + part * width),
                                             static_cast<float>(line.from.y + part * height)});
    };
    return {at(entry), at(exit)};
}

/// As toPixel, within reach.
inline int toPixelWithinReach(float coordinate) {
    return static_cast<int>(withinReach(coordinate));
}

/// Whether all points lie within reach after the offset was added: a bare truncation, which takes a third of the time,
/// is the same as toPixel for them. No branch, so that the compiler takes several points at once.
inline bool allWithinReach(const OrtinPoint<float>* points, std::size_t count, const OrtinPoint<float>& offset) {
    unsigned beyond = 0;
    for (std::size_t index = 0; index < count; ++index) {
        beyond |= static_cast<unsigned>(!(std::abs(points[index].x + offset.x) < kReach)) |
                  static_cast<unsigned>(!(std::abs(points[index].y + offset.y) < kReach));
    }
    return beyond == 0;
}

/// Each edge truncated where it lies. The edges keep off the ends of the range, for frames are drawn one pixel inside.
inline DeviceRect rectByEdges(const CRect2D& rect) {
    const auto edge = [](float coordinate) {
        return std::clamp(truncateToInt(coordinate), -std::numeric_limits<int>::max(),
                          std::numeric_limits<int>::max() - 1);
    };
    return {edge(rect.x), edge(rect.y), edge(rect.x + rect.width), edge(rect.y + rect.height)};
}

/// Corner and size truncated each for itself, which can differ by one from rectByEdges; meant so.
inline DeviceRect rectBySize(const CRect2D& rect) {
    const auto end = [](float start, float length) {
        return saturateToInt(std::int64_t{truncateToInt(start)} + truncateToInt(length));
    };
    return {truncateToInt(rect.x), truncateToInt(rect.y), end(rect.x, rect.width), end(rect.y, rect.height)};
}

/// The box of an ellipse around a truncated centre.
inline DeviceRect boxAround(const OrtinPoint<float>& center, int radiusX, int radiusY) {
    const auto edge = [](float middle, std::int64_t distance) {
        constexpr auto kEnd = static_cast<std::int64_t>(kReach);
        return static_cast<int>(std::clamp(toPixelWithinReach(middle) + distance, -kEnd, kEnd));
    };
    return {edge(center.x, -std::int64_t{radiusX}), edge(center.y, -std::int64_t{radiusY}), edge(center.x, radiusX),
            edge(center.y, radiusY)};
}

/// The top left corner of a control point. Here the point is truncated first and the offset added afterwards, the other
/// way round from all that a painter draws; meant so.
inline OrtinPoint<float> controlPointCorner(const OrtinPoint<float>& point, const OrtinPoint<float>& offset,
                                            float size) {
    return withinReach({std::trunc(point.x) + offset.x - size * 0.5F, std::trunc(point.y) + offset.y - size * 0.5F});
}

/// The id as a colour: 24 bits of it, for what lies above them tells GDI to look up the colour somewhere else.
inline unsigned int toShadowColor(unsigned int id) {
    return id & 0xFFFFFFU;
}

/// 0 to 1 as 0 to 255, truncated; beyond that the low 8 bits.
inline unsigned char toAlpha(float opacity) {
    return static_cast<unsigned char>(truncateToInt(opacity * 255.0F));
}

} // namespace VectorCanvas
