#pragma once

#include <vector>

#include <OrtinControls/DrawContextBase.h>
#include <OrtinControls/GdiPlusHeaders.h>
#include <afxwin.h>

namespace VectorCanvas {

/// The style of lines, held twice: as the description of a GDI pen, which is made when it is first needed, and as a
/// live GDI+ pen. A painter uses the one or the other, as each of its calls says.
///
/// The two begin differently, both black and solid: the GDI pen with the width 0, the GDI+ pen with 1. GDI+ must be
/// running from before the construction until after the destruction. Nothing throws but for lack of memory: a GDI+ call
/// that fails leaves its status in the GDI+ object, and the operation goes on.
class ORTIN_CONTROLS_API DrawContextGdiLine : public DrawContextBase {
public:
    DrawContextGdiLine();
    DrawContextGdiLine(const DrawContextGdiLine&) = delete;
    DrawContextGdiLine& operator=(const DrawContextGdiLine&) = delete;
    ~DrawContextGdiLine() override;

    /// Deletes the GDI objects; they are made again when they are needed. A painter that still has one selected lets it
    /// go with its next selection.
    virtual void ReleaseContext();
    /// `opacity` 0 to 1: the alpha of the GDI+ pen becomes `opacity * 255`, fractions cut off, the low 8 bits of it.
    /// The GDI pen has no transparency and stays.
    virtual void SetHollow(float opacity);

    /// The GDI pen, the context's own; null if the system gives none.
    HGDIOBJ GetHGDIOBJ();
    const LOGPEN& GetLOGPEN() const { return m_description; }
    const Gdiplus::Pen& GetPen() const& { return m_pen; }

    /// Takes the description of `pen`, which stays the caller's, and gives the GDI+ pen its colour, opaque again, its
    /// width and its dash style. Null applies the description that is there. A style beyond the five kinds of dashes
    /// keeps the dash style of the GDI+ pen.
    void UpdateContext(HPEN pen);
    void UpdateContext(const CPen& pen) { UpdateContext(static_cast<HPEN>(pen)); }
    /// Of both pens, the GDI+ one opaque again. A COLORREF.
    void ChangeColor(unsigned long color);
    /// Lengths of dashes and gaps in turn, in units of the pen's width, for the GDI+ pen only and until UpdateContext
    /// sets another style. False if GDI+ refuses them.
    bool SetCustomDashStyle(const std::vector<float>& lengths);

private:
    LOGPEN m_description{};
    CPen m_gdiPen;
    Gdiplus::Pen m_pen;
};

} // namespace VectorCanvas
