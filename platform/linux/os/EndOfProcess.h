#pragma once

#include <functional>
#include <memory>

#include "platform/posix/FileDescriptor.h"

class QSocketNotifier;

namespace quindle {

/// Notices when a program that writes line by line has to end: at SIGTERM, SIGINT or SIGHUP, or when nobody
/// reads its standard output any more. Waiting costs nothing. Make it after the QCoreApplication and before
/// any other thread is started; from then on SIGPIPE is ignored, so that writing to nobody is an error like
/// any other.
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
