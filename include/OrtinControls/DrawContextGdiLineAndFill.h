#pragma once

#include <OrtinControls/DrawContextGdiLine.h>

namespace VectorCanvas {

/// The style of filled shapes: that of their outline, and in the same double way that of what is inside. Both brushes
/// begin black.
///
/// The two UpdateContext functions that take a fill differ on purpose: one changes the fill of GDI only, the other that
/// of GDI+ only. ChangeColors changes both.
class ORTIN_CONTROLS_API DrawContextGdiLineAndFill : public DrawContextGdiLine {
public:
    DrawContextGdiLineAndFill();
    ~DrawContextGdiLineAndFill() override;

    void ReleaseContext() override;
    /// The same for the GDI+ brush as for the GDI+ pen.
    void SetHollow(float opacity) override;

    /// A solid brush of the description's colour whatever its style, the context's own; null if the system gives none.
    HBRUSH GetHBrush() &;
    const Gdiplus::SolidBrush& GetGdiplusBrush() const& { return m_brush; }

    /// Whether the calls that draw by GDI+ fill the shape; true at first. FillRects does not ask.
    void FillRequired(bool required) { m_fillRequired = required; }
    bool FillRequired() const { return m_fillRequired; }

    using DrawContextGdiLine::UpdateContext;
    /// The pen as UpdateContext(pen) does; a brush that is not null becomes the fill of GDI.
    void UpdateContext(HPEN pen, HBRUSH brush);
    /// The pen as UpdateContext(pen) does; `fill` with its alpha becomes the fill of GDI+.
    void UpdateContext(HPEN pen, Gdiplus::Color fill);
    /// COLORREFs, for GDI and for GDI+, opaque.
    void ChangeColors(unsigned long pen, unsigned long fill);

private:
    LOGBRUSH m_description{};
    CBrush m_gdiBrush;
    Gdiplus::SolidBrush m_brush;
    bool m_fillRequired = true;
};

} // namespace VectorCanvas
