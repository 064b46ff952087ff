#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

#include "core/RandomWalk.h"
#include "core/TickBatch.h"

namespace Desk {

/// A source of quotes on a thread of its own, as a real one would be: fills the batch and says when it has to be taken.
/// Ends with the object, before which it calls nothing any more.
class TickFeed {
public:
    /// `batch` outlives the feed; `notify` is called on the feed's thread.
    TickFeed(RandomWalk walk, int ticksPerSecond, TickBatch& batch, std::function<void()> notify);
    ~TickFeed();
    TickFeed(const TickFeed&) = delete;
    TickFeed& operator=(const TickFeed&) = delete;

private:
    void run(int ticksPerSecond);
    void tick();

    RandomWalk m_walk;
    TickBatch& m_batch;
    std::function<void()> m_notify;
    std::mutex m_lock;
    std::condition_variable m_wake;
    bool m_ends = false;
    std::thread m_thread;
};

} // namespace Desk
