#include "PrintLog.h"

#include <OrtinFoundation/Log.h>
#include <OrtinFoundation/StringTools.h>

#include <windows.h>

void logPrinting(std::wstring_view text, std::source_location call) {
    const DWORD error = ::GetLastError();
    OrtinTools::Log::Instance().Write("PrintStrategy::PrintObject", static_cast<int>(call.line()),
                                      OrtinTools::String::WideToAnsi(text));
    ::SetLastError(error);
}
