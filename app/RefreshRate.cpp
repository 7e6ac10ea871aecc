#include "app/RefreshRate.h"

#include <utility>

#include "platform/RunLoop.h"

namespace quindle {

RefreshRate::RefreshRate(RunLoop& runLoop, std::function<void()> refresh)
    : m_runLoop(runLoop)
    , m_refresh(std::move(refresh))
{
}

RefreshRate::~RefreshRate()
{
    if (m_timer)
        m_timer->invalidate();
}

void RefreshRate::request()
{
    m_isRequested = true;
    if (!m_timer)
        wait(settleTime);
}

void RefreshRate::wait(double seconds)
{
    m_timer = m_runLoop.scheduleRepeatingTimer(seconds, 0.0, [this] { waitIsOver(); });
}

void RefreshRate::waitIsOver()
{
    // A timer of its own for each wait: the next tick of the same one would count from when this one was
    // planned, and come too soon after it.
    std::exchange(m_timer, nullptr)->invalidate();
    if (!std::exchange(m_isRequested, false))
        return;
    wait(shortestPause);
    m_refresh();
}

} // namespace quindle
