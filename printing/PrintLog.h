#pragma once

#include <string_view>

/// A line of the print job's log; its number is that of the call. GetLastError stays as it was.
void logPrinting(std::wstring_view text, int line = __builtin_LINE());
