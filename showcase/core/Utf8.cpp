#include "Utf8.h"

#include <cstddef>

namespace Desk {

namespace {

/// The bytes that may follow a lead byte: how many, and the bounds of the first of them.
struct Sequence {
    std::size_t following;
    unsigned char least;
    unsigned char greatest;
};

constexpr Sequence NoLead{0, 1, 0};

constexpr Sequence sequenceOf(unsigned char lead) {
    if (lead < 0x80)
        return {0, 0, 0};
    if (lead >= 0xC2 && lead <= 0xDF)
        return {1, 0x80, 0xBF};
    if (lead == 0xE0)
        return {2, 0xA0, 0xBF};
    if (lead == 0xED)
        return {2, 0x80, 0x9F};
    if (lead >= 0xE1 && lead <= 0xEF)
        return {2, 0x80, 0xBF};
    if (lead == 0xF0)
        return {3, 0x90, 0xBF};
    if (lead >= 0xF1 && lead <= 0xF3)
        return {3, 0x80, 0xBF};
    if (lead == 0xF4)
        return {3, 0x80, 0x8F};
    return NoLead;
}

} // namespace

bool isUtf8(std::string_view text) {
    std::size_t at = 0;
    while (at < text.size()) {
        const Sequence sequence = sequenceOf(static_cast<unsigned char>(text[at++]));
        if (sequence.following == 0) {
            if (sequence.least > sequence.greatest)
                return false;
            continue;
        }
        if (text.size() - at < sequence.following)
            return false;
        for (std::size_t byte = 0; byte < sequence.following; ++byte, ++at) {
            const auto value = static_cast<unsigned char>(text[at]);
            const unsigned char least = byte == 0 ? sequence.least : 0x80;
            const unsigned char greatest = byte == 0 ? sequence.greatest : 0xBF;
            if (value < least || value > greatest)
                return false;
        }
    }
    return true;
}

} // namespace Desk
