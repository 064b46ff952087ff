#include <gtest/gtest.h>

#include "DeskProcess.h"
#include "core/CommandLine.h"

namespace {

bool isPng(const std::filesystem::path& file) {
    return bytesOf(file).starts_with("\x89PNG\r\n\x1A\n");
}

SIZE sizeOfPng(const std::filesystem::path& file) {
    const std::string bytes = bytesOf(file);
    const auto numberAt = [&bytes](std::size_t first) {
        int number = 0;
        for (std::size_t at = first; at < first + 4; ++at)
            number = number << 8 | static_cast<unsigned char>(bytes.at(at));
        return number;
    };
    return {numberAt(16), numberAt(20)};
}

} // namespace

TEST(Shots, WriteEverySceneThatNeedsNoPrinterIntoAFolderThatIsMadeAndNameIt) {
    const TemporaryFolder folder;
    const DeskRun run = runDesk({L"--shots", folder.file(L"new\\pictures").wstring()});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    for (const std::wstring& name : Desk::sceneNames()) {
        const std::wstring file = name + L".png";
        const bool isWritten = !Desk::needsPrinter(name);
        EXPECT_EQ(isPng(folder.file(L"new\\pictures\\" + file)), isWritten);
        EXPECT_EQ(run.output.find(std::string(file.begin(), file.end())) != std::string::npos, isWritten);
    }
}

TEST(Shots, AreTheSameEachTimeAndForOneSceneAlone) {
    const TemporaryFolder folder;
    ASSERT_EQ(runDesk({L"--shots", folder.file(L"a").wstring()}).exitCode, 0);
    ASSERT_EQ(runDesk({L"--shots", folder.file(L"b").wstring()}).exitCode, 0);
    for (const std::wstring& name : Desk::sceneNames()) {
        const std::string first = bytesOf(folder.file(L"a\\" + name + L".png"));
        EXPECT_EQ(first, bytesOf(folder.file(L"b\\" + name + L".png")));
    }
    ASSERT_EQ(runDesk({L"--shots", folder.file(L"c").wstring(), L"--scene", L"table-found"}).exitCode, 0);
    EXPECT_EQ(bytesOf(folder.file(L"a\\table-found.png")), bytesOf(folder.file(L"c\\table-found.png")));
    EXPECT_FALSE(std::filesystem::exists(folder.file(L"c\\table-white.png")));
}

TEST(Shots, AreNoLargerThanTheScreen) {
    const TemporaryFolder folder;
    ASSERT_EQ(runDesk({L"--shots", folder.file(L"a").wstring(), L"--scene", L"chart-white"}).exitCode, 0);
    RECT screen{};
    ASSERT_TRUE(::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0));
    const SIZE size = sizeOfPng(folder.file(L"a\\chart-white.png"));
    EXPECT_LE(size.cx, screen.right - screen.left);
    EXPECT_LE(size.cy, screen.bottom - screen.top);
}

TEST(Shots, ShowAListWithoutInstruments) {
    const TemporaryFolder folder;
    const auto csv = folder.write(L"none.csv", "Symbol,Name,Sector,Price,PriceEarnings,DividendYield,EarningsPerShare,"
                                               "Low52Weeks,High52Weeks,MarketCap\r\n");
    const DeskRun run = runDesk({L"--instruments", csv.wstring(), L"--shots", folder.file(L"out").wstring()});
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    EXPECT_TRUE(isPng(folder.file(L"out\\table-found.png")));
}
