#pragma once

/// Sets a flag for the length of a scope.
class ScopedFlag {
public:
    explicit ScopedFlag(bool& flag) : m_flag(flag) { m_flag = true; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;
    ~ScopedFlag() { m_flag = false; }

private:
    bool& m_flag;
};
