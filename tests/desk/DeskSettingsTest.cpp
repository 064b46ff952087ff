#include "DeskSettings.h"

#include <OrtinFoundation/Settings.h>
#include <gtest/gtest.h>

#include "TemporaryFolder.h"

using namespace Desk;

namespace {

class DeskSettingsFile : public testing::Test {
protected:
    std::wstring holding(const std::string& lines) {
        return m_folder.write(L"settings.txt", "OrtinSettings 1\n" + lines).wstring();
    }
    DeskSettings loaded(const std::wstring& file, DeskSettings settings = {}) {
        EXPECT_TRUE(loadSettings(file, settings).IsSuccess());
        return settings;
    }

    TemporaryFolder m_folder;
};

const ColumnLayout TwoColumns{{"symbol", 80.0, true}, {"price", 90.5, false}};

} // namespace

TEST_F(DeskSettingsFile, WhatItDoesNotSayStays) {
    const DeskSettings settings = loaded(holding("/other=1\n"), {TwoColumns, true, DeskTheme::Black});
    EXPECT_EQ(settings.columns, TwoColumns);
    EXPECT_TRUE(settings.lockedColumns);
    EXPECT_EQ(settings.theme, DeskTheme::Black);
}

TEST_F(DeskSettingsFile, SaysTheThemeWhicheverItIs) {
    EXPECT_EQ(loaded(holding("/theme=black\n"), {{}, false, DeskTheme::White}).theme, DeskTheme::Black);
    EXPECT_EQ(loaded(holding("/theme=white\n"), {{}, false, DeskTheme::Black}).theme, DeskTheme::White);
}

TEST_F(DeskSettingsFile, GivesBackWhatWasKept) {
    const std::wstring file = m_folder.file(L"new.txt").wstring();
    ASSERT_TRUE(saveSettings(file, {TwoColumns, true, DeskTheme::Black}).IsSuccess());
    const DeskSettings settings = loaded(file);
    EXPECT_EQ(settings.columns, TwoColumns);
    EXPECT_TRUE(settings.lockedColumns);
    EXPECT_EQ(settings.theme, DeskTheme::Black);
}

TEST_F(DeskSettingsFile, KeepsNodesThatTheDeskDoesNotKnow) {
    const std::wstring file = holding("/printing/paper=A4\n/columns/0=symbol 100\n/columns/1=volume 70 hidden\n"
                                      "/columns/sorted=price\n/theme#3=black\n");
    ASSERT_TRUE(saveSettings(file, {TwoColumns, false, DeskTheme::White}).IsSuccess());
    Settings tree;
    ASSERT_TRUE(tree.LoadFromFile(file).IsSuccess());
    const Settings& kept = tree;
    EXPECT_EQ(kept["printing"]["paper"].GetText(), L"A4");
    EXPECT_EQ(kept["columns"]["sorted"].GetText(), L"price");
    EXPECT_EQ(kept["theme"].GetText(), L"white");
    EXPECT_EQ(loaded(file).columns,
              (ColumnLayout{{"symbol", 80.0, true}, {"price", 90.5, false}, {"volume", 70.0, false}}));
}

TEST_F(DeskSettingsFile, IsNotWrittenOverWhenItCannotBeRead) {
    const auto file = m_folder.write(L"settings.txt", "to nie są ustawienia\n");
    DeskSettings settings;
    EXPECT_FALSE(loadSettings(file.wstring(), settings).IsSuccess());
    EXPECT_FALSE(saveSettings(file.wstring(), settings).IsSuccess());
    EXPECT_EQ(bytesOf(file), "to nie są ustawienia\n");
}

TEST_F(DeskSettingsFile, MayBeMissingButNotItsFolder) {
    DeskSettings settings;
    EXPECT_TRUE(loadSettings(m_folder.file(L"absent.txt").wstring(), settings).IsSuccess());
    const std::wstring lost = m_folder.file(L"absent\\settings.txt").wstring();
    const ParameterStatus status = loadSettings(lost, settings);
    EXPECT_EQ(status.GetCode(), Settings::FileNotWritable);
    EXPECT_TRUE(status.GetMessageText().starts_with(lost + L": nie ma takiego folderu"));
}
