#pragma once

#include <functional>
#include <memory>

namespace quindle {

class RunLoop;
class Timer;

/// Acts on request, at most twice a second: the last request is never lost, and those that have to wait
/// count as one. Without requests it keeps no timer. Main thread only.
///
/// Where changes are announced piece by piece, it acts on the first request of a burst at once and again when
/// the pieces have settled: two actions begin a burst, and each of them allows another one half a second
/// later.
class RateLimit
{
public:
    static constexpr double settleTime = 0.02;   ///< seconds that drivers take to announce one change
    static constexpr double shortestPause = 0.5; ///< seconds for each action, in the long run

    /// `settling` is how long, in seconds, a change takes to be announced in full; with 0 nothing is acted on
    /// twice. The first request of a burst is acted on before `request` returns. `act` must not be empty. The
    /// loop must outlive this object.
    RateLimit(RunLoop& runLoop, double settling, std::function<void()> act);

    /// A request that has not been acted on is dropped.
    ~RateLimit();

    RateLimit(const RateLimit&) = delete;
    RateLimit& operator=(const RateLimit&) = delete;

    /// Sees to it that `act` is called; `act` may itself make a request.
    void request();

private:
    void settle();
    void recover();
    void act();

    RunLoop& m_runLoop;
    double m_settling;
    std::function<void()> m_act;
    std::shared_ptr<Timer> m_settle;  ///< null while nothing has to settle
    std::shared_ptr<Timer> m_recover; ///< until another action is allowed; null while all are
    int m_spent = 0;                  ///< actions, of those that a burst begins with
    bool m_isRequested = false;
};

} // namespace quindle
