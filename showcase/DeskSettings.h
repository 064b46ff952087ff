#pragma once

#include <string>

#include <OrtinFoundation/ParameterStatus.h>

#include "chart/ChartStyles.h"
#include "core/ColumnLayout.h"
#include "core/CommandLine.h"

namespace Desk {

/// What the desk remembers from one start to the next.
struct DeskSettings {
    ColumnLayout columns;
    bool lockedColumns = false;
    DeskTheme theme = DeskTheme::White;
    ChartMemory chart{};
};

/// The file in the user's application data; its folder is made if there is none. Empty if Windows knows no such place.
std::wstring defaultSettingsFile();

/// Fills `settings` from the file; what the file does not say stays. A file that is not there is no failure, a folder
/// that is not there is one: nothing could be kept. What of the chart cannot be read is none either: it stays as well,
/// and `remark`, if given, gets one line that names it.
ParameterStatus loadSettings(const std::wstring& file, DeskSettings& settings, std::wstring* remark = nullptr);
/// Puts `settings` into the file and leaves what else stands there as it is. A file that cannot be read is not written.
ParameterStatus saveSettings(const std::wstring& file, const DeskSettings& settings);

} // namespace Desk
