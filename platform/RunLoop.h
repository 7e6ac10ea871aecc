#pragma once

#include <functional>
#include <memory>

namespace quindle {

/// A timer that a run loop fires. The run loop keeps it alive; dropping it does not stop it. Main thread
/// only.
class Timer
{
public:
    virtual ~Timer() = default;

    /// Stops it for good, even from within its own tick; a tick that is due together with others does not
    /// come. Does nothing the second time, or after the loop has gone.
    virtual void invalidate() = 0;
};

/// A request that ticks come on time; it ends with the last copy, which may outlive the run loop.
using Punctuality = std::shared_ptr<void>;

/// The main thread's loop, and callable from that thread only.
class RunLoop
{
public:
    virtual ~RunLoop() = default;

    /// Calls `fire` every `interval` seconds on the main thread, the first time after one interval, each
    /// time at most `tolerance` seconds late, so that ticks of several timers can share one wake-up.
    /// Lateness does not add up: the next tick is counted from the planned time, and ticks that were missed
    /// altogether (sleep) are passed over.
    /// Never null, and never fails.
    virtual std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                          std::function<void()> fire) = 0;

    /// While somebody looks at what timers bring up to date: no timer uses its tolerance as long as one of
    /// the returned values exists. A tick that was put off comes at once. May return null where no timer is
    /// ever late.
    virtual Punctuality keepPunctual() = 0;
};

} // namespace quindle
