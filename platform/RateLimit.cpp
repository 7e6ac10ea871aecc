#include "platform/RateLimit.h"

#include <utility>

#include "platform/RunLoop.h"

namespace quindle {

RateLimit::RateLimit(RunLoop& runLoop, double settling, std::function<void()> act)
    : m_runLoop(runLoop)
    , m_settling(settling)
    , m_act(std::move(act))
{
}

RateLimit::~RateLimit()
{
    // The loop keeps its timers alive, and would call an object that is gone.
    if (m_timer)
        m_timer->invalidate();
}

void RateLimit::request()
{
    // Remembered even while a timer runs, so that the last request is never lost.
    m_isRequested = true;
    if (m_timer)
        return;
    if (m_settling > 0)
        wait(m_settling);
    else
        actIfRequested();
}

void RateLimit::wait(double seconds)
{
    m_timer = m_runLoop.scheduleRepeatingTimer(seconds, 0.0, [this] { waitIsOver(); });
}

void RateLimit::waitIsOver()
{
    // A timer of its own for each wait: the next tick of the same one would count from when this one was
    // planned, and come too soon after it.
    std::exchange(m_timer, nullptr)->invalidate();
    actIfRequested();
}

void RateLimit::actIfRequested()
{
    if (!std::exchange(m_isRequested, false))
        return;
    // Before the call, which may itself request the next time.
    wait(shortestPause);
    m_act();
}

} // namespace quindle
