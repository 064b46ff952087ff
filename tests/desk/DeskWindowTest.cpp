#include "DeskWindow.h"

#include <gtest/gtest.h>

#include "support/Pump.h"
#include "support/ScopedTheme.h"

using namespace Desk;

namespace {

constexpr std::size_t Instruments = 60;
constexpr std::size_t Known = 45;

/// A desk of sixty instruments, of which the file of candles has the forty-sixth alone.
DeskData dataWithOneKnown() {
    DeskData data;
    for (std::size_t at = 0; at < Instruments; ++at) {
        Instrument instrument;
        instrument.symbol = "S" + std::to_string(at);
        instrument.price = 100.0;
        data.instruments.push_back(instrument);
    }
    const Candle candle{std::chrono::sys_days(std::chrono::days(16000)), 99, 101, 98, 100, 10};
    data.candles = CandleBook{{data.instruments[Known].symbol, {candle}}};
    return data;
}

} // namespace

TEST(DeskWindows, ShowTheRowOfTheFirstChartThatThereIs) {
    const support::ScopedTheme theme(0);
    DeskWindow desk(dataWithOneKnown(), DeskSettings(), std::wstring());
    ASSERT_TRUE(desk.open());
    desk.ShowWindow(SW_SHOWNOACTIVATE);
    support::pumpUntilIdle();
    EXPECT_EQ(desk.chart().model().symbol(), L"S45");
    CWnd& body = *desk.table().body();
    CRect view;
    body.GetClientRect(&view);
    const int rowHeight = desk.table().GetAllItemsHeight() / static_cast<int>(Instruments);
    const int top = static_cast<int>(Known) * rowHeight - body.GetScrollPos(SB_VERT);
    EXPECT_GE(top, 0);
    EXPECT_LE(top + rowHeight, view.bottom);
}
