// The JSON form of a font.
#include <gtest/gtest.h>

#include <boost/json.hpp>

#include <OrtinControls/GdiFontWrapper.h>

#include "GdiDescriptions.h"
#include "PretendedScale.h"

namespace {

/// A document of a font whose name is `name` in UTF-8.
boost::json::value document(std::string_view name) {
    return {{"Name", boost::json::string(name)}, {"Params", {-9, 0, 0, 0, 700, 0, 0, 0, 1, 0, 0, 0, 0}}};
}

} // namespace

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
        {"bytes that are no UTF-8", "a\xFFz", L"a\xFFFDz"},
        {"a NUL inside", std::string("a\0z", 3), L"a"},
    };
    for (const Case& c : cases) {
        GdiFontWrapper font(tahoma(), 0);
        EXPECT_TRUE(font.FromJson(document(c.name))) << c.what;
        EXPECT_EQ(700, font.GetLOGFONT().lfWeight) << c.what;
        EXPECT_EQ(c.expected, font.GetFaceName()) << c.what;
    }
}

TEST(FontDocument, ReplacesASurrogateAlone) {
    GdiFontWrapper font(tahoma(), 0);
    EXPECT_TRUE(font.FromJson(document("a\xED\xA0\x80z")));
    // How many replacement characters stand for it is the system's affair.
    EXPECT_EQ(L'a', font.GetFaceName().front());
    EXPECT_EQ(L'\xFFFD', font.GetFaceName().at(1));
    EXPECT_EQ(L'z', font.GetFaceName().back());
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

TEST(FontDocument, NestedDeeplyIsRefusedWhereItGoesWrong) {
    boost::json::value deep = 1;
    for (int level = 0; level < 1000; ++level) {
        boost::json::array outer;
        outer.push_back(std::move(deep));
        deep = std::move(outer);
    }
    GdiFontWrapper font(tahoma(), 0);
    EXPECT_THROW(font.FromJson(deep), std::invalid_argument);
    EXPECT_THROW(font.FromJson({{"Name", deep}, {"Params", deep}}), std::invalid_argument);
    EXPECT_EQ(describe(tahoma()), describe(font));
    EXPECT_FALSE(font.FromJson({{"Name", "Arial"}, {"Params", deep}})) << "a list of one";
    EXPECT_EQ(L"Arial", font.GetFaceName());
}
