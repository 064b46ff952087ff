#include "afxstat.h"

namespace {

// A string table resource holds 16 texts.
HINSTANCE moduleOfText(UINT id) {
    return AfxFindResourceHandle(MAKEINTRESOURCEW(id / 16 + 1), RT_STRING);
}

} // namespace

BOOL OrtinLoadStringResource(UINT id, std::wstring& text) {
    return CStringPlatform<wchar_t>::load(moduleOfText(id), id, text) > 0;
}

BOOL OrtinLoadStringResource(UINT id, std::string& text) {
    return CStringPlatform<char>::load(moduleOfText(id), id, text) > 0;
}
