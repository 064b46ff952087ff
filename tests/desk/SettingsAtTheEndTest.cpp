// What is left of the settings file when the user closes the desk.
#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "DeskProcess.h"
#include "DeskSettings.h"

namespace {

/// The user's own settings file holds something else for the length of a scope.
class OwnSettings {
public:
    explicit OwnSettings(const std::string& bytes)
        : m_before(bytesOf(m_file)),
          m_existed(std::filesystem::exists(m_file)) {
        std::ofstream(m_file, std::ios::binary) << bytes;
    }
    ~OwnSettings() {
        if (m_existed)
            std::ofstream(m_file, std::ios::binary) << m_before;
        else
            std::filesystem::remove(m_file);
    }
    OwnSettings(const OwnSettings&) = delete;
    OwnSettings& operator=(const OwnSettings&) = delete;

    std::string bytes() const { return bytesOf(m_file); }

private:
    std::filesystem::path m_file = Desk::defaultSettingsFile();
    std::string m_before;
    bool m_existed;
};

std::ptrdiff_t linesOf(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n');
}

} // namespace

TEST(SettingsAtTheEnd, AnOwnFileThatCannotBeReadIsToldAndStaysAsItIs) {
    const OwnSettings own("to nie są ustawienia\n");
    const DeskRun run = runDesk({}, [] {});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(linesOf(run.errors), 1) << run.errors;
    EXPECT_NE(run.errors.find("plik zostaje"), std::string::npos) << run.errors;
    EXPECT_EQ(own.bytes(), "to nie są ustawienia\n");
}

TEST(SettingsAtTheEnd, AStyleThatCannotBeReadIsToldInOneLineAndKeepsNothingElseBack) {
    const OwnSettings own("OrtinSettings 1\n/theme=black\n/foreign=7\n/chart/white/grid/pen#1=czerwone\n"
                          "/chart/black/range/opacity=0.4\n/chart/lines=[{}]\n");
    const DeskRun run = runDesk({}, [] {});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(linesOf(run.errors), 1) << run.errors;
    EXPECT_NE(run.errors.find("nie odczytano ustawień wykresu: white/grid/pen, lines/0;"), std::string::npos)
        << run.errors;
    EXPECT_NE(own.bytes().find("/theme=black\n"), std::string::npos);
    EXPECT_NE(own.bytes().find("/foreign=7\n"), std::string::npos);
    EXPECT_NE(own.bytes().find("/chart/black/range/opacity=0.4\n"), std::string::npos);
    EXPECT_NE(own.bytes().find("/chart/unread-lines=[{}]\n"), std::string::npos);
}

TEST(SettingsAtTheEnd, AnOwnFileThatCanBeReadIsKept) {
    const OwnSettings own("OrtinSettings 1\n/theme=black\n/foreign=7\n");
    const DeskRun run = runDesk({}, [] {});
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_NE(own.bytes().find("/theme=black\n"), std::string::npos);
    EXPECT_NE(own.bytes().find("/foreign=7\n"), std::string::npos);
    EXPECT_NE(own.bytes().find("/columns/0=symbol "), std::string::npos);
}

TEST(SettingsAtTheEnd, ThatCannotBeWrittenEndWithALineAndCode1) {
    const TemporaryFolder folder;
    const auto inner = folder.file(L"inner");
    std::filesystem::create_directory(inner);
    const DeskRun run =
        runDesk({L"--settings", (inner / L"settings.txt").wstring()}, [&] { std::filesystem::remove(inner); });
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(linesOf(run.errors), 1) << run.errors;
    EXPECT_NE(run.errors.find("settings.txt"), std::string::npos) << run.errors;
}
