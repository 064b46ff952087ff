#include "support/Pump.h"

#include <afxwin.h>

#include <algorithm>

namespace support {
namespace {

using Clock = std::chrono::steady_clock;

enum class Step { Message, Idle, Quit };

Step pumpOneMessage() {
    MSG message{};
    if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        return Step::Idle;
    }
    if (message.message == WM_QUIT) {
        return Step::Quit;
    }
    if (!AfxGetThread()->PreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return Step::Message;
}

void waitForMessage(std::chrono::milliseconds limit) {
    const auto milliseconds = static_cast<DWORD>(std::clamp<long long>(limit.count(), 0, 10));
    ::MsgWaitForMultipleObjectsEx(0, nullptr, milliseconds, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
}

std::chrono::milliseconds timeUntil(Clock::time_point end) {
    return std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
}

} // namespace

bool pumpUntilIdle(std::chrono::milliseconds limit) {
    const auto end = Clock::now() + limit;
    while (Clock::now() < end) {
        switch (pumpOneMessage()) {
        case Step::Idle:
            return true;
        case Step::Quit:
            return false;
        case Step::Message:
            break;
        }
    }
    return false;
}

bool pumpUntil(const std::function<bool()>& done, std::chrono::milliseconds limit) {
    const auto end = Clock::now() + limit;
    while (!done()) {
        if (Clock::now() >= end) {
            return false;
        }
        switch (pumpOneMessage()) {
        case Step::Idle:
            waitForMessage(timeUntil(end));
            break;
        case Step::Quit:
            return false;
        case Step::Message:
            break;
        }
    }
    return true;
}

bool pumpFor(std::chrono::milliseconds duration) {
    const auto end = Clock::now() + duration;
    bool quit = false;
    while (!quit && Clock::now() < end) {
        const Step step = pumpOneMessage();
        quit = step == Step::Quit;
        if (step == Step::Idle) {
            waitForMessage(timeUntil(end));
        }
    }
    return !quit;
}

} // namespace support
