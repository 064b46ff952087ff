#pragma once

#include <cstdint>

#include <afxwin.h>

namespace Desk {

/// A picture in memory whose pixels, row by row from the top, are 0x00RRGGBB. Between drawing on the bitmap and looking
/// at them lies a `GdiFlush`.
class PixelSheet {
public:
    explicit PixelSheet(CSize size);

    CBitmap& bitmap() { return m_bitmap; }
    /// Null if there was no memory, or nothing in the size.
    std::uint32_t* pixels() { return m_pixels; }

private:
    CBitmap m_bitmap;
    std::uint32_t* m_pixels;
};

} // namespace Desk
