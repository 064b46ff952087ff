#include "DeskProcess.h"
#include "support/RealInput.h"

using FindByKeys = DeskOnScreen;

namespace {

/// Half-way between white and the colour of found things in the white theme.
constexpr COLORREF Marked = RGB(255, 209, 128);

} // namespace

TEST_F(FindByKeys, TypingFindsWithoutRegardToCaseAndDiacritics) {
    start();
    support::click(cell(0, 1));
    support::typeText(L"zub");
    EXPECT_TRUE(eventually([&] { return textOf(findBox()) == L"zub"; }));
    support::typeKey(VK_ESCAPE);
    EXPECT_EQ(copiedSymbols(), "S03");
}

TEST_F(FindByKeys, F3AndShiftF3GoFromOneToTheNextRoundTheEnds) {
    start();
    support::click(cell(0, 1));
    support::chord({VK_CONTROL, 'F'});
    support::typeText(L"żubr");
    support::typeKey(VK_TAB);
    EXPECT_EQ(copiedSymbols(), "S03");
    support::typeKey(VK_F3);
    EXPECT_EQ(copiedSymbols(), "S10");
    support::chord({VK_SHIFT, VK_F3});
    support::chord({VK_SHIFT, VK_F3});
    EXPECT_EQ(copiedSymbols(), "S59");
    support::typeKey(VK_F3);
    EXPECT_EQ(copiedSymbols(), "S03");
}

TEST_F(FindByKeys, FoundLettersAreMarkedUntilTheSearchEnds) {
    start();
    support::click(cell(0, 1));
    EXPECT_EQ(pixelsOf(body()).count(Marked), 0u);
    support::typeText(L"zub");
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(Marked) > 200; }));
    support::click(cell(0, 1));
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(Marked) == 0; }));
}

TEST_F(FindByKeys, HeldKeysAndCopyingInTheRowsLeaveTheFoundLettersMarked) {
    start();
    support::click(cell(0, 1));
    support::typeText(L"zub");
    support::typeKey(VK_TAB);
    settle();
    const std::size_t marked = pixelsOf(body()).count(Marked);
    EXPECT_GT(marked, 200u);
    for (const WORD key : {VK_SHIFT, VK_CONTROL, VK_CAPITAL, VK_CAPITAL}) {
        support::typeKey(key);
        settle();
        EXPECT_EQ(pixelsOf(body()).count(Marked), marked) << key;
    }
    EXPECT_EQ(copiedSymbols(), "S03");
    settle();
    EXPECT_EQ(pixelsOf(body()).count(Marked), marked);
    support::typeKey(VK_DOWN);
    EXPECT_TRUE(eventually([&] { return pixelsOf(body()).count(Marked) == 0; }));
}

TEST_F(FindByKeys, WhatIsNotThereLeavesTheSelectionAlone) {
    start();
    support::click(cell(5, 1));
    support::typeText(L"wieloryb");
    EXPECT_TRUE(eventually([&] { return textOf(findBox()) == L"wieloryb"; }));
    support::typeKey(VK_ESCAPE);
    EXPECT_EQ(copiedSymbols(), "S05");
    EXPECT_EQ(textOf(findBox()), L"");
}
