#pragma once

#include <cstdint>
#include <mutex>
#include <set>

/// Which rows are on the screen and which of them wait for a repaint. No windows.
///
/// The lock is recursive because marking asks the host whether it wants single rows, and a host may mark from there.
class RepaintState {
public:
    /// The next paint redraws all rows.
    void requestFullRedraw();
    /// The flag as the paint takes it: read and cleared.
    bool takeFullRedraw();
    /// The rows that the coming partial paint redraws; none are left waiting.
    std::set<std::uint64_t> takeInvalidRows();
    void clearInvalidRows();
    void forgetDrawnRows();
    void addDrawnRow(std::uint64_t data);
    bool isDrawn(std::uint64_t data) const;
    std::size_t drawnRowCount() const;
    /// Marks a row, or all with 0. `singleRows` is asked under the lock, and only for a row.
    template <typename SingleRows>
    void mark(std::uint64_t data, SingleRows singleRows) {
        const std::lock_guard guard(m_lock);
        if (data != 0 && singleRows()) {
            m_invalidRows.insert(data);
        } else {
            requestFullRedraw();
        }
    }

private:
    mutable std::recursive_mutex m_lock;
    std::set<std::uint64_t> m_drawnRows;
    std::set<std::uint64_t> m_invalidRows;
    bool m_fullRedraw = true;
};
