#include "OrtinFoundation/StringTools.h"

#include <gtest/gtest.h>

#include <boost/json/string.hpp>

#include <algorithm>
#include <iterator>
#include <random>

namespace {

using namespace OrtinTools;

constexpr char32_t kEnd = 0x110000; // of all characters
constexpr char32_t kFirstSurrogate = 0xD800;
constexpr char32_t kLastSurrogate = 0xDFFF;

bool isSurrogate(char32_t character) {
    return character >= kFirstSurrogate && character <= kLastSurrogate;
}

/// The bits of a character as the definition of UTF-8 lays them out, a surrogate's too.
std::string utf8Of(char32_t character) {
    if (character < 0x80) {
        return {static_cast<char>(character)};
    }
    const int followers = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr unsigned leads[] = {0, 0xC0, 0xE0, 0xF0};
    std::string bytes(1, static_cast<char>(leads[followers] | character >> 6 * followers));
    for (int index = followers - 1; index >= 0; --index) {
        bytes += static_cast<char>(0x80 | (character >> 6 * index & 0x3F));
    }
    return bytes;
}

std::wstring wideOf(char32_t character) {
    if (character < 0x10000) {
        return {static_cast<wchar_t>(character)};
    }
    const char32_t above = character - 0x10000;
    return {static_cast<wchar_t>(0xD800 | above >> 10), static_cast<wchar_t>(0xDC00 | (above & 0x3FF))};
}

/// "az" if nothing but replacement characters, and at least one, stand between an a and a z.
std::wstring withoutReplacements(const std::wstring& text) {
    std::wstring rest;
    std::copy_if(text.begin(), text.end(), std::back_inserter(rest), [](wchar_t unit) { return unit != 0xFFFD; });
    return rest.size() < text.size() ? rest : L"nothing replaced";
}

} // namespace

TEST(Utf8, ChangesEveryCharacterToWideAndBack) {
    std::string allUtf8;
    std::wstring allWide;
    for (char32_t character = 0; character < kEnd; ++character) {
        if (isSurrogate(character)) {
            continue;
        }
        const std::string utf8 = utf8Of(character);
        const std::wstring wide = wideOf(character);
        ASSERT_EQ(wide, String::Utf8ToWide(utf8)) << std::hex << static_cast<unsigned>(character);
        ASSERT_EQ(utf8, String::WideToUtf8(wide)) << std::hex << static_cast<unsigned>(character);
        allUtf8 += utf8;
        allWide += wide;
    }
    EXPECT_TRUE(allWide == String::Utf8ToWide(allUtf8)) << "all in one text";
    EXPECT_TRUE(allUtf8 == String::WideToUtf8(allWide));
    EXPECT_TRUE(boost::json::string(allUtf8) == String::WideToJsonUtf8(allWide));
}

TEST(Utf8, OfNothingIsNothing) {
    EXPECT_EQ(L"", String::Utf8ToWide({}));
    EXPECT_EQ("", String::WideToUtf8({}));
    EXPECT_EQ("", String::WideToJsonUtf8({}));
}

TEST(Utf8, ChangesAViewThatNothingEnds) {
    EXPECT_EQ(L"ku", String::Utf8ToWide(std::string_view("kurs", 2)));
    EXPECT_EQ("ku", String::WideToUtf8(std::wstring_view(L"kurs", 2)));
    EXPECT_EQ("ku", String::WideToJsonUtf8(std::wstring_view(L"kurs", 2)));
    EXPECT_EQ(L"\xFFFD", String::Utf8ToWide(std::string_view("\xC5\xBC", 1))) << "nor is a byte behind it looked at";
}

TEST(Utf8, ReplacesWhatIsNotWellFormed) {
    struct Case {
        const char* what;
        const char* bytes;
    };
    const Case cases[] = {
        {"a follower alone", "\x80"},
        {"a lead alone", "\xC5"},
        {"two of three bytes", "\xE2\x82"},
        {"three of four bytes", "\xF0\x9F\x93"},
        {"two bytes for what needs one", "\xC1\xBF"},
        {"three bytes for what needs two", "\xE0\x9F\xBF"},
        {"four bytes for what needs three", "\xF0\x8F\xBF\xBF"},
        {"a surrogate", "\xED\xA0\x80"},
        {"a pair of surrogates", "\xED\xA0\xBD\xED\xB3\x88"},
        {"the character after the last", "\xF4\x90\x80\x80"},
        {"a lead that there is not", "\xF8\x88\x80\x80\x80"},
        {"no lead at all", "\xFF"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(L"az", withoutReplacements(String::Utf8ToWide(std::string("a") + c.bytes + "z"))) << c.what;
    }
}

TEST(Utf8, ReplacesASurrogateWithoutItsOther) {
    for (const std::wstring half : {L"\xD83D", L"\xDCC8", L"\xDCC8\xD83D"}) {
        std::string expected = "a";
        for (std::size_t unit = 0; unit < half.size(); ++unit) {
            expected += "\xEF\xBF\xBD";
        }
        EXPECT_EQ(expected, String::WideToUtf8(L"a" + half));
        EXPECT_EQ(expected + "z", String::WideToUtf8(L"a" + half + L"z"));
    }
}

TEST(Utf8, OfRandomUnitsAndBytesIsWellFormed) {
    std::mt19937 random(16);
    for (int round = 0; round < 100'000; ++round) {
        std::wstring units;
        std::string bytes;
        for (unsigned count = random() % 12; count > 0; --count) {
            units += static_cast<wchar_t>(random() % 2 == 0 ? 0xD800 + random() % 0x800 : random());
            bytes += static_cast<char>(random() % 3 == 0 ? random() : 0x80 + random() % 0x80);
        }
        const std::string utf8 = String::WideToUtf8(units);
        ASSERT_EQ(utf8, String::WideToUtf8(String::Utf8ToWide(utf8)));
        const std::wstring wide = String::Utf8ToWide(bytes);
        ASSERT_EQ(wide, String::Utf8ToWide(String::WideToUtf8(wide)));
    }
}
