#pragma once

#include <string>

#include <OrtinFoundation/ParameterStatus.h>

#include "core/ColumnLayout.h"
#include "core/CommandLine.h"

namespace Desk {

/// What the desk remembers from one start to the next.
struct DeskSettings {
    ColumnLayout columns;
    bool lockedColumns = false;
    DeskTheme theme = DeskTheme::White;
};

/// The file in the user's application data; its folder is made if there is none. Empty if Windows knows no such place.
std::wstring defaultSettingsFile();

/// Fills `settings` from the file; what the file does not say stays. A file that is not there is no failure.
ParameterStatus loadSettings(const std::wstring& file, DeskSettings& settings);
ParameterStatus saveSettings(const std::wstring& file, const DeskSettings& settings);

} // namespace Desk
