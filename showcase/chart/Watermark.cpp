#include "Watermark.h"

#include <algorithm>

#include "DeskFonts.h"
#include "PixelSheet.h"
#include "ScopedSelection.h"

namespace Desk {

namespace {

constexpr int GreatestHeight = 110;
constexpr int LeastHeight = 24;
/// Of 255, where a letter covers the whole pixel.
constexpr int Opacity = 16;

} // namespace

Gdiplus::Bitmap* Watermark::bitmap(const std::wstring& text, CSize room, COLORREF color) {
    if (text != m_text || room != m_room || color != m_color) {
        m_text = text;
        m_room = room;
        m_color = color;
        make(color);
    }
    return m_bitmap.get();
}

void Watermark::make(COLORREF color) {
    m_bitmap.reset();
    CDC dc;
    if (!dc.CreateCompatibleDC(nullptr))
        return;
    CFont font;
    int height = std::min<int>(scaled(GreatestHeight), m_room.cy / 2);
    for (;; height = height * 3 / 4) {
        if (m_text.empty() || height < scaled(LeastHeight))
            return;
        LOGFONTW description = deskFont(DeskTextHeight, FW_BOLD);
        description.lfHeight = -height;
        font.DeleteObject();
        font.CreateFontIndirect(&description);
        const ScopedSelection selected(dc, font);
        m_size = dc.GetTextExtent(m_text.c_str(), static_cast<int>(m_text.size()));
        if (m_size.cx <= m_room.cx)
            break;
    }
    PixelSheet sheet(m_size);
    if (!sheet.pixels())
        return;
    {
        const ScopedSelection picture(dc, sheet.bitmap());
        const ScopedSelection selected(dc, font);
        dc.SetBkMode(TRANSPARENT);
        dc.SetTextColor(RGB(255, 255, 255));
        dc.TextOut(0, 0, m_text.c_str(), static_cast<int>(m_text.size()));
        ::GdiFlush();
    }
    // White on black is how much of a pixel the letters cover.
    m_pixels.assign(sheet.pixels(), sheet.pixels() + static_cast<std::size_t>(m_size.cx) * m_size.cy);
    const std::uint32_t ink = Gdiplus::Color::MakeARGB(0, GetRValue(color), GetGValue(color), GetBValue(color));
    for (std::uint32_t& pixel : m_pixels)
        pixel = ink | (pixel & 0xFF) * Opacity / 255 << 24;
    m_bitmap = std::make_unique<Gdiplus::Bitmap>(m_size.cx, m_size.cy, m_size.cx * static_cast<INT>(sizeof(ink)),
                                                 PixelFormat32bppARGB, reinterpret_cast<BYTE*>(m_pixels.data()));
}

} // namespace Desk
