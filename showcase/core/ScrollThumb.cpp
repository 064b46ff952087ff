#include "ScrollThumb.h"

#include <algorithm>
#include <cstdint>

namespace Desk {

namespace {

int thumbLength(const ScrollState& state, int trackLength, int leastLength) {
    const auto share = static_cast<std::int64_t>(trackLength) * state.page / state.extent;
    return std::max(static_cast<int>(share), leastLength);
}

int scaledToNearest(int value, int multiplier, int divisor) {
    return static_cast<int>((static_cast<std::int64_t>(value) * multiplier + divisor / 2) / divisor);
}

} // namespace

ThumbSpan thumbSpan(const ScrollState& state, int trackLength, int leastLength) {
    const int greatest = state.greatestPosition();
    if (greatest == 0 || trackLength < leastLength)
        return {};
    const int length = thumbLength(state, trackLength, leastLength);
    const int position = std::clamp(state.position, 0, greatest);
    const int begin = scaledToNearest(position, trackLength - length, greatest);
    return {begin, begin + length};
}

int positionForThumb(const ScrollState& state, int trackLength, int leastLength, int begin) {
    const int greatest = state.greatestPosition();
    if (greatest == 0 || trackLength < leastLength)
        return 0;
    const int room = trackLength - thumbLength(state, trackLength, leastLength);
    if (room <= 0)
        return 0;
    return scaledToNearest(std::clamp(begin, 0, room), greatest, room);
}

} // namespace Desk
