#include "core/InfoLayout.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "core/Commands.h"
#include "core/SeededRandom.h"

using namespace Desk;

namespace {

using Kind = InfoPart::Kind;

constexpr InfoSizes Sizes{400, 20, 120, 5};

/// Letters of 10 pixels in lines of 12; those of titles of 20 in lines of 24.
InfoTypefaces squareLetters() {
    return {[](InfoFont font, std::wstring_view text) {
                return static_cast<int>(text.size()) * (font == InfoFont::Title ? 20 : 10);
            },
            [](InfoFont font) { return font == InfoFont::Title ? 24 : 12; }};
}

InfoPage pageOf(const std::vector<InfoPart>& parts) {
    return layoutInfo(parts, Sizes, squareLetters());
}

std::vector<std::wstring> wrappedAt(std::wstring_view text, int width) {
    return wrapped(text, width, [](std::wstring_view words) { return static_cast<int>(words.size()) * 10; });
}

std::wstring joined(const std::vector<std::wstring>& lines) {
    std::wstring text;
    for (const std::wstring& line : lines)
        text += (text.empty() ? L"" : L" ") + line;
    return text;
}

} // namespace

TEST(InfoText, IsBrokenAtBlanksIntoLinesThatFit) {
    EXPECT_EQ(wrappedAt(L"to okno zamyka Esc", 70), (std::vector<std::wstring>{L"to okno", L"zamyka", L"Esc"}));
    EXPECT_EQ(wrappedAt(L"to okno zamyka Esc", 100), (std::vector<std::wstring>{L"to okno", L"zamyka Esc"}));
    EXPECT_EQ(wrappedAt(L"to okno", 1000), (std::vector<std::wstring>{L"to okno"}));
}

TEST(InfoText, GivesAWordThatIsTooWideALineOfItsOwn) {
    EXPECT_EQ(wrappedAt(L"a przewijanie b", 50), (std::vector<std::wstring>{L"a", L"przewijanie", L"b"}));
    EXPECT_EQ(wrappedAt(L"a b", 0), (std::vector<std::wstring>{L"a", L"b"}));
}

TEST(InfoText, HasNoLinesWithoutWords) {
    EXPECT_TRUE(wrappedAt(L"", 100).empty());
    EXPECT_TRUE(wrappedAt(L"   ", 100).empty());
}

TEST(InfoText, LosesNoWordAndFillsItsLinesAtRandomWidths) {
    SeededRandom random(3);
    for (int round = 0; round < 500; ++round) {
        std::wstring text;
        for (std::size_t word = 1 + random.below(30); word > 0; --word)
            text += (text.empty() ? L"" : L" ") + std::wstring(1 + random.below(9), L'a');
        const int width = static_cast<int>(random.below(300));
        const auto lines = wrappedAt(text, width);
        ASSERT_EQ(joined(lines), text);
        for (std::size_t line = 0; line < lines.size(); ++line) {
            const bool isOneWord = lines[line].find(L' ') == std::wstring::npos;
            ASSERT_TRUE(isOneWord || static_cast<int>(lines[line].size()) * 10 <= width);
            if (line > 0) {
                const std::size_t firstWord = lines[line].substr(0, lines[line].find(L' ')).size();
                ASSERT_GT(static_cast<int>(lines[line - 1].size() + 1 + firstWord) * 10, width) << "broken too early";
            }
        }
    }
}

TEST(InfoPage, PutsPartsOneUnderTheOther) {
    const InfoPage page = pageOf({{Kind::Title, L"", L"Tytuł"},
                                  {Kind::Text, L"", L"dwa wiersze tekstu, bo nie mieszczą się"},
                                  {Kind::Heading, L"", L"Klawisze"}});
    const std::vector<InfoLine> expected{
        {20, 20, 24, InfoFont::Title, L"Tytuł"},
        {20, 49, 12, InfoFont::Text, L"dwa wiersze tekstu, bo nie mieszczą"},
        {20, 61, 12, InfoFont::Text, L"się"},
        {20, 88, 12, InfoFont::Heading, L"Klawisze"},
    };
    EXPECT_EQ(page.lines, expected);
    EXPECT_EQ(page.rules, std::vector<int>{100});
    EXPECT_EQ(page.width, 400);
    EXPECT_EQ(page.height, 100 + 5 + 20);
}

TEST(InfoPage, PutsTheNameOfAnEntryBesideItsText) {
    const InfoPage page = pageOf({{Kind::Entry, L"Ctrl+F", L"szuka"},
                                  {Kind::Entry, L"bardzo długa nazwa", L"krótko"},
                                  {Kind::Entry, L"krótka", L"a opis jest bardzo bardzo długi"},
                                  {Kind::Entry, L"Tab", L"dalej"}});
    const std::vector<InfoLine> expected{
        {20, 20, 12, InfoFont::Name, L"Ctrl+F"},
        {140, 20, 12, InfoFont::Text, L"szuka"},
        {20, 37, 12, InfoFont::Name, L"bardzo"},
        {140, 37, 12, InfoFont::Text, L"krótko"},
        {20, 49, 12, InfoFont::Name, L"długa nazwa"},
        {20, 66, 12, InfoFont::Name, L"krótka"},
        {140, 66, 12, InfoFont::Text, L"a opis jest bardzo"},
        {140, 78, 12, InfoFont::Text, L"bardzo długi"},
        {20, 95, 12, InfoFont::Name, L"Tab"},
        {140, 95, 12, InfoFont::Text, L"dalej"},
    };
    EXPECT_EQ(page.lines, expected);
}

TEST(InfoPage, ShowsAColourBesideWhatItTells) {
    const InfoPage page = pageOf({{Kind::Sample, L"", L"kurs spadł", InfoColor::Fallen}});
    EXPECT_EQ(page.fields, (std::vector<InfoField>{{20, 20, 36, 12, InfoColor::Fallen}}));
    EXPECT_EQ(page.lines, (std::vector<InfoLine>{{140, 20, 12, InfoFont::Text, L"kurs spadł"}}));
}

TEST(InfoPage, OfTheDeskHasAllLinesInItsWidthAndNoneOverAnother) {
    const InfoSizes sizes{720, 24, 220, 6};
    const auto widthOf = [](InfoFont, std::wstring_view text) { return static_cast<int>(text.size()) * 8; };
    const InfoPage page = layoutInfo(infoParts(), sizes, {widthOf, [](InfoFont) { return 16; }});
    ASSERT_GT(page.lines.size(), 50u);
    for (std::size_t at = 0; at < page.lines.size(); ++at) {
        const InfoLine& line = page.lines[at];
        EXPECT_LE(line.left + widthOf(line.font, line.text), page.width - sizes.margin);
        EXPECT_LE(line.top + line.height, page.height - sizes.margin);
        if (at > 0) {
            const InfoLine& before = page.lines[at - 1];
            EXPECT_TRUE(before.top == line.top ? before.left != line.left : before.top + before.height <= line.top);
        }
    }
}

TEST(InfoParts, NameTheKeysOfEachCommand) {
    const std::vector<InfoPart> parts = infoParts();
    for (int command = 0; command <= static_cast<int>(Command::ShowInfo); ++command) {
        const std::wstring keys = keysOf(static_cast<Command>(command));
        EXPECT_TRUE(std::any_of(parts.begin(), parts.end(),
                                [&](const InfoPart& part) {
                                    return part.kind == Kind::Entry && part.name.find(keys) != std::wstring::npos;
                                }))
            << "command " << command;
    }
}
