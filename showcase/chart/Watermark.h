#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <OrtinControls/GdiPlusHeaders.h>

namespace Desk {

/// Large letters behind a chart, hardly to be seen: a bitmap with transparency.
class Watermark {
public:
    /// The bitmap of a text that is no larger than `room`; null if there is no room. Made again only when something of
    /// it has changed.
    Gdiplus::Bitmap* bitmap(const std::wstring& text, CSize room, COLORREF color);
    CSize size() const { return m_size; }

private:
    void make(COLORREF color);

    std::wstring m_text;
    CSize m_room;
    COLORREF m_color = 0;
    CSize m_size;
    std::vector<std::uint32_t> m_pixels; ///< outlive the bitmap, which only refers to them
    std::unique_ptr<Gdiplus::Bitmap> m_bitmap;
};

} // namespace Desk
