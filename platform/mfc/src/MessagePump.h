#pragma once

#include "afxwin_app.h"

/// Pumps messages of the calling thread, also one without a thread object. While the queue is empty `idle(count)` is
/// called until it gives false; before each message `goesOn()` is asked. False if WM_QUIT came.
template <class Idle, class GoesOn>
bool pumpMessages(Idle idle, GoesOn goesOn);

/// Whether the message that was pumped last is a reason to be idle again.
bool pumpedMessageEndsIdle();

/// The exit code of the WM_QUIT that was pumped last; 0 if there was none.
int pumpedQuitCode();

template <class Idle, class GoesOn>
bool pumpMessages(Idle idle, GoesOn goesOn) {
    bool idling = true;
    LONG idleCount = 0;
    while (goesOn()) {
        MSG waiting{};
        while (idling && !PeekMessageW(&waiting, nullptr, 0, 0, PM_NOREMOVE)) {
            idling = idle(idleCount++);
        }
        if (!goesOn()) {
            break;
        }
        if (!AfxPumpMessage()) {
            return false;
        }
        if (pumpedMessageEndsIdle()) {
            idling = true;
            idleCount = 0;
        }
    }
    return true;
}
