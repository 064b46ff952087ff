#include <OrtinControls/DrawContextGdiLine.h>

#include <memory>

#include "DeviceArithmetic.h"
#include "GdiPlusColors.h"

namespace VectorCanvas {
namespace {

constexpr float kDashOffsetInWidths = 16.0F;

/// GetLastStatus would make the pen forget; a copy takes the memory along.
bool remembersFailure(const Gdiplus::Pen& pen) {
    const std::unique_ptr<Gdiplus::Pen> copy(pen.Clone());
    return copy == nullptr || copy->GetLastStatus() != Gdiplus::Ok;
}

/// Opaque black where the pen has no colour to tell.
Gdiplus::Color colorOf(const Gdiplus::Pen& pen) {
    Gdiplus::Color color;
    if (pen.GetPenType() != Gdiplus::PenTypeSolidColor || remembersFailure(pen) ||
        pen.GetColor(&color) != Gdiplus::Ok) {
        return {};
    }
    return color;
}

} // namespace

// Not as wide as the GDI pen, whose description begins with 0; meant so.
DrawContextGdiLine::DrawContextGdiLine() : m_pen(Gdiplus::Color(), 1.0F) {}

DrawContextGdiLine::~DrawContextGdiLine() = default;

void DrawContextGdiLine::ReleaseContext() {
    m_gdiPen.DeleteObject();
}

void DrawContextGdiLine::SetHollow(float opacity) {
    m_pen.SetColor(withAlpha(colorOf(m_pen), toAlpha(opacity)));
}

HGDIOBJ DrawContextGdiLine::GetHGDIOBJ() {
    if (m_gdiPen.GetSafeHandle() == nullptr) {
        m_gdiPen.CreatePenIndirect(&m_description);
    }
    return m_gdiPen.GetSafeHandle();
}

void DrawContextGdiLine::UpdateContext(HPEN pen) {
    if (pen != nullptr && ::GetObjectW(pen, sizeof m_description, &m_description) > 0) {
        m_gdiPen.DeleteObject();
    }
    const auto width = static_cast<float>(m_description.lopnWidth.x);
    m_pen.SetColor(toGdiPlusColor(m_description.lopnColor));
    m_pen.SetWidth(width);
    m_pen.SetDashOffset(width * kDashOffsetInWidths);
    static_assert(PS_SOLID == static_cast<int>(Gdiplus::DashStyleSolid) &&
                  PS_DASH == static_cast<int>(Gdiplus::DashStyleDash) &&
                  PS_DOT == static_cast<int>(Gdiplus::DashStyleDot) &&
                  PS_DASHDOT == static_cast<int>(Gdiplus::DashStyleDashDot) &&
                  PS_DASHDOTDOT == static_cast<int>(Gdiplus::DashStyleDashDotDot));
    // Other styles leave the dashes as they were; meant so.
    if (m_description.lopnStyle <= PS_DASHDOTDOT) {
        m_pen.SetDashStyle(static_cast<Gdiplus::DashStyle>(m_description.lopnStyle));
    }
}

void DrawContextGdiLine::ChangeColor(unsigned long color) {
    m_description.lopnColor = color;
    m_gdiPen.DeleteObject();
    m_pen.SetColor(toGdiPlusColor(color));
}

bool DrawContextGdiLine::SetCustomDashStyle(const std::vector<float>& lengths) {
    return m_pen.SetDashStyle(Gdiplus::DashStyleCustom) == Gdiplus::Ok &&
           m_pen.SetDashPattern(lengths.data(), static_cast<INT>(lengths.size())) == Gdiplus::Ok;
}

} // namespace VectorCanvas
