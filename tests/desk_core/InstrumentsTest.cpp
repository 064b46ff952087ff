#include "core/Instruments.h"

#include <set>
#include <sstream>

#include <gtest/gtest.h>

#include "CsvFaults.h"
#include "core/SampleData.h"
#include "core/Utf8.h"

using namespace Desk;

namespace {

const std::string Header =
    "Symbol,Name,Sector,Price,PriceEarnings,DividendYield,EarningsPerShare,Low52Weeks,High52Weeks,MarketCap\n";

std::vector<Instrument> read(const std::string& bytes) {
    std::istringstream input(bytes);
    return readInstruments(input, "q.csv");
}

} // namespace

TEST(Instruments, AreReadFromTheirColumns) {
    const auto instruments = read(Header + "ABC,\"Żuraw, S.A.\",Transport,12.5,7,0.0175,-1.5,3.6e-05,20,92293693440\n");
    ASSERT_EQ(instruments.size(), 1u);
    const Instrument expected{"ABC", "Żuraw, S.A.", "Transport", 12.5, 7.0, 0.0175, -1.5, 3.6e-05, 20.0, 92293693440.0};
    EXPECT_EQ(instruments.front(), expected);
}

TEST(Instruments, MayHaveTheirColumnsInAnyOrderAmongOthers) {
    const auto instruments =
        read("EBITDA,MarketCap,High52Weeks,Low52Weeks,EarningsPerShare,DividendYield,PriceEarnings,"
             "Price,Sector,Name,Symbol,Note\nrubbish,8,7,6,5,4,3,2,s,n,X,more rubbish\n");
    ASSERT_EQ(instruments.size(), 1u);
    EXPECT_EQ(instruments.front(), (Instrument{"X", "n", "s", 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0}));
}

TEST(Instruments, KeepEmptyCellsUnknown) {
    const auto instruments = read(Header + "X,,,,,,,,,\n");
    ASSERT_EQ(instruments.size(), 1u);
    EXPECT_EQ(instruments.front(), (Instrument{"X", "", "", {}, {}, {}, {}, {}, {}, {}}));
}

TEST(Instruments, MayBeNoneUnderAHeader) {
    EXPECT_TRUE(read(Header).empty());
}

TEST(Instruments, AreReadTheSameWithByteOrderMarkAndCarriageReturns) {
    std::string bytes = "\xEF\xBB\xBF" + Header + "X,n,s,1,2,3,4,5,6,7\n";
    const auto plain = read(bytes);
    for (std::size_t at = 0; (at = bytes.find('\n', at)) != std::string::npos; at += 2)
        bytes.insert(at, 1, '\r');
    EXPECT_EQ(read(bytes), plain);
    EXPECT_EQ(plain.size(), 1u);
}

class InstrumentsFault : public testing::TestWithParam<FaultCase> {};

TEST_P(InstrumentsFault, IsToldWithPlaceFaultAndAdvice) {
    EXPECT_EQ(messageOf([](const std::string& bytes) { read(bytes); }, GetParam().bytes), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Instruments, InstrumentsFault,
    testing::Values(
        FaultCase{"numberThatIsNone", Header + "X,n,s,1,2,3,4,5,6,7\nY,n,s,12a,2,3,4,5,6,7\n",
                  "q.csv, wiersz 3, kolumna 4: „12a” nie jest liczbą; wpisz liczbę z kropką dziesiętną albo zostaw "
                  "pole puste"},
        FaultCase{"noSymbol", Header + ",n,s,1,2,3,4,5,6,7\n",
                  "q.csv, wiersz 2, kolumna 1: brak symbolu; wpisz symbol instrumentu"},
        FaultCase{"symbolTwice", Header + "X,n,s,1,2,3,4,5,6,7\n\nX,m,s,1,2,3,4,5,6,7\n",
                  "q.csv, wiersz 4, kolumna 1: symbol „X” jest już w wierszu 2; usuń jeden z tych wierszy"},
        FaultCase{"otherEncoding",
                  Header + "X,\xB3"
                           "ad,s,1,2,3,4,5,6,7\n",
                  "q.csv, wiersz 2, kolumna 2: tekst nie jest w UTF-8; zapisz plik w UTF-8"}),
    nameOfFault);

TEST(Instruments, NeedEachOfTheirColumns) {
    expectEachColumnIsNeeded([](const std::string& bytes) { read(bytes); }, Header, "q.csv");
}

TEST(Instruments, AFileThatIsNotThereIsTold) {
    expectToldOfNoFile([](const std::filesystem::path& file) { readInstruments(file); });
}

TEST(Instruments, AFolderIsNoFile) {
    EXPECT_THROW(readInstruments(std::filesystem::temp_directory_path()), InputError);
}

TEST(Utf8, KnowsWellFormedText) {
    for (const char* text : {"", "abc", "żółw", "–", "\xF0\x9F\x93\x88", "\xED\x9F\xBF", "\xF4\x8F\xBF\xBF"})
        EXPECT_TRUE(isUtf8(text)) << text;
    for (const char* text :
         {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF", "a\xC3z", "\xE2\x80"})
        EXPECT_FALSE(isUtf8(text)) << text;
}

TEST(SampleData, IsTheSameForTheSameSeed) {
    EXPECT_EQ(sampleInstruments(50, 7), sampleInstruments(50, 7));
    EXPECT_NE(sampleInstruments(50, 7), sampleInstruments(50, 8));
}

TEST(SampleData, HasUniqueSymbolsAndSensibleFigures) {
    const auto instruments = sampleInstruments(3000);
    ASSERT_EQ(instruments.size(), 3000u);
    std::set<std::string> symbols;
    std::size_t unknown = 0;
    for (const Instrument& instrument : instruments) {
        symbols.insert(instrument.symbol);
        EXPECT_TRUE(isUtf8(instrument.name) && !instrument.sector.empty());
        if (!instrument.price) {
            ++unknown;
            continue;
        }
        EXPECT_GT(*instrument.price, 0.0);
        EXPECT_LE(*instrument.low52Weeks, *instrument.price);
        EXPECT_GE(*instrument.high52Weeks, *instrument.price);
    }
    EXPECT_EQ(symbols.size(), instruments.size());
    EXPECT_GT(unknown, 0u);
}
