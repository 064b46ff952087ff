#include "OrtinFoundation/ClipRegion.h"

bool ClipRegion::Create(const RECT* rect) {
    m_region.reset(rect != nullptr ? ::CreateRectRgnIndirect(rect) : nullptr);
    return m_region != nullptr;
}
