#include "platform/linux/os/EndSignals.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <mutex>
#include <utility>

#include <QCoreApplication>

#include <unistd.h>

#include "platform/linux/os/DetachedThread.h"

namespace quindle {

/// What to do at the end, shared with the thread that waits for it.
class EndSignals::Wish
{
public:
    explicit Wish(std::function<void()> ended)
        : m_ended(std::move(ended))
    {
    }

    void forget()
    {
        const std::lock_guard lock(m_mutex);
        m_ended = nullptr;
    }

    void fulfil()
    {
        const std::lock_guard lock(m_mutex);
        if (m_ended)
            QMetaObject::invokeMethod(QCoreApplication::instance(), m_ended, Qt::QueuedConnection);
    }

private:
    std::mutex m_mutex;
    std::function<void()> m_ended;
};

namespace {

bool isIgnored(int number)
{
    struct sigaction action = {};
    return ::sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

sigset_t signalsToEndBy()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        if (!isIgnored(number))
            ::sigaddset(&signals, number);
    return signals;
}

timespec timeOf(std::chrono::nanoseconds duration)
{
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(duration);
    return {.tv_sec = seconds.count(), .tv_nsec = (duration - seconds).count()};
}

/// Waits for another of the signals. A process that is stopped and continued, or inspected by a debugger,
/// wakes without one.
void waitForNext(const sigset_t& signals, std::chrono::milliseconds longest)
{
    const auto deadline = std::chrono::steady_clock::now() + longest;
    int number = -1;
    do {
        const auto left = deadline - std::chrono::steady_clock::now();
        const timespec time = timeOf(std::max(left, std::chrono::nanoseconds(0)));
        number = ::sigtimedwait(&signals, nullptr, &time);
    } while (number < 0 && errno == EINTR);
}

[[noreturn]] void endBy(int number, const sigset_t& signals)
{
    ::signal(number, SIG_DFL);
    ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
    ::raise(number);
    ::_exit(128 + number);
}

} // namespace

EndSignals::EndSignals(std::chrono::milliseconds patience, std::function<void()> ended)
    : m_wish(std::make_shared<Wish>(std::move(ended)))
{
    const sigset_t signals = signalsToEndBy();
    // Here, so that threads made later inherit it and the waiting one alone takes them.
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    const auto wait = [wish = m_wish, signals, patience] {
        int number = 0;
        if (::sigwait(&signals, &number) != 0)
            return;
        wish->fulfil();
        waitForNext(signals, patience);
        endBy(number, signals);
    };
    if (!startThread(wait))
        ::pthread_sigmask(SIG_UNBLOCK, &signals, nullptr);
}

EndSignals::~EndSignals()
{
    m_wish->forget();
}

} // namespace quindle
