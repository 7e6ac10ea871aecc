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
    for (const auto& timer : {m_settle, m_recover})
        if (timer)
            timer->invalidate();
}

void RateLimit::request()
{
    m_isRequested = true;
    const bool isFirst = m_spent == 0;
    if (isFirst)
        act();
    // Once more even without another request: some drivers announce a change before its values have settled.
    if (isFirst && m_settling > 0)
        m_isRequested = true;
    settle();
}

/// Acts on what is requested when it has settled, if another action is allowed then.
void RateLimit::settle()
{
    const int allowed = m_settling > 0 ? 2 : 1;
    if (!m_isRequested || m_settle || m_spent >= allowed)
        return;
    m_settle = m_runLoop.scheduleRepeatingTimer(m_settling, 0.0, [this] {
        std::exchange(m_settle, nullptr)->invalidate();
        act();
    });
}

void RateLimit::act()
{
    m_isRequested = false;
    ++m_spent;
    recover();
    m_act();
}

/// From the last action on, when the time of both actions of a burst begins.
void RateLimit::recover()
{
    if (m_recover)
        m_recover->invalidate();
    // A new timer for each pause: the next tick of the same one would count from this one's planned time, and
    // come too soon.
    m_recover = m_runLoop.scheduleRepeatingTimer(shortestPause, 0.0, [this] {
        std::exchange(m_recover, nullptr)->invalidate();
        --m_spent;
        if (m_isRequested && !m_settle)
            act();
        else if (m_spent > 0)
            recover();
    });
}

} // namespace quindle
