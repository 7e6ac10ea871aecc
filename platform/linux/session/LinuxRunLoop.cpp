#include "platform/linux/session/LinuxRunLoop.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>

#include <QTimer>

#include "platform/linux/session/TimerSchedule.h"

namespace quindle {

namespace {

// The event loop counts milliseconds in an int; a wake-up that comes too early for any tick is simply
// followed by another.
constexpr double longestSleep = 86400.0;

double steadySeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

/// The state that timers share with their loop, and may outlive it.
class LinuxRunLoop::Wheel
{
public:
    explicit Wheel(SteadyClock clock);

    int add(double interval, double tolerance, std::shared_ptr<std::function<void()>> fire);
    void remove(int number);
    void addPunctuality(int change);

private:
    void wakeUp();
    void fireIfScheduled(int number);
    void armTimer();

    SteadyClock m_clock;
    TimerSchedule m_schedule;
    std::map<int, std::shared_ptr<std::function<void()>>> m_actions;
    int m_punctualities = 0;
    QTimer m_timer;
};

class LinuxRunLoop::ScheduledTimer : public Timer
{
public:
    ScheduledTimer(std::weak_ptr<Wheel> wheel, int number)
        : m_wheel(std::move(wheel))
        , m_number(number)
    {
    }

    void invalidate() override
    {
        if (const auto wheel = m_wheel.lock())
            wheel->remove(m_number);
    }

private:
    std::weak_ptr<Wheel> m_wheel;
    int m_number;
};

LinuxRunLoop::Wheel::Wheel(SteadyClock clock)
    : m_clock(std::move(clock))
{
    m_timer.setSingleShot(true);
    // The schedule has spent the tolerance already; the event loop must not add its own.
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout(&m_timer, [this] { wakeUp(); });
}

int LinuxRunLoop::Wheel::add(double interval, double tolerance, std::shared_ptr<std::function<void()>> fire)
{
    const int number = m_schedule.add(m_clock(), interval, tolerance);
    m_actions.emplace(number, std::move(fire));
    armTimer();
    return number;
}

void LinuxRunLoop::Wheel::remove(int number)
{
    m_schedule.remove(number);
    m_actions.erase(number);
    armTimer();
}

void LinuxRunLoop::Wheel::addPunctuality(int change)
{
    m_punctualities += change;
    m_schedule.setPunctual(m_punctualities > 0);
    armTimer();
}

void LinuxRunLoop::Wheel::wakeUp()
{
    const std::vector<int> due = m_schedule.takeDue(m_clock());
    // Before firing: an action may run a loop of its own, in which the next ticks are due as usual.
    armTimer();
    for (const int number : due)
        fireIfScheduled(number);
}

void LinuxRunLoop::Wheel::fireIfScheduled(int number)
{
    const auto entry = m_actions.find(number);
    if (entry == m_actions.end())
        return; // invalidated by one that fired before it
    // An action may invalidate its own timer while it runs.
    const auto keptAlive = entry->second;
    (*keptAlive)();
}

void LinuxRunLoop::Wheel::armTimer()
{
    const auto next = m_schedule.nextWakeUp();
    if (!next) {
        m_timer.stop();
        return;
    }
    const double delay = std::clamp(*next - m_clock(), 0.0, longestSleep);
    // Rounded up: a wake-up just before the tick would find nothing due.
    m_timer.start(static_cast<int>(std::ceil(delay * 1000)));
}

LinuxRunLoop::LinuxRunLoop()
    : LinuxRunLoop(steadySeconds)
{
}

LinuxRunLoop::LinuxRunLoop(SteadyClock clock)
    : m_wheel(std::make_shared<Wheel>(std::move(clock)))
{
}

LinuxRunLoop::~LinuxRunLoop() = default;

std::shared_ptr<Timer> LinuxRunLoop::scheduleRepeatingTimer(double interval, double tolerance,
                                                            std::function<void()> fire)
{
    auto action = std::make_shared<std::function<void()>>(std::move(fire));
    return std::make_shared<ScheduledTimer>(m_wheel, m_wheel->add(interval, tolerance, std::move(action)));
}

Punctuality LinuxRunLoop::keepPunctual()
{
    m_wheel->addPunctuality(1);
    return {this, [weak = std::weak_ptr(m_wheel)](void*) {
                if (const auto wheel = weak.lock())
                    wheel->addPunctuality(-1);
            }};
}

} // namespace quindle
