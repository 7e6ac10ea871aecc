#include "platform/linux/session/RestingTicks.h"

#include <algorithm>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <utility>

#include <sys/timerfd.h>
#include <unistd.h>

#include "platform/linux/os/DetachedThread.h"

namespace quindle {

namespace {

using namespace std::chrono_literals;

/// What cannot be watched now can rarely be watched a moment later: refreshes of about five minutes.
constexpr int callsAfterFailure = 30;

/// Moments are computed from two clocks, so the same one computed twice may differ by nanoseconds.
constexpr auto almost = 20ms;

constexpr auto never = RestingTicks::Clock::time_point::max();

itimerspec onceAt(RestingTicks::Clock::time_point moment)
{
    const auto time = moment.time_since_epoch();
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
    itimerspec once{};
    once.it_value.tv_sec = seconds.count();
    once.it_value.tv_nsec = std::chrono::nanoseconds(time - seconds).count();
    return once;
}

} // namespace

/// What the thread and the main loop share.
class RestingTicks::Looks
{
public:
    Looks(Watch watch, std::chrono::milliseconds patience)
        : m_watch(std::move(watch))
        , m_patience(patience)
        , m_timer(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC))
    {
    }

    int timer() const { return m_timer.get(); }

    /// The thread, until stop().
    void run();
    void stop();

    void begin();
    void forget();
    void rest(std::deque<Clock::time_point> moments, Clock::time_point next);
    void end();

    bool isPrepared() const;
    bool hasFailed() const;

private:
    enum class State {
        Idle,
        Asked,
        Failed,
        Prepared,
    };
    using Lock = std::unique_lock<std::mutex>;

    void beginWatch(Lock& lock);
    void waitForMoment(Lock& lock);
    void look(Lock& lock);
    void set(const itimerspec& once);
    void unset();

    const Watch m_watch;
    const std::chrono::milliseconds m_patience;
    const FileDescriptor m_timer;

    mutable std::mutex m_mutex; ///< of what follows
    std::condition_variable m_changed;
    State m_state = State::Idle;
    std::deque<Clock::time_point> m_moments;
    Clock::time_point m_next = never;        ///< when it continues if it is called upon by then
    Clock::time_point m_sleepsUntil = never; ///< the thread must be woken for an earlier moment
    int m_rests = 0;
    bool m_isLooking = false;
    bool m_isSet = false;
    bool m_isStopped = false;
};

void RestingTicks::Looks::run()
{
    Lock lock(m_mutex);
    while (!m_isStopped) {
        if (m_state == State::Asked)
            beginWatch(lock);
        else if (!m_moments.empty() && m_moments.front() <= Clock::now() + almost)
            look(lock);
        else
            waitForMoment(lock);
    }
}

void RestingTicks::Looks::beginWatch(Lock& lock)
{
    m_isLooking = true;
    lock.unlock();
    const bool begun = m_watch.begin();
    lock.lock();
    m_isLooking = false;
    m_state = begun ? State::Prepared : State::Failed;
}

void RestingTicks::Looks::waitForMoment(Lock& lock)
{
    // Without a moment it sleeps until it may be given one, so that it need not be woken for that.
    m_sleepsUntil = m_moments.empty() ? std::exchange(m_next, never) : m_moments.front();
    if (m_sleepsUntil == never)
        m_changed.wait(lock);
    else
        m_changed.wait_until(lock, m_sleepsUntil);
    m_sleepsUntil = never;
}

void RestingTicks::Looks::look(Lock& lock)
{
    // Looking may take long, and the main loop runs on meanwhile.
    const int rest = m_rests;
    m_moments.pop_front();
    m_isLooking = true;
    lock.unlock();
    const bool isStill = m_watch.isStill();
    lock.lock();
    m_isLooking = false;
    if (!isStill)
        m_state = State::Idle;
    // Otherwise the main loop was awake meanwhile, and has set the timer as it wants it.
    if (rest != m_rests)
        return;
    if (!isStill) {
        m_moments.clear();
        set(onceAt(Clock::now()));
    } else if (m_moments.empty()) {
        unset();
    } else {
        set(onceAt(m_moments.front() + m_patience));
    }
}

void RestingTicks::Looks::set(const itimerspec& once)
{
    m_isSet = true;
    timerfd_settime(m_timer.get(), TFD_TIMER_ABSTIME, &once, nullptr);
}

void RestingTicks::Looks::unset()
{
    if (std::exchange(m_isSet, false))
        set(itimerspec{});
    m_isSet = false;
}

void RestingTicks::Looks::begin()
{
    const std::scoped_lock lock(m_mutex);
    // A look that is under way prepares it too.
    if (m_isLooking || m_state == State::Prepared)
        return;
    m_state = State::Asked;
    m_changed.notify_one();
}

void RestingTicks::Looks::forget()
{
    const std::scoped_lock lock(m_mutex);
    if (m_state != State::Asked)
        m_state = State::Idle;
}

void RestingTicks::Looks::rest(std::deque<Clock::time_point> moments, Clock::time_point next)
{
    const std::scoped_lock lock(m_mutex);
    ++m_rests;
    m_moments = std::move(moments);
    m_next = next;
    set(onceAt(m_moments.front() + m_patience));
    // Only for a moment before the one that it sleeps until: being woken costs as much as looking.
    if (m_moments.front() + almost < m_sleepsUntil)
        m_changed.notify_one();
}

void RestingTicks::Looks::end()
{
    const std::scoped_lock lock(m_mutex);
    ++m_rests;
    m_moments.clear();
    unset();
}

void RestingTicks::Looks::stop()
{
    const std::scoped_lock lock(m_mutex);
    m_isStopped = true;
    m_changed.notify_one();
}

bool RestingTicks::Looks::isPrepared() const
{
    const std::scoped_lock lock(m_mutex);
    return m_state == State::Prepared && !m_isLooking;
}

bool RestingTicks::Looks::hasFailed() const
{
    const std::scoped_lock lock(m_mutex);
    return m_state == State::Failed;
}

RestingTicks::RestingTicks(Watch watch, std::function<void()> wake, std::chrono::milliseconds patience)
    : m_watch(std::move(watch))
    , m_wake(std::move(wake))
    , m_patience(patience)
{
}

RestingTicks::~RestingTicks()
{
    if (m_looks)
        m_looks->stop();
}

void RestingTicks::prepare()
{
    if (m_callsUntilPrepared > 0) {
        --m_callsUntilPrepared;
        return;
    }
    const bool hasThread = m_looks || startLooks();
    if (hasThread && !m_looks->hasFailed()) {
        m_looks->begin();
        return;
    }
    m_callsUntilPrepared = callsAfterFailure;
    forget();
}

bool RestingTicks::startLooks()
{
    auto looks = std::make_shared<Looks>(m_watch, m_patience);
    if (looks->timer() < 0 || !startThread([looks] { looks->run(); }))
        return false;
    m_looks = std::move(looks);
    m_notifier = std::make_unique<QSocketNotifier>(m_looks->timer(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
                     [this] { readTimer(); });
    return true;
}

void RestingTicks::readTimer()
{
    std::uint64_t times = 0;
    // It may have been put off since the main loop saw it.
    if (read(m_looks->timer(), &times, sizeof times) > 0)
        m_wake();
}

bool RestingTicks::isPrepared() const
{
    return m_looks && m_looks->isPrepared();
}

void RestingTicks::forget()
{
    if (m_looks)
        m_looks->forget();
}

void RestingTicks::rest(std::vector<Clock::time_point> moments, Clock::time_point next)
{
    if (!moments.empty())
        m_looks->rest({moments.begin(), moments.end()}, next);
}

void RestingTicks::end()
{
    if (m_looks)
        m_looks->end();
}

} // namespace quindle
