#include "Modules.h"

BOOL OrtinLoadStringResource(UINT id, std::wstring& text) {
    text = findText(id);
    return !text.empty();
}

BOOL OrtinLoadStringResource(UINT id, std::string& text) {
    text = CStringPlatform<char>::convert(findText(id));
    return !text.empty();
}
