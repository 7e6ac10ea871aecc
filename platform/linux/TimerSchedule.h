#pragma once

#include <map>
#include <optional>
#include <vector>

namespace quindle {

/// When repeating timers fire, so that their ticks share as few wake-ups as they allow. Plain numbers in and
/// out: all times are seconds of one steady clock.
///
/// A timer's ticks are planned at start + n * interval, n = 1, 2, ... A tick may be late by the timer's
/// tolerance and, where that lets it share a wake-up, by 0.25 s more (a tenth of the interval, if that is
/// less). The next wake-up is the latest of the timers' next planned ticks that makes none of them too late.
///
/// A timer that tolerates its whole interval may fire at any time, because some tick of it is in tolerance
/// then: it starts anew whenever it fires, and so falls in step with the others wherever they started.
class TimerSchedule
{
public:
    /// Adds a timer and returns its number; numbers count up. An interval that is not at least 0.1 ms counts
    /// as that, a negative tolerance as 0.
    int add(double start, double interval, double tolerance);

    /// Takes a timer out; an unknown number is ignored.
    void remove(int number);

    /// When to wake next; nothing when there is no timer.
    std::optional<double> nextWakeUp() const;

    /// The timers whose planned tick is not after `now`, in the order of these ticks, then of their numbers.
    /// Their next ticks are then the first ones after `now`: what was missed is passed over.
    std::vector<int> takeDue(double now);

private:
    struct Entry
    {
        double start = 0;
        double interval = 0;
        double lateness = 0;
        double planned = 0;
        bool fallsInStep = false;
    };

    static double firstTickAfter(const Entry& entry, double now);

    std::map<int, Entry> m_entries;
    int m_lastNumber = 0;
};

} // namespace quindle
