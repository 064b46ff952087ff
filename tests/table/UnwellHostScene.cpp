#include "UnwellHostScene.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include "support/Pump.h"

namespace {

class SilentMenu : public IContextMenuBase {
public:
    using IContextMenuBase::IContextMenuBase;
    void ShowContextMenu(CPoint) override {}
};

const Step kSteps[] = {
    {"add a row", [](Scene& s) { s.table.AddItem(100); }},
    {"add a row to none",
     [](Scene& s) {
         s.table.DeleteAllItems();
         s.handler.caret = -1;
         s.table.AddItem(100);
     }},
    {"insert rows",
     [](Scene& s) {
         s.scrollTo(60);
         s.table.InsertItems({{101, 20}, {102, 20}}, 0, 40);
     }},
    {"delete a row", [](Scene& s) { s.table.DeleteItem(5); }},
    {"delete an unknown row", [](Scene& s) { s.table.DeleteItem(999); }},
    {"delete rows",
     [](Scene& s) {
         s.table.DeleteItems({3, 998, 5, 999, 7});
     }},
    {"delete all rows", [](Scene& s) { s.table.DeleteAllItems(); }},
    {"move a row", [](Scene& s) { s.table.MoveElementAt(3, 9); }},
    {"select a word", [](Scene& s) { s.table.Select(15, 1, 1); }},
    {"select a row", [](Scene& s) { s.table.SelectItem(15, true); }},
    {"show a row", [](Scene& s) { s.table.SetCarretIndex(15); }},
    {"all heights", [](Scene& s) { s.table.UpdateAllHeights(); }},
    {"a batch",
     [](Scene& s) {
         s.table.BeginUpdate();
         s.table.AddItem(100);
         s.table.DeleteItem(999);
         s.table.FinishUpdate();
         support::pumpUntilIdle();
     }},
    {"paint", [](Scene& s) { s.paint(); }},
    {"paint rows that are dirty",
     [](Scene& s) {
         s.handler.optimised = true;
         s.paint();
         s.table.InvalidateView(3);
         s.paint();
     }},
    {"paint another height",
     [](Scene& s) {
         s.handler.heights = {{2, 33}};
         s.paint();
     }},
    {"redraw", [](Scene& s) { s.table.Redraw(); }},
    {"autoscroll",
     [](Scene& s) {
         s.handler.autoscroll = true;
         s.paint();
         s.paint();
         s.paint();
         s.handler.autoscroll = false;
         s.paint();
         s.paint();
     }},
    {"press", [](Scene& s) { s.press(30, 30); }},
    {"release", [](Scene& s) { s.release(30, 30); }},
    {"double click", [](Scene& s) { s.doubleClick(30, 30); }},
    {"right press",
     [](Scene& s) {
         ::SendMessageW(s.body(), WM_RBUTTONDOWN, MK_RBUTTON, MAKELPARAM(30, 30));
         ::SendMessageW(s.body(), WM_CONTEXTMENU, 0, MAKELPARAM(30, 30));
     }},
    {"move", [](Scene& s) { s.moveTo(30, 30); }},
    {"drag a row",
     [](Scene& s) {
         s.press(30, 30);
         s.moveTo(80, 60, MK_LBUTTON);
         s.release(80, 60);
     }},
    {"drag with control",
     [](Scene& s) {
         s.press(30, 30);
         const ScopedKeys control{VK_CONTROL};
         s.moveTo(30, 60, MK_LBUTTON);
     }},
    {"set the cursor",
     [](Scene& s) {
         ::SendMessageW(s.body(), WM_SETCURSOR, reinterpret_cast<WPARAM>(s.body()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
     }},
    {"drag a border in the body",
     [](Scene& s) {
         s.moveTo(60, 30);
         s.press(60, 30);
         s.moveTo(70, 30, MK_LBUTTON);
         s.moveTo(75, 30, MK_LBUTTON);
         s.release(75, 30);
     }},
    {"fit a border in the body",
     [](Scene& s) {
         s.moveTo(60, 30);
         s.doubleClick(60, 30);
     }},
    {"drag a border in the header",
     [](Scene& s) {
         s.notifyHeader(HDN_TRACKW, 0, 66);
         s.notifyHeader(HDN_ENDTRACKW, 0, 70);
     }},
    {"fit a border in the header", [](Scene& s) { s.notifyHeader(HDN_ITEMDBLCLICKW, 1, 0); }},
    {"drag a border in proportion",
     [](Scene& s) {
         s.table.LockColumns(false);
         s.table.TrackColumnWidthChange(0, 80, true);
     }},
    {"wheel", [](Scene& s) { ::SendMessageW(s.body(), WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), 0); }},
    {"scroll", [](Scene& s) { ::SendMessageW(s.body(), WM_VSCROLL, SB_PAGEDOWN, 0); }},
    {"navigate", [](Scene& s) { s.key(VK_DOWN); }},
    {"delete key", [](Scene& s) { s.key(VK_DELETE); }},
    {"keys through the loop",
     [](Scene& s) {
         for (const UINT virtualKey : {UINT{VK_NEXT}, UINT{VK_UP}, UINT{'A'}}) {
             MSG message{s.body(), WM_KEYDOWN, virtualKey, 1, 0, {}};
             s.table.PreTranslateMessage(&message);
         }
     }},
    {"click a header", [](Scene& s) { s.clickHeader(1); }},
    {"sort by a header",
     [](Scene& s) {
         s.table.EnableSortingOnColumnHeaderClick(true);
         s.clickHeader(1);
         s.clickHeader(1);
     }},
    {"let the host sort", [](Scene& s) { s.table.SortDesc(); }},
    {"move a column",
     [](Scene& s) {
         s.pressHeader(30, 5);
         s.moveOnHeader(100, 5);
         s.moveOnHeader(150, 5);
         s.releaseHeader(150, 5);
     }},
    {"size",
     [](Scene& s) {
         s.table.MoveWindow(0, 0, 240, 150);
         s.table.OnEndSize();
     }},
    {"hide the selected column",
     [](Scene& s) {
         s.table.ShowColumn(1, false);
         s.table.ShowColumn(1, true);
     }},
    {"remove a column", [](Scene& s) { s.table.RemoveColumn(1); }},
    {"add a column", [](Scene& s) { s.table.AddColumn(L"N", ITableView::AddAfterSelected); }},
    {"switch columns", [](Scene& s) { s.table.SwitchColumnOrder(0, 1, 2); }},
    {"set a width", [](Scene& s) { s.table.SetColumnWidth(0, 50, true); }},
    {"restore widths",
     [](Scene& s) {
         // Without a header there is no order to restore them in, and the table says so by throwing.
         if (s.header() != nullptr) {
             s.table.UpdateColumns(std::deque<double>{50.0, 60.0, 70.0, 80.0});
         }
     }},
    {"mark a row",
     [](Scene& s) {
         s.table.InvalidateView(3);
         s.table.InvalidateView(0);
     }},
    {"positions",
     [](Scene& s) {
         s.table.GetSelectedPosition(1);
         s.table.GetSelectedPositionStart(1);
         s.table.GetSelectedItemStart();
     }},
    {"notify",
     [](Scene& s) {
         s.table.NotifyTableViewDataChange();
         support::pumpUntilIdle();
     }},
    {"tip",
     [](Scene& s) {
         TOOLINFOW info{};
         info.cbSize = sizeof info;
         if (s.handler.list != nullptr && ::IsWindow(s.handler.list->m_hWnd)) {
             s.handler.list->OnToolHitTest(CPoint(5, 5), &info);
             std::free(info.lpszText);
         }
     }},
    {"the row under the cursor",
     [](Scene& s) {
         CPoint cell;
         s.table.ItemFromCursor(cell);
     }},
    {"toggle the bar",
     [](Scene& s) {
         s.table.ShowScrollbar(false);
         s.table.ShowScrollbar(true);
     }},
    {"destroy", [](Scene& s) { s.table.DestroyWindow(); }},
};

/// One for each step.
std::vector<std::set<std::string>> callbacksOfSteps() {
    const auto window = std::make_shared<Scene::Host>(CSize(300, 200));
    std::vector<std::set<std::string>> all;
    for (const Step& step : kSteps) {
        std::set<std::string>& callbacks = all.emplace_back();
        Scene scene(window);
        scene.handler.onCall = [&](const std::string& callback) { callbacks.insert(callback); };
        runStep(step, scene);
        scene.handler.onCall = nullptr;
    }
    return all;
}

const std::vector<double> kColumns{60.0, 70.0, -40.0, 70.0};

} // namespace

Scene::Scene(std::shared_ptr<Host> window) : TableFixture(std::move(window)) {
    handler.record({});
    sizeBody(200, 100);
    setColumns(kColumns);
    table.EnableMouseMovingColumns(true);
    table.EnableColumnWidthTracking(true);
    table.SetContextMenuHandler(std::make_shared<SilentMenu>(&table));
    addManyRows(20);
    handler.position = {1, 3};
    handler.optimalWidth = 50;
    handler.keyRow = 9;
    handler.tipId = 3;
    handler.tipText = L"tip";
    for (int row = 20; row >= 1; --row) {
        handler.sorted.emplace_back(row, 20);
    }
    handler.sortAvailable = true;
    paint();
}

void Scene::notifyHeader(UINT code, int id, int width) const {
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    item.cxy = width;
    NMHEADERW notification{};
    notification.hdr = {header(), kHeaderId, code};
    notification.iItem = id;
    notification.pitem = &item;
    ::SendMessageW(table.m_hWnd, WM_NOTIFY, kHeaderId, reinterpret_cast<LPARAM>(&notification));
}

void Scene::refill() {
    if (table.GetColumnCount() != static_cast<int>(std::size(kColumns))) {
        setColumns(kColumns);
    }
    if (table.GetItemCount() < 10) {
        table.DeleteAllItems();
        addManyRows(20);
    }
}

std::string Scene::complaint() {
    const int rows = table.GetItemCount();
    std::int64_t total = 0;
    for (int row = 0; row < rows; ++row) {
        total += table.GetItemHeight(static_cast<unsigned __int64>(row));
    }
    if (total != table.GetAllItemsHeight()) {
        return "the heights do not add up";
    }
    if (!::IsWindow(table.m_hWnd)) {
        return table.m_hWnd == nullptr ? "" : "a handle of no window";
    }
    if (static_cast<int>(headerOrder().size()) != table.GetColumnCount()) {
        return "header and columns differ";
    }
    std::vector<int> ids;
    for (int position = 0; position < table.GetColumnCount(); ++position) {
        ids.push_back(table.GetColumnId(position));
        if (table.GetColumnIdxFromId(ids.back()) != position) {
            return "the order is not the inverse of its inverse";
        }
    }
    if (ids != headerOrder()) {
        return "another order than the header's";
    }
    ::UpdateWindow(header());
    if (::GetUpdateRect(header(), nullptr, FALSE)) {
        return "the header no longer paints";
    }
    handler.autoscroll = false;
    handler.optimised = false;
    handler.caret = std::min(handler.caret, rows - 1);
    for (int pass = 0; pass < 3; ++pass) {
        table.InvalidateView(0);
        paint();
    }
    if (::GetUpdateRect(body(), nullptr, FALSE)) {
        return "the body no longer paints";
    }
    table.AddItem(12345);
    if (table.GetItemCount() != rows + 1 || table.GetItemData(rows) != 12345) {
        return "it takes no row any more";
    }
    return "";
}

std::span<const Step> tableSteps() {
    return kSteps;
}

void runStep(const Step& step, Scene& scene) {
    try {
        step.run(scene);
    } catch (const std::runtime_error& failure) {
        EXPECT_STREQ("the host is unwell", failure.what()) << step.name;
    }
}

const std::set<std::string>& callbacksOf(const Step& step) {
    static const std::vector<std::set<std::string>> all = callbacksOfSteps();
    return all[static_cast<std::size_t>(&step - kSteps)];
}

const std::set<std::string>& allCallbacks() {
    static const std::set<std::string> all = [] {
        std::set<std::string> callbacks;
        for (const Step& step : kSteps) {
            callbacks.insert(callbacksOf(step).begin(), callbacksOf(step).end());
        }
        callbacks.erase("GetCell");
        return callbacks;
    }();
    return all;
}
