#include <OrtinControls/DrawContextGdiLineAndFill.h>

#include "DeviceArithmetic.h"
#include "GdiPlusColors.h"

namespace VectorCanvas {

DrawContextGdiLineAndFill::DrawContextGdiLineAndFill() : m_brush(Gdiplus::Color()) {}

DrawContextGdiLineAndFill::~DrawContextGdiLineAndFill() = default;

void DrawContextGdiLineAndFill::ReleaseContext() {
    DrawContextGdiLine::ReleaseContext();
    m_gdiBrush.DeleteObject();
}

void DrawContextGdiLineAndFill::SetHollow(float opacity) {
    DrawContextGdiLine::SetHollow(opacity);
    Gdiplus::Color color;
    m_brush.GetColor(&color);
    m_brush.SetColor(withAlpha(color, toAlpha(opacity)));
}

HBRUSH DrawContextGdiLineAndFill::GetHBrush() & {
    if (m_gdiBrush.GetSafeHandle() == nullptr) {
        // Solid also where the description has a hatch; meant so.
        m_gdiBrush.CreateSolidBrush(m_description.lbColor);
    }
    return m_gdiBrush;
}

void DrawContextGdiLineAndFill::UpdateContext(HPEN pen, HBRUSH brush) {
    DrawContextGdiLine::UpdateContext(pen);
    if (brush != nullptr && ::GetObjectW(brush, sizeof m_description, &m_description) > 0) {
        m_gdiBrush.DeleteObject();
    }
}

void DrawContextGdiLineAndFill::UpdateContext(HPEN pen, Gdiplus::Color fill) {
    DrawContextGdiLine::UpdateContext(pen);
    m_brush.SetColor(fill);
}

void DrawContextGdiLineAndFill::ChangeColors(unsigned long pen, unsigned long fill) {
    ChangeColor(pen);
    m_description.lbColor = fill;
    m_gdiBrush.DeleteObject();
    m_brush.SetColor(toGdiPlusColor(fill));
}

} // namespace VectorCanvas
