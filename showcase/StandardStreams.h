#pragma once

#include <string_view>

namespace Desk {

/// One line of UTF-8 on standard output or error, as far as the program was started with one.
void printLine(std::wstring_view text);
void printError(std::wstring_view text);

} // namespace Desk
