#pragma once

#include <functional>

namespace quindle {

/// Runs `work` on a thread that nobody waits for, since it may hang for ever. False when the system has no
/// room for a thread.
bool startThread(std::function<void()> work);

/// The same on the processor that the caller runs on, which is awake: no other one has to be woken for short
/// work that the caller waits for.
bool startThreadHere(std::function<void()> work);

} // namespace quindle
