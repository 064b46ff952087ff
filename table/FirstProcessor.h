#pragma once

#include <afxwin.h>

/// Keeps the thread on one processor for the length of a scope, or until `release`: counters that are compared with
/// each other are read on the same one.
class FirstProcessor {
public:
    FirstProcessor() : m_oldMask(::SetThreadAffinityMask(::GetCurrentThread(), 1)) {}
    FirstProcessor(const FirstProcessor&) = delete;
    FirstProcessor& operator=(const FirstProcessor&) = delete;
    ~FirstProcessor() { release(); }

    void release() {
        if (m_oldMask != 0) {
            ::SetThreadAffinityMask(::GetCurrentThread(), m_oldMask);
            m_oldMask = 0;
        }
    }

private:
    DWORD_PTR m_oldMask;
};
