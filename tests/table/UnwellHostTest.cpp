// A host that fails, destroys the window or turns the table over in each callback of each thing that can happen to it.

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>
#include <stdexcept>
#include <string>

#include "UnwellHostScene.h"
#include "support/ImportPatch.h"
#include "support/Pump.h"

namespace {

struct Misdeed {
    const char* name;
    /// Tried in each callback of each step by itself.
    bool everywhere;
    std::function<void(Scene&)> commit;

    friend void PrintTo(const Misdeed& misdeed, std::ostream* out) { *out << misdeed.name; }
};

const Misdeed kMisdeeds[] = {
    {"throws", true, [](Scene&) { throw std::runtime_error("the host is unwell"); }},
    {"destroys the window", true, [](Scene& s) { s.table.DestroyWindow(); }},
    {"replaces the columns", false,
     [](Scene& s) {
         s.table.SetColumns({{L"Only", 50.0}});
     }},
    {"sizes the table", false, [](Scene& s) { s.table.MoveWindow(0, 0, 90, 60); }},
    {"deletes rows and paints", false,
     [](Scene& s) {
         s.table.DeleteItems({1, 2, 3, 19, 20});
         s.table.Redraw();
         s.paint();
     }},
    {"deletes some rows", false,
     [](Scene& s) {
         s.table.DeleteItems({1, 900, 2, 15});
     }},
    {"deletes all rows", false, [](Scene& s) { s.table.DeleteAllItems(); }},
    {"inserts and redraws", false,
     [](Scene& s) {
         s.table.InsertItem(1000, 0);
         s.table.Redraw();
     }},
    {"sorts", false, [](Scene& s) { s.table.Sort(); }},
    {"adds a column", false, [](Scene& s) { s.table.AddColumn(L"N", ITableView::AddAtFront); }},
    {"removes a column", false, [](Scene& s) { s.table.RemoveColumn(0); }},
    {"scrolls into view", false, [](Scene& s) { s.table.SelectItem(s.table.GetItemCount() - 1, true); }},
};

int WINAPI answerMessageBox(HWND, LPCWSTR, LPCWSTR, UINT) {
    return IDOK;
}

/// One more for the length of a scope.
class ScopedCount {
public:
    explicit ScopedCount(int& value) : m_value(value) { ++m_value; }
    ScopedCount(const ScopedCount&) = delete;
    ScopedCount& operator=(const ScopedCount&) = delete;
    ~ScopedCount() { --m_value; }

private:
    int& m_value;
};

class UnwellHost : public testing::TestWithParam<Misdeed> {
protected:
    std::shared_ptr<Scene::Host> m_window = std::make_shared<Scene::Host>(CSize(300, 200));
    /// The framework reports what was thrown in a box that nobody is there to close.
    support::ImportPatch m_messageBox{::GetModuleHandleW(L"OrtinMfc.dll"), "USER32.dll", "MessageBoxW",
                                      &answerMessageBox};
};

INSTANTIATE_TEST_SUITE_P(That, UnwellHost, testing::ValuesIn(kMisdeeds), [](const auto& misdeed) {
    std::string name = misdeed.param.name;
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

} // namespace

TEST(TheStepsOfTheseTests, CauseEachCallbackThatTheTableMakes) {
    // Without GetCell, which depends on where the real cursor is, and is asked for by another test.
    const std::set<std::string> expected{
        "BeginDrag",
        "CanPaint",
        "CancelFindMode",
        "CompareElementsViaColumn",
        "ComputeItemHeight",
        "DrawItem",
        "ElementsToCompareCount",
        "GetCarretOffset",
        "GetOptimalColumnWidth",
        "GetSelectedItem",
        "GetSelectedItemStart",
        "GetSelectedPosition",
        "GetSelectedPositionStart",
        "GetToolTip",
        "IsAutoscrollEnabled",
        "IsColumnOrderPossible",
        "IsPaintEnabled",
        "OnColumnWidthChanged",
        "OnColumnWidthChanging",
        "OnDblClick",
        "OnDrawFinished",
        "OnElementsSorted",
        "OnItemClick",
        "OnKey",
        "OnMoveColumn",
        "OnSizeTableListCtrl",
        "OnSortByColumn",
        "OnTableViewDataChanged",
        "PrepareDraw",
        "RefreshView",
        "SelectPosition",
        "SetCursor",
        "SetFindMode",
        "SetSelectedItem",
        "SortColumnAvailable",
        "SortElements",
        "UpdateItemPosition",
        "UseOptimalisation",
    };
    EXPECT_EQ(expected, allCallbacks());
}

TEST_P(UnwellHost, LeavesTheTableConsistentInWhicheverCallbackItHappens) {
    for (const Step& step : tableSteps()) {
        std::set<std::string> callbacks = callbacksOf(step);
        if (!GetParam().everywhere && !callbacks.empty()) {
            // One after the other in turn, so that over the steps each comes up.
            const auto chosen =
                std::next(callbacks.begin(), (&step - tableSteps().data()) % static_cast<int>(callbacks.size()));
            callbacks = {*chosen};
        }
        for (const std::string& callback : callbacks) {
            SCOPED_TRACE(std::string(GetParam().name) + " in " + callback + " during: " + step.name);
            Scene scene(m_window);
            bool committed = false;
            scene.handler.onCall = [&](const std::string& called) {
                if (called == callback && !std::exchange(committed, true)) {
                    GetParam().commit(scene);
                }
            };
            runStep(step, scene);
            try {
                support::pumpUntilIdle(std::chrono::milliseconds(200));
            } catch (const std::runtime_error&) {
                ADD_FAILURE() << "it came out of the message loop";
            }
            scene.handler.onCall = nullptr;
            EXPECT_TRUE(committed);
            ASSERT_EQ("", scene.complaint());
        }
    }
}

TEST_P(UnwellHost, LeavesTheTableConsistentAlsoEachTimeItIsCalled) {
    for (const Step& step : tableSteps()) {
        SCOPED_TRACE(std::string(GetParam().name) + " each time during: " + step.name);
        Scene scene(m_window);
        int depth = 0;
        int left = 40;
        scene.handler.onCall = [&](const std::string&) {
            if (depth > 1 || left == 0) {
                return;
            }
            --left;
            const ScopedCount level(depth);
            GetParam().commit(scene);
        };
        runStep(step, scene);
        scene.handler.onCall = nullptr;
        support::pumpUntilIdle(std::chrono::milliseconds(200));
        ASSERT_EQ("", scene.complaint());
    }
}

TEST_P(UnwellHost, LeavesTheTableConsistentAfterAllStepsInARowWhicheverCallbackItHappensIn) {
    for (const std::string& callback : allCallbacks()) {
        SCOPED_TRACE(std::string(GetParam().name) + " three times in " + callback);
        Scene scene(m_window);
        int depth = 0;
        int left = 3;
        scene.handler.onCall = [&](const std::string& called) {
            if (called == callback && depth == 0 && left > 0) {
                --left;
                const ScopedCount level(depth);
                GetParam().commit(scene);
            }
        };
        const Step refill{"refill", [](Scene& filled) { filled.refill(); }};
        for (const Step& step : tableSteps()) {
            runStep(refill, scene);
            runStep(step, scene);
        }
        support::pumpUntilIdle(std::chrono::milliseconds(200));
        scene.handler.onCall = nullptr;
        EXPECT_LT(left, 3) << "the callback never came";
        ASSERT_EQ("", scene.complaint());
    }
}
