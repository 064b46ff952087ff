#include "core/PrintRange.h"

#include <gtest/gtest.h>

using namespace Desk;

namespace {

/// "from-to", or the field that is wrong and why.
std::wstring read(const std::wstring& from, const std::wstring& to, int pages = 9) {
    const auto result = readPrintRange(from, to, pages);
    if (const auto* fault = std::get_if<RangeFault>(&result))
        return (fault->end == RangeEnd::From ? L"od: " : L"do: ") + fault->sentence;
    const auto& range = std::get<PrintRange>(result);
    return std::to_wstring(range.from) + L"-" + std::to_wstring(range.to);
}

} // namespace

TEST(PrintRange, TakesPagesOfTheDocumentInBothDirections) {
    EXPECT_EQ(read(L"1", L"9"), L"1-9");
    EXPECT_EQ(read(L"5", L"5"), L"5-5");
    EXPECT_EQ(read(L"5", L"2"), L"5-2");
    EXPECT_EQ(read(L" 2\t", L"\u00A003 "), L"2-3");
}

TEST(PrintRange, NamesTheFieldAndWhatWouldBeRight) {
    EXPECT_EQ(read(L"0", L"3"), L"od: Nie ma strony 0: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"1", L"10"), L"do: Nie ma strony 10: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"-1", L"3"), L"od: „-1” nie jest numerem strony: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"1", L"dwa"), L"do: „dwa” nie jest numerem strony: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"1,5", L"3"), L"od: „1,5” nie jest numerem strony: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"1", L" "), L"do: Brak numeru strony: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"2", L"1", 1), L"od: Nie ma strony 2: wpisz 1, bo dokument ma jedną stronę.");
}

TEST(PrintRange, ANumberThatNoPageCanHaveIsNoPage) {
    EXPECT_EQ(read(L"1", L"99999999999999999999"), L"do: Nie ma strony 99999999999999999999: wpisz liczbę od 1 do 9.");
    EXPECT_EQ(read(L"4294967297", L"2"), L"od: Nie ma strony 4294967297: wpisz liczbę od 1 do 9.");
}

TEST(PrintRange, ADocumentWithoutPagesHasNoRange) {
    EXPECT_EQ(read(L"1", L"1", 0), L"od: Dokument nie ma żadnej strony.");
}

TEST(PrintRange, PagesAreToldInPolish) {
    EXPECT_EQ(pageOfText(3, 9), L"Strona 3 z 9");
    EXPECT_EQ(pagesText(1), L"1\u00A0strona");
    EXPECT_EQ(pagesText(3), L"3\u00A0strony");
    EXPECT_EQ(pagesText(9), L"9\u00A0stron");
    EXPECT_EQ(rowsText(3, 9), L"wiersze 3–9");
    EXPECT_EQ(rowsText(4, 4), L"wiersz 4");
}
