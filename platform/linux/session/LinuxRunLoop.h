#pragma once

#include "platform/RunLoop.h"
#include "platform/linux/session/RestingTicks.h"

namespace quindle {

/// The main loop's timers, all behind one timer of the event loop, so that the process wakes as seldom as
/// TimerSchedule allows. While the computer sleeps the clock stands still: after waking, the next ticks come
/// when the rest of their interval has passed. Main thread only; needs a running QCoreApplication.
class LinuxRunLoop : public RunLoop
{
public:
    /// Seconds of a steady clock.
    using SteadyClock = std::function<double()>;

    /// On the computer's steady clock.
    LinuxRunLoop();

    explicit LinuxRunLoop(SteadyClock clock);

    /// Timers that are still scheduled never fire again.
    ~LinuxRunLoop() override;

    std::shared_ptr<Timer> scheduleRepeatingTimer(double interval, double tolerance,
                                                  std::function<void()> fire) override;

    Punctuality keepPunctual() override;

    /// Skips ticks that would find nothing new, for a minute at most: while `mayRest`, asked after each tick,
    /// says that they only depend on what `watch` looks at. Only while no timer is quicker than a refresh and
    /// nobody wants ticks on time.
    void restWhen(std::function<bool()> mayRest, RestingTicks::Watch watch);

private:
    class Wheel;
    class ScheduledTimer;

    std::shared_ptr<Wheel> m_wheel;
};

} // namespace quindle
