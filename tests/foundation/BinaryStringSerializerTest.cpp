#include "OrtinFoundation/BinaryStringSerializer.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace {

using Bytes = std::array<unsigned char, 4>;

constexpr Bytes untouched{1, 2, 3, 4};

TEST(BinaryStrings, AreTwoHexadecimalDigitsAByte) {
    Bytes bytes = untouched;
    EXPECT_TRUE(BinaryStringSerializer::ConvertTextToBin("000aFfC3", bytes.data(), bytes.size()));
    EXPECT_EQ((Bytes{0x00, 0x0A, 0xFF, 0xC3}), bytes);
}

TEST(BinaryStrings, AreRefusedWithoutAByteWrittenUnlessTheyFitExactly) {
    struct Case {
        const char* what;
        std::string text;
    };
    const Case cases[] = {
        {"nothing", ""},
        {"a byte too few", "000aff"},
        {"a byte too many", "000affc300"},
        {"half a byte too few", "000affc"},
        {"half a byte too many", "000affc30"},
        {"no digit at the end", "000affcg"},
        {"no digit at the start", "/00affc3"},
        {"a blank between", "000 ffc3"},
        {"a sign", "-00affc3"},
        {"a prefix", "0x0affc3"},
        {"a NUL", std::string("000aff\0c", 8)},
        {"bytes beyond ASCII", "000aff\xC3\xB3"},
    };
    for (const Case& c : cases) {
        Bytes bytes = untouched;
        EXPECT_FALSE(BinaryStringSerializer::ConvertTextToBin(c.text, bytes.data(), bytes.size())) << c.what;
        EXPECT_EQ(untouched, bytes) << c.what;
    }
}

TEST(BinaryStrings, OfNoBytesAreEmpty) {
    EXPECT_TRUE(BinaryStringSerializer::ConvertTextToBin("", nullptr, 0));
    EXPECT_FALSE(BinaryStringSerializer::ConvertTextToBin("00", nullptr, 0));
}

TEST(BinaryStrings, GiveBackAnyBytes) {
    constexpr char digits[] = "0123456789ABCDEFabcdef";
    std::mt19937 random(92);
    for (int round = 0; round < 10000; ++round) {
        std::array<unsigned char, 92> expected;
        std::string text;
        for (unsigned char& byte : expected) {
            byte = static_cast<unsigned char>(random());
            for (const unsigned nibble : {byte / 16U, byte % 16U}) {
                text += digits[nibble + (nibble > 9 && random() % 2 == 0 ? 6 : 0)];
            }
        }
        std::array<unsigned char, 92> bytes{};
        ASSERT_TRUE(BinaryStringSerializer::ConvertTextToBin(text, bytes.data(), bytes.size()));
        ASSERT_EQ(expected, bytes);
    }
}

} // namespace
