#include "TickBatch.h"

#include <utility>

namespace Desk {

bool TickBatch::add(const Tick& tick) {
    const std::lock_guard lock(m_lock);
    const bool wasEmpty = m_ticks.empty();
    const auto [place, isNew] = m_placeOfInstrument.try_emplace(tick.instrument, m_ticks.size());
    if (isNew)
        m_ticks.push_back(tick);
    else
        m_ticks[place->second].price = tick.price;
    return wasEmpty;
}

std::vector<Tick> TickBatch::take() {
    const std::lock_guard lock(m_lock);
    m_placeOfInstrument.clear();
    return std::exchange(m_ticks, {});
}

} // namespace Desk
