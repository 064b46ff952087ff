#include "afxstat.h"

namespace {

template <class CharT>
BOOL loadString(UINT id, std::basic_string<CharT>& text) {
    // Strings lie in blocks of sixteen, which are numbered from 1.
    HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCE((id >> 4) + 1), RT_STRING);
    return CStringPlatform<CharT>::load(module, id, text) > 0;
}

} // namespace

BOOL OrtinLoadStringResource(UINT id, std::wstring& text) {
    return loadString(id, text);
}

BOOL OrtinLoadStringResource(UINT id, std::string& text) {
    return loadString(id, text);
}
