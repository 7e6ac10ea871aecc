#include "platform/recorded/RecordedRunLoop.h"

#include <utility>

namespace quindle {

RecordedTimer::RecordedTimer(double interval, double tolerance, std::function<void()> fire)
    : m_interval(interval)
    , m_tolerance(tolerance)
    , m_fire(std::move(fire))
{
}

void RecordedTimer::fire() const
{
    // The loop keeps all timers, even those that were stopped.
    if (m_isValid)
        m_fire();
}

std::shared_ptr<Timer> RecordedRunLoop::scheduleRepeatingTimer(double interval, double tolerance,
                                                               std::function<void()> fire)
{
    // Kept but not started: what is played refreshes with each step and at no other time.
    m_timers.push_back(std::make_shared<RecordedTimer>(interval, tolerance, std::move(fire)));
    return m_timers.back();
}

} // namespace quindle
