#pragma once

#include <OrtinControls/SystemColors.h>

namespace support {

/// The theme for the length of a scope.
class ScopedTheme {
public:
    explicit ScopedTheme(int theme) { SystemColors::SetThemeColor(static_cast<EThemeColor>(theme)); }
    ScopedTheme(const ScopedTheme&) = delete;
    ScopedTheme& operator=(const ScopedTheme&) = delete;
    ~ScopedTheme() { SystemColors::SetThemeColor(m_before); }

private:
    EThemeColor m_before = SystemColors::GetCurrentDomainColor();
};

} // namespace support
