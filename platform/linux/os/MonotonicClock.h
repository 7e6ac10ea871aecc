#pragma once

#include <chrono>
#include <functional>

#include <time.h>

namespace quindle {

/// A clock that only runs forward; tests give their own.
using MonotonicClock = std::function<std::chrono::milliseconds()>;

/// The time since the computer was started. It runs on during sleep, so that what was read before a sleep is
/// old after it.
inline std::chrono::milliseconds timeSinceBoot()
{
    timespec now{};
    clock_gettime(CLOCK_BOOTTIME, &now);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(now.tv_sec) +
                                                                 std::chrono::nanoseconds(now.tv_nsec));
}

} // namespace quindle
