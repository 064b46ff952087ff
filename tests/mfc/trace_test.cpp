#include "test_windows.h"

#include "support/ImportPatch.h"

#include <gtest/gtest.h>

namespace {

std::wstring S_wide;
std::string S_narrow;

void WINAPI keepWide(LPCWSTR text) {
    S_wide = text;
}
void WINAPI keepNarrow(LPCSTR text) {
    S_narrow = text;
}

/// What is written to the debugger.
class Trace : public testing::Test {
protected:
    support::ImportPatch m_wide{GetModuleHandleW(L"OrtinMfc.dll"), "KERNEL32.dll", "OutputDebugStringW", &keepWide};
    support::ImportPatch m_narrow{GetModuleHandleW(L"OrtinMfc.dll"), "KERNEL32.dll", "OutputDebugStringA", &keepNarrow};
};

} // namespace

TEST_F(Trace, TakesATextOfTheFormatsOwnWidthForS) {
    AfxTrace(L"%s: %d", L"żółw", 5);
    EXPECT_EQ(L"żółw: 5", S_wide);
    AfxTrace("%s: %d", "abc", 6);
    EXPECT_EQ("abc: 6", S_narrow);
}

TEST_F(Trace, TakesTheOtherWidthWhereTheFormatSaysSo) {
    AfxTrace(L"%hs %ls", "abc", L"def");
    EXPECT_EQ(L"abc def", S_wide);
    AfxTrace("%hs %ls", "abc", L"def");
    EXPECT_EQ("abc def", S_narrow);
}

TEST_F(Trace, CutsWhatIsTooLong) {
    const std::wstring wide(3000, L'w');
    AfxTrace(L"%s", wide.c_str());
    EXPECT_EQ(wide.substr(0, 1023), S_wide);
    const std::string narrow(3000, 'n');
    AfxTrace("%s", narrow.c_str());
    EXPECT_EQ(narrow.substr(0, 1023), S_narrow);
}
