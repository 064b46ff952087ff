#include "core/chart/Candles.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <limits>
#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include "CsvFaults.h"
#include "core/chart/IsoDate.h"

using namespace Desk;
using namespace std::chrono_literals;

namespace {

const std::string Header = "Symbol,Date,Open,High,Low,Close,Volume\n";
constexpr std::chrono::sys_days LastDay = 2024y / 5 / 31;

CandleBook read(const std::string& bytes) {
    std::istringstream input(bytes);
    return readCandles(input, "c.csv");
}

/// Symbol and number of candles in turn.
std::string countsOf(const CandleBook& book) {
    std::string counts;
    for (const auto& [symbol, candles] : book)
        counts += symbol + ' ' + std::to_string(candles.size()) + ' ';
    return counts;
}

/// A file of candles, gone with the object.
class CandleFile {
public:
    explicit CandleFile(const CandleBook& book) {
        std::ofstream output(m_path);
        output << std::setprecision(std::numeric_limits<double>::max_digits10) << Header;
        for (const auto& [symbol, candles] : book)
            for (const Candle& candle : candles)
                output << symbol << ',' << formatIsoDate(candle.date).value() << ',' << candle.open << ','
                       << candle.high << ',' << candle.low << ',' << candle.close << ',' << candle.volume << '\n';
    }
    ~CandleFile() {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    CandleFile(const CandleFile&) = delete;
    CandleFile& operator=(const CandleFile&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path =
        std::filesystem::temp_directory_path() / ("candles " + std::to_string(std::random_device()()) + ".csv");
};

} // namespace

TEST(Candles, AreReadFromTheirColumnsBySymbol) {
    const CandleBook book = read(Header + "B,2015-01-02,2,4,1,3,100\nA,2016-02-29,10.5,11.25,9,9.5,0\n"
                                          "B,2015-01-05,3,3,3,3,2.5e3\n");
    const CandleBook expected{{"A", {{2016y / 2 / 29, 10.5, 11.25, 9.0, 9.5, 0.0}}},
                              {"B", {{2015y / 1 / 2, 2, 4, 1, 3, 100}, {2015y / 1 / 5, 3, 3, 3, 3, 2500}}}};
    EXPECT_EQ(book, expected);
}

TEST(Candles, MayHaveTheirColumnsInAnyOrderAmongOthers) {
    EXPECT_EQ(read("Volume,Note,Close,Low,High,Open,Date,Symbol\n100,x,3,1,4,2,2015-01-02,ŻUR\n"),
              (CandleBook{{"ŻUR", {{2015y / 1 / 2, 2, 4, 1, 3, 100}}}}));
}

TEST(Candles, MayBeNoneUnderAHeader) {
    EXPECT_TRUE(read(Header).empty());
}

TEST(Candles, RiseWhenTheyCloseAtTheirOpenOrAbove) {
    EXPECT_TRUE((Candle{{}, 2, 2, 2, 2, 0}).rises());
    EXPECT_TRUE((Candle{{}, 2, 3, 2, 3, 0}).rises());
    EXPECT_FALSE((Candle{{}, 3, 3, 2, 2, 0}).rises());
}

class CandlesFault : public testing::TestWithParam<FaultCase> {};

TEST_P(CandlesFault, IsToldWithPlaceFaultAndAdvice) {
    EXPECT_EQ(messageOf([](const std::string& bytes) { read(bytes); }, GetParam().bytes), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Candles, CandlesFault,
    testing::Values(
        FaultCase{"noSymbol", Header + ",2015-01-02,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 1: brak symbolu; wpisz symbol instrumentu"},
        FaultCase{"symbolInOtherEncoding", Header + "\xB3,2015-01-02,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 1: tekst nie jest w UTF-8; zapisz plik w UTF-8"},
        FaultCase{"otherFormOfDate", Header + "A,02.01.2015,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 2: „02.01.2015” nie jest datą; wpisz dzień w postaci 2015-01-02"},
        FaultCase{"shortDate", Header + "A,2015-1-2,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 2: „2015-1-2” nie jest datą; wpisz dzień w postaci 2015-01-02"},
        FaultCase{"dateWithSign", Header + "A,2015--1-02,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 2: „2015--1-02” nie jest datą; wpisz dzień w postaci 2015-01-02"},
        FaultCase{"noSuchDay", Header + "A,2015-02-29,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 2: „2015-02-29” nie jest datą; wpisz dzień w postaci 2015-01-02"},
        FaultCase{"noDate", Header + "A,,2,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 2: „” nie jest datą; wpisz dzień w postaci 2015-01-02"},
        FaultCase{"dayTwice", Header + "A,2015-01-02,2,4,1,3,100\nB,2015-01-02,2,4,1,3,1\nA,2015-01-02,2,4,1,3,100\n",
                  "c.csv, wiersz 4, kolumna 2: dzień „2015-01-02” tego symbolu występuje drugi raz; zostaw jeden z "
                  "tych wierszy"},
        FaultCase{"dayBeforeThePreviousOne", Header + "A,2015-01-05,2,4,1,3,100\nA,2015-01-02,2,4,1,3,100\n",
                  "c.csv, wiersz 3, kolumna 2: dzień „2015-01-02” jest wcześniejszy niż poprzedni tego symbolu; ułóż "
                  "wiersze symbolu od najstarszego dnia"},
        FaultCase{"noPrice", Header + "A,2015-01-02,2,4,1,,100\n",
                  "c.csv, wiersz 2, kolumna 6: brak liczby; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"priceOutOfRange", Header + "A,2015-01-02,2,1e300,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 4: liczba „1e300” jest poza zakresem; podaj liczbę od -1e18 do 1e18"},
        FaultCase{"noVolume", Header + "A,2015-01-02,2,4,1,3,\n",
                  "c.csv, wiersz 2, kolumna 7: brak liczby; wpisz liczbę z kropką dziesiętną"},
        FaultCase{"priceOfNothing", Header + "A,2015-01-02,2,4,0,3,100\n",
                  "c.csv, wiersz 2, kolumna 5: cena „0” nie jest większa od zera; popraw cenę"},
        FaultCase{"highBelowOpen", Header + "A,2015-01-02,5,4,1,3,100\n",
                  "c.csv, wiersz 2, kolumna 4: najwyższa cena dnia „4” jest niższa od innej; popraw ceny tego dnia"},
        FaultCase{"highBelowClose", Header + "A,2015-01-02,2,4,1,4.5,100\n",
                  "c.csv, wiersz 2, kolumna 4: najwyższa cena dnia „4” jest niższa od innej; popraw ceny tego dnia"},
        FaultCase{"highBelowLow", Header + "A,2015-01-02,2,4,6,3,100\n",
                  "c.csv, wiersz 2, kolumna 4: najwyższa cena dnia „4” jest niższa od innej; popraw ceny tego dnia"},
        FaultCase{"lowAboveClose", Header + "A,2015-01-02,3,4,2.5,2,100\n",
                  "c.csv, wiersz 2, kolumna 5: najniższa cena dnia „2.5” jest wyższa od innej; popraw ceny tego dnia"},
        FaultCase{"negativeVolume", Header + "A,2015-01-02,2,4,1,3,-1\n",
                  "c.csv, wiersz 2, kolumna 7: wolumen „-1” jest ujemny; popraw liczbę sztuk"}),
    nameOfFault);

TEST(Candles, NeedEachOfTheirColumns) {
    expectEachColumnIsNeeded([](const std::string& bytes) { read(bytes); }, Header, "c.csv");
}

TEST(Candles, AFileThatIsNotThereIsTold) {
    expectToldOfNoFile([](const std::filesystem::path& file) { readCandles(file); });
}

TEST(Candles, OfAFileAreReadAsTheyWereWritten) {
    CandleBook book;
    for (const char* symbol : {"ABC", "DEF", "ŻUR"})
        book[symbol] = sampleCandles(symbol, 87.31, LastDay, 750);
    const CandleFile file(book);
    EXPECT_EQ(readCandles(file.path()), book);

    const std::filesystem::path real(ORTIN_REAL_CANDLES);
    if (std::filesystem::exists(real)) {
        EXPECT_EQ(countsOf(readCandles(real)), "AAPL 753 COKE 754 GOOGL 754 TSLA 754 YHOO 619 ");
    }
}

TEST(Candles, CarriedOnMakeTheMovesOfTheirPriceFromTheirOwnClose) {
    const Candle before{LastDay, 98, 104, 97, 100, 5000};
    PriceSession session(100);
    EXPECT_EQ(carriedOn(before, session), before);
    session.take(103);
    EXPECT_EQ(carriedOn(before, session), (Candle{LastDay, 98, 104, 97, 103, 5000}));
    session.take(96.5);
    session.take(105.25);
    session.take(99);
    EXPECT_EQ(carriedOn(before, session), (Candle{LastDay, 98, 105.25, 96.5, 99, 5000}));

    PriceSession elsewhere(400);
    elsewhere.take(420);
    elsewhere.take(380);
    EXPECT_EQ(carriedOn(before, elsewhere), (Candle{LastDay, 98, 105, 95, 95, 5000})) << "the price is another one";
    PriceSession worthless(0);
    worthless.take(0.01);
    EXPECT_EQ(carriedOn(before, worthless), before);
}

TEST(SampleCandles, AreTheSameForTheSameArgumentsAndOthersForAnotherSymbol) {
    const Candles candles = sampleCandles("ABC", 120.5, LastDay, 300);
    EXPECT_EQ(candles, sampleCandles("ABC", 120.5, LastDay, 300));
    const Candles other = sampleCandles("ABD", 120.5, LastDay, 300);
    const auto equalCloses = std::count_if(candles.begin(), candles.end(), [&](const Candle& candle) {
        return candle.close == other[static_cast<std::size_t>(&candle - candles.data())].close;
    });
    EXPECT_LT(equalCloses, 30);
}

TEST(SampleCandles, AreFitToBeReadForAnyPriceAndEndAtIt) {
    for (const double price : {1e-300, 0.0000361, 0.013, 1.0, 4.27, 99.995, 3000.0, 6e5, 1e12}) {
        SCOPED_TRACE(price);
        const Candles candles = sampleCandles("XYZ", price, LastDay, 1500);
        ASSERT_EQ(candles.size(), 1500u);
        EXPECT_EQ(candles.back().close, price);
        EXPECT_EQ(candles.back().date, LastDay);
        for (std::size_t at = 0; at < candles.size(); ++at) {
            const Candle& candle = candles[at];
            ASSERT_GE(candle.high, std::max(candle.open, candle.close)) << at;
            ASSERT_LE(candle.low, std::min(candle.open, candle.close)) << at;
            ASSERT_GT(candle.low, 0.0) << at;
            ASSERT_TRUE(std::isfinite(candle.high) && std::isfinite(candle.volume)) << at;
            ASSERT_GT(candle.volume, 0.0) << at;
            const std::chrono::weekday weekday(candle.date);
            ASSERT_TRUE(weekday != std::chrono::Saturday && weekday != std::chrono::Sunday) << at;
            if (at > 0) {
                ASSERT_LT(candles[at - 1].date, candle.date) << at;
            }
        }
    }
}

TEST(SampleCandles, StayWithinSightOfTheLastCloseOverAHundredThousandDays) {
    const Candles candles = sampleCandles("LNG", 50.0, LastDay, 100'000);
    const auto [least, greatest] = std::minmax_element(candles.begin(), candles.end(),
                                                       [](const auto& a, const auto& b) { return a.close < b.close; });
    EXPECT_GT(least->close, 5.0);
    EXPECT_LT(least->close, 49.0);
    EXPECT_GT(greatest->close, 51.0);
    EXPECT_LT(greatest->close, 500.0);
}

TEST(SampleCandles, EndOnTheLastFridayWhenTheDayIsOfAWeekend) {
    EXPECT_EQ(sampleCandles("ABC", 10.0, 2024y / 6 / 2, 3).back().date, std::chrono::sys_days(2024y / 5 / 31));
}

TEST(SampleCandles, AreNoneWithoutAPrice) {
    for (const double price : {0.0, -1.0, std::nan(""), HUGE_VAL})
        EXPECT_TRUE(sampleCandles("ABC", price, LastDay, 10).empty()) << price;
    EXPECT_TRUE(sampleCandles("ABC", 1.0, LastDay, 0).empty());
}
