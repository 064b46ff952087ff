#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <memory>
#include <type_traits>

#include <windows.h>

/// Owner of at most one region that a device context is clipped to. Device units.
class ORTIN_FOUNDATION_API ClipRegion {
public:
    /// Instead of what it had, owns a region of this half-open rectangle, an empty one where the rectangle is. False,
    /// and owns nothing, for null or if the system refuses.
    bool Create(const RECT* rect);
    void Delete() { m_region.reset(); }

    /// Null if it owns none. Selecting it into a context copies it.
    HRGN GetHandle() const { return m_region.get(); }

private:
    struct Deleter {
        void operator()(HRGN region) const { ::DeleteObject(region); }
    };
    std::unique_ptr<std::remove_pointer_t<HRGN>, Deleter> m_region;
};
