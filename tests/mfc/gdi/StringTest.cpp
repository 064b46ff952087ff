#include <atlstr.h>

#include <gtest/gtest.h>

#include <vector>

namespace {

struct TextCase {
    const char* what;
    CString result;
    const wchar_t* expected;
};

struct NumberCase {
    const char* what;
    int result;
    int expected;
};

void expectTexts(const std::vector<TextCase>& cases) {
    for (const TextCase& each : cases) {
        EXPECT_STREQ(each.expected, each.result.GetString()) << each.what;
        EXPECT_EQ(static_cast<int>(wcslen(each.expected)), each.result.GetLength()) << each.what;
    }
}

void expectNumbers(const std::vector<NumberCase>& cases) {
    for (const NumberCase& each : cases) {
        EXPECT_EQ(each.expected, each.result) << each.what;
    }
}

CString formatted(LPCWSTR format, ...) {
    va_list arguments;
    va_start(arguments, format);
    CString result;
    result.FormatV(format, arguments);
    va_end(arguments);
    return result;
}

TEST(Strings, AreMadeFromEveryDocumentedSource) {
    const LPCWSTR none = nullptr;
    const LPCSTR narrowNone = nullptr;
    const CString original(L"kurs");
    expectTexts({
        {"nothing", CString(), L""},
        {"a null text", CString(none), L""},
        {"a null narrow text", CString(narrowNone), L""},
        {"a text", CString(L"kurs"), L"kurs"},
        {"a narrow text of the system's code page", CString("za\xBF\xF3\xB3\xE6"), L"zażółć"},
        {"the beginning of a text", CString(L"kurs akcji", 4), L"kurs"},
        {"the beginning of a narrow text", CString("kurs akcji", 4), L"kurs"},
        {"a negative length", CString(L"kurs", -1), L""},
        {"a repeated character", CString(L'-', 3), L"---"},
        {"a character repeated a negative number of times", CString(L'-', -3), L""},
        {"another string", CString(original), L"kurs"},
        {"a text resource that is not there", CString(MAKEINTRESOURCEW(47)), L""},
    });
    EXPECT_STREQ("za\xBF\xF3\xB3\xE6", CStringA(L"zażółć").GetString());
}

TEST(Strings, KeepTerminatorsInsideWhenTheLengthIsGiven) {
    CString text(L"a\0b", 3);
    EXPECT_EQ(3, text.GetLength());
    EXPECT_EQ(L'b', text[2]);
    EXPECT_FALSE(text == L"a");
    text.ReleaseBuffer();
    EXPECT_EQ(1, text.GetLength());
}

TEST(Strings, ACopyDoesNotChangeWithItsOriginal) {
    CString original(L"kurs");
    const CString copy(original);
    original.SetAt(0, L'K');
    EXPECT_STREQ(L"kurs", copy);
    EXPECT_STREQ(L"Kurs", original);
}

TEST(Strings, AssignAPartOfThemselves) {
    CString text(L"kurs akcji");
    text = text.GetString() + 5;
    EXPECT_STREQ(L"akcji", text);
    text += text;
    EXPECT_STREQ(L"akcjiakcji", text);
}

TEST(Strings, JoinWithTextsAndCharacters) {
    const CString text(L"ab");
    CString grown(L"x");
    grown += text;
    grown += L"cd";
    grown += L'e';
    grown.Append(L"fgh", 1);
    grown.AppendChar(L'g');
    expectTexts({
        {"string and string", text + CString(L"c"), L"abc"},
        {"string and text", text + L"c", L"abc"},
        {"text and string", L"c" + text, L"cab"},
        {"string and character", text + L'c', L"abc"},
        {"character and string", L'c' + text, L"cab"},
        {"a null text", text + static_cast<LPCWSTR>(nullptr), L"ab"},
        {"grown step by step", grown, L"xabcdefg"},
    });
}

TEST(Strings, CompareByCharacterCodes) {
    const CString text(L"Kurs");
    EXPECT_TRUE(text == L"Kurs");
    EXPECT_TRUE(L"Kurs" == text);
    EXPECT_TRUE(text == CString(L"Kurs"));
    EXPECT_TRUE(text != L"kurs");
    EXPECT_TRUE(text < L"kurs");
    EXPECT_TRUE(L"Aurs" < text);
    EXPECT_TRUE(text >= CString(L"Kurs"));
    EXPECT_TRUE(text > L"Kur");
    EXPECT_TRUE(CString() == static_cast<LPCWSTR>(nullptr));
    EXPECT_LT(text.Compare(L"kurs"), 0);
    EXPECT_GT(text.Compare(L"Kur"), 0);
    EXPECT_EQ(0, text.Compare(L"Kurs"));
}

TEST(Strings, CompareWithoutCaseAlsoInPolish) {
    expectNumbers({
        {"equal but for case", CString(L"ŻÓŁĆ").CompareNoCase(L"żółć"), 0},
        {"case of no letters", CString(L"a1-").CompareNoCase(L"A1-"), 0},
        {"smaller", CString(L"abc").CompareNoCase(L"ABD") < 0, 1},
        {"greater", CString(L"abe").CompareNoCase(L"ABD") > 0, 1},
    });
}

TEST(Strings, CutOutPartsAndClampWhatReachesOutside) {
    const CString text(L"abcdef");
    expectTexts({
        {"middle", text.Mid(2, 3), L"cde"},
        {"middle to the end", text.Mid(4), L"ef"},
        {"middle before the beginning", text.Mid(-2, 3), L"abc"},
        {"middle behind the end", text.Mid(9, 3), L""},
        {"middle longer than the rest", text.Mid(4, 9), L"ef"},
        {"middle of a negative count", text.Mid(2, -1), L""},
        {"left", text.Left(2), L"ab"},
        {"left of all", text.Left(9), L"abcdef"},
        {"left of a negative count", text.Left(-1), L""},
        {"right", text.Right(2), L"ef"},
        {"right of all", text.Right(9), L"abcdef"},
        {"right of a negative count", text.Right(-1), L""},
        {"span of a set", text.SpanIncluding(L"cba"), L"abc"},
        {"span of no such character", text.SpanIncluding(L"x"), L""},
        {"span outside a set", text.SpanExcluding(L"ed"), L"abc"},
        {"span to the end", text.SpanExcluding(L"x"), L"abcdef"},
    });
}

TEST(Strings, FindTextsAndCharacters) {
    const CString text(L"abcabc");
    expectNumbers({
        {"text", text.Find(L"bc"), 1},
        {"text from a start", text.Find(L"bc", 2), 4},
        {"text that is not there", text.Find(L"cb"), -1},
        {"text longer than the string", text.Find(L"abcabcabc"), -1},
        {"empty text", text.Find(L"", 3), 3},
        {"start behind the end", text.Find(L"a", 7), -1},
        {"negative start", text.Find(L"a", -1), -1},
        {"character", text.Find(L'c'), 2},
        {"character from a start", text.Find(L'c', 3), 5},
        {"character that is not there", text.Find(L'x'), -1},
        {"last character", text.ReverseFind(L'a'), 3},
        {"last character that is not there", text.ReverseFind(L'x'), -1},
        {"one of a set", text.FindOneOf(L"xcb"), 1},
        {"none of a set", text.FindOneOf(L"xyz"), -1},
    });
}

TEST(Strings, TrimWhatIsAskedAndNothingInside) {
    expectTexts({
        {"white space at both ends", CString(L" \t\r\n a b \v").Trim(), L"a b"},
        {"white space at the left", CString(L"  a ").TrimLeft(), L"a "},
        {"white space at the right", CString(L"  a ").TrimRight(), L"  a"},
        {"nothing but white space", CString(L" \t ").Trim(), L""},
        {"a character", CString(L"xxaxbxx").Trim(L'x'), L"axb"},
        {"a character at the left", CString(L"xxax").TrimLeft(L'x'), L"ax"},
        {"a character at the right", CString(L"xaxx").TrimRight(L'x'), L"xa"},
        {"a set", CString(L"xyaxyx").Trim(L"yx"), L"a"},
        {"a set at the left", CString(L"yxax").TrimLeft(L"xy"), L"ax"},
        {"a set at the right", CString(L"xaxy").TrimRight(L"xy"), L"xa"},
        {"an empty set", CString(L" a ").Trim(L""), L" a "},
    });
}

TEST(Strings, ChangeCaseAndOrder) {
    expectTexts({
        {"upper case", CString(L"Zażółć 1a").MakeUpper(), L"ZAŻÓŁĆ 1A"},
        {"lower case", CString(L"ZAŻÓŁĆ 1A").MakeLower(), L"zażółć 1a"},
        {"reverse", CString(L"abc").MakeReverse(), L"cba"},
        {"upper case of nothing", CString().MakeUpper(), L""},
    });
}

TEST(Strings, ReplaceFromTheLeftAndCount) {
    struct Case {
        const char* what;
        const wchar_t* text;
        const wchar_t* old;
        const wchar_t* replacement;
        const wchar_t* expected;
        int count;
    };
    const Case cases[] = {
        {"same length", L"abab", L"a", L"x", L"xbxb", 2},
        {"longer", L"abab", L"ab", L"xyz", L"xyzxyz", 2},
        {"shorter", L"aabaab", L"aa", L"x", L"xbxb", 2},
        {"away", L"a-b-c", L"-", L"", L"abc", 2},
        {"what was put in is not looked at again", L"aa", L"a", L"aa", L"aaaa", 2},
        {"overlapping", L"aaa", L"aa", L"b", L"ba", 1},
        {"not there", L"abc", L"x", L"y", L"abc", 0},
        {"nothing", L"abc", L"", L"y", L"abc", 0},
        {"a null replacement", L"abc", L"b", nullptr, L"ac", 1},
    };
    for (const Case& each : cases) {
        CString text(each.text);
        EXPECT_EQ(each.count, text.Replace(each.old, each.replacement)) << each.what;
        EXPECT_STREQ(each.expected, text) << each.what;
    }
    CString text(L"a-b-c");
    EXPECT_EQ(2, text.Replace(L'-', L'+'));
    EXPECT_EQ(0, text.Replace(L'+', L'+'));
    EXPECT_STREQ(L"a+b+c", text);
}

TEST(Strings, RemoveInsertAndDeleteClampTheirPlaces) {
    struct Case {
        const char* what;
        int (*change)(CString&);
        const wchar_t* expected;
        int result;
    };
    const Case cases[] = {
        {"remove", [](CString& text) { return text.Remove(L'b'); }, L"acdac", 1},
        {"remove several", [](CString& text) { return text.Remove(L'a'); }, L"bcdc", 2},
        {"insert a text", [](CString& text) { return text.Insert(1, L"xy"); }, L"axybcdac", 8},
        {"insert a character", [](CString& text) { return text.Insert(6, L'x'); }, L"abcdacx", 7},
        {"insert before the beginning", [](CString& text) { return text.Insert(-4, L"x"); }, L"xabcdac", 7},
        {"insert behind the end", [](CString& text) { return text.Insert(99, L"x"); }, L"abcdacx", 7},
        {"insert a part of itself", [](CString& text) { return text.Insert(1, text.GetString() + 4); }, L"aacbcdac", 8},
        {"delete", [](CString& text) { return text.Delete(1); }, L"acdac", 5},
        {"delete several", [](CString& text) { return text.Delete(1, 3); }, L"aac", 3},
        {"delete more than there is", [](CString& text) { return text.Delete(4, 99); }, L"abcd", 4},
        {"delete behind the end", [](CString& text) { return text.Delete(9, 2); }, L"abcdac", 6},
        {"delete a negative count", [](CString& text) { return text.Delete(1, -2); }, L"abcdac", 6},
    };
    for (const Case& each : cases) {
        CString text(L"abcdac");
        EXPECT_EQ(each.result, each.change(text)) << each.what;
        EXPECT_STREQ(each.expected, text) << each.what;
    }
}

TEST(Strings, TokenizeUntilNothingIsLeft) {
    struct Case {
        const char* what;
        const wchar_t* text;
        std::vector<const wchar_t*> expected;
    };
    const Case cases[] = {
        {"delimiters between", L"a,bc;d", {L"a", L"bc", L"d"}},
        {"delimiters in a row and at the ends", L",;a,,b;", {L"a", L"b"}},
        {"no delimiter", L"abc", {L"abc"}},
        {"nothing but delimiters", L",;,", {}},
        {"nothing", L"", {}},
    };
    for (const Case& each : cases) {
        const CString text(each.text);
        int start = 0;
        for (const wchar_t* expected : each.expected) {
            EXPECT_STREQ(expected, text.Tokenize(L",;", start)) << each.what;
            EXPECT_GE(start, 0) << each.what;
        }
        EXPECT_STREQ(L"", text.Tokenize(L",;", start)) << each.what;
        EXPECT_EQ(-1, start) << each.what;
    }
}

TEST(Strings, FormatAsTheRuntimeDoesForWindows) {
    expectTexts({
        {"numbers", formatted(L"%d %5.2f %04X", -7, 3.14159, 255), L"-7  3.14 00FF"},
        {"text of the same width", formatted(L"<%s>", L"żółć"), L"<żółć>"},
        {"text of the other width", formatted(L"<%S>", "abc"), L"<abc>"},
        {"64 bits", formatted(L"%I64d", 9000000000LL), L"9000000000"},
        {"a percent sign", formatted(L"100%%"), L"100%"},
        {"nothing", formatted(L""), L""},
        {"long", formatted(L"%500d", 1).Right(3), L"  1"},
    });
    CString text(L"a");
    text.AppendFormat(L"%d", 1);
    text.AppendFormat(L"%s", text.GetString());
    EXPECT_STREQ(L"a1a1", text);
    text.Format(L"[%s]", text.GetString());
    EXPECT_STREQ(L"[a1a1]", text);
    CStringA narrow;
    narrow.Format("%s-%d", "abc", 5);
    EXPECT_STREQ("abc-5", narrow);
}

TEST(Strings, LendTheirBuffer) {
    CString text(L"abc");
    LPWSTR buffer = text.GetBuffer(10);
    EXPECT_STREQ(L"abc", buffer);
    wcscpy(buffer, L"abcdefghij");
    text.ReleaseBuffer();
    EXPECT_STREQ(L"abcdefghij", text);

    buffer = text.GetBufferSetLength(3);
    buffer[0] = L'X';
    text.ReleaseBufferSetLength(3);
    EXPECT_STREQ(L"Xbc", text);

    text.GetBuffer()[1] = L'\0';
    text.ReleaseBuffer();
    EXPECT_STREQ(L"X", text);

    text.Truncate(0);
    EXPECT_TRUE(text.IsEmpty());
}

} // namespace
