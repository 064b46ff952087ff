#include "core/PolishFormat.h"

#include <limits>

#include <gtest/gtest.h>

using namespace Desk;

namespace {

struct NumberCase {
    double value;
    int decimals;
    const wchar_t* text;
};

} // namespace

TEST(PolishFormat, PartsThousandsAndUsesADecimalComma) {
    for (const NumberCase& number : {
             NumberCase{0.0, 2, L"0,00"},
             NumberCase{1.5, 2, L"1,50"},
             NumberCase{999.994, 2, L"999,99"},
             NumberCase{999.996, 2, L"1\u00A0000,00"},
             NumberCase{1234567.891, 2, L"1\u00A0234\u00A0567,89"},
             NumberCase{123456.0, 0, L"123\u00A0456"},
             NumberCase{-21.49, 2, L"-21,49"},
             NumberCase{-1234.5, 1, L"-1\u00A0234,5"},
             NumberCase{-0.004, 2, L"0,00"},
             NumberCase{-0.0, 0, L"0"},
         })
        EXPECT_EQ(formatNumber(number.value, number.decimals), number.text) << number.value;
}

TEST(PolishFormat, WritesTheGreatestNumberOutInFull) {
    const std::wstring text = formatNumber(std::numeric_limits<double>::max(), 2);
    EXPECT_EQ(text.size(), 309u + 102u + 3u);
    EXPECT_EQ(text.substr(0, 3), L"179");
}

TEST(PolishFormat, WritesFractionsAsPercent) {
    EXPECT_EQ(formatPercent(0.0175), L"1,75%");
    EXPECT_EQ(formatPercent(3.6e-05), L"0,00%");
    EXPECT_EQ(formatPercent(-0.1), L"-10,00%");
}

TEST(PolishFormat, ShortensLargeSums) {
    EXPECT_EQ(formatLargeSum(4514709504000.0), L"4,51\u00A0bln");
    EXPECT_EQ(formatLargeSum(4514709504000000.0), L"4\u00A0514,71\u00A0bln");
    EXPECT_EQ(formatLargeSum(1e9), L"1,00\u00A0mld");
    EXPECT_EQ(formatLargeSum(4616249.0), L"4,62\u00A0mln");
    EXPECT_EQ(formatLargeSum(-2e6), L"-2,00\u00A0mln");
    EXPECT_EQ(formatLargeSum(999999.0), L"999\u00A0999");
    EXPECT_EQ(formatLargeSum(0.0), L"0");
}

TEST(PolishFormat, ChoosesTheUnitOfALargeSumAfterRounding) {
    EXPECT_EQ(formatLargeSum(999999.4), L"999\u00A0999");
    EXPECT_EQ(formatLargeSum(999999.6), L"1,00\u00A0mln");
    EXPECT_EQ(formatLargeSum(999994000.0), L"999,99\u00A0mln");
    EXPECT_EQ(formatLargeSum(999999999.0), L"1,00\u00A0mld");
    EXPECT_EQ(formatLargeSum(-999999999.0), L"-1,00\u00A0mld");
    EXPECT_EQ(formatLargeSum(999994000000.0), L"999,99\u00A0mld");
    EXPECT_EQ(formatLargeSum(999999999999.0), L"1,00\u00A0bln");
}

TEST(PolishFormat, GivesSmallFiguresTheDigitsThatTellThemFromNothing) {
    EXPECT_EQ(formatFigure(0.0), L"0,00");
    EXPECT_EQ(formatFigure(0.004), L"0,004");
    EXPECT_EQ(formatFigure(-0.00123), L"-0,0012");
    EXPECT_EQ(formatFigure(0.0000004567), L"0,00000046");
    EXPECT_EQ(formatFigure(0.0000000001), L"0,0000000001");
    EXPECT_EQ(formatFigure(1e-30), L"0,00");
    EXPECT_EQ(formatFigure(0.0049), L"0,0049");
    EXPECT_EQ(formatFigure(0.012), L"0,012");
    EXPECT_EQ(formatFigure(0.04), L"0,04");
    EXPECT_EQ(formatFigure(0.00996), L"0,01");
    EXPECT_EQ(formatFigure(0.1), L"0,10");
    EXPECT_EQ(formatFigure(0.999), L"1,00");
    EXPECT_EQ(formatFigure(1.001), L"1,00");
    EXPECT_EQ(formatFigure(12.345), L"12,35");
}

TEST(PolishFormat, ChoosesTheFormOfAWordByItsCount) {
    const auto rows = [](long long count) { return formatCount(count, L"wiersz", L"wiersze", L"wierszy"); };
    for (const long long few : {2, 3, 4, 22, 34, 102, 1003})
        EXPECT_TRUE(rows(few).ends_with(L"\u00A0wiersze")) << few;
    for (const long long many : {0, 5, 11, 12, 13, 14, 21, 25, 101, 112, 1014})
        EXPECT_TRUE(rows(many).ends_with(L"\u00A0wierszy")) << many;
    EXPECT_EQ(rows(1), L"1\u00A0wiersz");
    EXPECT_EQ(rows(20000), L"20\u00A0000\u00A0wierszy");
}
