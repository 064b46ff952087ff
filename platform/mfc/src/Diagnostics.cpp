#include "afx.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cwchar>

namespace {

constexpr std::size_t traceCharacters = 1024;

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
    std::vswprintf(text, traceCharacters, lpszFormat, arguments);
    va_end(arguments);
    text[traceCharacters - 1] = L'\0';
    OutputDebugStringW(text);
}

void AfxTrace(LPCSTR lpszFormat, ...) {
    char text[traceCharacters];
    va_list arguments;
    va_start(arguments, lpszFormat);
    std::vsnprintf(text, sizeof(text), lpszFormat, arguments);
    va_end(arguments);
    OutputDebugStringA(text);
}
