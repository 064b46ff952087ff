#include "PriceFlashes.h"

#include <algorithm>

namespace Desk {

void PriceFlashes::strike(std::size_t instrument, bool rise, std::int64_t now) {
    m_flashes[instrument] = {rise, now, Steps};
}

int PriceFlashes::levelOf(std::size_t instrument) const {
    const auto flash = m_flashes.find(instrument);
    if (flash == m_flashes.end())
        return 0;
    return flash->second.rise ? flash->second.strength : -flash->second.strength;
}

std::vector<std::size_t> PriceFlashes::advance(std::int64_t now) {
    std::vector<std::size_t> changed;
    for (auto entry = m_flashes.begin(); entry != m_flashes.end();) {
        Flash& flash = entry->second;
        const std::int64_t passed = std::max<std::int64_t>(0, (now - flash.since) / StepMilliseconds);
        const int strength = Steps - static_cast<int>(std::min<std::int64_t>(passed, Steps));
        if (strength != flash.strength)
            changed.push_back(entry->first);
        flash.strength = strength;
        entry = strength == 0 ? m_flashes.erase(entry) : std::next(entry);
    }
    std::sort(changed.begin(), changed.end());
    return changed;
}

} // namespace Desk
