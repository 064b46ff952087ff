#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "chart/ChartPane.h"
#include "support/Capture.h"
#include "support/ScopedTheme.h"
#include "support/TopLevelWindow.h"

/// A chart pane in a window of the test, and what can be asked of its picture.
class ChartOnHost : public testing::Test {
protected:
    static constexpr int PaneId = 9;

    /// Days that rise and fall in turn, as many as asked for.
    static Desk::Candles wavingCandles(std::size_t count) {
        Desk::Candles candles(count);
        for (std::size_t at = 0; at < count; ++at) {
            const auto wave = static_cast<double>(at * 7 % 40);
            const bool rises = at % 3 != 0;
            candles[at].date = std::chrono::sys_days(std::chrono::days(16000 + static_cast<int>(at)));
            candles[at].open = 100 + wave + (rises ? 0 : 6);
            candles[at].close = 100 + wave + (rises ? 6 : 0);
            candles[at].high = 110 + wave;
            candles[at].low = 96 + wave;
            candles[at].volume = 1000 + 100 * wave;
        }
        return candles;
    }

    static Desk::Instrument named(const std::string& symbol) {
        Desk::Instrument instrument;
        instrument.symbol = symbol;
        instrument.name = "Name of " + symbol;
        return instrument;
    }

    void open(std::size_t candles, Desk::DeskTheme theme = Desk::DeskTheme::White) {
        SystemColors::SetThemeColor(static_cast<EThemeColor>(theme));
        m_pane = std::make_unique<Desk::ChartPane>(
            Desk::CandleSource(Desk::CandleBook{{"ABC", wavingCandles(candles)}}), Desk::ChartMemory(), m_fonts);
        ASSERT_TRUE(m_pane->createIn(&m_host, PaneId));
        m_pane->setTheme(theme);
        CRect client;
        m_host.GetClientRect(&client);
        m_pane->MoveWindow(0, 0, client.Width(), client.Height());
        const Desk::Instrument instrument = named("ABC");
        m_pane->show(&instrument);
    }

    Desk::ChartCanvas& canvas() { return m_pane->canvas(); }
    const Desk::ChartFrame& frame() {
        canvas().picture();
        return canvas().frame();
    }
    const Desk::ChartState& state() { return m_pane->model().state(); }

    /// Makes each candle so many pixels wide.
    void setCandleWidth(int pixels) {
        const double visible = frame().layout.prices.width() / static_cast<double>(pixels);
        m_pane->apply(m_pane->gestures().setRange({0.0, visible / static_cast<double>(state().candles)}));
    }

    support::Pixels picture() {
        const VectorCanvas::IVectorPainter& painter = canvas().picture();
        const CSize size = painter.GetViewport();
        return support::Pixels::ofDevice(painter.GetSource(), RECT{0, 0, size.cx, size.cy});
    }
    /// The ids of all pixels, row by row.
    std::vector<unsigned int> ids() {
        const VectorCanvas::IVectorPainter& painter = canvas().picture();
        const CSize size = painter.GetViewport();
        std::vector<unsigned int> all;
        for (int y = 0; y < size.cy; ++y)
            for (int x = 0; x < size.cx; ++x)
                all.push_back(painter.GetObjectId(x, y));
        return all;
    }
    /// The first pixel, row by row, that shows the object.
    std::optional<CPoint> pixelOf(const Desk::ChartObject& object) {
        const VectorCanvas::IVectorPainter& painter = canvas().picture();
        const CSize size = painter.GetViewport();
        for (int y = 0; y < size.cy; ++y)
            for (int x = 0; x < size.cx; ++x)
                if (painter.GetObjectId(x, y) == Desk::idOf(object))
                    return CPoint(x, y);
        return std::nullopt;
    }
    /// A pixel of the plot of prices without an object near it.
    CPoint emptyPixel() {
        const VectorCanvas::IVectorPainter& painter = canvas().picture();
        const Desk::ChartArea& plot = frame().layout.prices;
        for (int y = plot.top + 10; y < plot.bottom; ++y)
            for (int x = plot.left + 10; x < plot.right - 10; ++x)
                if (Desk::objectNear(x, y, 8, [&](int atX, int atY) { return painter.GetObjectId(atX, atY); }) ==
                    Desk::ChartObject{})
                    return CPoint(x, y);
        ADD_FAILURE() << "the plot is full";
        return CPoint();
    }

    void mouse(UINT message, CPoint point, WPARAM keys = 0) {
        canvas().SendMessage(message, keys, MAKELPARAM(point.x, point.y));
    }
    void drag(CPoint from, CPoint to, WPARAM keys = 0) {
        mouse(WM_LBUTTONDOWN, from, MK_LBUTTON | keys);
        mouse(WM_MOUSEMOVE, to, MK_LBUTTON | keys);
        mouse(WM_LBUTTONUP, to, keys);
    }
    /// A line of the tool over the middle of the plot, or so much of its width beside it.
    void drawLine(double shift = 0) {
        const Desk::ChartArea& plot = frame().layout.prices;
        canvas().SendMessage(WM_KEYDOWN, 'L', 0);
        const int by = static_cast<int>(plot.width() * shift);
        drag(CPoint(plot.width() / 4 + by, plot.top + plot.height() / 3),
             CPoint(plot.width() * 3 / 4 + by, plot.bottom - 20));
    }
    void selectRange() {
        const Desk::ChartArea& plot = frame().layout.prices;
        drag(CPoint(plot.width() / 3, plot.top + 30), CPoint(plot.width() / 2, plot.top + 30), MK_SHIFT);
    }

    const support::ScopedTheme m_theme{0};
    support::ScopedTopLevelWindow m_host{CSize(Desk::scaled(900), Desk::scaled(340))};
    Desk::DeskFonts m_fonts;
    std::unique_ptr<Desk::ChartPane> m_pane;
};
