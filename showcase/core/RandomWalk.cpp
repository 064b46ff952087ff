#include "RandomWalk.h"

#include <algorithm>
#include <cmath>

namespace Desk {

namespace {

constexpr double PriceStep = 0.01;
constexpr double LargestMove = 0.006;

} // namespace

RandomWalk::RandomWalk(std::uint64_t seed, const std::vector<std::optional<double>>& prices) : m_random(seed) {
    for (std::size_t instrument = 0; instrument < prices.size(); ++instrument)
        if (prices[instrument])
            m_latest.push_back({instrument, *prices[instrument]});
}

std::optional<Tick> RandomWalk::next() {
    if (m_latest.empty())
        return std::nullopt;
    Tick& tick = m_latest[m_random.below(m_latest.size())];
    const double move = tick.price * m_random.between(-LargestMove, LargestMove);
    const double steps = std::max(1.0, std::round(std::fabs(move) / PriceStep));
    const double moved = std::round((tick.price + std::copysign(steps * PriceStep, move)) / PriceStep) * PriceStep;
    // At the bottom the only way is up.
    tick.price = moved < PriceStep ? tick.price + PriceStep : moved;
    return tick;
}

} // namespace Desk
