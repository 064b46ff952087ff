#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <afxwin.h>

/// While it lives, resources are looked for in the given module first. Objects end in the reverse order of their
/// making.
class ORTIN_FOUNDATION_API ResourceHandleManager {
public:
    explicit ResourceHandleManager(HINSTANCE module);
    ~ResourceHandleManager();
    ResourceHandleManager(const ResourceHandleManager&) = delete;
    ResourceHandleManager& operator=(const ResourceHandleManager&) = delete;

private:
    HINSTANCE m_previous;
};
