#include "TickFeed.h"

#include <chrono>

namespace Desk {

TickFeed::TickFeed(RandomWalk walk, int ticksPerSecond, TickBatch& batch, std::function<void()> notify)
    : m_walk(std::move(walk)),
      m_batch(batch),
      m_notify(std::move(notify)),
      m_thread([this, ticksPerSecond] { run(ticksPerSecond); }) {}

TickFeed::~TickFeed() {
    {
        const std::lock_guard lock(m_lock);
        m_ends = true;
    }
    m_wake.notify_all();
    m_thread.join();
}

void TickFeed::run(int ticksPerSecond) {
    using Clock = std::chrono::steady_clock;
    // Short sleeps are coarse on Windows, so each wake makes up for the time that has passed.
    constexpr auto Pause = std::chrono::milliseconds(10);
    const auto start = Clock::now();
    long long made = 0;
    std::unique_lock lock(m_lock);
    while (!m_wake.wait_for(lock, Pause, [this] { return m_ends; })) {
        const std::chrono::duration<double> passed = Clock::now() - start;
        const auto due = static_cast<long long>(passed.count() * ticksPerSecond);
        for (; made < due; ++made)
            tick();
    }
}

void TickFeed::tick() {
    if (const std::optional<Tick> tick = m_walk.next(); tick && m_batch.add(*tick))
        m_notify();
}

} // namespace Desk
