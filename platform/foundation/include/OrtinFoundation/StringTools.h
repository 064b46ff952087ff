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

} // namespace OrtinTools::String
