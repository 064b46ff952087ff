#include "OrtinFoundation/CompatibleBitmapOwner.h"

bool CompatibleBitmapOwner::CreateCompatibleBitmap(HDC device, int width, int height) {
    m_bitmap.reset();
    m_bitmap.reset(::CreateCompatibleBitmap(device, width, height));
    return m_bitmap != nullptr;
}

bool CompatibleBitmapOwner::CreateDIBSection(HDC device, const BITMAPINFO* format) {
    m_bitmap.reset();
    void* bits = nullptr;
    m_bitmap.reset(::CreateDIBSection(device, format, DIB_RGB_COLORS, &bits, nullptr, 0));
    return m_bitmap != nullptr;
}
