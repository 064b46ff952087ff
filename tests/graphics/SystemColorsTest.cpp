#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>
#include <string>

#include <OrtinControls/SystemColors.h>

namespace {

constexpr int kRoles = 35;

// As they are written in markup: red, green, blue.
constexpr const wchar_t* kWhite[kRoles] = {
    L"#565656", L"#B0B0B0", L"#8DACDA", L"#FFFFFF", L"#EDEDF3", L"#6289C4", L"#2A579A", L"#FFA200", L"#AAAFB8",
    L"#787D87", L"#2B579A", L"#7F9DB9", L"#E2E2E2", L"#FF0000", L"#808080", L"#FFFFFF", L"#2B579A", L"#777777",
    L"#FFFFFF", L"#F4F4F4", L"#D1D1D1", L"#699100", L"#FF2E00", L"#C8C8C8", L"#104064", L"#D5E1F2", L"#A3BDE3",
    L"#06B025", L"#E6E6E6", L"#BCBCBC", L"#DCDCDC", L"#C9C7BA", L"#999999", L"#74A0DB", L"#C0C0C0",
};
constexpr const wchar_t* kBlack[kRoles] = {
    L"#BEBEBE", L"#646464", L"#464646", L"#191919", L"#191919", L"#3D526E", L"#486FA4", L"#74A0DB", L"#121212",
    L"#8C8C8C", L"#848484", L"#848484", L"#444444", L"#FF0000", L"#808080", L"#FFFFFF", L"#2B579A", L"#BEBEBE",
    L"#282828", L"#1E1E1E", L"#323232", L"#4D601B", L"#8F4738", L"#828282", L"#5386CA", L"#808080", L"#444444",
    L"#569D32", L"#505050", L"#000000", L"#DCDCDC", L"#C9C7BA", L"#999999", L"#74A0DB", L"#42699E",
};

EThemeColorType role(int number) {
    return static_cast<EThemeColorType>(number);
}

/// Starts and ends with the white theme and an empty table of the client.
class ThemeColours : public testing::Test {
protected:
    ~ThemeColours() override {
        SystemColors::SetThemeColor(WhiteTheme);
        for (unsigned int index = 0; index < 62; ++index) {
            SystemColors::UpdateColor(index, 0);
        }
    }

    static void setTheme(int theme) { SystemColors::SetThemeColor(static_cast<EThemeColor>(theme)); }
};

/// The setting of Windows for the length of a scope.
class LightThemeValue {
public:
    LightThemeValue() {
        ::RegCreateKeyExW(HKEY_CURRENT_USER, L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize", 0,
                          nullptr, 0, KEY_ALL_ACCESS, nullptr, &m_key, nullptr);
        DWORD value = 0;
        DWORD size = sizeof value;
        if (::RegQueryValueExW(m_key, kName, nullptr, nullptr, reinterpret_cast<BYTE*>(&value), &size) == 0) {
            m_before = value;
        }
    }
    LightThemeValue(const LightThemeValue&) = delete;
    LightThemeValue& operator=(const LightThemeValue&) = delete;
    ~LightThemeValue() {
        if (m_before) {
            set(*m_before);
        } else {
            remove();
        }
        ::RegCloseKey(m_key);
    }

    void set(DWORD value) { write(REG_DWORD, &value, sizeof value); }
    void setBytes(DWORD value) { write(REG_BINARY, &value, sizeof value); }
    void setText(const std::wstring& text) {
        write(REG_SZ, text.c_str(), static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
    }
    void remove() { ::RegDeleteValueW(m_key, kName); }

private:
    void write(DWORD type, const void* data, DWORD size) {
        ASSERT_EQ(0, ::RegSetValueExW(m_key, kName, 0, type, static_cast<const BYTE*>(data), size));
    }

    static constexpr const wchar_t* kName = L"AppsUseLightTheme";

    HKEY m_key = nullptr;
    std::optional<DWORD> m_before;
};

} // namespace

TEST_F(ThemeColours, BeginWhite) {
    EXPECT_EQ(WhiteTheme, SystemColors::GetCurrentDomainColor());
    EXPECT_EQ(0, WhiteTheme);
    EXPECT_EQ(1, BlackTheme);
    EXPECT_TRUE(SystemColors::Validate());
}

TEST_F(ThemeColours, HaveAColourForEachRoleOfBothThemes) {
    for (int number = 0; number < kRoles; ++number) {
        setTheme(WhiteTheme);
        EXPECT_EQ(kWhite[number], SystemColors::GetMarkupColor(SystemColors::GetThemeColor(role(number)))) << number;
        setTheme(BlackTheme);
        EXPECT_EQ(kBlack[number], SystemColors::GetMarkupColor(SystemColors::GetThemeColor(role(number)))) << number;
    }
}

TEST_F(ThemeColours, OfAnUnknownRoleThrow) {
    for (const int theme : {0, 1}) {
        setTheme(theme);
        for (const int number : {kRoles, kRoles + 1, 1000000, -1}) {
            try {
                (void)SystemColors::GetThemeColor(role(number));
                FAIL() << number;
            } catch (const std::out_of_range& failure) {
                EXPECT_STREQ("invalid array<T, N> subscript", failure.what());
            }
        }
    }
}

TEST_F(ThemeColours, OfAnUnknownThemeAreMagentaWhateverTheRole) {
    for (const int theme : {2, -1, 77}) {
        setTheme(theme);
        EXPECT_EQ(theme, SystemColors::GetCurrentDomainColor());
        for (const int number : {0, 34, kRoles, -1, 1000000}) {
            EXPECT_EQ(0xFF00FFU, SystemColors::GetThemeColor(role(number))) << theme << ' ' << number;
        }
    }
}

TEST_F(ThemeColours, OfTheClientAreNoughtUntilTheyAreSet) {
    for (unsigned int index = 0; index < 62; ++index) {
        EXPECT_EQ(0U, SystemColors::GetXThemeColor(index)) << index;
        SystemColors::UpdateColor(index, 0x010203 + index);
    }
    for (unsigned int index = 0; index < 62; ++index) {
        EXPECT_EQ(0x010203U + index, SystemColors::GetXThemeColor(index)) << index;
    }
}

TEST_F(ThemeColours, OfTheClientAreIgnoredOutsideTheTable) {
    SystemColors::UpdateColor(61, 5);
    for (const unsigned int index : {62U, 63U, 1000000U, ~0U}) {
        SystemColors::UpdateColor(index, 0x123456);
        EXPECT_EQ(0U, SystemColors::GetXThemeColor(index)) << index;
    }
    EXPECT_EQ(5U, SystemColors::GetXThemeColor(61));
    for (unsigned int index = 0; index < 61; ++index) {
        EXPECT_EQ(0U, SystemColors::GetXThemeColor(index)) << index;
    }
}

TEST_F(ThemeColours, OfTheBackstageAreTexts) {
    struct Case {
        int theme;
        bool alt;
        const wchar_t* text;
    };
    const Case cases[] = {
        {0, false, L"#646464"}, {0, true, L"#2b579a"},  {1, false, L"#eeeeee"},
        {1, true, L"#dddddd"},  {2, false, L"#646464"}, {2, true, L"#646464"},
    };
    for (const Case& c : cases) {
        setTheme(c.theme);
        EXPECT_STREQ(c.text, SystemColors::GetBackstageColorString(c.alt)) << c.theme << ' ' << c.alt;
    }
}

TEST_F(ThemeColours, AreWrittenInMarkupWithCapitalsAndRedFirst) {
    EXPECT_EQ(L"#FF0000", SystemColors::GetMarkupColor(0x0000FF));
    EXPECT_EQ(L"#0000FF", SystemColors::GetMarkupColor(0xFF0000));
    EXPECT_EQ(L"#0A0B0C", SystemColors::GetMarkupColor(0x0C0B0A));
    EXPECT_EQ(L"#000000", SystemColors::GetMarkupColor(0));
    EXPECT_EQ(L"#FFFFFF", SystemColors::GetMarkupColor(0xFFFFFFFF)) << "the high byte is no colour";
}

TEST_F(ThemeColours, OfWindowsAreReportedAndNotTaken) {
    struct Case {
        DWORD value;
        EThemeColor theme;
    };
    LightThemeValue setting;
    for (const Case& c :
         {Case{0, BlackTheme}, Case{1, WhiteTheme}, Case{2, BlackTheme}, Case{0xFFFFFFFF, BlackTheme}}) {
        setting.set(c.value);
        EXPECT_EQ(std::optional(c.theme), SystemColors::GetWindowsThemeSetting()) << c.value;
        EXPECT_EQ(WhiteTheme, SystemColors::GetCurrentDomainColor());
    }
}

TEST_F(ThemeColours, OfWindowsAreUnknownWithoutTheValueOrWithOneOfAnotherKind) {
    LightThemeValue setting;
    setting.remove();
    EXPECT_EQ(std::nullopt, SystemColors::GetWindowsThemeSetting());
    setting.setText(L"1");
    EXPECT_EQ(std::nullopt, SystemColors::GetWindowsThemeSetting());
    setting.setBytes(1);
    EXPECT_EQ(std::nullopt, SystemColors::GetWindowsThemeSetting()) << "as wide as a number, but none";
}
