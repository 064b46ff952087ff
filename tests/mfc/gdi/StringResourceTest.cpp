#include <afxwin.h>

#include <gtest/gtest.h>

namespace {

TEST(StringResources, AreLoadedByNumber) {
    struct Case {
        UINT id;
        bool isThere;
        const wchar_t* expected;
    };
    const Case cases[] = {
        {15, true, L"Ostatni z pierwszej szesnastki"},
        {16, true, L"Kurs: %d zł"},
        {40, true, L"Zażółć gęślą jaźń"},
        {41, false, L""},
        {4000, false, L""},
    };
    for (const Case& each : cases) {
        CString text(L"przedtem");
        EXPECT_EQ(each.isThere, text.LoadString(each.id) != FALSE) << each.id;
        EXPECT_STREQ(each.expected, text) << each.id;
        EXPECT_STREQ(each.expected, CString(MAKEINTRESOURCEW(each.id))) << each.id;
        EXPECT_EQ(each.isThere, text.LoadString(AfxGetInstanceHandle(), each.id) != FALSE) << each.id;
    }
}

TEST(StringResources, InTheNarrowFormAreOfTheSystemsCodePage) {
    CStringA text;
    EXPECT_TRUE(text.LoadString(40));
    EXPECT_STREQ("Za\xBF\xF3\xB3\xE6 g\xEA\x9Cl\xB9 ja\x9F\xF1", text);
}

TEST(StringResources, ServeAsFormats) {
    CString text;
    text.Format(16, 250);
    EXPECT_STREQ(L"Kurs: 250 zł", text);
}

TEST(StringResources, OfTheFrameworkAreFoundLast) {
    CString text;
    EXPECT_TRUE(text.LoadString(AFX_IDP_FAILED_TO_START_PRINT));
    EXPECT_STREQ(L"Nie można rozpocząć drukowania.", text);
    text.Format(AFX_IDS_PRINTPAGENUM, 12);
    EXPECT_STREQ(L"Strona 12", text);
}

} // namespace
