#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <memory>
#include <type_traits>

#include <windows.h>

/// Owner of at most one bitmap that pictures are drawn into off the screen. A context that it is selected into ends, or
/// lets it go, before the owner deletes it.
class ORTIN_FOUNDATION_API CompatibleBitmapOwner {
public:
    /// Instead of what it had, owns a new bitmap with pixels as `device` has them. False, and owns nothing, if the
    /// system refuses.
    bool CreateCompatibleBitmap(HDC device, int width, int height);
    /// The same with a section of the described format; its bytes begin as 0.
    bool CreateDIBSection(HDC device, const BITMAPINFO* format);
    void Delete() { m_bitmap.reset(); }

    /// Null if it owns none.
    HBITMAP GetHandle() const { return m_bitmap.get(); }

private:
    struct Deleter {
        void operator()(HBITMAP bitmap) const { ::DeleteObject(bitmap); }
    };
    std::unique_ptr<std::remove_pointer_t<HBITMAP>, Deleter> m_bitmap;
};
