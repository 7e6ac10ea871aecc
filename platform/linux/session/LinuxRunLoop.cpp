#include "platform/linux/session/LinuxRunLoop.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <map>

#include <QTimer>

#include "platform/linux/session/TimerSchedule.h"

namespace quindle {

namespace {

// The event loop counts milliseconds in an int; a wake-up too early for any tick is simply followed by
// another.
constexpr double longestSleep = 86400.0;

constexpr double longestRest = 60.0;

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
    void restWhen(std::function<bool()> mayRest, RestingTicks::Watch watch);

private:
    void wakeUp();
    void rest(bool wasPrepared);
    void fireIfScheduled(int number);
    void armTimer();
    void armTimerAt(double moment);

    SteadyClock m_clock;
    TimerSchedule m_schedule;
    std::map<int, std::shared_ptr<std::function<void()>>> m_actions;
    int m_punctualities = 0;
    QTimer m_timer;
    std::function<bool()> m_mayRest;
    std::unique_ptr<RestingTicks> m_rest;
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
    // The schedule has already used the tolerance; the event loop must not add its own.
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

void LinuxRunLoop::Wheel::restWhen(std::function<bool()> mayRest, RestingTicks::Watch watch)
{
    m_mayRest = std::move(mayRest);
    m_rest = std::make_unique<RestingTicks>(std::move(watch), [this] { wakeUp(); });
}

void LinuxRunLoop::Wheel::wakeUp()
{
    // Before the ticks: they find what changes after the watch has begun, the watch finds what changes later.
    const bool wasPrepared = m_rest && m_rest->isPrepared();
    const std::vector<int> due = m_schedule.takeDue(m_clock());
    // Before firing: an action may run a loop of its own, in which the next ticks are due as usual.
    armTimer();
    for (const int number : due)
        fireIfScheduled(number);
    if (m_rest)
        rest(wasPrepared);
}

/// The watch looks at all of the next ticks but the last two: at the one before the last the loop wakes by
/// itself, and if it rests again, the watch goes on at the last.
void LinuxRunLoop::Wheel::rest(bool wasPrepared)
{
    constexpr std::size_t ownTicks = 2;
    std::vector<double> ticks = m_schedule.restfulWakeUps(longestRest);
    if (ticks.size() <= ownTicks || !m_mayRest()) {
        m_rest->forget();
        return;
    }
    if (!wasPrepared) {
        m_rest->prepare();
        return;
    }
    std::vector<RestingTicks::Clock::time_point> moments;
    for (const double tick : ticks)
        moments.push_back(RestingTicks::Clock::now() + std::chrono::round<RestingTicks::Clock::duration>(
                                                           std::chrono::duration<double>(tick - m_clock())));
    m_rest->rest({moments.begin(), moments.end() - ownTicks}, moments.back());
    armTimerAt(ticks[ticks.size() - ownTicks]);
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
    if (m_rest)
        m_rest->end();
    if (const auto next = m_schedule.nextWakeUp())
        armTimerAt(*next);
    else
        m_timer.stop();
}

void LinuxRunLoop::Wheel::armTimerAt(double moment)
{
    const double delay = std::clamp(moment - m_clock(), 0.0, longestSleep);
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

void LinuxRunLoop::restWhen(std::function<bool()> mayRest, RestingTicks::Watch watch)
{
    m_wheel->restWhen(std::move(mayRest), std::move(watch));
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
