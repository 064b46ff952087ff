#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "../core/ColumnDriver.h"
#include "../core/ReferenceColumns.h"
#include "TableFixture.h"
#include "support/Pump.h"

namespace {

constexpr UINT kContentWidthChanged = 0x8044;
constexpr UINT kMoveColumn = 0x8045;

class RandomColumns : public TableFixture, public ColumnOperations {
protected:
    RandomColumns() {
        handler.record({});
        host.onMessage = [this](UINT message, WPARAM wParam, LPARAM) -> std::optional<LRESULT> {
            if (message == kContentWidthChanged) {
                ownerWidth = static_cast<int>(wParam);
            }
            return std::nullopt;
        };
    }

    void setColumns(const std::vector<double>& widths) override { TableFixture::setColumns(widths); }

    int addColumn(int type, int selectedPosition) override {
        handler.position = {selectedPosition, 0};
        return table.AddColumn(L"new", static_cast<ITableView::EColumnAddType>(type));
    }

    void removeColumn(int id) override { table.RemoveColumn(static_cast<unsigned int>(id)); }
    void showColumn(int id, bool show) override { table.ShowColumn(id, show); }
    void setColumnWidth(int id, int width) override { table.SetColumnWidth(id, width, false); }

    bool restore(const std::deque<double>& widths) override {
        try {
            table.UpdateColumns(widths);
        } catch (const std::out_of_range&) {
            return false;
        }
        return true;
    }

    void lock(bool locked) override { table.LockColumns(locked); }
    bool trackWidth(int id, int width) override { return table.TrackColumnWidthChange(id, width, false) == 0; }
    void switchOrder(int positionA, int positionB) override { table.SwitchColumnOrder(positionA, positionB, 0); }

    void moveColumn(int from, int to) override {
        ::SendMessageW(table.m_hWnd, kMoveColumn, static_cast<WPARAM>(from), static_cast<LPARAM>(to));
    }

    void resize(int width) override {
        if (table.GetWidth() == width) {
            ::SendMessageW(table.m_hWnd, WM_SIZE, SIZE_RESTORED, MAKELPARAM(width, 150));
        } else {
            table.MoveWindow(0, 0, width, 150, FALSE);
        }
    }

    ColumnSnapshot snapshot() const override {
        ColumnSnapshot shot;
        for (int id = 0; id < table.GetColumnCount(); ++id) {
            shot.order.push_back(table.GetColumnId(id));
            shot.inverse.push_back(table.GetColumnIdxFromId(id));
            shot.widths.push_back(table.GetColumnWidth(id));
            shot.visible.push_back(table.GetColumnVisibility(id));
            shot.realWidths.push_back(table.GetColumnRealWidth(id));
        }
        shot.headerWidths = headerWidths();
        shot.visibleCount = table.GetVisibleColumnCount();
        shot.locked = table.AreColumnsLocked();
        return shot;
    }

    int ownerWidth = 0;
};

} // namespace

TEST_F(RandomColumns, AgreeWithThePlainReferenceAfterEachOf10000OperationsOnARealHeader) {
    constexpr int kRuns = 10;
    constexpr int kOperations = 1000;
    ReferenceColumns reference(kMinColumnWidth);
    reference.resize(641);
    resize(640);
    resize(641);
    lock(true);
    ownerWidth = 0;
    for (unsigned int seed = 1001; seed <= 1000 + kRuns; ++seed) {
        ColumnDriver driver(seed);
        std::string recent;
        for (int operation = 0; operation < kOperations; ++operation) {
            bool same = true;
            recent = recent.substr(recent.size() > 160 ? recent.size() - 160 : 0) + "; " +
                     driver.step(reference, *this, same);
            ASSERT_TRUE(same) << "seed " << seed << " operation " << operation << ": " << recent;
            ColumnSnapshot wanted = reference.snapshot();
            if (wanted.locked) {
                ASSERT_EQ(wanted.minWidth, table.GetMinWidth()) << recent;
            }
            wanted.minWidth = 0;
            ASSERT_EQ(wanted, snapshot()) << "seed " << seed << " operation " << operation << ": " << recent;
            ASSERT_EQ(reference.ownerWidth(), ownerWidth) << recent;
        }
    }
}
