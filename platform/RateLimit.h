#pragma once

#include <functional>
#include <memory>

namespace quindle {

class RunLoop;
class Timer;

/// Acts on request, at most twice a second: a moment after the first request, where changes are announced
/// piece by piece, and then no sooner than half a second after the last time. Requests in between count as
/// one, and the last is never lost. Without requests it keeps no timer. Main thread only.
class RateLimit
{
public:
    static constexpr double settleTime = 0.02;   ///< seconds that drivers take to announce one change
    static constexpr double shortestPause = 0.5; ///< seconds from one action to the next

    /// `settling` is how long, in seconds, a first request waits for others; with 0 it is acted on at once,
    /// before `request` returns.
    /// `act` must not be empty.
    /// The loop must outlive this object.
    RateLimit(RunLoop& runLoop, double settling, std::function<void()> act);

    /// A request that has not been acted on is dropped.
    ~RateLimit();

    RateLimit(const RateLimit&) = delete;
    RateLimit& operator=(const RateLimit&) = delete;

    /// Has `act` called in time; `act` may itself request the next time.
    void request();

private:
    void wait(double seconds);
    void waitIsOver();
    void actIfRequested();

    RunLoop& m_runLoop;
    double m_settling;
    std::function<void()> m_act;
    std::shared_ptr<Timer> m_timer; ///< null while nothing is waited for
    bool m_isRequested = false;
};

} // namespace quindle
