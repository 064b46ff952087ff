#pragma once

#include <OrtinControls/Export.h>

namespace VectorCanvas {

/// The style of an object, handed to a painter with each drawing call, and the number by which the object is found
/// again under the mouse.
///
/// A context belongs to the thread that renders with it. It outlives the call that it is handed to; no painter keeps
/// it.
class ORTIN_CONTROLS_API DrawContextBase {
public:
    DrawContextBase() = default;
    DrawContextBase(const DrawContextBase& other) = default;
    DrawContextBase(DrawContextBase&& other) noexcept = default;
    DrawContextBase& operator=(const DrawContextBase& other) = default;
    DrawContextBase& operator=(DrawContextBase&& other) noexcept = default;
    virtual ~DrawContextBase();

    /// 0, as it is at first, stands for no object: what is drawn is not found under the mouse. Only the low 24 bits
    /// reach the surface that it is looked up in, and come back.
    unsigned int GetId() const { return m_id; }
    void SetId(unsigned int id) { m_id = id; }

private:
    unsigned int m_id = 0;
};

} // namespace VectorCanvas
