#include "tests/soak/SoakTime.h"

#include <algorithm>
#include <cmath>

namespace quindle {

class SoakRunLoop::SoakTimer : public Timer
{
public:
    SoakTimer(SoakRunLoop& loop, int number)
        : m_loop(loop)
        , m_number(number)
    {
    }

    void invalidate() override
    {
        m_loop.m_schedule.remove(m_number);
        m_loop.m_actions.erase(m_number);
    }

private:
    SoakRunLoop& m_loop;
    int m_number;
};

std::shared_ptr<Timer> SoakRunLoop::scheduleRepeatingTimer(double interval, double tolerance,
                                                           std::function<void()> fire)
{
    const int number = m_schedule.add(m_now, interval, tolerance);
    m_actions.emplace(number, std::move(fire));
    return std::make_shared<SoakTimer>(*this, number);
}

// Views, which ask for it, do not outlive the loop here.
Punctuality SoakRunLoop::keepPunctual()
{
    addPunctuality(1);
    return {this, [this](void*) { addPunctuality(-1); }};
}

void SoakRunLoop::addPunctuality(int change)
{
    m_punctualities += change;
    m_schedule.setPunctual(m_punctualities > 0);
}

void SoakRunLoop::advance(double seconds)
{
    const double until = m_now + seconds;
    for (auto next = m_schedule.nextWakeUp(); next && *next <= until; next = m_schedule.nextWakeUp()) {
        moveTo(std::max(*next, m_now)); // a tick that was put off comes at once
        for (const int number : m_schedule.takeDue(m_now))
            if (const auto action = m_actions.find(number); action != m_actions.end())
                action->second();
    }
    moveTo(until);
}

void SoakRunLoop::moveTo(double time)
{
    m_clock.time = m_clock.time.addMSecs(std::llround((time - m_now) * 1000));
    m_now = time;
}

} // namespace quindle
