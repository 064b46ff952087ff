#pragma once

#include <cstddef>
#include <cstdint>

namespace Desk {

/// The SplitMix64 generator: unlike the distributions of the standard library it gives the same numbers everywhere.
class SeededRandom {
public:
    explicit SeededRandom(std::uint64_t seed) : m_state(seed) {}

    std::uint64_t bits() {
        m_state += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = m_state;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    /// 0 to `bound` - 1; `bound` is above 0.
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(bits() % bound); }

    /// From `least` up to, but without, `greatest`.
    double between(double least, double greatest) {
        return least + (greatest - least) * static_cast<double>(bits() >> 11) * 0x1p-53;
    }

private:
    std::uint64_t m_state;
};

} // namespace Desk
