#pragma once

#include "RangeWindow.h"

/// Half-open, in client pixels of the bar. One that ends before it begins holds no point.
struct BarRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    int width() const { return right - left; }
    int height() const { return bottom - top; }
    int centre() const { return (left + right) / 2; }
    bool holds(int x, int y) const { return x >= left && x < right && y >= top && y < bottom; }

    friend bool operator==(const BarRect&, const BarRect&) = default;
};

struct BarSize {
    int width = 0;
    int height = 0;
};

/// Where everything lies on a scroll and zoom bar: pure arithmetic from a size and a window over the range. The track
/// leaves room for an edge strip at both ends; the strips stand outside the thumb. No windows of the system.
struct BarLayout {
    BarRect client;
    BarRect thumb;
    BarRect leftEdge;
    BarRect rightEdge;
    /// Where a press takes the edges and the thumb. A wide thumb gives its ends to the edges; one between one and two
    /// edges wide is meant to have no place of its own.
    BarRect leftHit;
    BarRect rightHit;
    BarRect thumbHit;
    /// Pixels that stand for the whole range, not positive on a bar that is no wider than high.
    double trackLength = 1.0;
    int edgeWidth = 0;

    static BarLayout of(BarSize client, const RangeWindow& window);

    /// Pixels as a fraction of the range, 0 on a bar without a track.
    double fraction(double pixels) const;
    /// Pixels between the edge strips.
    int gap() const { return rightEdge.left - leftEdge.right; }
};

/// The four lines on a thumb that is wide enough for them, `spread` apart and on both sides of its middle.
struct Grip {
    static constexpr int kLines = 4;
    int x[kLines];
    int top;
    int bottom;
};
bool hasGrip(const BarRect& thumb);
Grip gripOf(const BarRect& thumb, int spread);
