#pragma once

#include <OrtinControls/DrawContextBase.h>
#include <OrtinControls/GdiFontWrapper.h>
#include <afxwin.h>

namespace VectorCanvas {

/// The style of text: a font, in pixels as it is drawn, and a colour. It begins with the system's font of user
/// interfaces at the scale of the screen, in black. A copy has the description of the font, and a GDI font as soon as
/// it is asked for one.
class ORTIN_CONTROLS_API DrawContextGdiText : public DrawContextBase {
public:
    DrawContextGdiText();
    DrawContextGdiText(const DrawContextGdiText& other);
    DrawContextGdiText& operator=(const DrawContextGdiText& other);
    ~DrawContextGdiText() override;

    /// Both give the GDI font, which is shared and never the caller's; null if the system gives none.
    HGDIOBJ GetHGDIOBJ() & { return m_font.GetHGDIOBJ(); }
    HGDIOBJ GetFont() & { return m_font.GetHGDIOBJ(); }
    unsigned long GetColor() const { return m_color; }

    /// Takes the description of `font`, which stays the caller's, unscaled; null or what is no font leaves the font as
    /// it is. The colour, a COLORREF, is taken in each case.
    void UpdateContext(HFONT font, unsigned long color);
    /// Turns the line of text counterclockwise. Fonts are shared by a key without the angle, so another context's font
    /// of the same kind, if it was made first, decides.
    void SetTextAngle(long degrees) { m_font.SetAngle(degrees); }

private:
    GdiFontWrapper m_font;
    COLORREF m_color = 0;
    [[maybe_unused]] unsigned char m_flag = 0; ///< copied, but read by nobody
};

} // namespace VectorCanvas
