#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quindle {

/// Has a process end in its own way when it is asked to by SIGTERM, SIGINT or SIGHUP. Waiting costs a
/// sleeping thread. Make it after the QCoreApplication and before any other thread is started, so that no
/// other one takes the signals.
class EndSignals
{
public:
    /// At the first signal calls `ended` from the main loop. A second one ends the process as if it had never
    /// been waited for, and so does the first after `patience`: a main thread that hangs, in a call to a file
    /// server that is away for example, holds the end up no longer.
    /// A signal that is ignored already, as by nohup, stays so. Where there is no room for a thread the
    /// signals have their usual effect.
    EndSignals(std::chrono::milliseconds patience, std::function<void()> ended);

    /// From now on a signal ends the process after `patience`.
    ~EndSignals();

    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    class Wish;

    std::shared_ptr<Wish> m_wish;
};

} // namespace quindle
