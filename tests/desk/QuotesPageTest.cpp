#include "QuotesPage.h"

#include <OrtinControls/SystemColors.h>
#include <gtest/gtest.h>

#include "support/Capture.h"

using namespace Desk;

namespace {

constexpr int RowHeight = 24;
constexpr COLORREF Paper = RGB(255, 255, 255);

/// "left-right" of each cell.
std::string describe(const std::vector<CellSpan>& cells) {
    std::string text;
    for (const CellSpan& cell : cells)
        text += (text.empty() ? "" : " ") + std::to_string(cell.left) + "-" + std::to_string(cell.right);
    return text;
}

std::vector<CellSpan> threeCells() {
    return {{QuoteColumn::Symbol, 0, 100}, {QuoteColumn::Price, 100, 300}, {QuoteColumn::Range52Weeks, 300, 400}};
}

class QuotesOnPaper : public testing::Test {
protected:
    ~QuotesOnPaper() override { SystemColors::SetThemeColor(EThemeColor::WhiteTheme); }

    support::Pixels draw(EThemeColor theme) {
        SystemColors::SetThemeColor(theme);
        support::MemoryDevice device(Sheet.Width(), Sheet.Height(), Paper);
        QuotesPage(m_book, scaled(RowHeight)).draw(*CDC::FromHandle(device.dc()), m_page);
        return support::Pixels::ofDevice(device.dc(), Sheet);
    }

    const CRect Sheet{0, 0, scaled(420), scaled(400)};
    QuoteBook m_book{
        {{"A", "Alfa", "s", 10.0, {}, {}, {}, 5.0, 20.0, {}}, {"B", "Beta", "s", {}, {}, {}, {}, {}, {}, {}}}};
    PrintedPage m_page{Sheet,
                       cellsOnPaper(threeCells(), scaled(400), true),
                       scaled(400),
                       {{0, scaled(RowHeight)}, {1, scaled(RowHeight)}},
                       L"Notowania",
                       L"2 instrumenty",
                       L"",
                       3,
                       9};
};

} // namespace

TEST(CellsOnPaper, AreFittedInProportion) {
    EXPECT_EQ(describe(cellsOnPaper(threeCells(), 800, true)), "0-200 200-600 600-800");
    EXPECT_EQ(describe(cellsOnPaper(threeCells(), 200, true)), "0-50 50-150 150-200");
}

TEST(CellsOnPaper, StayAsTheyAreAndThoseOutsideAreLeftOut) {
    EXPECT_EQ(describe(cellsOnPaper(threeCells(), 800, false)), "0-100 100-300 300-400");
    EXPECT_EQ(describe(cellsOnPaper(threeCells(), 300, false)), "0-100 100-300");
    EXPECT_EQ(describe(cellsOnPaper({}, 300, true)), "");
}

TEST_F(QuotesOnPaper, AreTheSameFromBothThemes) {
    const support::Pixels white = draw(EThemeColor::WhiteTheme);
    EXPECT_TRUE(samePixels(draw(EThemeColor::BlackTheme), white));
    EXPECT_GT(white.count(RGB(0, 0, 0)), 300u);
    EXPECT_GT(white.count(Paper), white.count(RGB(0, 0, 0)));
}

TEST_F(QuotesOnPaper, LeaveTheEdgesOfTheSheetEmpty) {
    const support::Pixels page = draw(EThemeColor::BlackTheme);
    const int edge = scaled(10);
    const RECT sides[] = {{0, 0, edge, page.height()},
                          {page.width() - edge, 0, page.width(), page.height()},
                          {0, 0, page.width(), edge},
                          {0, page.height() - edge, page.width(), page.height()}};
    for (const RECT& side : sides)
        EXPECT_EQ(page.onlyColour(side), Paper);
}

TEST_F(QuotesOnPaper, ALongTextStaysInItsColumn) {
    m_page.cells = {{QuoteColumn::Name, 0, scaled(60)}};
    QuoteBook book({{"A", std::string(300, 'W'), "s", {}, {}, {}, {}, {}, {}, {}}});
    support::MemoryDevice device(Sheet.Width(), Sheet.Height(), Paper);
    m_page.rows.resize(1);
    QuotesPage page(book, scaled(RowHeight));
    page.draw(*CDC::FromHandle(device.dc()), m_page);
    const int top = marginAboveRows(page.sizes());
    const RECT behind{scaled(10 + 60), top, scaled(410), top + scaled(RowHeight) - 1};
    EXPECT_EQ(support::Pixels::ofDevice(device.dc(), Sheet).onlyColour(behind), Paper);
}
