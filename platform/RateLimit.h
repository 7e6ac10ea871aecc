#pragma once

#include <functional>
#include <memory>

namespace quindle {

class RunLoop;
class Timer;

/// Acts on request, at most twice a second: a moment after the first request, where changes are told piece by
/// piece, and then no sooner than half a second after the time before. Requests in between are one, and the
/// last is never lost. Without requests it keeps no timer. Main thread only.
class RateLimit
{
public:
    static constexpr double settleTime = 0.02;   ///< seconds that drivers take to tell one change
    static constexpr double shortestPause = 0.5; ///< seconds from one action to the next

    /// `settling` is how long, in seconds, a first request waits for others; with 0 it is acted on at once,
    /// before `request` returns.
    RateLimit(RunLoop& runLoop, double settling, std::function<void()> act);
    ~RateLimit();

    RateLimit(const RateLimit&) = delete;
    RateLimit& operator=(const RateLimit&) = delete;

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
