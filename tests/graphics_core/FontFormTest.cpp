#include <gtest/gtest.h>

#include <boost/json/parse.hpp>
#include <boost/json/serialize.hpp>

#include <cmath>
#include <limits>

#include "Descriptions.h"
#include "FontForm.h"

namespace {

constexpr FontDescription kEachFieldItsOwn{-11, 2, 3, 4, 400, 6, 7, 8, 9, 10, 11, 12, 13};

boost::json::array parse(const char* text) {
    return boost::json::parse(text).as_array();
}

std::string describe(const FontDescription& font) {
    return FontForm::toText(font);
}

} // namespace

TEST(FontText, HoldsThirteenNumbersInOrder) {
    EXPECT_EQ("-11 2 3 4 400 6 7 8 9 10 11 12 13", describe(kEachFieldItsOwn));
    FontDescription read{};
    EXPECT_TRUE(FontForm::fromText("-11 2 3 4 400 6 7 8 9 10 11 12 13", read));
    EXPECT_EQ(kEachFieldItsOwn, read);
}

TEST(FontText, FillsTheFieldsThatItHas) {
    struct Case {
        const char* what;
        const char* text;
        bool isComplete;
        const char* outcome;
    };
    const Case cases[] = {
        {"nothing", "", false, "-11 2 3 4 400 6 7 8 9 10 11 12 13"},
        {"one number", "5", false, "5 2 3 4 400 6 7 8 9 10 11 12 13"},
        {"twelve", "1 1 1 1 1 1 1 1 1 1 1 1", false, "1 1 1 1 1 1 1 1 1 1 1 1 13"},
        {"fourteen", "1 1 1 1 1 1 1 1 1 1 1 1 1 99", true, "1 1 1 1 1 1 1 1 1 1 1 1 1"},
        {"a word in the middle", "1 1 1 x 1 1", false, "1 1 1 4 400 6 7 8 9 10 11 12 13"},
        {"numbers that do not fit", "4294967297 0 0 0 0 256 257 -1 511 0 0 0 99999999999999999999999", true,
         "1 0 0 0 0 0 1 255 255 0 0 0 255"},
    };
    for (const Case& c : cases) {
        FontDescription font = kEachFieldItsOwn;
        EXPECT_EQ(c.isComplete, FontForm::fromText(c.text, font)) << c.what;
        EXPECT_EQ(c.outcome, describe(font)) << c.what;
    }
}

TEST(FontJson, HoldsTheSameThirteenNumbersAsInt64) {
    FontDescription font = kEachFieldItsOwn;
    font.lfQuality = 255;
    const boost::json::array form = FontForm::toJson(font, 1.0);
    EXPECT_EQ("[-11,2,3,4,400,6,7,8,9,10,11,255,13]", boost::json::serialize(form));
    for (const boost::json::value& parameter : form) {
        EXPECT_EQ(boost::json::kind::int64, parameter.kind());
    }
}

TEST(FontJson, ScalesTheHeightBothWays) {
    struct Case {
        double scale;
        int persisted;
        int inMemory;
    };
    const Case cases[] = {{1.0, -11, -11}, {1.25, -11, -14}, {1.25, 10, 13}, {1.5, -11, -17},
                          {1.5, 11, 17},   {2.0, -11, -22},  {1.75, -2, -4}};
    for (const Case& c : cases) {
        FontDescription font{};
        FontForm::fromJson(boost::json::array{c.persisted, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}, c.scale, font);
        EXPECT_EQ(c.inMemory, font.lfHeight) << c.scale;
        EXPECT_EQ(c.persisted, FontForm::toJson(font, c.scale)[0].as_int64()) << c.scale;
    }
}

TEST(FontJson, ComesBackAtEveryScale) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (int height = -300; height <= 300; ++height) {
            FontDescription font = kEachFieldItsOwn;
            font.lfHeight = static_cast<int>(std::round(height * scale));
            FontDescription read{};
            FontForm::fromJson(parse(boost::json::serialize(FontForm::toJson(font, scale)).c_str()), scale, read);
            ASSERT_EQ(font, read) << scale << ' ' << height;
        }
    }
}

TEST(FontJson, CutsNumbersToTheirFieldsAndSaturatesTheHeight) {
    FontDescription font{};
    FontForm::fromJson(
        parse("[3000000000, 4294967297, -4294967297, 9223372036854775807, 4294967296, 256, 257, -1, 511, 0, 1, 2, 3]"),
        1.5, font);
    EXPECT_EQ("2147483647 1 -1 -1 0 0 1 255 255 0 1 2 3", describe(font));
    FontForm::fromJson(parse("[-9223372036854775808, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0]"), 1.0, font);
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), font.lfHeight);
}

TEST(FontJson, StoresWhatStandsBeforeAMemberOfAnotherKind) {
    struct Case {
        const char* text;
        const char* outcome;
    };
    const Case cases[] = {
        {"[1.0, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1]", "-11 2 3 4 400 6 7 8 9 10 11 12 13"},
        {"[1, 1, 1, null, 1, 1, 1, 1, 1, 1, 1, 1, 1]", "1 1 1 4 400 6 7 8 9 10 11 12 13"},
        {"[1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, \"1\"]", "1 1 1 1 1 1 1 1 1 1 1 1 13"},
        {"[1, 1, 18446744073709551615, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1]", "1 1 3 4 400 6 7 8 9 10 11 12 13"},
    };
    for (const Case& c : cases) {
        FontDescription font = kEachFieldItsOwn;
        try {
            FontForm::fromJson(parse(c.text), 1.0, font);
            ADD_FAILURE() << c.text;
        } catch (const std::invalid_argument& error) {
            EXPECT_STREQ("not an int64", error.what());
        }
        EXPECT_EQ(c.outcome, describe(font)) << c.text;
    }
}

TEST(FontHeight, IsNarrowedOrRefused) {
    EXPECT_EQ(2147483647, FontForm::narrowed(2147483647.0));
    EXPECT_EQ(-2147483647 - 1, FontForm::narrowed(-2147483648.0));
    EXPECT_EQ(0, FontForm::narrowed(-0.0));
    for (const double whole : {2147483648.0, -2147483649.0, 1e300, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(FontForm::narrowed(whole), gsl::narrowing_error) << whole;
    }
}
