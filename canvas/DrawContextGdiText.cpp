#include <OrtinControls/DrawContextGdiText.h>

namespace VectorCanvas {

DrawContextGdiText::DrawContextGdiText() : m_font(0L) {}

DrawContextGdiText::DrawContextGdiText(const DrawContextGdiText& other) = default;

DrawContextGdiText& DrawContextGdiText::operator=(const DrawContextGdiText& other) = default;

DrawContextGdiText::~DrawContextGdiText() = default;

void DrawContextGdiText::UpdateContext(HFONT font, unsigned long color) {
    m_font.FromHandle(font, 0);
    m_color = color;
}

} // namespace VectorCanvas
