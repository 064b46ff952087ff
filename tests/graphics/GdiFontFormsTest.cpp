// The persisted forms of a font.
#include <gtest/gtest.h>

#include <boost/json.hpp>
#include <gsl/narrow>

#include <cmath>

#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinFoundation/Settings.h>

#include "FontDescriptions.h"
#include "PretendedScale.h"
#include "support/ImportPatch.h"

namespace {

LONG scaled(int height) {
    return static_cast<LONG>(std::round(pretendedScale() * height));
}

LONG unscaled(int height) {
    return static_cast<LONG>(std::round(height / pretendedScale()));
}

/// A node of settings as somebody has written it.
Settings node(std::uint32_t version, const std::string& parameters, const wchar_t* name) {
    Settings settings;
    settings.Version = version;
    settings["Params"] = parameters;
    settings["Name"] = name;
    return settings;
}

std::string hexOf(const LOGFONTW& font) {
    const auto* bytes = reinterpret_cast<const unsigned char*>(&font);
    std::string text;
    for (std::size_t index = 0; index < sizeof font; ++index) {
        for (const unsigned nibble : {bytes[index] / 16U, bytes[index] % 16U}) {
            text += "0123456789abcdef"[nibble];
        }
    }
    return text;
}

LOGFONTW eachFieldItsOwn(LONG height) {
    return {height, 2, 3, 4, 500, 1, 7, 8, 9, 10, 11, 12, 13, L"Segoe UI"};
}

constexpr const char* kOthers = "2 3 4 500 1 7 8 9 10 11 12 13";

/// A document of a font whose name is `name` in UTF-8.
boost::json::value document(std::string_view name) {
    return {{"Name", boost::json::string(name)}, {"Params", {-9, 0, 0, 0, 700, 0, 0, 0, 1, 0, 0, 0, 0}}};
}

} // namespace

TEST(DefaultFontAtScale, IsTheSystemsScaled) {
    LOGFONTW stock{};
    ASSERT_NE(0, ::GetObjectW(::GetStockObject(DEFAULT_GUI_FONT), sizeof stock, &stock));
    const GdiFontWrapper font;
    EXPECT_EQ(scaled(stock.lfHeight), font.GetHeight());
    stock.lfHeight = scaled(stock.lfHeight);
    EXPECT_EQ(describe(stock), describe(font));
    stock.lfWeight = FW_BOLD;
    EXPECT_EQ(describe(stock), describe(GdiFontWrapper(FW_BOLD)));
}

TEST(FontSettingsAtScale, AreANameAndThirteenNumbers) {
    Settings settings;
    GdiFontWrapper(eachFieldItsOwn(-17), 0).Serialize(settings);
    EXPECT_EQ("OrtinSettings 1\n#1\n/Name=Segoe UI\n/Params=" + std::to_string(unscaled(-17)) + ' ' + kOthers + '\n',
              settings.ToFileText());
}

TEST(FontSettingsAtScale, ScaleTheHeightBothWays) {
    for (const int height : {-11, 11, -1, 1, 0, -100}) {
        GdiFontWrapper font(tahoma(), 0);
        font.Unserialize(node(1, std::to_string(height) + " 0 0 0 400 0 0 0 1 0 0 0 0", L"Arial"));
        EXPECT_EQ(scaled(height), font.GetHeight());
        Settings written;
        font.Serialize(written);
        EXPECT_EQ(node(1, std::to_string(height) + " 0 0 0 400 0 0 0 1 0 0 0 0", L"Arial").ToFileText().size(),
                  written.ToFileText().size());
        EXPECT_STREQ((std::to_string(height) + " 0 0 0 400 0 0 0 1 0 0 0 0").c_str(), written["Params"]);
    }
}

TEST(FontSettingsAtScale, ComeBack) {
    for (int height = -60; height <= 60; ++height) {
        LOGFONTW description = eachFieldItsOwn(scaled(height));
        lstrcpyW(description.lfFaceName, L"Zażółć \xD83D\xDCC8");
        const GdiFontWrapper font(description, 0);
        Settings settings;
        font.Serialize(settings);
        GdiFontWrapper read(tahoma(), 0);
        read.Unserialize(settings);
        EXPECT_TRUE(font == read) << describe(read);
    }
}

TEST(FontSettingsAtScale, AreReadAsFarAsTheyGoAndEndWithTheHeightScaled) {
    struct Case {
        const char* what;
        std::uint32_t version;
        std::string parameters;
        std::string outcome; ///< after the height
        int heightBeforeScale;
        bool keepsFont;
    };
    const std::string before = "0 0 0 400 0 0 0 1 0 0 0 0 Tahoma";
    const Case cases[] = {
        {"a whole text", 1, "-9 2 3 4 500 1 7 8 9 10 11 12 13", "2 3 4 500 1 7 8 9 10 11 12 13 Arial", -9, false},
        {"more than a whole text", 1, "-9 2 3 4 500 1 7 8 9 10 11 12 13 14", "2 3 4 500 1 7 8 9 10 11 12 13 Arial", -9,
         false},
        {"twelve numbers", 1, "-9 2 3 4 500 1 7 8 9 10 11 12", "2 3 4 500 1 7 8 9 10 11 12 0 Tahoma", -9, true},
        {"one number", 1, "-9", before, -9, true},
        {"no number", 1, "", before, -11, true},
        {"words", 1, "Arial", before, -11, true},
        {"numbers that do not fit", 1, "4294967287 4294967298 0 0 0 256 257 -1 0 0 0 0 0",
         "2 0 0 0 0 1 255 0 0 0 0 0 Arial", -9, false},
        {"another version", 7, "-9 2 3 4 500 1 7 8 9 10 11 12 13", before, -11, true},
        {"the next version", 2, "-9 2 3 4 500 1 7 8 9 10 11 12 13", before, -11, true},
        {"a legacy version without bytes", 0, "-9 2 3 4 500 1 7 8 9 10 11 12 13", before, -11, true},
    };
    for (const Case& c : cases) {
        GdiFontWrapper font(tahoma(-11), 0);
        font.GetHFONT();
        font.Unserialize(node(c.version, c.parameters, L"Arial"));
        EXPECT_EQ(std::to_string(scaled(c.heightBeforeScale)) + ' ' + c.outcome, describe(font)) << c.what;
        if (c.keepsFont) {
            LOGFONTW used{};
            ::GetObjectW(font.GetHFONT(), sizeof used, &used);
            EXPECT_EQ(-11, used.lfHeight) << c.what << ": the font of before is in use";
        }
    }
}

TEST(FontSettingsAtScale, ThatAreNotReadScaleTheHeightEachTime) {
    GdiFontWrapper font(tahoma(-11), 0);
    LONG height = -11;
    for (int time = 0; time < 5; ++time) {
        font.Unserialize(node(7, "", L""));
        height = scaled(static_cast<int>(height));
        EXPECT_EQ(height, font.GetHeight());
    }
}

TEST(FontSettingsAtScale, ThrowIfTheScaledHeightIsBeyond32Bits) {
    GdiFontWrapper font(tahoma(-11), 0);
    const Settings settings = node(1, "2000000000 2 3 4 500 1 7 8 9 10 11 12 13", L"Arial");
    if (pretendedScale() < 1.2) {
        font.Unserialize(settings);
        EXPECT_EQ(scaled(2000000000), font.GetHeight());
    } else {
        EXPECT_THROW(font.Unserialize(settings), gsl::narrowing_error);
        EXPECT_EQ("2000000000 2 3 4 500 1 7 8 9 10 11 12 13 Arial", describe(font)) << "all but the last step is done";
    }
}

TEST(FontSettingsAtScale, OfLegacyAreAnImageWithAnUnscaledHeight) {
    Settings settings;
    settings = hexOf(eachFieldItsOwn(-9));
    GdiFontWrapper font(tahoma(-11), 0);
    font.GetHFONT();
    font.Unserialize(settings);
    EXPECT_EQ(std::to_string(scaled(-9)) + ' ' + kOthers + " Segoe UI", describe(font));
    LOGFONTW used{};
    ::GetObjectW(font.GetHFONT(), sizeof used, &used);
    EXPECT_EQ(scaled(-9), used.lfHeight) << "the font of before is given up";
}

TEST(FontSettingsAtScale, OfLegacyOfAnotherLengthChangeOnlyTheHeight) {
    const std::string image = hexOf(eachFieldItsOwn(-9));
    for (const std::string& text : {image.substr(2), image.substr(1), image + "0", image + "00", std::string()}) {
        Settings settings;
        settings = text;
        GdiFontWrapper font(tahoma(-11), 0);
        font.Unserialize(settings);
        EXPECT_EQ(describe(tahoma(scaled(-11))), describe(font)) << text.size();
    }
}

TEST(FontSettings, WithANameTooLongKeepTheOldName) {
    GdiFontWrapper font(tahoma(-11), 0);
    font.Unserialize(node(1, "0 0 0 0 700 0 0 0 1 0 0 0 0", std::wstring(31, L'n').c_str()));
    EXPECT_EQ(std::wstring(31, L'n'), font.GetFaceName());
    const HFONT handle = font.GetHFONT();
    for (const std::size_t length : {32U, 33U, 1000U}) {
        font.Unserialize(node(1, "0 0 0 0 500 0 0 0 1 0 0 0 0", std::wstring(length, L'm').c_str()));
        EXPECT_EQ(std::wstring(31, L'n'), font.GetFaceName()) << length;
        EXPECT_EQ(500, font.GetLOGFONT().lfWeight) << length;
        EXPECT_EQ(handle, font.GetHFONT()) << length;
    }
}

TEST(FontSettings, WithoutANameClearTheOldOne) {
    Settings settings;
    settings.Version = 1;
    settings["Params"] = L"0 0 0 0 700 0 0 0 1 0 0 0 0";
    GdiFontWrapper font(tahoma(-11), 0);
    font.Unserialize(settings);
    EXPECT_EQ(L"", font.GetFaceName());
    const LOGFONTW description = font.GetLOGFONT();
    for (const wchar_t unit : description.lfFaceName) {
        EXPECT_EQ(L'\0', unit) << "all 64 bytes of it";
    }
}

TEST(FontDocumentAtScale, IsANameAndThirteenNumbers) {
    EXPECT_EQ("{\"Name\":\"Segoe UI\",\"Params\":[" + std::to_string(unscaled(-17)) +
                  ",2,3,4,500,1,7,8,9,10,11,12,13]}",
              boost::json::serialize(GdiFontWrapper(eachFieldItsOwn(-17), 0).ToJson()));
    LOGFONTW image = tahoma(scaled(-11));
    EXPECT_EQ(R"({"Name":"Tahoma","Params":[-11,0,0,0,400,0,0,0,1,0,0,0,0]})",
              boost::json::serialize(GdiFontWrapper(image, 0).ToJson()));
}

TEST(FontDocumentAtScale, ComesBackWithAndWithoutATextBetween) {
    for (int height = -60; height <= 60; ++height) {
        LOGFONTW description = eachFieldItsOwn(scaled(height));
        lstrcpyW(description.lfFaceName, L"Zażółć \xD83D\xDCC8");
        const GdiFontWrapper font(description, 0);
        GdiFontWrapper read(tahoma(), 0);
        EXPECT_TRUE(read.FromJson(boost::json::parse(boost::json::serialize(font.ToJson()))));
        EXPECT_TRUE(font == read) << describe(read);
        GdiFontWrapper direct(font.ToJson(), 0);
        EXPECT_TRUE(font == direct) << describe(direct);
        EXPECT_EQ(FW_BOLD, GdiFontWrapper(font.ToJson(), FW_BOLD).GetLOGFONT().lfWeight);
    }
}

TEST(FontDocument, OfNullChangesNothing) {
    GdiFontWrapper font(tahoma(), 0);
    const HFONT handle = font.GetHFONT();
    EXPECT_FALSE(font.FromJson(nullptr));
    EXPECT_EQ(describe(tahoma()), describe(font));
    EXPECT_EQ(handle, font.GetHFONT());
    EXPECT_EQ("0 0 0 0 700 0 0 0 0 0 0 0 0 ", describe(GdiFontWrapper(boost::json::value(), 700)));
    EXPECT_EQ("0 0 0 0 0 0 0 0 0 0 0 0 0 ", describe(GdiFontWrapper(boost::json::value(), 0)));
}

TEST(FontDocument, OfAWrongShapeEndsWhereItGoesWrong) {
    struct Case {
        const char* what;
        const char* text;
        const char* outcome;
        const wchar_t* name;
    };
    const Case cases[] = {
        {"a number", "1", "not an object", L"Tahoma"},
        {"an array", "[]", "not an object", L"Tahoma"},
        {"a text", "\"Arial\"", "not an object", L"Tahoma"},
        {"no name", R"({"Params":[0,0,0,0,0,0,0,0,0,0,0,0,0]})", "out of range", L"Tahoma"},
        {"a name that is a number", R"({"Name":1,"Params":[]})", "not a string", L"Tahoma"},
        {"a name that is null", R"({"Name":null,"Params":[]})", "not a string", L"Tahoma"},
        {"no parameters", R"({"Name":"Arial"})", "out of range", L"Arial"},
        {"parameters that are null", R"({"Name":"Arial","Params":null})", "array required", L"Arial"},
        {"parameters that are an object", R"({"Name":"Arial","Params":{}})", "array required", L"Arial"},
        {"none", R"({"Name":"Arial","Params":[]})", "false", L"Arial"},
        {"twelve", R"({"Name":"Arial","Params":[1,1,1,1,1,1,1,1,1,1,1,1]})", "false", L"Arial"},
        {"fourteen", R"({"Name":"Arial","Params":[1,1,1,1,1,1,1,1,1,1,1,1,1,1]})", "false", L"Arial"},
        {"one with a fraction", R"({"Name":"Arial","Params":[-11.0,0,0,0,0,0,0,0,0,0,0,0,0]})", "not an int64",
         L"Arial"},
        {"one beyond int64", R"({"Name":"Arial","Params":[9223372036854775808,0,0,0,0,0,0,0,0,0,0,0,0]})",
         "not an int64", L"Arial"},
        {"nested ones", R"({"Name":"Arial","Params":[[0],0,0,0,0,0,0,0,0,0,0,0,0]})", "not an int64", L"Arial"},
    };
    for (const Case& c : cases) {
        GdiFontWrapper font(tahoma(-11), 0);
        const boost::json::value json = boost::json::parse(c.text);
        std::string outcome;
        try {
            outcome = font.FromJson(json) ? "true" : "false";
        } catch (const std::invalid_argument& error) {
            outcome = error.what();
        } catch (const std::out_of_range&) {
            outcome = "out of range";
        }
        EXPECT_EQ(c.outcome, outcome) << c.what;
        EXPECT_EQ(c.name, font.GetFaceName()) << c.what;
        EXPECT_EQ(-11, font.GetHeight()) << c.what;
        if (outcome != "false") {
            EXPECT_THROW(GdiFontWrapper(json, 0), std::logic_error) << c.what;
        }
    }
}

TEST(FontDocument, KeepsTheParametersBeforeAWrongOne) {
    GdiFontWrapper font(tahoma(-11), 0);
    EXPECT_THROW(font.FromJson(boost::json::parse(R"({"Name":"Arial","Params":[0,1,2,3,true,0,0,0,0,0,0,0,0]})")),
                 std::invalid_argument);
    EXPECT_EQ("0 1 2 3 400 0 0 0 1 0 0 0 0 Arial", describe(font));
}

TEST(FontDocument, TakesANameOf31UnitsAndNoLongerOne) {
    struct Case {
        const char* what;
        std::string name;
        std::wstring expected;
    };
    std::string letters;
    std::wstring wideLetters;
    std::string charts;
    std::wstring wideCharts;
    for (int count = 0; count < 15; ++count) {
        letters += "\xC5\xBC";
        wideLetters += L'ż';
        charts += "\xF0\x9F\x93\x88"; // a pair of surrogates
        wideCharts += L"\xD83D\xDCC8";
    }
    const Case cases[] = {
        {"nothing", "", L""},
        {"31 characters", std::string(31, 'n'), std::wstring(31, L'n')},
        {"32 characters", std::string(32, 'n'), L"Tahoma"},
        {"33 characters", std::string(33, 'n'), L"Tahoma"},
        {"more bytes than units", letters + letters + "n", wideLetters + wideLetters + L'n'},
        {"15 pairs and a letter", charts + "n", wideCharts + L'n'},
        {"15 pairs and two letters", charts + "nn", L"Tahoma"},
        {"16 pairs", charts + "\xF0\x9F\x93\x88", L"Tahoma"},
        {"a surrogate alone", "a\xED\xA0\x80z", L"a\xFFFD\xFFFD\xFFFDz"},
        {"bytes that are no UTF-8", "a\xFFz", L"a\xFFFDz"},
        {"a NUL inside", std::string("a\0z", 3), L"a"},
    };
    for (const Case& c : cases) {
        GdiFontWrapper font(tahoma(), 0);
        EXPECT_TRUE(font.FromJson(document(c.name))) << c.what;
        EXPECT_EQ(700, font.GetLOGFONT().lfWeight) << c.what;
        if (std::string_view(c.what) == "a surrogate alone") {
            // How many replacement characters stand for it is the system's affair.
            EXPECT_EQ(L'a', font.GetFaceName().front());
            EXPECT_EQ(L'\xFFFD', font.GetFaceName().at(1));
            EXPECT_EQ(L'z', font.GetFaceName().back());
        } else {
            EXPECT_EQ(c.expected, font.GetFaceName()) << c.what;
        }
    }
}

TEST(FontDocument, ZeroesWhatAShorterNameLeavesOfALongerOne) {
    LOGFONTW description = tahoma();
    std::fill(std::begin(description.lfFaceName), std::end(description.lfFaceName), L'x');
    GdiFontWrapper font(description, 0);
    font.FromJson(document("ab"));
    const LOGFONTW read = font.GetLOGFONT();
    EXPECT_EQ(std::wstring(L"ab") + std::wstring(30, L'\0'), std::wstring(read.lfFaceName, 32));
}

TEST(FontDocument, UnderANameTooLongChangesTheDescriptionOfAFontThatStaysInUse) {
    GdiFontWrapper font(tahoma(), 0);
    const HFONT handle = font.GetHFONT();
    EXPECT_TRUE(font.FromJson(document(std::string(32, 'n'))));
    EXPECT_EQ(700, font.GetLOGFONT().lfWeight);
    EXPECT_EQ(handle, font.GetHFONT());
    EXPECT_TRUE(font.FromJson(document("Tahoma")));
    EXPECT_NE(handle, font.GetHFONT());
}

TEST(FontDocument, WithALoneSurrogateInTheNameIsStillUtf8) {
    LOGFONTW description = tahoma();
    description.lfFaceName[0] = L'\xD83D';
    const boost::json::value form = GdiFontWrapper(description, 0).ToJson();
    EXPECT_EQ("\xEF\xBF\xBD"
              "ahoma",
              form.as_object().at("Name").as_string());
    GdiFontWrapper read(form, 0);
    EXPECT_EQ(L"\xFFFD"
              L"ahoma",
              read.GetFaceName());
}

TEST(FontDocumentAtScale, SaturatesAHeightBeyond32Bits) {
    GdiFontWrapper font(tahoma(), 0);
    EXPECT_TRUE(font.FromJson(
        boost::json::parse(R"({"Name":"a","Params":[9223372036854775807,4294967297,0,0,0,256,0,0,0,0,0,0,0]})")));
    EXPECT_EQ("2147483647 1 0 0 0 0 0 0 0 0 0 0 0 a", describe(font));
    const boost::json::value written = font.ToJson();
    EXPECT_EQ(unscaled(2147483647), written.as_object().at("Params").as_array()[0].as_int64());
}
