// How fast a table paints, beside the list view and the bare calls.
#include "Scenario.h"
#include "TableScene.h"

#include <vector>

#include <commctrl.h>

namespace {

constexpr int kRows = 100'000;
constexpr int kManyRows = 1'000'000;
constexpr int kRowInView = 20;
/// The wheel moves a pixel for 8 units.
constexpr int kWheelForOneRow = scene::kRowHeight * 8;

void fullRepaint(bench::Results& results) {
    scene::Table ours(kRows);
    scene::ListView peer(kRows);
    scene::BareSurface limit;
    const bench::Runner listView{.run = [&] { peer.repaint(); }};
    const bench::Runner bareCalls{.run = [&] { limit.drawAll(); }};
    const bench::Goals goals{.toLimit = 1.25, .toPeer = 0.15};
    results.measure({.what = "full repaint at once (Redraw)",
                     .ours = {.run = [&] { ours.table.Redraw(); }},
                     .peer = listView,
                     .limit = bareCalls,
                     .goals = goals});
    results.measure({.what = "full repaint by WM_PAINT",
                     .ours = {.run = [&] { ours.repaint(); }},
                     .peer = listView,
                     .limit = bareCalls,
                     .goals = goals});
}

void oneTickedRow(bench::Results& results) {
    scene::Table ours(kRows);
    ours.host.caret = kRows / 2;
    ours.host.optimised = true;
    ours.host.ticked = kRowInView + 1;
    scene::ListView peer(kRows);
    scene::BareSurface limit;
    results.measure({.what = "one ticked row",
                     .ours = {.run =
                                  [&] {
                                      ours.table.InvalidateView(kRowInView + 1);
                                      ours.body().UpdateWindow();
                                  }},
                     .peer = bench::Runner{.run =
                                               [&] {
                                                   ListView_RedrawItems(peer.handle(), kRowInView, kRowInView);
                                                   ::UpdateWindow(peer.handle());
                                               }},
                     .limit = bench::Runner{.run = [&] { limit.drawOne(kRowInView, kRowInView * scene::kRowHeight); }},
                     .goals = {.toLimit = 4, .toPeer = 0.10}});
}

void scrollByOneRow(bench::Results& results) {
    scene::Table ours(kRows);
    ours.table.SetCarretIndex(kRows / 2);
    scene::ListView peer(kRows);
    ListView_EnsureVisible(peer.handle(), kRows / 2, FALSE);
    RECT item{};
    ListView_GetItemRect(peer.handle(), kRows / 2, &item, LVIR_BOUNDS);
    const int peerRow = item.bottom - item.top;
    scene::BareSurface limit;
    int direction = 1;
    int peerDirection = 1;
    results.measure({.what = "scroll by one row",
                     .ours = {.run =
                                  [&] {
                                      direction = -direction;
                                      ours.body().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, kWheelForOneRow * direction),
                                                              0);
                                  }},
                     .peer = bench::Runner{.run =
                                               [&] {
                                                   peerDirection = -peerDirection;
                                                   ListView_Scroll(peer.handle(), 0, peerRow * peerDirection);
                                                   ::UpdateWindow(peer.handle());
                                               }},
                     .limit = bench::Runner{.run = [&] { limit.drawAll(kRows / 2); }},
                     .goals = {.toLimit = 1.25, .toPeer = 0.35}});
}

/// The heights of all rows summed, each row told to the host.
int bareWalk(const std::vector<std::pair<unsigned __int64, int>>& rows, ITableHandler& handler) {
    int total = 0;
    for (int row = 0; row < static_cast<int>(rows.size()); ++row) {
        handler.UpdateItemPosition(row);
        total += rows[static_cast<std::size_t>(row)].second;
    }
    return total;
}

void fullRepaintOfManyRows(bench::Results& results) {
    scene::Table ours(kManyRows);
    scene::BareSurface limit;
    const std::vector<std::pair<unsigned __int64, int>> rows(kManyRows, {1, scene::kRowHeight});
    volatile int sink = 0;
    results.measure({.what = "full repaint, 1,000,000 rows (limit: bare calls and 3 bare walks)",
                     .ours = {.run = [&] { ours.repaint(); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    limit.drawAll();
                                                    for (int walk = 0; walk < 3; ++walk) {
                                                        sink = bareWalk(rows, ours.host);
                                                    }
                                                }},
                     .goals = {.toLimit = 1.0}});
}

void measurePainting(bench::Results& results) {
    fullRepaint(results);
    oneTickedRow(results);
    scrollByOneRow(results);
    fullRepaintOfManyRows(results);
}

const bench::Registered painting{{"table-painting", measurePainting}};

} // namespace
