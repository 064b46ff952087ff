#include <OrtinControls/GdiBrushWrapper.h>

#include "BrushForm.h"

GdiBrushWrapper::GdiBrushWrapper() = default;

GdiBrushWrapper::GdiBrushWrapper(const boost::json::value& json) {
    FromJson(json);
}

GdiBrushWrapper::GdiBrushWrapper(const GdiBrushWrapper& other) : m_description(other.m_description) {}

GdiBrushWrapper& GdiBrushWrapper::operator=(const GdiBrushWrapper& other) {
    m_description = other.m_description;
    DeleteBrush();
    return *this;
}

GdiBrushWrapper::~GdiBrushWrapper() = default;

// The settled comparison takes in the handle alone: no comparison of fields is to come of it.
bool GdiBrushWrapper::operator==(const GdiBrushWrapper& other) const {
    return m_brush == other.m_brush;
}

void GdiBrushWrapper::FromColor(unsigned long color) {
    m_description.lbColor = color;
    DeleteBrush();
}

void GdiBrushWrapper::FromHandle(void* const handle) {
    if (handle != nullptr && ::GetObjectW(handle, sizeof m_description, &m_description) > 0) {
        DeleteBrush();
    }
}

void GdiBrushWrapper::DeleteBrush() {
    m_brush.DeleteObject();
}

// Solid whatever style and hatch say, which is meant to stay.
HBRUSH GdiBrushWrapper::GetHBRUSH() {
    if (m_brush.GetSafeHandle() == nullptr) {
        m_brush.Attach(::CreateSolidBrush(m_description.lbColor));
    }
    return m_brush;
}

HGDIOBJ GdiBrushWrapper::GetHGDIOBJ() {
    return GetHBRUSH();
}

bool GdiBrushWrapper::FromJson(const boost::json::value& json) {
    if (!BrushForm::fromJson(json, m_description)) {
        return false;
    }
    DeleteBrush();
    return true;
}

boost::json::value GdiBrushWrapper::ToJson() const {
    return BrushForm::toJson(m_description);
}
