#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/Instruments.h"

namespace Desk {

inline constexpr std::uint64_t SampleSeed = 20240229;
inline constexpr std::size_t SampleSize = 200;

/// Invented companies with invented figures, the same for the same seed on any machine. Some cells are unknown, as in
/// real lists. Symbols are unique for any `count` that memory allows.
std::vector<Instrument> sampleInstruments(std::size_t count = SampleSize, std::uint64_t seed = SampleSeed);

} // namespace Desk
