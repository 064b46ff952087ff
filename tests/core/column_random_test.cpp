#include <gtest/gtest.h>

#include <cmath>
#include <stdexcept>

#include "ColumnDriver.h"
#include "ColumnModel.h"
#include "FakeHeader.h"
#include "ReferenceColumns.h"
#include "Rounding.h"

namespace {

constexpr int kMinimum = 16;

/// The column model with a fake header, led through the same operations as a table leads it.
class ModelTable : public ColumnOperations {
public:
    void setColumns(const std::vector<double>& widths) override {
        while (header.itemCount() > 0) {
            header.deleteItem(0);
        }
        model.clear();
        for (const double width : widths) {
            header.appendItem(truncateToInt(width));
            model.append(std::fabs(width), width > 0.0);
        }
        model.UpdateOrderArray(header);
    }

    int addColumn(int type, int selectedPosition) override {
        const int added = header.itemCount();
        const double width = model.widthOfNewColumn();
        header.appendItem(truncateToInt(width));
        model.append(width, true);
        std::vector<int> order = header.itemOrder();
        order.pop_back();
        const int positions[] = {std::min(selectedPosition + 1, added), selectedPosition, added, 0};
        const bool placed = type >= 0 && type <= 3;
        if (placed) {
            order.insert(order.begin() + positions[type], added);
        }
        header.setItemOrder(order);
        refit();
        return placed ? positions[type] : 0;
    }

    void removeColumn(int id) override {
        header.deleteItem(id);
        model.erase(id);
        refit();
    }

    void showColumn(int id, bool show) override {
        if (model.GetColumnVisibility(id) != show) {
            header.setItemWidth(id, show ? truncateToInt(model.GetColumnRealWidth(id)) : 0);
            model.setVisible(id, show);
        }
        model.UpdateOrderArray(header);
        if (model.columnsLocked) {
            widthsChanged(-1, 0);
        } else {
            model.UpdateColumnWidths(-1, 0, bodyWindow, header);
        }
    }

    void setColumnWidth(int id, int width) override {
        if (!model.columnsLocked) {
            model.UpdateColumnWidths(id, width, bodyWindow, header);
        } else if (header.itemWidth(id)) {
            model.setWidth(id, width, header);
        }
    }

    bool restore(const std::deque<double>& widths) override {
        try {
            model.restore(widths, header);
        } catch (const std::out_of_range&) {
            return false;
        }
        if (model.columnsLocked) {
            widthsChanged(-1, 0);
        }
        return true;
    }

    void lock(bool locked) override { model.columnsLocked = locked; }

    bool trackWidth(int id, int width) override {
        return model.columnsLocked ? widthsChanged(id, width) : model.UpdateColumnWidths(id, width, bodyWindow, header);
    }

    void switchOrder(int positionA, int positionB) override {
        std::vector<int> order = header.itemOrder();
        std::swap(order.at(static_cast<std::size_t>(positionA)), order.at(static_cast<std::size_t>(positionB)));
        header.setItemOrder(order);
        model.UpdateOrderArray(header);
        model.UpdateColumnWidths(-1, 0, bodyWindow, header);
    }

    void moveColumn(int from, int to) override {
        std::vector<int> order = header.itemOrder();
        const int moved = order.at(static_cast<std::size_t>(from));
        order.erase(order.begin() + from);
        order.insert(order.begin() + to, moved);
        header.setItemOrder(order);
        model.UpdateOrderArray(header);
        model.UpdateColumnWidths(-1, 0, bodyWindow, header);
    }

    void resize(int width) override {
        bodyWindow = width;
        bodyClient = width;
        if (!model.columnsLocked) {
            model.UpdateColumnWidths(-1, 0, bodyWindow, header);
        } else if (!model.widthChangedByUser && model.fitLastColumn(bodyClient, width, header)) {
            model.UpdateMinWidth(bodyClient, bodyWindow);
        }
        model.widthChangedByUser = false;
    }

    ColumnSnapshot snapshot() const override {
        ColumnSnapshot shot;
        for (int position = 0; position < model.GetColumnCount(); ++position) {
            shot.order.push_back(model.GetColumnId(position));
            shot.inverse.push_back(model.GetColumnIdxFromId(position));
        }
        for (int id = 0; id < model.GetColumnCount(); ++id) {
            shot.widths.push_back(model.GetColumnWidth(id));
            shot.visible.push_back(model.GetColumnVisibility(id));
            shot.realWidths.push_back(model.GetColumnRealWidth(id));
        }
        shot.headerWidths = header.widths();
        shot.visibleCount = model.GetVisibleColumnCount();
        shot.minWidth = model.minWidth();
        shot.locked = model.columnsLocked;
        return shot;
    }

    FakeHeader header;
    ColumnModel model{kMinimum};
    int bodyWindow = 0;
    int bodyClient = 0;
    int ownerWidth = 0;

private:
    bool widthsChanged(int id, int width) {
        if (!model.setLockedWidth(id, width, header)) {
            return false;
        }
        ownerWidth = model.visibleHeaderWidth(header);
        model.UpdateMinWidth(bodyClient, bodyWindow);
        model.widthChangedByUser = true;
        return true;
    }

    void refit() {
        model.UpdateOrderArray(header);
        if (model.columnsLocked) {
            widthsChanged(-1, 0);
        }
        model.UpdateColumnWidths(-1, 0, bodyWindow, header);
    }
};

} // namespace

TEST(ColumnModelRandomly, AgreesWithThePlainReferenceAfterEachOf120000Operations) {
    constexpr int kRuns = 60;
    constexpr int kOperations = 2000;
    for (unsigned int seed = 1; seed <= kRuns; ++seed) {
        ReferenceColumns reference(kMinimum);
        ModelTable table;
        ColumnDriver driver(seed);
        reference.resize(640);
        table.resize(640);
        std::string recent;
        for (int operation = 0; operation < kOperations; ++operation) {
            bool same = true;
            recent = recent.substr(recent.size() > 160 ? recent.size() - 160 : 0) + "; " +
                     driver.step(reference, table, same);
            ASSERT_TRUE(same) << "seed " << seed << " operation " << operation << ": " << recent;
            const ColumnSnapshot wanted = reference.snapshot();
            ASSERT_EQ(wanted, table.snapshot()) << "seed " << seed << " operation " << operation << ": " << recent;
            ASSERT_EQ(reference.widthChangedByUser(), table.model.widthChangedByUser) << recent;
            ASSERT_EQ(reference.ownerWidth(), table.ownerWidth) << recent;
            ASSERT_EQ(reference.lastVisibleId(), table.model.GetLastVisibleColumnPosition()) << recent;
            for (int position = 0; position < table.model.GetColumnCount(); ++position) {
                ASSERT_EQ(reference.widthBefore(position), table.model.GetWidthBeforeColumn(position)) << recent;
                ASSERT_EQ(reference.widthAfter(position - 1), table.model.GetWidthAfterColumn(position - 1)) << recent;
                ASSERT_EQ(reference.positionOf(position), table.model.GetCurrentResizedColumnPosition(position));
            }
        }
    }
}
