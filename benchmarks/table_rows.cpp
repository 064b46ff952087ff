// How fast rows come, go and are sorted, and what a row costs.
#include "Scenario.h"
#include "TableScene.h"
#include "support/Resources.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <commctrl.h>

namespace {

using Rows = std::vector<std::pair<unsigned __int64, int>>;

constexpr int kRows = 100'000;
constexpr int kManyRows = 1'000'000;
constexpr int kDeleted = 10'000;
constexpr int kPeerItems = 2'000;
constexpr unsigned kSeed = 20'25;

void append(bench::Results& results) {
    std::unique_ptr<scene::Table> ours;
    Rows rows;
    scene::ListView peer(0, true);
    scene::Font font;
    scene::Host host(font.handle());
    ITableHandler& handler = host;
    const auto insertIntoPeer = [&] {
        // As ours does between BeginUpdate and FinishUpdate.
        ::SendMessageW(peer.handle(), WM_SETREDRAW, FALSE, 0);
        for (int row = 0; row < kPeerItems; ++row) {
            LVITEMW item{};
            item.mask = LVIF_TEXT;
            item.iItem = row;
            item.pszText = LPSTR_TEXTCALLBACKW;
            ListView_InsertItem(peer.handle(), &item);
        }
        ::SendMessageW(peer.handle(), WM_SETREDRAW, TRUE, 0);
    };
    results.measure({.what = "append 1,000,000 rows, a row",
                     .ours = {.run = [&] { ours->fill(kManyRows); },
                              .work = kManyRows,
                              .prepare = [&] { ours = std::make_unique<scene::Table>(0); }},
                     .peer = bench::Runner{.run = insertIntoPeer,
                                           .work = kPeerItems,
                                           .prepare = [&] { ListView_DeleteAllItems(peer.handle()); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    for (int row = 1; row <= kManyRows; ++row) {
                                                        handler.GetSelectedItem();
                                                        rows.emplace_back(static_cast<unsigned __int64>(row),
                                                                          handler.ComputeItemHeight(row));
                                                        handler.SetFindMode(0);
                                                    }
                                                },
                                            .work = kManyRows,
                                            .prepare = [&] { Rows().swap(rows); }},
                     .goals = {.toLimit = 4, .toPeer = 0.05}});
}

void deleteMany(bench::Results& results) {
    scene::Table ours(0);
    std::vector<unsigned __int64> list(kRows);
    std::iota(list.begin(), list.end(), 1);
    std::shuffle(list.begin(), list.end(), std::mt19937(kSeed));
    list.resize(kDeleted);
    const Rows rows(kRows, {1, scene::kRowHeight});
    volatile bool sink = false;
    results.measure({.what = "delete 10,000 of 100,000 rows (limit: one pass)",
                     .ours = {.run = [&] { ours.table.DeleteItems(list); }, .prepare = [&] { ours.fill(kRows); }},
                     .limit = bench::Runner{.run =
                                                [&] {
                                                    sink = std::any_of(rows.begin(), rows.end(),
                                                                       [](const auto& row) { return row.first == 0; });
                                                }},
                     .goals = {.toLimit = 10}});
}

/// A table whose rows stand in a known order and whose next header click sorts them by their keys.
class SortedTable {
public:
    explicit SortedTable(std::vector<std::uint32_t> keys) : m_keys(std::move(keys)), m_table(kManyRows) {
        m_table.table.EnableSortingOnColumnHeaderClick(true);
        m_table.host.keys = &m_keys;
        m_table.host.caret = 0;
        for (int row = 1; row <= kManyRows; ++row) {
            m_table.host.sorted.emplace_back(static_cast<unsigned __int64>(row), scene::kRowHeight);
        }
    }

    void reset() { m_table.table.Sort(); }
    void clickHeader() {
        NMHEADERW click{};
        click.hdr.hwndFrom = m_table.table.GetDlgItem(TableCtrl::GetHeaderCtrlId())->m_hWnd;
        click.hdr.idFrom = static_cast<UINT_PTR>(TableCtrl::GetHeaderCtrlId());
        click.hdr.code = HDN_ITEMCLICKW;
        m_table.table.SendMessage(WM_NOTIFY, click.hdr.idFrom, reinterpret_cast<LPARAM>(&click));
    }
    const Rows& rowsBefore() const { return m_table.host.sorted; }
    const ITableHandler& handler() const { return m_table.host; }

private:
    std::vector<std::uint32_t> m_keys;
    scene::Table m_table;
};

std::vector<std::uint32_t> randomKeys() {
    std::vector<std::uint32_t> keys(kManyRows);
    std::mt19937 random(kSeed);
    std::generate(keys.begin(), keys.end(), random);
    return keys;
}

std::vector<std::uint32_t> reversedKeys() {
    std::vector<std::uint32_t> keys(kManyRows);
    std::iota(keys.rbegin(), keys.rend(), 1U);
    return keys;
}

void sort(bench::Results& results) {
    SortedTable random(randomKeys());
    Rows rows;
    results.measure(
        {.what = "header click sort of 1,000,000 rows (limit: std::sort)",
         .ours = {.run = [&] { random.clickHeader(); }, .prepare = [&] { random.reset(); }},
         .limit = bench::Runner{.run =
                                    [&] {
                                        const ITableHandler& handler = random.handler();
                                        std::sort(rows.begin(), rows.end(), [&](const auto& a, const auto& b) {
                                            return handler.CompareElementsViaColumn(a.first, b.first, 0);
                                        });
                                    },
                                .prepare = [&] { rows = random.rowsBefore(); }},
         .goals = {.toLimit = 1.2}});
    const auto compareWithRandom = [&](const std::string& what, std::vector<std::uint32_t> keys) {
        SortedTable table(std::move(keys));
        results.measure(
            {.what = "the same, " + what + " (limit: random input)",
             .ours = {.run = [&] { table.clickHeader(); }, .prepare = [&] { table.reset(); }},
             .limit = bench::Runner{.run = [&] { random.clickHeader(); }, .prepare = [&] { random.reset(); }},
             .goals = {.toLimit = 1.0}});
    };
    compareWithRandom("all equal", std::vector<std::uint32_t>(kManyRows, 1U));
    compareWithRandom("reversed", reversedKeys());
}

void memory(bench::Results& results) {
    scene::Table table(0);
    const std::size_t before = support::heapBytes();
    table.fill(kManyRows);
    const double bytes = static_cast<double>(support::heapBytes()) - static_cast<double>(before);
    results.record({.what = "memory a row at 1,000,000 rows", .ours = bytes / kManyRows, .unit = "bytes", .goal = 24});
}

void measureRows(bench::Results& results) {
    append(results);
    deleteMany(results);
    sort(results);
    memory(results);
}

const bench::Registered rowScenario{{"table-rows", measureRows}};

} // namespace
