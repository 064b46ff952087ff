#pragma once

#include <OrtinControls/Export.h>

namespace VectorCanvas {

class IVectorPainter;

/// What a host's canvas is made of: an object that can draw itself. The library has none of its own.
class ORTIN_CONTROLS_API GrObj {
public:
    GrObj() = default;
    GrObj(const GrObj& other) = default;
    GrObj(GrObj&& other) noexcept = default;
    GrObj& operator=(const GrObj& other) = default;
    GrObj& operator=(GrObj&& other) noexcept = default;
    virtual ~GrObj();

    /// Between the painter's InitRender and EndRender.
    virtual void Draw(IVectorPainter& painter) = 0;
};

} // namespace VectorCanvas
