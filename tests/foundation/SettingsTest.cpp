#include "OrtinFoundation/Settings.h"

#include <gtest/gtest.h>

#include <windows.h>

#include <climits>
#include <limits>
#include <random>

namespace {

std::string childrenOf(const Settings& node) {
    std::string names;
    for (const std::string& name : node.GetChildNames()) {
        names += name + ' ';
    }
    return names;
}

Settings readFrom(std::string_view content) {
    Settings settings;
    const ParameterStatus status = settings.LoadFromFileText(content, L"x");
    EXPECT_TRUE(status.IsSuccess()) << content;
    return settings;
}

TEST(SettingsTree, HoldsTextsUnderNames) {
    Settings settings;
    settings["table"]["columns"].SetInt(8);
    settings["table"]["title"].SetText(L"Zażółć");
    settings["theme"] = L"black";
    const Settings& read = settings;
    EXPECT_EQ(8, read["table"]["columns"].GetInt());
    EXPECT_EQ(L"Zażółć", read["table"]["title"].GetText());
    EXPECT_EQ(L"black", read["theme"].GetText());
    EXPECT_EQ("table theme ", childrenOf(settings));
    EXPECT_EQ("columns title ", childrenOf(settings["table"]));
    EXPECT_TRUE(read.HasChild("table"));
    EXPECT_FALSE(read["table"].HasText());
}

TEST(SettingsTree, ReadingAMissingNodeMakesNone) {
    const Settings settings;
    EXPECT_EQ(L"biały", settings["theme"]["colour"].GetText(L"biały"));
    EXPECT_EQ("", childrenOf(settings));
    EXPECT_FALSE(settings.HasChild("theme"));
}

TEST(SettingsTree, ConvertsToTheThreeTextTypes) {
    Settings settings;
    settings["name"] = std::string("\xC5\xBC\xC3\xB3\xC5\x82w");
    const Settings& node = settings["name"];
    const char* narrow = node;
    const std::string& utf8 = node;
    const std::wstring wide = node;
    EXPECT_STREQ("\xC5\xBC\xC3\xB3\xC5\x82w", narrow);
    EXPECT_EQ("\xC5\xBC\xC3\xB3\xC5\x82w", utf8);
    EXPECT_EQ(L"żółw", wide);
    settings["name"] = L"żółw";
    EXPECT_STREQ("\xC5\xBC\xC3\xB3\xC5\x82w", static_cast<const char*>(settings["name"]));
}

TEST(SettingsTree, CopiesShareNothing) {
    Settings original;
    original["a"]["b"] = L"1";
    original["a"].Version = 3;
    Settings copy(original);
    EXPECT_EQ(original, copy);
    copy["a"]["b"] = L"2";
    EXPECT_EQ(L"1", original["a"]["b"].GetText());
    EXPECT_FALSE(original == copy);
    original = original["a"];
    EXPECT_EQ("b ", childrenOf(original)) << "a part of the tree replaces the whole";
    EXPECT_EQ(3u, original.Version);
}

TEST(SettingsTree, ReferencesStayValidWhileOthersAreMade) {
    Settings settings;
    Settings& first = settings["first"];
    for (int index = 0; index < 1000; ++index) {
        settings[std::to_string(index)].SetInt(index);
    }
    first.SetInt(7);
    EXPECT_EQ(7, settings["first"].GetInt());
}

TEST(SettingsTree, RemovesAndClears) {
    Settings settings;
    settings["a"] = L"1";
    settings["b"] = L"2";
    EXPECT_TRUE(settings.RemoveChild("a"));
    EXPECT_FALSE(settings.RemoveChild("a"));
    EXPECT_EQ("b ", childrenOf(settings));
    settings.Clear();
    EXPECT_EQ(Settings(), settings);
}

TEST(SettingsTree, MayBecomeAPartOfItself) {
    Settings settings;
    settings["a"]["b"] = L"1";
    settings["c"] = L"2";
    settings = std::move(settings["a"]);
    EXPECT_EQ("b ", childrenOf(settings));
}

TEST(SettingsNumbers, ComeBackExactly) {
    Settings node;
    for (const int value : {0, 1, -1, INT_MAX, INT_MIN}) {
        node.SetInt(value);
        EXPECT_EQ(value, node.GetInt(5));
    }
    for (const double value : {0.0, 0.1, -1.0 / 3.0, 1e300, std::numeric_limits<double>::denorm_min(), 120.5}) {
        node.SetDouble(value);
        EXPECT_EQ(value, node.GetDouble(5.0));
    }
    node.SetDouble(120.5);
    EXPECT_EQ(L"120.5", node.GetText()) << "a point in every locale";
    for (const bool value : {false, true}) {
        node.SetBool(value);
        EXPECT_EQ(value, node.GetBool(!value));
    }
}

TEST(SettingsNumbers, GiveTheFallbackForWhatIsNoNumber) {
    Settings node;
    EXPECT_EQ(5, node.GetInt(5));
    EXPECT_EQ(5.5, node.GetDouble(5.5));
    EXPECT_TRUE(node.GetBool(true));
    for (const wchar_t* text : {L"", L"x", L"1x", L" 1", L"99999999999", L"1,5"}) {
        node = text;
        EXPECT_EQ(5, node.GetInt(5)) << text;
        EXPECT_TRUE(node.GetBool(true)) << text;
        EXPECT_FALSE(node.GetBool(false)) << text;
    }
    for (const wchar_t* text : {L"", L"x", L"1.5x", L"1,5", L"1e999"}) {
        node = text;
        EXPECT_EQ(5.5, node.GetDouble(5.5)) << text;
    }
}

TEST(SettingsFileForm, IsOneNodeALine) {
    Settings settings;
    settings["table"]["columns"].SetInt(8);
    settings["table"]["columns"]["0"].SetDouble(120.5);
    settings["table"]["columns"]["0"].Version = 2;
    settings["empty"];
    settings["blank"] = L"";
    EXPECT_EQ("OrtinSettings 1\n"
              "/table/columns=8\n"
              "/table/columns/0#2=120.5\n"
              "/empty\n"
              "/blank=\n",
              settings.ToFileText());
    EXPECT_EQ(settings, readFrom(settings.ToFileText()));
}

TEST(SettingsFileForm, KeepsEveryCharacter) {
    Settings settings;
    settings.SetText(L"korzeń");
    settings.Version = UINT32_MAX;
    settings[""] = L" odstępy ";
    settings[";a/b#c=d\\e\nf\rg"] = std::string("x\\n\n\r\0=/#;\t", 11);
    settings[""][""] = L"\xD83D\xDCC8";
    EXPECT_EQ(settings, readFrom(settings.ToFileText()));
}

TEST(SettingsFileForm, AcceptsWhatAnEditorLeaves) {
    const Settings settings = readFrom("\xEF\xBB\xBFOrtinSettings 1\r\n; uwaga\r\n\r\n/a=1\r\n/a/b=2");
    EXPECT_EQ(1, settings["a"].GetInt());
    EXPECT_EQ(2, settings["a"]["b"].GetInt());
}

TEST(SettingsFileForm, NamesTheLineThatIsWrongAndKeepsTheTree) {
    struct Case {
        const char* what;
        std::string content;
        const wchar_t* message;
    };
    const std::string header = "OrtinSettings 1\n";
    const Case cases[] = {
        {"nothing", "", L"wiersz 1: brak nagłówka OrtinSettings 1"},
        {"another header", "OrtinSettings 2\n/a=1\n", L"wiersz 1: brak nagłówka OrtinSettings 1"},
        {"a blank before the path", header + "/a=1\n /b=2\n", L"wiersz 3: ścieżka powinna zaczynać się ukośnikiem"},
        {"no slash", header + "a=1\n", L"wiersz 2: ścieżka powinna zaczynać się ukośnikiem"},
        {"a path twice", header + "/a=1\n; x\n/a=2\n", L"wiersz 4: ta ścieżka już wystąpiła"},
        {"no number of the version", header + "/a#=1\n", L"wiersz 2: po znaku # powinien stać numer wersji"},
        {"words after the version", header + "/a#1x=1\n", L"wiersz 2: po znaku # powinien stać numer wersji"},
        {"a version too great", header + "/a#4294967296\n", L"wiersz 2: po znaku # powinien stać numer wersji"},
        {"an unknown escape", header + "/a=\\x\n", L"wiersz 2: nieznany znak po ukośniku wstecznym"},
        {"half an escape", header + "/a=1\n/b=\\\n", L"wiersz 3: wiersz kończy się ukośnikiem wstecznym"},
        {"broken UTF-8", header + "/a=\xC5\n", L"wiersz 2: tekst nie jest zapisany w UTF-8"},
        {"overlong UTF-8", header + "/a=\xC0\xAF\n", L"wiersz 2: tekst nie jest zapisany w UTF-8"},
        {"a surrogate in UTF-8", header + "/a=\xED\xA0\x80\n", L"wiersz 2: tekst nie jest zapisany w UTF-8"},
        {"a NUL", header + std::string("/a=\0\n", 5), L"wiersz 2: niedozwolony znak o kodzie 0"},
        {"too deep", header + std::string(1001, '/') + "\n", L"wiersz 2: ścieżka ma zbyt wiele poziomów"},
    };
    for (const Case& each : cases) {
        Settings settings;
        settings["kept"] = L"1";
        const Settings before(settings);
        const ParameterStatus status = settings.LoadFromFileText(each.content, L"biurko.txt");
        EXPECT_EQ(Settings::FileMalformed, status.GetCode()) << each.what;
        EXPECT_EQ(std::wstring(L"Plik ustawień biurko.txt, ") + each.message, status.GetMessageText()) << each.what;
        EXPECT_EQ(before, settings) << each.what;
    }
}

TEST(SettingsFileForm, HoldsTheDeepestTreeThatItReads) {
    const std::string content = "OrtinSettings 1\n" + std::string(1000, '/') + "=1\n";
    const Settings settings = readFrom(content);
    EXPECT_EQ(content, settings.ToFileText());
}

/// A tree of random shape, with random texts over characters that mean something to the file form.
void fillRandomly(Settings& node, std::mt19937& random, int levels) {
    const auto randomText = [&] {
        std::string text;
        for (unsigned count = random() % 6; count > 0; --count) {
            text += "ab/#=\\;\n\r 0"[random() % 12]; // the terminator of the literal too
        }
        return text;
    };
    if (random() % 2 == 0) {
        node = randomText();
    }
    node.Version = random() % 3;
    for (unsigned count = levels > 0 ? random() % 4 : 0; count > 0; --count) {
        fillRandomly(node[randomText()], random, levels - 1);
    }
}

TEST(SettingsFileForm, GivesBackRandomTrees) {
    std::mt19937 random(20251120);
    for (int round = 0; round < 500; ++round) {
        Settings settings;
        fillRandomly(settings, random, 4);
        ASSERT_EQ(settings, readFrom(settings.ToFileText())) << settings.ToFileText();
    }
}

TEST(SettingsFileForm, ReadsDamagedContentWholeOrNotAtAll) {
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 2000; ++round) {
        Settings settings;
        fillRandomly(settings, random, 3);
        std::string content = settings.ToFileText();
        for (unsigned count = 1 + random() % 4; count > 0; --count) {
            content[random() % content.size()] = static_cast<char>(random());
        }
        Settings target;
        target["kept"] = L"1";
        const Settings before(target);
        if (target.LoadFromFileText(content, L"x").IsSuccess()) {
            ASSERT_EQ(target, readFrom(target.ToFileText()));
        } else {
            ASSERT_EQ(before, target);
            ++refused;
        }
    }
    EXPECT_GT(refused, 500);
}

class SettingsFile : public testing::Test {
protected:
    SettingsFile() {
        wchar_t folder[MAX_PATH];
        GetTempPathW(MAX_PATH, folder);
        m_folder = std::wstring(folder) + L"ortin-settings-" + std::to_wstring(GetCurrentProcessId());
        CreateDirectoryW(m_folder.c_str(), nullptr);
        path = m_folder + L"\\ustawienia żółte.txt";
    }
    ~SettingsFile() override {
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        DeleteFileW(path.c_str());
        EXPECT_TRUE(RemoveDirectoryW(m_folder.c_str())) << "no temporary file stays behind";
    }

    std::string content() const {
        HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        std::string read(10000, '\0');
        DWORD count = 0;
        ReadFile(file, read.data(), 10000, &count, nullptr);
        CloseHandle(file);
        read.resize(count);
        return read;
    }

    void write(const std::string& text) {
        HANDLE file = CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
        DWORD count = 0;
        WriteFile(file, text.data(), static_cast<DWORD>(text.size()), &count, nullptr);
        CloseHandle(file);
    }

    std::wstring path;

private:
    std::wstring m_folder;
};

TEST_F(SettingsFile, ComesBackAsItWasSaved) {
    Settings settings;
    settings["theme"] = L"czarny";
    EXPECT_TRUE(settings.SaveToFile(path).IsSuccess());
    EXPECT_EQ("OrtinSettings 1\n/theme=czarny\n", content());
    settings["theme"] = L"biały";
    EXPECT_TRUE(settings.SaveToFile(path).IsSuccess());
    Settings read;
    read["old"] = L"1";
    EXPECT_TRUE(read.LoadFromFile(path).IsSuccess());
    EXPECT_EQ(settings, read);
}

TEST_F(SettingsFile, ThatIsMissingIsToldApart) {
    Settings settings;
    settings["kept"] = L"1";
    const ParameterStatus status = settings.LoadFromFile(path);
    EXPECT_EQ(Settings::FileNotFound, status.GetCode());
    EXPECT_NE(std::wstring::npos, status.GetMessageText().find(path));
    EXPECT_EQ(1, settings["kept"].GetInt());
    EXPECT_EQ(Settings::FileNotFound, settings.LoadFromFile(path + L"\\nie\\ma").GetCode());
}

TEST_F(SettingsFile, ThatIsMalformedStaysAsItIs) {
    write("OrtinSettings 1\n/a=1\nb=2\n");
    Settings settings;
    const ParameterStatus status = settings.LoadFromFile(path);
    EXPECT_EQ(Settings::FileMalformed, status.GetCode());
    EXPECT_NE(std::wstring::npos, status.GetMessageText().find(path + L", wiersz 3"));
    EXPECT_EQ("OrtinSettings 1\n/a=1\nb=2\n", content());
    EXPECT_EQ(Settings(), settings);
}

TEST_F(SettingsFile, IsNotReplacedByOneThatNoLoadWouldAccept) {
    const std::string good = "OrtinSettings 1\n/a=1\n";
    write(good);
    Settings settings;
    settings["a"] = std::string("\xB3 in another code page");
    EXPECT_EQ(Settings::FileNotWritable, settings.SaveToFile(path).GetCode());
    EXPECT_EQ(good, content());
}

TEST_F(SettingsFile, ThatIsInUseIsNotTouched) {
    write("OrtinSettings 1\n/a=1\n");
    HANDLE held = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, held);
    Settings settings;
    settings["a"] = L"2";
    EXPECT_EQ(Settings::FileNotWritable, settings.SaveToFile(path).GetCode());
    EXPECT_EQ(Settings::FileNotReadable, settings.LoadFromFile(path).GetCode());
    EXPECT_EQ(2, settings["a"].GetInt());
    CloseHandle(held);
    EXPECT_EQ("OrtinSettings 1\n/a=1\n", content());
}

TEST_F(SettingsFile, IsNotWrittenIntoAMissingFolder) {
    EXPECT_EQ(Settings::FileNotWritable, Settings().SaveToFile(path + L"\\nie\\ma").GetCode());
}

} // namespace
