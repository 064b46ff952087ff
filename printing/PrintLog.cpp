#include "PrintLog.h"

#include <OrtinFoundation/Log.h>
#include <OrtinFoundation/StringTools.h>

#include <windows.h>

void logPrinting(std::wstring_view text, int line) {
    const DWORD error = ::GetLastError();
    OrtinTools::Log::Instance().Write("PrintStrategy::PrintObject", line, OrtinTools::String::WideToAnsi(text));
    ::SetLastError(error);
}
