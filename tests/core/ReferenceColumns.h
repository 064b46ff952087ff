#pragma once

#include "ColumnOperations.h"

/// The rules of the columns written down as plainly as they can be told: slow, without windows, and without sharing a
/// line with what is compared with it.
class ReferenceColumns : public ColumnOperations {
public:
    explicit ReferenceColumns(int minimum) : m_minimum(minimum), m_minWidth(minimum) {}

    void setColumns(const std::vector<double>& widths) override;
    int addColumn(int type, int selectedPosition) override;
    void removeColumn(int id) override;
    void showColumn(int id, bool show) override;
    void setColumnWidth(int id, int width) override;
    bool restore(const std::deque<double>& widths) override;
    void lock(bool locked) override { m_locked = locked; }
    bool trackWidth(int id, int width) override;
    void switchOrder(int positionA, int positionB) override;
    void moveColumn(int from, int to) override;
    void resize(int width) override;
    ColumnSnapshot snapshot() const override;

    /// The widths of the windows; a resize sets all three.
    void setWindows(int bodyWindow, int bodyClient, int headerClient);
    /// What the owner was told last.
    int ownerWidth() const { return m_ownerWidth; }
    bool widthChangedByUser() const { return m_widthChangedByUser; }
    double widthBefore(int position) const;
    double widthAfter(int position) const;
    int positionOf(int id) const;
    int lastVisibleId() const;

private:
    struct Column {
        double width;
        bool visible;
    };

    void updateOrder();
    void writeOrder(const std::vector<int>& order);
    bool updateWidths(int id, int width);
    bool widthsChanged(int id, int width);
    void fitLocked();
    void updateMinWidth();
    bool blocked(int position, double available, double sumAfter) const;

    int m_minimum;
    std::vector<Column> m_columns;
    std::vector<int> m_order;
    std::vector<int> m_inverse;
    std::vector<int> m_headerWidths;
    std::vector<int> m_headerOrder;
    bool m_locked = true;
    bool m_widthChangedByUser = false;
    int m_minWidth;
    int m_bodyWindow = 0;
    int m_bodyClient = 0;
    int m_headerClient = 0;
    int m_ownerWidth = 0;
};
