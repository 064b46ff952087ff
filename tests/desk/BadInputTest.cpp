#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "DeskProcess.h"

namespace {

const std::string Header = "Symbol,Name,Sector,Price,PriceEarnings,DividendYield,EarningsPerShare,Low52Weeks,"
                           "High52Weeks,MarketCap\n";

struct FileCase {
    const char* name;
    std::string bytes;
    /// What the line on standard error has to say behind the file's name.
    std::string says;
};

bool isOneLine(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n') == 1 && text.back() == '\n';
}

} // namespace

class BadInstruments : public testing::TestWithParam<FileCase> {};

TEST_P(BadInstruments, EndWithCode2OneLineAndNothingWritten) {
    const TemporaryFolder folder;
    const auto csv = folder.write(L"złe dane.csv", GetParam().bytes);
    const auto pictures = folder.file(L"out");
    const auto settings = folder.file(L"settings.txt");
    const DeskRun run =
        runDesk({L"--instruments", csv.wstring(), L"--shots", pictures.wstring(), L"--settings", settings.wstring()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors;
    EXPECT_NE(run.errors.find("złe dane.csv" + GetParam().says), std::string::npos) << run.errors;
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(std::filesystem::exists(pictures));
    EXPECT_FALSE(std::filesystem::exists(settings));
}

INSTANTIATE_TEST_SUITE_P(
    BadInput, BadInstruments,
    testing::Values(FileCase{"empty", "", ", wiersz 1, kolumna 1: plik jest pusty"},
                    FileCase{"missingColumn", "Symbol,Name\nA,B\n", ", wiersz 1, kolumna 3: brak kolumny „Sector”"},
                    FileCase{"missingField", Header + "A,b,c,1,2,3,4,5,6\n", ", wiersz 2, kolumna 10: pól jest 9"},
                    FileCase{"malformedNumber", Header + "A,b,c,1,2,3,4,5,6,7\nB,b,c,1,x,3,4,5,6,7\n",
                             ", wiersz 3, kolumna 5: „x” nie jest liczbą"},
                    FileCase{"numberOutOfRange", Header + "A,b,c,1e300,2,3,4,5,6,7\n",
                             ", wiersz 2, kolumna 4: liczba „1e300” jest poza zakresem"},
                    FileCase{"nulByte", Header + std::string("A,b\0", 4), ", wiersz 2, kolumna 2: bajt zerowy"},
                    FileCase{"symbolTwice", Header + "A,b,c,1,2,3,4,5,6,7\nA,b,c,1,2,3,4,5,6,7\n",
                             ", wiersz 3, kolumna 1: symbol „A” jest już w wierszu 2"},
                    FileCase{"openQuote", Header + "A,\"b,c,1,2,3,4,5,6,7\n",
                             ", wiersz 2, kolumna 2: cudzysłów nie jest zamknięty"}),
    [](const auto& test) { return test.param.name; });

TEST(BadInput, ALineOf100MegabytesIsRefusedAtOnce) {
    const TemporaryFolder folder;
    const auto csv = folder.write(L"long.csv", Header);
    {
        std::ofstream output(csv, std::ios::binary | std::ios::app);
        const std::string block(1 << 20, 'a');
        for (int count = 0; count < 100; ++count)
            output << block;
    }
    const DeskRun run = runDesk({L"--instruments", csv.wstring()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_NE(run.errors.find("long.csv, wiersz 2, kolumna 1: wiersz jest dłuższy niż 1 MiB"), std::string::npos);
}

TEST(BadInput, AFileThatIsNotThereEndsWithCode2) {
    const DeskRun run = runDesk({L"--instruments", L"C:\\nie ma takiego.csv"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(isOneLine(run.errors));
    EXPECT_NE(run.errors.find("C:\\nie ma takiego.csv: pliku nie ma"), std::string::npos) << run.errors;
}

TEST(BadInput, SettingsThatAreNoneEndWithCode2AndStayAsTheyAre) {
    const TemporaryFolder folder;
    const auto settings = folder.write(L"settings.txt", "to nie są ustawienia\n");
    const DeskRun run = runDesk({L"--settings", settings.wstring()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors;
    EXPECT_EQ(bytesOf(settings), "to nie są ustawienia\n");
}

TEST(BadInput, SettingsInAFolderThatIsNotThereEndWithCode2AtTheStart) {
    const TemporaryFolder folder;
    const DeskRun run = runDesk({L"--settings", folder.file(L"absent\\settings.txt").wstring()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors;
    EXPECT_NE(run.errors.find("nie ma takiego folderu"), std::string::npos) << run.errors;
    EXPECT_FALSE(std::filesystem::exists(folder.file(L"absent")));
}

TEST(BadInput, AStrangeOptionEndsWithCode2) {
    const DeskRun run = runDesk({L"--moon"});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors;
}

TEST(BadInput, AFolderForPicturesThatCannotBeMadeEndsWithCode2) {
    const TemporaryFolder folder;
    const auto file = folder.write(L"file", "x");
    const DeskRun run = runDesk({L"--shots", (file / L"out").wstring()});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors;
}

TEST(BadInput, HelpEndsWithCode0) {
    const DeskRun help = runDesk({L"--help"});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_NE(help.output.find("--instruments"), std::string::npos);
    EXPECT_EQ(help.errors, "");
}

TEST(BadInput, APrinterThatIsNotThereEndsWithCode3AndNothingWritten) {
    const TemporaryFolder folder;
    const auto pictures = folder.file(L"out");
    const DeskRun run = runDesk({L"--print", L"Żadna drukarka", L"--shots", pictures.wstring()});
    EXPECT_EQ(run.exitCode, 3);
    EXPECT_TRUE(isOneLine(run.errors)) << run.errors;
    EXPECT_TRUE(run.errors.starts_with("--print: ")) << run.errors;
    EXPECT_EQ(run.output, "");
    EXPECT_FALSE(std::filesystem::exists(pictures));
}
