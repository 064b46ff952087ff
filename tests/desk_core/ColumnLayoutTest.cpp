#include "core/ColumnLayout.h"

#include <limits>

#include <gtest/gtest.h>

using namespace Desk;

namespace {

const ColumnLayout Known{{"symbol", 80.0, true}, {"name", 200.0, true}, {"price", 90.0, true}};

std::string describe(const ColumnLayout& layout) {
    std::string text;
    for (const ArrangedColumn& column : layout)
        text += (text.empty() ? "" : " | ") + arrangedColumnText(column);
    return text;
}

} // namespace

TEST(ColumnLayout, IsTakenOverAsTheUserLeftIt) {
    const ColumnLayout kept{{"price", 50.25, true}, {"symbol", 33.0, false}, {"name", 400.0, true}};
    EXPECT_EQ(fittedLayout(kept, Known), kept);
}

TEST(ColumnLayout, WithoutAKeptOneIsTheKnownOne) {
    EXPECT_EQ(fittedLayout({}, Known), Known);
}

TEST(ColumnLayout, DropsStrangeAndRepeatedColumnsAndAddsNewOnes) {
    const ColumnLayout kept{{"name", 100.0, true}, {"moon", 100.0, true}, {"name", 300.0, false}};
    EXPECT_EQ(describe(fittedLayout(kept, Known)), "name 100 | symbol 80 | price 90");
}

TEST(ColumnLayout, ReplacesWidthsThatAreNone) {
    const double none = std::numeric_limits<double>::quiet_NaN();
    const ColumnLayout kept{{"symbol", none, true}, {"name", -5.0, true}, {"price", 1e9, true}};
    EXPECT_EQ(fittedLayout(kept, Known), Known);
}

TEST(ColumnLayout, NeverHidesAllColumns) {
    const ColumnLayout kept{{"name", 100.0, false}, {"symbol", 80.0, false}, {"price", 90.0, false}};
    EXPECT_EQ(describe(fittedLayout(kept, Known)), "name 100 | symbol 80 hidden | price 90 hidden");
}

TEST(ArrangedColumn, ComesBackFromItsText) {
    for (const ArrangedColumn& column :
         {ArrangedColumn{"name", 220.515625, true}, ArrangedColumn{"range-52-weeks", 16.0, false}})
        EXPECT_EQ(arrangedColumnFromText(arrangedColumnText(column)), column);
}

TEST(ArrangedColumn, FromRubbishIsOneThatNoLayoutUses) {
    for (const char* text : {"", " ", "name", "name x", "name 12x hidden", " 12 hidden"}) {
        const ColumnLayout fitted = fittedLayout({arrangedColumnFromText(text)}, Known);
        EXPECT_EQ(fitted.size(), Known.size()) << text;
        for (const ArrangedColumn& column : fitted)
            EXPECT_GE(column.width, LeastKeptWidth) << text;
    }
}

TEST(ColumnLayout, KeepsColumnsOfAnotherVersionBehindItsOwn) {
    const ColumnLayout current{{"symbol", 80.0, true}, {"price", 90.0, false}};
    const ColumnLayout kept{{"volume", 70.0, false}, {"price", 10.0, true}, {"", 5.0, true}, {"isin", 60.0, true}};
    EXPECT_EQ(
        withForeignColumns(current, kept),
        (ColumnLayout{{"symbol", 80.0, true}, {"price", 90.0, false}, {"volume", 70.0, false}, {"isin", 60.0, true}}));
}
