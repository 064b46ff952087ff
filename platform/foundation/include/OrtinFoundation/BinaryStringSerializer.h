#pragma once

#include "OrtinFoundation/FoundationApi.h"

#include <cstddef>
#include <string>

/// Binary data as text: two hexadecimal digits a byte, the high one first, in upper or lower case, and nothing else.
/// "0aFF" is the bytes 10 and 255.
class ORTIN_FOUNDATION_API BinaryStringSerializer {
public:
    /// Writes exactly `size` bytes. False, with nothing written, if the text is not exactly that many.
    static bool ConvertTextToBin(const std::string& text, void* data, std::size_t size);
};
