#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <windows.h>

#include <string>

/// A window message that all programs of the session know under one text: equal texts have equal numbers, between
/// 0xC000 and 0xFFFF, until Windows ends. The number is 0 (WM_NULL) for an empty text, or if the system has no more.
class ORTIN_FOUNDATION_API UniqueMessage {
public:
    explicit UniqueMessage(const std::wstring& text);

    operator UINT() const { return m_number; }

private:
    UINT m_number;
};
