#include "RepaintState.h"

#include <utility>

void RepaintState::requestFullRedraw() {
    const std::lock_guard guard(m_lock);
    m_fullRedraw = true;
    m_invalidRows.clear();
}

bool RepaintState::takeFullRedraw() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_fullRedraw, false);
}

std::set<std::uint64_t> RepaintState::takeInvalidRows() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_invalidRows, {});
}

void RepaintState::clearInvalidRows() {
    const std::lock_guard guard(m_lock);
    m_invalidRows.clear();
}

void RepaintState::forgetDrawnRows() {
    const std::lock_guard guard(m_lock);
    m_drawnRows.clear();
}

void RepaintState::addDrawnRow(std::uint64_t data) {
    const std::lock_guard guard(m_lock);
    m_drawnRows.insert(data);
}

bool RepaintState::isDrawn(std::uint64_t data) const {
    const std::lock_guard guard(m_lock);
    return m_drawnRows.contains(data);
}

std::size_t RepaintState::drawnRowCount() const {
    const std::lock_guard guard(m_lock);
    return m_drawnRows.size();
}
