#pragma once

#include "OrtinFoundation/FoundationApi.h"
#include "OrtinFoundation/JsonForward.h"

#include <string>
#include <string_view>

namespace OrtinTools::String {

/// What is not well-formed becomes the replacement character U+FFFD.
ORTIN_FOUNDATION_API std::wstring Utf8ToWide(std::string_view text);
ORTIN_FOUNDATION_API std::string WideToUtf8(std::wstring_view text);
ORTIN_FOUNDATION_API boost::json::string WideToJsonUtf8(std::wstring_view text);
/// To the Windows-1250 code page, whatever the system's own: the log's texts are in it. What it does not have becomes a
/// question mark, and not a letter that looks alike.
ORTIN_FOUNDATION_API std::string WideToAnsi(std::wstring_view text);

} // namespace OrtinTools::String
