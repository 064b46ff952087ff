#pragma once

#include <cstddef>
#include <mutex>
#include <unordered_map>
#include <vector>

namespace Desk {

/// A new price of an instrument, named by its index.
struct Tick {
    std::size_t instrument = 0;
    double price = 0.0;

    bool operator==(const Tick&) const = default;
};

/// Collects ticks from any thread until the user-interface thread takes them, so that a burst costs one repaint.
/// Of several ticks of one instrument the latest price stays, in the place of the first.
class TickBatch {
public:
    /// True if the batch was empty: then, and only then, its taker has to be told.
    bool add(const Tick& tick);
    /// All ticks since the last call.
    std::vector<Tick> take();

private:
    std::mutex m_lock;
    std::vector<Tick> m_ticks;
    std::unordered_map<std::size_t, std::size_t> m_placeOfInstrument;
};

} // namespace Desk
