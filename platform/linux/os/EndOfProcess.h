#pragma once

#include <functional>
#include <memory>

#include "platform/linux/os/FileDescriptor.h"

class QSocketNotifier;

namespace quindle {

/// Tells when a program that writes line by line shall end: by SIGTERM, SIGINT or SIGHUP, or because nobody
/// is left who reads its standard output. Waiting costs nothing. To be made before any other thread is
/// started and after the QCoreApplication; SIGPIPE is ignored from then on, so that writing to nobody is an
/// error like any other.
class EndOfProcess
{
public:
    /// Calls `ended` from the main loop, at least once.
    explicit EndOfProcess(const std::function<void()>& ended);
    ~EndOfProcess();

private:
    FileDescriptor m_signals;
    FileDescriptor m_reader;
    std::unique_ptr<QSocketNotifier> m_signalNotifier;
    std::unique_ptr<QSocketNotifier> m_readerNotifier;
};

} // namespace quindle
