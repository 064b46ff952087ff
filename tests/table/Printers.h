#pragma once

#include <ostream>

#include <atltypes.h>

// How GoogleTest prints the geometry of the framework.

inline void PrintTo(const CPoint& point, std::ostream* out) {
    *out << point.x << ':' << point.y;
}

inline void PrintTo(const CSize& size, std::ostream* out) {
    *out << size.cx << 'x' << size.cy;
}

inline void PrintTo(const CRect& rect, std::ostream* out) {
    *out << rect.left << ':' << rect.top << '-' << rect.right << ':' << rect.bottom;
}
