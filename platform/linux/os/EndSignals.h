#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace quindle {

/// Lets a process end in its own way at SIGTERM, SIGINT or SIGHUP. Waiting costs a sleeping thread. Make it
/// after the QCoreApplication and before any other thread is started, so that no other one takes the signals.
class EndSignals
{
public:
    /// At the first signal calls `ended` from the main loop. A second one ends the process as usual, and so
    /// does the first after `patience`: a main thread that hangs, for example in a call to an absent file
    /// server, does not hold up the end. A signal that is ignored already, as by nohup, stays so. Where there
    /// is no room for a thread the signals have their usual effect.
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
