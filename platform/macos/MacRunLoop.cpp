#include "platform/macos/MacRunLoop.h"

#include <set>
#include <utility>

namespace quindle {

namespace {

class RunningTimer;

using RunningTimers = std::set<std::shared_ptr<RunningTimer>>;

class RunningTimer : public Timer, public std::enable_shared_from_this<RunningTimer>
{
public:
    RunningTimer(std::weak_ptr<RunningTimers> others, double tolerance, std::function<void()> fire)
        : m_others(std::move(others))
        , m_tolerance(tolerance)
        , m_fire(std::move(fire))
    {
    }

    void start(TimerCalls& calls, double interval, bool isPunctual)
    {
        m_timer = calls.start(interval, isPunctual ? 0.0 : m_tolerance, [this] { tick(); });
    }

    void setPunctual(bool isPunctual)
    {
        if (m_timer)
            m_timer->setTolerance(isPunctual ? 0.0 : m_tolerance);
    }

    void invalidate() override
    {
        const auto self = shared_from_this(); // the loop may hold the last reference
        m_timer.reset();
        if (const auto others = m_others.lock())
            others->erase(self);
    }

private:
    void tick()
    {
        const auto self = shared_from_this(); // it may invalidate itself
        m_fire();
    }

    std::weak_ptr<RunningTimers> m_others;
    double m_tolerance;
    std::function<void()> m_fire;
    std::unique_ptr<SystemTimer> m_timer; ///< null once it is stopped
};

void setPunctual(const RunningTimers& timers, bool isPunctual)
{
    // A copy: an overdue tick may come at once, and end timers.
    for (const auto& timer : RunningTimers(timers))
        timer->setPunctual(isPunctual);
}

} // namespace

struct MacRunLoop::State
{
    TimerCalls& calls;
    std::shared_ptr<RunningTimers> timers = std::make_shared<RunningTimers>();
    std::weak_ptr<void> punctuality{};
};

MacRunLoop::MacRunLoop(TimerCalls& calls)
    : m_state(std::make_shared<State>(State{calls}))
{
}

MacRunLoop::~MacRunLoop()
{
    for (const auto& timer : RunningTimers(*m_state->timers))
        timer->invalidate();
}

std::shared_ptr<Timer> MacRunLoop::scheduleRepeatingTimer(double interval, double tolerance,
                                                          std::function<void()> fire)
{
    auto timer = std::make_shared<RunningTimer>(m_state->timers, tolerance, std::move(fire));
    m_state->timers->insert(timer);
    timer->start(m_state->calls, interval, !m_state->punctuality.expired());
    return timer;
}

Punctuality MacRunLoop::keepPunctual()
{
    if (Punctuality kept = m_state->punctuality.lock())
        return kept;
    const auto timers = std::weak_ptr(m_state->timers);
    const Punctuality kept(this, [timers](void*) {
        if (const auto running = timers.lock())
            setPunctual(*running, false);
    });
    m_state->punctuality = kept;
    setPunctual(*m_state->timers, true);
    return kept;
}

} // namespace quindle
