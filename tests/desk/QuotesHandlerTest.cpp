#include "QuotesHandler.h"

#include <OrtinControls/PrintInfoEx.h>
#include <gtest/gtest.h>

#include <functional>

#include "QuotesTable.h"
#include "StatusLine.h"
#include "support/Capture.h"
#include "support/TopLevelWindow.h"

using namespace Desk;

namespace {

constexpr int TableId = 2;
constexpr int StatusId = 4;
/// Places of the columns in their first order.
constexpr int Name = 1;
constexpr int Price = 3;
constexpr int Range = 7;

class NoEvents : public QuotesEvents {
public:
    void onSelectionChanged() override {}
    void onFindChanged() override {}
    void onTicked(const Tick&) override {}
    void onViewPainted() override {}
};

std::vector<Instrument> threeInstruments() {
    return {
        {"A", "Alfa", "s", 10.0, {}, {}, {}, 5.0, 20.0, {}},
        {"B", "Beta", "s", 10.0, {}, {}, {}, 5.0, 20.0, {}},
        {"C", "Gamma", "s", 10.0, {}, {}, {}, {}, {}, {}},
    };
}

ColumnLayout firstLayout() {
    ColumnLayout layout;
    for (const QuoteColumnInfo& info : QuoteColumns)
        layout.push_back({std::string(info.key), 90.0, true});
    return layout;
}

/// What a window has yet to paint.
class Unpainted {
public:
    explicit Unpainted(CWnd& window) : m_region(::CreateRectRgn(0, 0, 0, 0)) {
        ::GetUpdateRgn(window, m_region, FALSE);
    }
    ~Unpainted() { ::DeleteObject(m_region); }
    Unpainted(const Unpainted&) = delete;
    Unpainted& operator=(const Unpainted&) = delete;

    bool isNothing() const { return isExactly({}); }
    bool isExactly(const std::vector<CRect>& rects) const {
        const HRGN expected = ::CreateRectRgn(0, 0, 0, 0);
        for (const CRect& rect : rects) {
            const HRGN part = ::CreateRectRgn(rect.left, rect.top, rect.right, rect.bottom);
            ::CombineRgn(expected, expected, part, RGN_OR);
            ::DeleteObject(part);
        }
        const bool isEqual = ::EqualRgn(expected, m_region) != FALSE;
        ::DeleteObject(expected);
        return isEqual;
    }

private:
    HRGN m_region;
};

class QuotesInTable : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_table.Create(TableId, &m_window, false));
        m_table.SetTableHandler(&m_handler);
        m_table.LockColumns(true);
        m_table.layOutHeader();
        m_table.MoveWindow(0, 0, 2000, 600);
        m_handler.setUpColumns(firstLayout());
        m_handler.setUpRows();
        m_table.ShowWindow(SW_SHOWNOACTIVATE);
        paint();
    }

    void paint() {
        m_table.Redraw();
        m_table.body()->ValidateRect(nullptr);
    }
    CRect cell(int row, int position) {
        int left = 0;
        for (int before = 0; before < position; ++before)
            left += m_table.GetColumnWidth(m_table.GetColumnId(before));
        const int height = m_handler.ComputeItemHeight(row);
        return CRect(left, row * height, left + m_table.GetColumnWidth(m_table.GetColumnId(position)),
                     (row + 1) * height);
    }
    void tick(std::size_t instrument, double price) {
        m_handler.ticks().add({instrument, price});
        m_handler.OnTableViewDataChanged();
    }

    support::ScopedTopLevelWindow m_window{CSize(2000, 600)};
    QuoteBook m_book{threeInstruments()};
    DeskFonts m_fonts;
    NoEvents m_events;
    QuotesHandler m_handler{m_book, m_fonts, m_events};
    QuotesTable m_table{m_fonts};
};

} // namespace

TEST_F(QuotesInTable, ATickRepaintsThePriceAndItsPlaceInTheRangeAlone) {
    tick(1, 12.0);
    EXPECT_TRUE(Unpainted(*m_table.body()).isExactly({cell(1, Price), cell(1, Range)}));
    EXPECT_EQ(m_book.text(1, QuoteColumn::Price), L"12,00");
    EXPECT_EQ(m_book.text(1, QuoteColumn::Range52Weeks), L"5,00 – 20,00");
}

TEST_F(QuotesInTable, AFadingFlashRepaintsThePriceAlone) {
    tick(1, 12.0);
    paint();
    const auto now = static_cast<std::int64_t>(::GetTickCount64());
    EXPECT_FALSE(m_handler.fadeFlashes(now + 60000));
    EXPECT_TRUE(Unpainted(*m_table.body()).isExactly({cell(1, Price)}));
}

TEST_F(QuotesInTable, ATickInAHiddenColumnRepaintsWhatIsLeft) {
    m_table.ShowColumn(m_table.GetColumnId(Price), false);
    paint();
    tick(1, 12.0);
    EXPECT_TRUE(Unpainted(*m_table.body()).isExactly({cell(1, Range)}));
}

TEST_F(QuotesInTable, ASelectionThatHasBeenPaintedIsNotPaintedAgain) {
    m_handler.OnItemClick(2, CPoint(1, 1), false, 0);
    paint();
    m_handler.RefreshView();
    EXPECT_TRUE(Unpainted(*m_table.body()).isNothing());
}

TEST_F(QuotesInTable, ASelectionThatHasNotBeenPaintedIsPaintedWhole) {
    m_handler.OnItemClick(2, CPoint(1, 1), false, 0);
    m_handler.RefreshView();
    CRect client;
    m_table.body()->GetClientRect(&client);
    EXPECT_TRUE(Unpainted(*m_table.body()).isExactly({client}));
}

TEST_F(QuotesInTable, ALockedColumnOfAnotherWidthIsDrawnSoInEachRow) {
    const struct {
        const char* way;
        std::function<void()> change;
    } cases[] = {
        {"a step of a drag", [this] { m_table.TrackColumnWidthChange(Name, 300, false); }},
        {"a double click on the border", [this] { m_table.TrackColumnWidthChangeBorderDblClk(Name); }},
    };
    for (const auto& each : cases) {
        const support::Pixels before = support::Pixels::ofClient(*m_table.body());
        each.change();
        const support::Pixels shown = support::Pixels::ofClient(*m_table.body());
        paint();
        EXPECT_EQ(shown, support::Pixels::ofClient(*m_table.body())) << each.way;
        EXPECT_NE(shown, before) << each.way;
    }
}

TEST_F(QuotesInTable, ACellIsNamedByItsDisplayPositionAlsoBehindHiddenColumns) {
    m_table.ShowColumn(m_table.GetColumnId(Name), false);
    paint();
    const CPoint found = m_handler.GetCell(2, CPoint(cell(0, Price).CenterPoint().x, 1));
    EXPECT_EQ(found, CPoint(Price, 2));
    m_handler.SelectPosition(found.x, found.y);
    EXPECT_EQ(m_handler.GetSelectedPosition(), CPoint(Price, 2));
    EXPECT_EQ(m_handler.GetCell(2, CPoint(5000, 1)), CPoint(-1, 2));
}

TEST_F(QuotesInTable, AnUnknownRangeHasNoTip) {
    CString text;
    CRect known = cell(1, Range);
    EXPECT_GE(m_handler.GetToolTip(known, text), 0);
    EXPECT_STREQ(text.GetString(), L"5,00 – 20,00");
    CRect unknown = cell(2, Range);
    EXPECT_EQ(m_handler.GetToolTip(unknown, text), -1);
}

TEST_F(QuotesInTable, APrintOfTheSelectionReachesFromItsFirstRowToItsLastWhereverTheCaretStands) {
    PrintDialogContext context;
    PrintInfoEx info(&context);
    m_handler.OnItemClick(1, CPoint(1, 1), false, 0);
    m_table.OnPreparePrinting(&info);
    EXPECT_EQ(info.GetFlags() & PrintOptionSelection, 0) << "one cell";
    m_handler.selectAllRows();
    m_table.OnPreparePrinting(&info);
    EXPECT_NE(info.GetFlags() & PrintOptionSelection, 0);
    ASSERT_TRUE(m_handler.rowsOfSelection());
    EXPECT_EQ(*m_handler.rowsOfSelection(), (RowRange{0, 3}));
    EXPECT_EQ(m_handler.GetSelectedItem(), 1) << "outside of printing it is the caret";
    EXPECT_EQ(m_handler.GetSelectedItemStart(), 1);
}

TEST_F(QuotesInTable, LockedColumnsThatReachBeyondTheViewAreFittedToThePageWhole) {
    PrintDialogContext context;
    context.FitToPageArea(true);
    PrintInfoEx info(&context);
    const CRect sheet(0, 0, scaled(420), scaled(300));
    info.PrintAreaInObjectUnits(sheet);
    CRect area = sheet;
    area.DeflateRect(scaled(10), 0);
    const auto drawPage = [&] {
        const support::MemoryDevice paper(sheet.Width(), sheet.Height());
        const std::vector<std::pair<unsigned __int64, int>> rows{{1, scaled(24)}, {2, scaled(24)}, {3, scaled(24)}};
        EXPECT_TRUE(m_handler.DrawPrintRequestedItems(0, 2, area, info, rows, *CDC::FromHandle(paper.dc())));
        return paper.pixels();
    };
    const support::Pixels whole = drawPage();
    m_table.MoveWindow(0, 0, 400, 600); // the last columns lie outside
    paint();
    EXPECT_TRUE(samePixels(drawPage(), whole));
    context.FitToPageArea(false);
    EXPECT_FALSE(samePixels(drawPage(), whole)) << "only what the window shows";
}

TEST(DeskStatusLine, ANewTextRepaintsItsOwnFieldAlone) {
    support::ScopedTopLevelWindow window(CSize(1000, 60));
    DeskFonts fonts;
    StatusLine line(fonts);
    ASSERT_TRUE(line.createIn(&window, StatusId));
    line.MoveWindow(0, 0, 1000, line.height());
    line.UpdateWindow();
    line.ValidateRect(nullptr);
    line.setField(1, L"Zaznaczono 2 wiersze");
    CRect repainted;
    ASSERT_TRUE(line.GetUpdateRect(&repainted));
    line.ValidateRect(nullptr);
    line.setField(0, L"3 instrumenty");
    CRect before;
    ASSERT_TRUE(line.GetUpdateRect(&before));
    line.ValidateRect(nullptr);
    line.setField(2, L"A 12,00");
    CRect after;
    ASSERT_TRUE(line.GetUpdateRect(&after));
    EXPECT_LE(before.right, repainted.left);
    EXPECT_LE(repainted.right, after.left);
    line.ValidateRect(nullptr);
    line.setField(2, L"A 12,00");
    EXPECT_FALSE(line.GetUpdateRect(&after));
}
