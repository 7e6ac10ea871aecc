#pragma once

#include <functional>
#include <system_error>
#include <thread>

namespace quindle {

/// Runs `work` on a thread that nobody waits for, since it may hang for ever. False when the system has no
/// room for a thread.
inline bool startThread(std::function<void()> work)
{
    try {
        std::thread(std::move(work)).detach();
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

} // namespace quindle
