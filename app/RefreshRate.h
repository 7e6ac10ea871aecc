#pragma once

#include <functional>
#include <memory>

namespace quindle {

class RunLoop;
class Timer;

/// Refreshes on request, at most twice a second: a moment after the first request, because drivers tell one
/// change piece by piece, then no sooner than half a second after the refresh before. Requests in between are
/// one, and the last is never lost. Without requests it keeps no timer. Main thread only.
class RefreshRate
{
public:
    static constexpr double settleTime = 0.02;   ///< seconds from a first request to its refresh
    static constexpr double shortestPause = 0.5; ///< seconds from one refresh to the next

    RefreshRate(RunLoop& runLoop, std::function<void()> refresh);
    ~RefreshRate();

    RefreshRate(const RefreshRate&) = delete;
    RefreshRate& operator=(const RefreshRate&) = delete;

    void request();

private:
    void wait(double seconds);
    void waitIsOver();

    RunLoop& m_runLoop;
    std::function<void()> m_refresh;
    std::shared_ptr<Timer> m_timer; ///< null while nothing is waited for
    bool m_isRequested = false;
};

} // namespace quindle
