#pragma once

#include <optional>
#include <vector>

#include "core/Instruments.h"
#include "core/chart/Candles.h"

namespace Desk {

/// What the desk shows.
struct DeskData {
    std::vector<Instrument> instruments;
    /// Of the symbols that have any; without it each instrument has invented ones.
    std::optional<CandleBook> candles;
};

} // namespace Desk
