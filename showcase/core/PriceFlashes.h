#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Desk {

/// How strongly a cell still glows after its price has changed, in a few steps, so that a cell is painted again only
/// when its look changes. Times are milliseconds of any steady clock.
class PriceFlashes {
public:
    static constexpr int Steps = 8;
    static constexpr std::int64_t StepMilliseconds = 110;

    /// The price of `instrument` went up (`rise`) or down.
    void strike(std::size_t instrument, bool rise, std::int64_t now);
    /// `Steps` right after a rise, down to 0; negative after a fall.
    int levelOf(std::size_t instrument) const;
    /// Lets time pass: the instruments whose level is another one now. What has faded is forgotten.
    std::vector<std::size_t> advance(std::int64_t now);
    bool isQuiet() const { return m_flashes.empty(); }

private:
    struct Flash {
        bool rise;
        std::int64_t since;
        int strength;
    };

    std::unordered_map<std::size_t, Flash> m_flashes;
};

} // namespace Desk
