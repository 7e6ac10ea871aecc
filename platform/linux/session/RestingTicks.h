#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

#include <QSocketNotifier>

#include "platform/posix/FileDescriptor.h"

namespace quindle {

/// Sees on a thread of its own whether ticks of the main loop would find anything new, so that the main loop
/// sleeps through those that would not. Looking costs a small part of a tick, and wakes no second thread. The
/// main loop is woken by a kernel timer that each look puts off: even when a look hangs, or the thread does
/// not get to run. Main thread only.
class RestingTicks
{
public:
    using Clock = std::chrono::steady_clock;

    /// What is looked at, on the thread. Both may hang for ever.
    struct Watch
    {
        std::function<bool()> begin;   ///< records the present state; false where it cannot be watched
        std::function<bool()> isStill; ///< since `begin`
    };

    /// `wake` is called from the main loop for a tick that has to take place. The patience is how late a look
    /// that does not end may make it.
    RestingTicks(Watch watch, std::function<void()> wake,
                 std::chrono::milliseconds patience = std::chrono::milliseconds(500));

    /// A thread that hangs is abandoned.
    ~RestingTicks();

    RestingTicks(const RestingTicks&) = delete;
    RestingTicks& operator=(const RestingTicks&) = delete;

    /// Begins the watch, unless it has begun. After one that could not begin, the next few calls do nothing.
    void prepare();

    /// Whether the watch has begun, and has seen no change since. Not while a look hangs.
    bool isPrepared() const;

    /// Makes the next `prepare` begin the watch anew.
    void forget();

    /// Looks at each of these moments, in order; the first of them at which something is new wakes the main
    /// loop. `next` is the first moment that the next call will name. Only while it is prepared.
    void rest(std::vector<Clock::time_point> moments, Clock::time_point next);

    /// The main loop has woken by itself.
    void end();

private:
    class Looks;

    bool startLooks();
    void readTimer();

    Watch m_watch;
    std::function<void()> m_wake;
    std::chrono::milliseconds m_patience;
    std::shared_ptr<Looks> m_looks; ///< shared with the thread
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_callsUntilPrepared = 0;
};

} // namespace quindle
