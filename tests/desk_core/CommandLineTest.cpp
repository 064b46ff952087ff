#include "core/CommandLine.h"

#include <gtest/gtest.h>

using namespace Desk;

namespace {

DeskOptions accepted(const std::vector<std::wstring>& arguments) {
    const auto parsed = parseCommandLine(arguments);
    if (const auto* refusal = std::get_if<Refusal>(&parsed)) {
        ADD_FAILURE() << "refused with code " << refusal->exitCode;
        return {};
    }
    return std::get<DeskOptions>(parsed);
}

Refusal refused(const std::vector<std::wstring>& arguments) {
    const auto parsed = parseCommandLine(arguments);
    const auto* refusal = std::get_if<Refusal>(&parsed);
    return refusal ? *refusal : Refusal{L"accepted", 0};
}

} // namespace

TEST(CommandLine, WithoutArgumentsAsksForNothing) {
    const DeskOptions options = accepted({});
    EXPECT_FALSE(options.instruments || options.theme || options.shots || options.scene || options.settings);
    EXPECT_EQ(options.ticksPerSecond, 0);
    EXPECT_FALSE(options.help);
}

TEST(CommandLine, TakesAllOptionsInAnyOrder) {
    const DeskOptions options =
        accepted({L"--ticks", L"50", L"--scene", L"table-sorted", L"--theme", L"black", L"--shots", L"out dir",
                  L"--settings", L"a.xml", L"--instruments", L"zażółć.csv"});
    EXPECT_EQ(options.instruments, L"zażółć.csv");
    EXPECT_EQ(options.theme, DeskTheme::Black);
    EXPECT_EQ(options.shots, L"out dir");
    EXPECT_EQ(options.scene, L"table-sorted");
    EXPECT_EQ(options.settings, L"a.xml");
    EXPECT_EQ(options.ticksPerSecond, 50);
}

TEST(CommandLine, TheLastOfTwoWins) {
    EXPECT_EQ(accepted({L"--theme", L"black", L"--theme", L"white"}).theme, DeskTheme::White);
}

TEST(CommandLine, RefusesWhatItDoesNotKnowWithCode2) {
    for (const std::vector<std::wstring>& arguments : std::vector<std::vector<std::wstring>>{
             {L"--moon"},
             {L"file.csv"},
             {L""},
             {L"--theme"},
             {L"--theme", L"pink"},
             {L"--instruments"},
             {L"--instruments", L"--candles", L"--theme"},
             {L"--instruments", L""},
             {L"--ticks", L"-1"},
             {L"--ticks", L"many"},
             {L"--ticks", L"100001"},
             {L"--ticks", L"99999999999999999999"},
             {L"--shots", L"out", L"--scene", L"moon"},
             {L"--scene", L"table-white"},
         }) {
        const Refusal refusal = refused(arguments);
        EXPECT_EQ(refusal.exitCode, BadInputExitCode) << arguments.size();
        EXPECT_EQ(refusal.text.find(L'\n'), std::wstring::npos);
    }
}

TEST(CommandLine, PrintingGoesAloneAndWithPictures) {
    EXPECT_EQ(accepted({L"--print", L"Drukarka w biurze"}).print, L"Drukarka w biurze");
    const DeskOptions both = accepted({L"--shots", L"out", L"--print", L"PDF", L"--scene", L"print-status"});
    EXPECT_EQ(both.print, L"PDF");
    EXPECT_EQ(both.scene, L"print-status");
    EXPECT_EQ(refused({L"--print"}).exitCode, BadInputExitCode);
}

TEST(CommandLine, ASceneOfPrintingNeedsAPrinter) {
    for (const std::wstring& scene : sceneNames())
        EXPECT_EQ(refused({L"--shots", L"out", L"--scene", scene}).exitCode,
                  needsPrinter(scene) ? BadInputExitCode : 0);
    EXPECT_TRUE(needsPrinter(L"preview-white"));
    EXPECT_TRUE(needsPrinter(L"print-status"));
    EXPECT_FALSE(needsPrinter(L"table-white"));
}

TEST(CommandLine, TakesCandles) {
    EXPECT_EQ(accepted({L"--candles", L"a.csv"}).candles, L"a.csv");
    EXPECT_EQ(refused({L"--candles"}).exitCode, BadInputExitCode);
}

TEST(CommandLine, HelpNamesEverySceneAndOption) {
    const std::wstring help = helpText();
    for (const std::wstring& scene : sceneNames())
        EXPECT_NE(help.find(scene), std::wstring::npos);
    for (const wchar_t* option :
         {L"--instruments", L"--theme", L"--ticks", L"--settings", L"--print", L"--shots", L"--scene", L"--help"})
        EXPECT_NE(help.find(option), std::wstring::npos);
    EXPECT_TRUE(accepted({L"--help"}).help);
}

TEST(CommandLine, HelpSaysWhatPicturesIgnore) {
    const std::wstring help = helpText();
    for (const wchar_t* option : {L"  --theme", L"  --ticks"}) {
        const std::size_t at = help.find(option);
        EXPECT_NE(help.substr(at, help.find(L'\n', at) - at).find(L"z --shots bez znaczenia"), std::wstring::npos);
    }
}
