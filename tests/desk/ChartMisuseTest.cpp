// What hands do that mean no harm: quick, unfinished, outside, and on numbers that a chart seldom has.
#include <array>
#include <random>

#include "ChartOnHost.h"
#include "core/chart/ChartTexts.h"
#include "support/Resources.h"

using namespace Desk;

namespace {

class ChartMisused : public ChartOnHost {
protected:
    void openWith(CandleBook book) {
        m_pane = std::make_unique<ChartPane>(CandleSource(std::move(book)), ChartMemory(), m_fonts);
        ASSERT_TRUE(m_pane->createIn(&m_host, PaneId));
        CRect client;
        m_host.GetClientRect(&client);
        m_pane->MoveWindow(0, 0, client.Width(), client.Height());
        show("ABC");
    }
    void show(const std::string& symbol) {
        const Instrument instrument = named(symbol);
        m_pane->show(&instrument);
    }
    CPoint middleOfLine(std::size_t index) {
        const TrendLine& line = m_pane->model().lines().line(index);
        const ChartPoint middle{(line.from.place + line.to.place) / 2, (line.from.price + line.to.price) / 2};
        const ChartPixel pixel = Desk::pixelOf(middle, frame().time, frame().prices);
        return {static_cast<int>(pixel.x), static_cast<int>(pixel.y)};
    }
    CPoint outside() {
        CRect client;
        canvas().GetClientRect(&client);
        return client.BottomRight() + CPoint(40, 40);
    }
};

/// The system keeps devices of windows for the next who asks, as many as were ever in use at once, with two handles
/// more for each. So many at once no act needs.
void takeManyDevicesOnce(HWND window) {
    std::array<HDC, 24> taken{};
    for (HDC& each : taken)
        each = ::GetDC(window);
    for (const HDC each : taken)
        ::ReleaseDC(window, each);
}

Candle candle(int day, double open, double high, double low, double close, double volume) {
    return {std::chrono::sys_days(std::chrono::days(16000 + day)), open, high, low, close, volume};
}

} // namespace

TEST_F(ChartMisused, AMouseThatLeavesInADragLeavesNothingHoveredBehind) {
    open(200);
    drawLine();
    const CPoint middle = middleOfLine(0);
    mouse(WM_MOUSEMOVE, middle);
    ASSERT_EQ(state().hovered, lineObject(0));
    ASSERT_TRUE(state().crossHair);
    drag(middle, outside());
    EXPECT_EQ(state().hovered, ChartObject{});
    EXPECT_FALSE(state().crossHair);
}

TEST_F(ChartMisused, AQuickSecondPressDragsAsTheFirstDoes) {
    open(200);
    drawLine();
    const CPoint middle = middleOfLine(0);
    const TrendLine before = m_pane->model().lines().line(0);
    mouse(WM_LBUTTONDOWN, middle, MK_LBUTTON);
    mouse(WM_LBUTTONUP, middle);
    mouse(WM_LBUTTONDBLCLK, middle, MK_LBUTTON);
    mouse(WM_MOUSEMOVE, middle + CPoint(30, 0), MK_LBUTTON);
    mouse(WM_LBUTTONUP, middle + CPoint(30, 0));
    EXPECT_GT(m_pane->model().lines().line(0).from.place, before.from.place);
}

TEST_F(ChartMisused, ALineHardlyBegunIsNotKeptWhenAnotherInstrumentComes) {
    openWith({{"ABC", wavingCandles(200)}, {"DEF", wavingCandles(200)}});
    const CPoint from = emptyPixel();
    canvas().SendMessage(WM_KEYDOWN, 'L', 0);
    mouse(WM_LBUTTONDOWN, from, MK_LBUTTON);
    ASSERT_EQ(m_pane->model().lines().lineCount(), 1u);
    show("DEF");
    mouse(WM_MOUSEMOVE, from + CPoint(60, 30), MK_LBUTTON);
    mouse(WM_LBUTTONUP, from + CPoint(60, 30));
    EXPECT_EQ(m_pane->model().memory().lines.size(), 0u);

    canvas().SendMessage(WM_KEYDOWN, 'L', 0);
    mouse(WM_LBUTTONDOWN, from, MK_LBUTTON);
    mouse(WM_MOUSEMOVE, from + CPoint(60, 30), MK_LBUTTON);
    show("ABC");
    mouse(WM_LBUTTONUP, from + CPoint(60, 30));
    EXPECT_EQ(m_pane->model().memory().lines.size(), 1u) << "one that is there is";
}

TEST_F(ChartMisused, LabelsOfPricesCloseToEachOtherHaveRoom) {
    Candles candles = wavingCandles(200);
    for (Candle& each : candles)
        for (double Candle::*const price : {&Candle::open, &Candle::high, &Candle::low, &Candle::close})
            each.*price *= 1e-6;
    openWith({{"ABC", candles}});
    const CClientDC dc(&canvas());
    GdiFontWrapper font = m_pane->model().styleOf(ChartPart::Labels).font;
    const HGDIOBJ before = ::SelectObject(dc.GetSafeHdc(), font.GetHFONT());
    ASSERT_FALSE(frame().priceGrid.values.empty());
    for (const double price : frame().priceGrid.values) {
        const std::wstring label = priceText(price, frame().priceGrid.decimals);
        SIZE size{};
        ::GetTextExtentPoint32W(dc.GetSafeHdc(), label.c_str(), static_cast<int>(label.size()), &size);
        EXPECT_LE(size.cx, frame().layout.priceAxis.width());
    }
    ::SelectObject(dc.GetSafeHdc(), before);
}

TEST_F(ChartMisused, TheChangeOfARangeIsReadOverItsCandles) {
    openWith({{"ABC", {candle(0, 10, 12, 9, 11, 100)}}});
    selectRange();
    const CandleColumn& only = frame().columns.front();
    const int top = static_cast<int>(frame().prices.yOf(only.candle.high));
    const VectorCanvas::IVectorPainter& painter = canvas().picture();
    ASSERT_EQ(painter.GetObjectId(only.middle, frame().layout.prices.top + 1), idOf(objectOf(ChartPart::Range)));
    EXPECT_EQ(painter.GetObjectId(only.middle, top + 2), idOf(objectOf(ChartPart::Range)));
}

TEST_F(ChartMisused, AnyOrderOfHandsSizesThemesAndInstrumentsLeavesNoHandleBehind) {
    openWith({{"ABC", wavingCandles(3000)},
              {"ONE", wavingCandles(1)},
              {"TWO", wavingCandles(2)},
              {"FLAT", Candles(300, candle(0, 50, 50, 50, 50, 0))}});
    std::mt19937 random(7);
    const auto below = [&random](int end) { return static_cast<int>(random() % static_cast<unsigned int>(end)); };
    constexpr std::array Symbols{"ABC", "ONE", "TWO", "FLAT", "NONE"};
    constexpr std::array Keys{VK_LEFT, VK_RIGHT, VK_HOME, VK_END, VK_ADD, VK_SUBTRACT, VK_DELETE, VK_ESCAPE, int{'L'}};
    const auto anyPoint = [&] { return CPoint(below(scaled(1000)) - 50, below(scaled(400)) - 50); };
    const auto act = [&] {
        switch (below(10)) {
        case 0:
            show(Symbols[static_cast<std::size_t>(below(5))]);
            break;
        case 1:
            m_pane->setTheme(below(2) == 0 ? DeskTheme::White : DeskTheme::Black);
            break;
        case 2:
            m_pane->MoveWindow(0, 0, scaled(below(900)), scaled(below(340)));
            break;
        case 3:
        case 4:
            canvas().SendMessage(WM_KEYDOWN, static_cast<WPARAM>(Keys[static_cast<std::size_t>(below(9))]), 0);
            break;
        case 5:
            mouse(WM_LBUTTONUP, anyPoint());
            break;
        case 6:
        case 7:
            mouse(WM_LBUTTONDOWN, anyPoint(), MK_LBUTTON | (below(3) == 0 ? MK_SHIFT : 0));
            break;
        default:
            mouse(WM_MOUSEMOVE, anyPoint(), MK_LBUTTON);
        }
        canvas().UpdateWindow();
    };
    const auto settle = [&] {
        mouse(WM_LBUTTONUP, CPoint(-1, -1));
        mouse(WM_MOUSELEAVE, CPoint());
        SystemColors::SetThemeColor(EThemeColor::WhiteTheme);
        m_pane->setTheme(DeskTheme::White);
        m_pane->MoveWindow(0, 0, scaled(900), scaled(340));
        // A line may hold a pen.
        for (const char* symbol : Symbols) {
            show(symbol);
            while (m_pane->model().lines().lineCount() > 0) {
                m_pane->apply(m_pane->gestures().select(lineObject(0)));
                m_pane->apply(m_pane->gestures().key(ChartKey::Remove));
            }
        }
        show("TWO");
        canvas().UpdateWindow();
    };
    const auto storm = [&](int acts) {
        for (int each = 0; each < acts; ++each)
            act();
        settle();
    };
    takeManyDevicesOnce(m_host);
    storm(500);
    const std::size_t before = support::gdiHandleCount();
    storm(2000);
    // The pen of what was hovered last may be there or not.
    EXPECT_LE(support::gdiHandleCount(), before + 1);
}
