#include "DrawState.h"

#include <utility>

void DrawState::requestFullRedraw() {
    const std::lock_guard guard(m_lock);
    m_fullRedraw = true;
    m_invalidRows.clear();
}

bool DrawState::takeFullRedraw() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_fullRedraw, false);
}

std::set<std::uint64_t> DrawState::takeInvalidRows() {
    const std::lock_guard guard(m_lock);
    return std::exchange(m_invalidRows, {});
}

void DrawState::clearInvalidRows() {
    const std::lock_guard guard(m_lock);
    m_invalidRows.clear();
}

void DrawState::forgetDrawnRows() {
    const std::lock_guard guard(m_lock);
    m_drawnRows.clear();
}

void DrawState::addDrawnRow(std::uint64_t data) {
    const std::lock_guard guard(m_lock);
    m_drawnRows.insert(data);
}

bool DrawState::isDrawn(std::uint64_t data) const {
    const std::lock_guard guard(m_lock);
    return m_drawnRows.contains(data);
}

std::size_t DrawState::drawnRowCount() const {
    const std::lock_guard guard(m_lock);
    return m_drawnRows.size();
}
