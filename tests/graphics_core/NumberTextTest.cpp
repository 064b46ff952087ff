#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "NumberText.h"

namespace {

/// The numbers that a scan of three finds, and how many it takes before it ends.
std::string scanned(std::string_view text) {
    std::uint32_t style = 77;
    std::int32_t width = 77;
    std::uint8_t byte = 77;
    int count = NumberText::scan(text, style) ? 1 : 0;
    count += count == 1 && NumberText::scan(text, width) ? 1 : 0;
    count += count == 2 && NumberText::scan(text, byte) ? 1 : 0;
    return std::to_string(count) + ": " + std::to_string(style) + ' ' + std::to_string(width) + ' ' +
           std::to_string(byte) + " then '" + std::string(text) + "'";
}

} // namespace

TEST(NumberText, IsScannedUntilANumberIsMissing) {
    struct Case {
        const char* what;
        std::string text;
        std::string outcome;
    };
    const Case cases[] = {
        {"three numbers", "0 2 255", "3: 0 2 255 then ''"},
        {"two numbers", "0 2", "2: 0 2 77 then ''"},
        {"none", "", "0: 77 77 77 then ''"},
        {"blanks alone", " \t\n", "0: 77 77 77 then ''"},
        {"more than three", "0 2 255 9", "3: 0 2 255 then ' 9'"},
        {"words behind", "0 2 255x", "3: 0 2 255 then 'x'"},
        {"a word between", "0 x 255", "1: 0 77 77 then 'x 255'"},
        {"a point", "0 2.5 255", "2: 0 2 77 then '.5 255'"},
        {"a comma", "0,2,255", "1: 0 77 77 then ',2,255'"},
        {"other white space", "\t0\n2\r\v\f255", "3: 0 2 255 then ''"},
        {"signs", "+0 -2 +255", "3: 0 -2 255 then ''"},
        {"signs without blanks", "0-2+3", "3: 0 -2 3 then ''"},
        {"a sign alone", "0 - 2", "1: 0 77 77 then '- 2'"},
        {"two signs", "0 --2", "1: 0 77 77 then '--2'"},
        {"a negative number without sign in memory", "-1 0 -1", "3: 4294967295 0 255 then ''"},
        {"leading zeros", "007 08 009", "3: 7 8 9 then ''"},
        {"hexadecimal digits", "0x10 2 3", "1: 0 77 77 then 'x10 2 3'"},
        {"the ends of the range", "4294967295 -2147483648 255", "3: 4294967295 -2147483648 255 then ''"},
        {"just past the range", "4294967296 2147483648 256", "3: 0 -2147483648 0 then ''"},
        {"past 64 bits", "18446744073709551617 36893488147419103233 18446744073709551618", "3: 1 1 2 then ''"},
        {"a NUL", std::string("0 2\0 255", 8), std::string("2: 0 2 77 then '") + '\0' + " 255'"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.outcome, scanned(c.text)) << c.what;
    }
}

TEST(NumberText, HasBlanksBetweenItsNumbers) {
    std::string text;
    NumberText::append(text, std::uint32_t{0});
    EXPECT_EQ("0", text);
    NumberText::append(text, std::int32_t{-2});
    NumberText::append(text, std::uint32_t{4294967295});
    EXPECT_EQ("0 -2 4294967295", text);
}

TEST(NumberText, IsScannedAsTheCLibraryScansItWhereNumbersFit) {
    std::mt19937 random(4);
    constexpr char characters[] = "0123456789 \t-+x.";
    int complete = 0;
    for (int round = 0; round < 500000; ++round) {
        std::string text;
        for (unsigned count = random() % 16; count > 0; --count) {
            text += characters[random() % (random() % 3 == 0 ? 16 : 11)];
        }
        std::uint64_t expected[3] = {7, 7, 7};
        long long numbers[3] = {7, 7, 7};
        const int count = std::sscanf(text.c_str(), "%lld %lld %lld", &numbers[0], &numbers[1], &numbers[2]);
        for (int index = 0; index < count; ++index) {
            expected[index] = static_cast<std::uint64_t>(numbers[index]);
        }
        std::uint64_t found[3] = {7, 7, 7};
        std::string_view rest = text;
        int scans = 0;
        while (scans < 3 && NumberText::take(rest, found[scans])) {
            ++scans;
        }
        ASSERT_EQ(std::max(count, 0), scans) << '"' << text << '"';
        for (int index = 0; index < 3; ++index) {
            ASSERT_EQ(expected[index], found[index]) << '"' << text << '"';
        }
        complete += scans == 3 ? 1 : 0;
    }
    EXPECT_GT(complete, 10000) << "the texts are worth scanning";
}
