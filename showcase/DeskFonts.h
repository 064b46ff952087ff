#pragma once

#include <string_view>

#include <afxwin.h>

namespace Desk {

/// The height of the letters, at 96 pixels to the inch.
inline constexpr int DeskTextHeight = 13;

/// The desk's typeface at the screen's scale; `height` at 96 pixels to the inch.
LOGFONTW deskFont(int height, LONG weight);
/// Makes a font of it.
void createDeskFont(CFont& font, int height, LONG weight);

/// The desk's typefaces at the screen's scale, and sizes that come from them.
class DeskFonts {
public:
    DeskFonts();

    CFont& text() { return m_text; }
    CFont& bold() { return m_bold; }
    /// Never drawn with: a header control is as high as its font asks for.
    CFont& headerStrut() { return m_headerStrut; }
    /// The height of a line of `text()`, in pixels.
    int lineHeight() const { return m_lineHeight; }
    /// How wide a text is in `text()`, in pixels.
    int widthOf(std::wstring_view text);

private:
    CFont m_text;
    CFont m_bold;
    CFont m_headerStrut;
    CDC m_measuring; ///< holds `text()`
    int m_lineHeight = 0;
};

/// A length given for 96 pixels to the inch, in pixels of the screen.
int scaled(int length);

} // namespace Desk
