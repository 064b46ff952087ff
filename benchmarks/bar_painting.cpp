// How fast the scroll and zoom bar follows a drag.
#include "Scenario.h"

#include <string>

#include <OrtinControls/AdvancedScroll.h>

#include "support/TopLevelWindow.h"

namespace {

constexpr int kHeight = 24;
constexpr int kSteps = 100;
constexpr double kMillisecondsInASecond = 1e3;
/// A tenth of a frame where 30 are shown a second, for the rest is the chart's.
constexpr double kGoalMilliseconds = 3;

void followDrag(bench::Results& results, int width) {
    support::ScopedTopLevelWindow window(CSize(width, kHeight));
    AdvancedScroll bar(nullptr);
    bar.Create(L"", WS_CHILD | WS_VISIBLE, CRect(0, 0, width, kHeight), &window, 1);
    int step = 0;
    const bench::Result took = bench::measure({.what = "", .ours = {.run = [&] {
                                                               step = (step + 1) % kSteps;
                                                               const double start = 0.5 * step / kSteps;
                                                               bar.SetCurrent(start, start + 0.5);
                                                               bar.UpdateWindow();
                                                               ::GdiFlush();
                                                           }}});
    results.record({.what = "a step of a dragged bar of " + std::to_string(width) + " x " + std::to_string(kHeight),
                    .ours = took.ours * kMillisecondsInASecond,
                    .unit = "ms",
                    .goal = kGoalMilliseconds});
}

void measureBar(bench::Results& results) {
    followDrag(results, 424);
    followDrag(results, 1180);
}

const bench::Registered bar{{"bar", measureBar}};

} // namespace
