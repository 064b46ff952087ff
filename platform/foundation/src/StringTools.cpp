#include "OrtinFoundation/StringTools.h"

#include <boost/json/string.hpp>

#include <windows.h>

std::wstring OrtinTools::String::Utf8ToWide(std::string_view text) {
    const int count = static_cast<int>(text.size());
    std::wstring wide(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), count, nullptr, 0)), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), count, wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::string OrtinTools::String::WideToUtf8(std::wstring_view text) {
    const int count = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), count, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), count, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

boost::json::string OrtinTools::String::WideToJsonUtf8(std::wstring_view text) {
    return boost::json::string(WideToUtf8(text));
}

std::string OrtinTools::String::WideToAnsi(std::wstring_view text) {
    constexpr UINT centralEuropean = 1250;
    constexpr DWORD exactly = WC_NO_BEST_FIT_CHARS;
    const int count = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(centralEuropean, exactly, text.data(), count, nullptr, 0, "?", nullptr);
    std::string ansi(static_cast<size_t>(needed), '\0');
    WideCharToMultiByte(centralEuropean, exactly, text.data(), count, ansi.data(), needed, "?", nullptr);
    return ansi;
}
