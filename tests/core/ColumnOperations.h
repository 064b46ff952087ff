#pragma once

#include <deque>
#include <ostream>
#include <vector>

/// What can be seen of a table's columns from outside.
struct ColumnSnapshot {
    std::vector<int> order;
    std::vector<int> inverse;
    std::vector<int> widths;
    std::vector<bool> visible;
    std::vector<double> realWidths;
    std::vector<int> headerWidths;
    int visibleCount = 0;
    int minWidth = 0;
    bool locked = true;

    bool operator==(const ColumnSnapshot&) const = default;
};

std::ostream& operator<<(std::ostream& out, const ColumnSnapshot& columns);

/// The operations on columns that a host or a user can cause. The reference model and whatever is compared with it
/// implement them, so that one driver runs both.
class ColumnOperations {
public:
    virtual ~ColumnOperations() = default;

    virtual void setColumns(const std::vector<double>& widths) = 0;
    /// `type` as in `ITableView::EColumnAddType`; gives the position.
    virtual int addColumn(int type, int selectedPosition) = 0;
    virtual void removeColumn(int id) = 0;
    virtual void showColumn(int id, bool show) = 0;
    virtual void setColumnWidth(int id, int width) = 0;
    /// A restore of saved widths. False if it throws.
    virtual bool restore(const std::deque<double>& widths) = 0;
    virtual void lock(bool locked) = 0;
    virtual bool trackWidth(int id, int width) = 0;
    virtual void switchOrder(int positionA, int positionB) = 0;
    virtual void moveColumn(int from, int to) = 0;
    /// The window gets another width.
    virtual void resize(int width) = 0;

    virtual ColumnSnapshot snapshot() const = 0;
};
