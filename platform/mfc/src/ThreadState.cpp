#include "ThreadState.h"

#include <atomic>

namespace {

// The system's own slots: thread_local of this toolchain costs a lock on the road of each message.
DWORD S_threadSlot = TLS_OUT_OF_INDEXES;
std::atomic<std::size_t> S_mapSlots{0};

} // namespace

void ThreadState::processStarts() {
    S_threadSlot = TlsAlloc();
}

ThreadState& ThreadState::current() {
    auto* state = static_cast<ThreadState*>(TlsGetValue(S_threadSlot));
    if (state == nullptr) {
        state = new ThreadState;
        TlsSetValue(S_threadSlot, state);
    }
    return *state;
}

void ThreadState::threadEnds() {
    auto* state = static_cast<ThreadState*>(TlsGetValue(S_threadSlot));
    if (state == nullptr) {
        return;
    }
    state->temporaryMapLocks = 0;
    state->deleteTemporaries();
    TlsSetValue(S_threadSlot, nullptr);
    delete state;
}

std::size_t ThreadState::reserveMapSlot() {
    return S_mapSlots.fetch_add(1);
}

std::unique_ptr<HandleMapBase>& ThreadState::mapAt(std::size_t slot) {
    if (m_maps.size() <= slot) {
        m_maps.resize(slot + 1);
    }
    return m_maps[slot];
}

void ThreadState::deleteTemporaries() {
    if (temporaryMapLocks > 0) {
        return;
    }
    // Not by iterator: a dying object may ask for a map that this thread did not have yet.
    std::size_t slot = 0;
    while (slot < m_maps.size()) {
        if (m_maps[slot]) {
            m_maps[slot]->deleteTemporaries();
        }
        ++slot;
    }
}
