// The settings form of a font.
#include <gtest/gtest.h>

#include <gsl/narrow>

#include <OrtinControls/GdiFontWrapper.h>
#include <OrtinFoundation/Settings.h>

#include "GdiDescriptions.h"
#include "PretendedScale.h"
#include "support/ImportPatch.h"

namespace {

constexpr const char* kOthers = "2 3 4 500 1 7 8 9 10 11 12 13";

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

constexpr LONG kGiantHeight = 2000000000;

int WINAPI giveAGiantFont(HANDLE, int, LPVOID description) {
    *static_cast<LOGFONTW*>(description) = tahoma(kGiantHeight);
    return sizeof(LOGFONTW);
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

TEST(DefaultFontAtScale, ThrowsIfItsScaledHeightIsBeyond32Bits) {
    const support::ImportPatch patch(::GetModuleHandleW(L"OrtinControls.dll"), "gdi32.dll", "GetObjectW",
                                     &giveAGiantFont);
    if (pretendedScale() < 1.07) {
        EXPECT_EQ(scaled(kGiantHeight), GdiFontWrapper().GetHeight());
    } else {
        EXPECT_THROW(GdiFontWrapper(), gsl::narrowing_error);
        EXPECT_THROW(GdiFontWrapper(FW_BOLD), gsl::narrowing_error);
    }
    EXPECT_EQ(kGiantHeight, GdiFontWrapper(tahoma(kGiantHeight), 0).GetHeight()) << "unscaled and so unchecked";
}

TEST(DefaultFont, IsThatOfAMemberThatNobodyNames) {
    struct Style {
        COLORREF color;
        GdiFontWrapper font;
    };
    const Style style = {};
    EXPECT_TRUE(GdiFontWrapper(0) == style.font);
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
