#include "core/QuoteColumns.h"

#include <gtest/gtest.h>

#include "core/KnownFirstSort.h"

using namespace Desk;

namespace {

const Instrument Known{"ABC", "Żuraw", "Transport", 150.0, 12.345, 0.0175, -1.5, 100.0, 200.0, 92293693440.0};
const Instrument Unknown{"XYZ", "", "", {}, {}, {}, {}, {}, {}, {}};

std::string sorted(std::string items, bool descending) {
    std::vector<char> letters(items.begin(), items.end());
    // Capitals are unknown; small letters compare without regard to nothing else.
    sortKnownFirst(
        letters, descending, [](char letter) { return letter >= 'a'; }, [](char a, char b) { return a < b; });
    return std::string(letters.begin(), letters.end());
}

} // namespace

TEST(QuoteColumns, ShowFiguresInPolish) {
    EXPECT_EQ(figureText(QuoteColumn::Price, Known), L"150,00");
    EXPECT_EQ(figureText(QuoteColumn::PriceEarnings, Known), L"12,35");
    EXPECT_EQ(figureText(QuoteColumn::DividendYield, Known), L"1,75%");
    EXPECT_EQ(figureText(QuoteColumn::EarningsPerShare, Known), L"-1,50");
    EXPECT_EQ(figureText(QuoteColumn::Range52Weeks, Known), L"100,00 – 200,00");
    EXPECT_EQ(figureText(QuoteColumn::MarketCap, Known), L"92,29\u00A0mld");
}

TEST(QuoteColumns, HaveNoTextForTheUnknown) {
    for (const QuoteColumnInfo& info : QuoteColumns) {
        EXPECT_EQ(figureText(info.column, Unknown), L"") << info.key;
        EXPECT_FALSE(figureOf(info.column, Unknown)) << info.key;
    }
}

TEST(QuoteColumns, AreEitherWordsOrFigures) {
    for (const QuoteColumnInfo& info : QuoteColumns)
        EXPECT_NE(wordsOf(info.column, Known) != nullptr, figureOf(info.column, Known).has_value()) << info.key;
    EXPECT_EQ(*wordsOf(QuoteColumn::Name, Known), "Żuraw");
}

TEST(PlaceInRange, StaysBetweenLowAndHigh) {
    Instrument instrument = Known;
    EXPECT_EQ(placeInRange(instrument), 0.5);
    instrument.price = 90.0;
    EXPECT_EQ(placeInRange(instrument), 0.0);
    instrument.price = 260.0;
    EXPECT_EQ(placeInRange(instrument), 1.0);
}

TEST(PlaceInRange, NeedsARealRange) {
    Instrument instrument = Known;
    instrument.high52Weeks = instrument.low52Weeks;
    EXPECT_FALSE(placeInRange(instrument));
    instrument.high52Weeks = 50.0;
    EXPECT_FALSE(placeInRange(instrument));
    EXPECT_FALSE(placeInRange(Unknown));
}

TEST(KnownFirstSort, PutsUnknownItemsLastInEitherDirection) {
    EXPECT_EQ(sorted("bXcaYd", false), "abcdXY");
    EXPECT_EQ(sorted("bXcaYd", true), "dcbaXY");
    EXPECT_EQ(sorted("XY", true), "XY");
    EXPECT_EQ(sorted("", false), "");
}

TEST(KnownFirstSort, KeepsTheOrderOfEqualItemsInEitherDirection) {
    struct Item {
        int key;
        char name;
    };
    for (const bool descending : {false, true}) {
        std::vector<Item> items{{1, 'a'}, {1, 'b'}, {1, 'c'}};
        sortKnownFirst(
            items, descending, [](const Item&) { return true; },
            [](const Item& a, const Item& b) { return a.key < b.key; });
        EXPECT_EQ(items[0].name, 'a');
        EXPECT_EQ(items[2].name, 'c');
    }
}
