#pragma once

#include <initializer_list>

#include <windows.h>

namespace support {

/// Keys that this thread takes for pressed, for the length of a scope, without a keyboard.
class ScopedKeys {
public:
    explicit ScopedKeys(std::initializer_list<int> virtualKeys);
    ScopedKeys(const ScopedKeys&) = delete;
    ScopedKeys& operator=(const ScopedKeys&) = delete;
    ~ScopedKeys();

private:
    BYTE m_before[256];
};

} // namespace support
