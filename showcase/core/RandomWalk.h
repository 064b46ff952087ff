#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/SeededRandom.h"
#include "core/TickBatch.h"

namespace Desk {

/// An endless, repeatable stream of price changes: each step moves one instrument by up to 0.6 %, at least by the
/// smallest price step 0.01, and never below that.
class RandomWalk {
public:
    /// `prices` by instrument; an instrument without a price never ticks.
    RandomWalk(std::uint64_t seed, const std::vector<std::optional<double>>& prices);

    /// The next tick; nothing if no instrument has a price.
    std::optional<Tick> next();

private:
    SeededRandom m_random;
    std::vector<Tick> m_latest;
};

} // namespace Desk
