#include "StandardStreams.h"

#include <OrtinFoundation/StringTools.h>
#include <windows.h>

namespace Desk {

namespace {

void writeLine(DWORD stream, std::wstring_view text) {
    const HANDLE handle = ::GetStdHandle(stream);
    if (!handle || handle == INVALID_HANDLE_VALUE)
        return;
    const std::string line = OrtinTools::String::WideToUtf8(text) + '\n';
    DWORD written = 0;
    ::WriteFile(handle, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

} // namespace

void printLine(std::wstring_view text) {
    writeLine(STD_OUTPUT_HANDLE, text);
}

void printError(std::wstring_view text) {
    writeLine(STD_ERROR_HANDLE, text);
}

} // namespace Desk
