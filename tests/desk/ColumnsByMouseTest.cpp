#include <algorithm>

#include "DeskProcess.h"
#include "support/RealInput.h"

using ColumnsByMouse = DeskOnScreen;

namespace {

constexpr std::size_t Symbol = 0;
constexpr std::size_t Name = 1;
constexpr std::size_t Sector = 2;
constexpr std::size_t Price = 3;
constexpr std::size_t PriceEarnings = 4;

} // namespace

TEST_F(ColumnsByMouse, DraggingABorderResizesTheColumnAndTheWidthIsKept) {
    start();
    const int border = columnRight(Name) - 1;
    drag(onScreen(header(), border, scaled(10)), onScreen(header(), border + scaled(40), scaled(10)));
    close();
    EXPECT_NEAR(keptWidth("name"), 220.0, 1.0);
    EXPECT_NEAR(keptWidth("symbol"), 70.0, 1.0);
}

TEST_F(ColumnsByMouse, InColumnsThatFollowTheWindowAWiderOneTakesFromThoseAfterIt) {
    start();
    // The switch of the locked columns is the second from the right.
    support::click(onScreen(strip(), pixelsOf(strip()).width() - scaled(200), scaled(20)));
    close();
    EXPECT_NE(settings().find("/locked-columns=0"), std::string::npos);
    const double symbol = keptWidth("symbol");
    const double name = keptWidth("name");
    const double sector = keptWidth("sector");
    const double sum = keptSum();

    start();
    const int border = scaled(static_cast<int>(symbol + name)) - 1;
    drag(onScreen(header(), border, scaled(10)), onScreen(header(), border + scaled(40), scaled(10)));
    close();
    EXPECT_NEAR(keptWidth("symbol"), symbol, 0.01);
    EXPECT_NEAR(keptWidth("name"), name + 40.0, 2.0);
    EXPECT_LT(keptWidth("sector"), sector);
    EXPECT_NEAR(keptSum(), sum, 0.01);
}

TEST_F(ColumnsByMouse, ADoubleClickOnABorderFitsTheColumnToItsTexts) {
    start();
    support::doubleClick(onScreen(header(), columnRight(Name) - 1, scaled(10)));
    close();
    // "Firma 00" and the title with its arrow need far less than the 180 the column had.
    EXPECT_LT(keptWidth("name"), 120.0);
    EXPECT_GT(keptWidth("name"), 50.0);
}

TEST_F(ColumnsByMouse, DraggingAHeaderMovesTheColumnForTheScreenTheClipboardAndTheNextStart) {
    start();
    drag(title(Price), title(Symbol));
    support::click(onScreen(body(), scaled(30), rowHeight() / 2));
    const std::wstring text = copied();
    EXPECT_EQ(text.substr(0, text.find(L'\t')), L"100,50");
    close();
    const std::vector<std::string> keys = keptKeys();
    ASSERT_EQ(keys.size(), 9u);
    EXPECT_EQ(keys[0], "price");
    EXPECT_EQ(keys[1], "symbol");
    EXPECT_EQ(keys[4], "price-earnings");

    start();
    support::click(onScreen(body(), scaled(30), rowHeight() / 2));
    const std::wstring again = copied();
    EXPECT_EQ(again.substr(0, again.find(L'\t')), L"100,50");
}

TEST_F(ColumnsByMouse, AColumnInFlightIsMarkedUntilItIsDropped) {
    start();
    const support::Pixels before = pixelsOf(header());
    support::moveMouse(title(Price));
    support::pressButton();
    support::moveMouse(title(Name));
    EXPECT_TRUE(eventually([&] { return pixelsOf(header()) != before; }));
    support::moveMouse(title(Price));
    support::releaseButton();
    support::moveMouse(onScreen(statusLine(), scaled(300), 4));
    EXPECT_TRUE(eventually([&] { return pixelsOf(header()) == before; }));
}

TEST_F(ColumnsByMouse, AHeaderClickSortsWithUnknownValuesLastInEitherDirection) {
    start();
    support::click(title(PriceEarnings));
    support::chord({VK_CONTROL, 'A'});
    const std::string ascending = copiedSymbols();
    EXPECT_EQ(ascending.substr(0, 15), "S59 S58 S57 S56");
    EXPECT_EQ(ascending.substr(ascending.size() - 47), "S00 S05 S10 S15 S20 S25 S30 S35 S40 S45 S50 S55");

    clickAgain(title(PriceEarnings));
    support::chord({VK_CONTROL, 'A'});
    const std::string descending = copiedSymbols();
    EXPECT_EQ(descending.substr(0, 15), "S01 S02 S03 S04");
    EXPECT_EQ(descending.substr(descending.size() - 47), "S00 S05 S10 S15 S20 S25 S30 S35 S40 S45 S50 S55");
}

TEST_F(ColumnsByMouse, TheHeaderMenuHidesAColumnAndTheNextStartKnowsIt) {
    start();
    support::click(title(Sector), support::MouseButton::Right);
    support::typeKey(VK_DOWN);
    support::typeKey(VK_DOWN);
    support::typeKey(VK_DOWN);
    support::typeKey(VK_RETURN);
    support::click(onScreen(body(), scaled(30), rowHeight() / 2));
    EXPECT_TRUE(copied().starts_with(L"S00\tFirma 00\t100,50\t"));
    close();
    EXPECT_TRUE(keptColumns()[Sector].ends_with("hidden"));

    start();
    support::click(onScreen(body(), scaled(30), rowHeight() / 2));
    EXPECT_TRUE(copied().starts_with(L"S00\tFirma 00\t100,50\t"));
}

TEST_F(ColumnsByMouse, F7UnlocksThem) {
    start();
    support::typeKey(VK_F7);
    settle();
    close();
    EXPECT_NE(settings().find("/locked-columns=0\n"), std::string::npos) << settings();
}
