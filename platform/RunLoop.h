#pragma once

#include <functional>
#include <memory>

namespace quindle {

/// A timer that a run loop fires. The run loop keeps it alive; letting go of it does not stop it.
class Timer
{
public:
    virtual ~Timer() = default;

    /// Stops it for good.
    virtual void invalidate() = 0;
};

/// Somebody's wish that ticks come on time; it ends with the last copy, which may outlive the run loop.
using Punctuality = std::shared_ptr<void>;

/// The main thread's loop.
class RunLoop
{
public:
    virtual ~RunLoop() = default;

    /// Calls `fire` every `interval` seconds on the main thread, each time at most `tolerance` seconds late,
    /// so that ticks of several timers can share one wake-up. Lateness does not add up: the next tick is
    /// counted from the planned time, and ticks that were missed altogether (sleep) are passed over.
    virtual std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                          std::function<void()> fire) = 0;

    /// While somebody looks at what timers bring up to date: no timer uses its tolerance as long as one of
    /// the answers exists. A tick that has been put off comes at once.
    virtual Punctuality keepPunctual() = 0;
};

} // namespace quindle
