#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "ColumnOperations.h"

/// Makes one random operation after the other and carries it out on two tables.
class ColumnDriver {
public:
    explicit ColumnDriver(unsigned int seed) : m_random(seed) {}

    /// Gives what it did; `same` is false if the two gave different answers.
    std::string step(ColumnOperations& a, ColumnOperations& b, bool& same) {
        const int count = static_cast<int>(a.snapshot().order.size());
        same = true;
        switch (count == 0 ? pick(0, 1) : pick(0, 15)) {
        case 0: {
            if (count > 0 && pick(0, 9) != 0) {
                return "nothing";
            }
            std::vector<double> widths(static_cast<std::size_t>(pick(1, 7)));
            for (double& width : widths) {
                width = declaredWidth();
            }
            a.setColumns(widths);
            b.setColumns(widths);
            return "set " + std::to_string(widths.size());
        }
        case 1: {
            const int type = count > 11 ? 4 : pick(-1, 4);
            const int selected = count == 0 ? 0 : pick(0, count - 1);
            if (count > 11) {
                return "nothing";
            }
            same = a.addColumn(type, selected) == b.addColumn(type, selected);
            return "add " + std::to_string(type) + " at " + std::to_string(selected);
        }
        case 2: {
            const int id = pick(0, count - 1);
            a.removeColumn(id);
            b.removeColumn(id);
            return "remove " + std::to_string(id);
        }
        case 3:
        case 4: {
            const int id = pick(0, count - 1);
            const bool show = pick(0, 2) != 0;
            a.showColumn(id, show);
            b.showColumn(id, show);
            return (show ? "show " : "hide ") + std::to_string(id);
        }
        case 5: {
            const int id = a.snapshot().locked ? pick(-2, count + 1) : pick(0, count - 1);
            const int width = pick(-20, 400);
            a.setColumnWidth(id, width);
            b.setColumnWidth(id, width);
            return "width " + std::to_string(id) + " " + std::to_string(width);
        }
        case 6: {
            std::deque<double> widths(static_cast<std::size_t>(pick(0, 4) == 0 ? pick(0, count + 1) : count));
            for (double& width : widths) {
                width = declaredWidth();
            }
            same = a.restore(widths) == b.restore(widths);
            return "restore " + std::to_string(widths.size());
        }
        case 7: {
            const bool locked = pick(0, 1) == 0;
            a.lock(locked);
            b.lock(locked);
            return locked ? "lock" : "unlock";
        }
        case 8: {
            const int positionA = pick(0, count - 1);
            const int positionB = pick(0, count - 1);
            a.switchOrder(positionA, positionB);
            b.switchOrder(positionA, positionB);
            return "switch " + std::to_string(positionA) + " " + std::to_string(positionB);
        }
        case 9:
        case 10: {
            const int from = pick(0, count - 1);
            const int to = pick(0, count - 1);
            a.moveColumn(from, to);
            b.moveColumn(from, to);
            return "move " + std::to_string(from) + " " + std::to_string(to);
        }
        case 11:
        case 12: {
            const int width = pick(0, 5) == 0 ? pick(0, 60) : pick(60, 2000);
            a.resize(width);
            b.resize(width);
            return "resize " + std::to_string(width);
        }
        default: {
            const int id = pick(0, 9) == 0 ? -1 : pick(0, count - 1);
            const int width = pick(-5, 500);
            same = a.trackWidth(id, width) == b.trackWidth(id, width);
            return "track " + std::to_string(id) + " " + std::to_string(width);
        }
        }
    }

private:
    int pick(int least, int most) { return std::uniform_int_distribution<int>(least, most)(m_random); }

    double declaredWidth() {
        const double width = pick(0, 30000) / 97.0;
        return pick(0, 3) == 0 ? -width : width;
    }

    std::mt19937 m_random;
};
