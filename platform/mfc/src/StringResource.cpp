#include "cstringt.h"

BOOL OrtinLoadStringResource(UINT id, std::wstring& text) {
    return CStringPlatform<wchar_t>::load(GetModuleHandleW(nullptr), id, text) > 0;
}

BOOL OrtinLoadStringResource(UINT id, std::string& text) {
    return CStringPlatform<char>::load(GetModuleHandleW(nullptr), id, text) > 0;
}
