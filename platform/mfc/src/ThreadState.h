#pragma once

#include "afx.h"

#include <cstddef>
#include <memory>
#include <vector>

class CWinThread;
class CWnd;

/// The part of a handle map that does not depend on its kind.
class HandleMapBase {
public:
    HandleMapBase() = default;
    HandleMapBase(const HandleMapBase&) = delete;
    HandleMapBase& operator=(const HandleMapBase&) = delete;
    virtual ~HandleMapBase() = default;
    virtual void deleteTemporaries() = 0;
    virtual std::size_t temporaryCount() const = 0;
    virtual std::size_t permanentCount() const = 0;
};

/// What the framework remembers for each thread. Made at the first use, freed when the thread ends.
class ThreadState {
public:
    static ThreadState& current();
    static void threadEnds();
    static void processStarts();

    /// One slot for each kind of handle map, the same in all threads.
    static std::size_t reserveMapSlot();
    std::unique_ptr<HandleMapBase>& mapAt(std::size_t slot);

    /// Frees the temporary objects of every map, unless a caller locked them.
    void deleteTemporaries();

    CWinThread* thread = nullptr;
    CWnd* creatingWindow = nullptr; ///< the object that the next window of this thread is attached to
    HHOOK creationHook = nullptr;
    MSG lastSentMessage{}; ///< what the innermost running window procedure was called with
    MSG pumpedMessage{};   ///< what a loop of this thread took from the queue last
    int quitCode = 0;      ///< of the WM_QUIT that a loop of this thread took last
    int temporaryMapLocks = 0;

private:
    std::vector<std::unique_ptr<HandleMapBase>> m_maps;
};
