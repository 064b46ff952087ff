#include "afx.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t traceCharacters = 1024;

/// With the formats of CString, where %s is a text of the format's own width.
template <typename CharT>
void formatTrace(CharT (&text)[traceCharacters], const CharT* format, va_list arguments) {
    CStringPlatform<CharT>::format(text, traceCharacters, format, arguments);
    text[traceCharacters - 1] = CharT();
}

} // namespace

void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine) {
    char text[traceCharacters];
    std::snprintf(text, sizeof(text), "%s(%d): niespełniony warunek ASSERT\n", lpszFileName, nLine);
    OutputDebugStringA(text);
    std::fputs(text, stderr);
    std::fflush(stderr);
    std::abort();
}

void AfxAssertValidObject(const CObject* pObject, LPCSTR lpszFileName, int nLine) {
    if (pObject == nullptr) {
        AfxAssertFailedLine(lpszFileName, nLine);
    }
    pObject->AssertValid();
}

void AfxTrace(LPCWSTR lpszFormat, ...) {
    wchar_t text[traceCharacters];
    va_list arguments;
    va_start(arguments, lpszFormat);
    formatTrace(text, lpszFormat, arguments);
    va_end(arguments);
    OutputDebugStringW(text);
}

void AfxTrace(LPCSTR lpszFormat, ...) {
    char text[traceCharacters];
    va_list arguments;
    va_start(arguments, lpszFormat);
    formatTrace(text, lpszFormat, arguments);
    va_end(arguments);
    OutputDebugStringA(text);
}
