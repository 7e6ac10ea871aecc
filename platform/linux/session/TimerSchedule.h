#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <vector>

namespace quindle {

/// When repeating timers fire, so that their ticks share as few wake-ups as they allow. Plain numbers in and
/// out: all times are seconds of one steady clock, kept as whole microseconds, so that equal times are equal.
///
/// A timer's ticks are planned at start + n * interval, n = 1, 2, ... A tick may be late by the timer's
/// tolerance, but not while the schedule is punctual. The next wake-up is the latest of the timers' next
/// planned ticks that makes none of them too late.
///
/// A timer that tolerates its whole interval may fire at any time, because some tick of it is in tolerance
/// then: it starts anew at the latest tick it fires together with, and so falls in step with the others
/// wherever they started.
class TimerSchedule
{
public:
    /// Adds a timer and returns its number; numbers count up. An interval that is not at least 0.1 ms counts
    /// as that, a negative tolerance as 0.
    int add(double start, double interval, double tolerance);

    /// Removes a timer; an unknown number is ignored.
    void remove(int number);

    /// Whether tolerances are ignored; at first they are not.
    void setPunctual(bool isPunctual) { m_isPunctual = isPunctual; }

    /// When to wake next; nothing when there is no timer. It may be past, when the schedule has just become
    /// punctual.
    std::optional<double> nextWakeUp() const;

    /// The next wake-ups as long as nothing is changed, those within `seconds` of the first one. None while
    /// every tick matters: the schedule is punctual, or a timer is quicker than a refresh, every 5 seconds.
    std::vector<double> restfulWakeUps(double seconds) const;

    /// The timers whose planned tick is not after `now`, in the order of these ticks, then of their numbers.
    /// Their next ticks are then the first ones after `now`: missed ones are skipped.
    std::vector<int> takeDue(double now);

private:
    using Microseconds = std::int64_t;

    struct Entry
    {
        Microseconds start = 0;
        Microseconds interval = 0;
        Microseconds tolerance = 0;
        Microseconds planned = 0;
    };

    static Microseconds microseconds(double seconds);

    std::map<int, Entry> m_entries;
    int m_lastNumber = 0;
    bool m_isPunctual = false;
};

} // namespace quindle
