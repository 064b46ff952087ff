#pragma once

namespace VectorCanvas {

/// A rectangle of a canvas, in pixels.
struct CRect2D {
    float x = 0;
    float y = 0;
    float width = 0;
    float height = 0;
};

} // namespace VectorCanvas
