// How fast the desk's chart follows a drag: picture with its shadow, overlay and bar.
#include "Scenario.h"

#include <string>

#include "chart/ChartPane.h"
#include "support/TopLevelWindow.h"

namespace {

constexpr int kWidth = 1180;
constexpr int kHeight = 400;
constexpr int kSteps = 100;
constexpr double kMillisecondsInASecond = 1e3;
/// At 30 pictures a second.
constexpr double kGoalMilliseconds = 33;

/// `share` of the series is seen, and moved on and on.
void followDrag(bench::Results& results, std::size_t candles, double share, const std::string& seen) {
    Desk::DeskFonts fonts;
    support::ScopedTopLevelWindow window(CSize(kWidth, kHeight));
    Desk::CandleBook book;
    book["A"] = Desk::sampleCandles("A", 250, std::chrono::sys_days(std::chrono::days(20000)), candles);
    Desk::ChartPane pane(Desk::CandleSource(std::move(book)), Desk::ChartMemory(), fonts);
    pane.createIn(&window, 1);
    pane.MoveWindow(0, 0, kWidth, kHeight);
    Desk::Instrument instrument;
    instrument.symbol = "A";
    pane.show(&instrument);
    int step = 0;
    const bench::Result took =
        bench::measure({.what = "", .ours = {.run = [&] {
                                        step = (step + 1) % kSteps;
                                        const double start = (1 - share) * step / kSteps;
                                        pane.apply(pane.gestures().setRange({start, start + share}));
                                        pane.RedrawWindow(nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
                                        ::GdiFlush();
                                    }}});
    results.record({.what = "a step of a dragged chart of " + std::to_string(candles) + " candles, " + seen + " seen",
                    .ours = took.ours * kMillisecondsInASecond,
                    .unit = "ms",
                    .goal = kGoalMilliseconds});
}

void measureChart(bench::Results& results) {
    followDrag(results, 5'000, 0.05, "250");
    followDrag(results, 100'000, 0.01, "1,000");
    followDrag(results, 100'000, 0.9, "90,000");
}

const bench::Registered chart{{"desk-chart", measureChart}};

} // namespace
