#include "core/TabSeparatedText.h"

#include <gtest/gtest.h>

using namespace Desk;

TEST(TabSeparatedText, PartsCellsByTabsAndEndsRows) {
    TabSeparatedText table;
    table.addCell(L"a");
    table.addCell(L"");
    table.addCell(L"c");
    table.endRow();
    table.addCell(L"");
    table.addCell(L"d");
    table.endRow();
    EXPECT_EQ(table.text(), L"a\t\tc\r\n\td\r\n");
}

TEST(TabSeparatedText, KeepsTheShapeWhateverACellHolds) {
    TabSeparatedText table;
    table.addCell(L"a\tb");
    table.addCell(L"c\r\nd");
    table.endRow();
    EXPECT_EQ(table.text(), L"a b\tc  d\r\n");
}
