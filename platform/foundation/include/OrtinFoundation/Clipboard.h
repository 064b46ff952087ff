#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

/// Plain text on the clipboard. Another program may hold the clipboard for a moment: both functions try again for up to
/// 100 ms before they give up.
namespace OrtinTools::Clipboard {

/// The text, up to its terminator; no value if the clipboard has none or cannot be opened. `owner` may be null.
ORTIN_FOUNDATION_API std::optional<std::wstring> GetClipboardString(HWND owner);

/// Replaces what the clipboard holds, in every form, by the text. `owner`, a window of this thread, becomes the owner
/// of the clipboard. False if the clipboard cannot be opened or written.
ORTIN_FOUNDATION_API bool SetClipboardString(HWND owner, std::wstring_view text);

} // namespace OrtinTools::Clipboard
