#pragma once

#include <chrono>
#include <functional>

/// Running the messages of the calling thread, as the application's own loop would: each goes through the thread's
/// PreTranslateMessage. A WM_QUIT is taken from the queue and ends the run.
namespace support {

/// Until the queue is empty. False when it is not empty after `limit`, or on WM_QUIT: a window that never validates
/// what it paints keeps a queue busy for ever.
bool pumpUntilIdle(std::chrono::milliseconds limit = std::chrono::seconds(5));

/// Until `done()` holds, asked after each message and at least each 10 ms. False when it does not hold after `limit`,
/// or on WM_QUIT.
bool pumpUntil(const std::function<bool()>& done, std::chrono::milliseconds limit = std::chrono::seconds(5));

/// For this long: timers fire. False on WM_QUIT.
bool pumpFor(std::chrono::milliseconds duration);

} // namespace support
