#include "support/ScopedKeys.h"

#include <algorithm>
#include <iterator>

namespace support {

ScopedKeys::ScopedKeys(std::initializer_list<int> virtualKeys) {
    ::GetKeyboardState(m_before);
    BYTE pressed[256];
    std::copy(std::begin(m_before), std::end(m_before), std::begin(pressed));
    for (const int virtualKey : virtualKeys) {
        pressed[virtualKey] = 0x80;
    }
    ::SetKeyboardState(pressed);
}

ScopedKeys::~ScopedKeys() {
    ::SetKeyboardState(m_before);
}

} // namespace support
