#include "platform/linux/os/EndOfProcess.h"

#include <csignal>

#include <QSocketNotifier>

#include <sys/epoll.h>
#include <sys/signalfd.h>
#include <unistd.h>

namespace quindle {

namespace {

FileDescriptor endSignals()
{
    sigset_t set;
    sigemptyset(&set);
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        sigaddset(&set, number);
    // Blocked, so that they arrive through the descriptor only; threads made later inherit that.
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return FileDescriptor(signalfd(-1, &set, SFD_CLOEXEC | SFD_NONBLOCK));
}

/// Readable once the other end of standard output is closed, whether it is a pipe, a socket or a terminal.
FileDescriptor closedReader()
{
    FileDescriptor watch(epoll_create1(EPOLL_CLOEXEC));
    // No events are asked for; the end of the reader is always reported.
    epoll_event errorsOnly{};
    if (epoll_ctl(watch.get(), EPOLL_CTL_ADD, STDOUT_FILENO, &errorsOnly) != 0)
        return {}; // a file has no reader
    return watch;
}

std::unique_ptr<QSocketNotifier> notifierOf(const FileDescriptor& descriptor,
                                            const std::function<void()>& ended)
{
    if (!descriptor.isOpen())
        return nullptr;
    auto notifier = std::make_unique<QSocketNotifier>(descriptor.get(), QSocketNotifier::Read);
    QSocketNotifier* const source = notifier.get();
    QObject::connect(source, &QSocketNotifier::activated, source, [source, ended] {
        // The descriptor stays readable, and would wake the loop without end.
        source->setEnabled(false);
        ended();
    });
    return notifier;
}

} // namespace

EndOfProcess::EndOfProcess(const std::function<void()>& ended)
    : m_signals(endSignals())
    , m_reader(closedReader())
    , m_signalNotifier(notifierOf(m_signals, ended))
    , m_readerNotifier(notifierOf(m_reader, ended))
{
    // A missing reader is noticed by the write that fails, not by the signal.
    std::signal(SIGPIPE, SIG_IGN);
}

EndOfProcess::~EndOfProcess() = default;

} // namespace quindle
