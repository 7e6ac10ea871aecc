#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace quindle {

/// Runs the main loop until the condition comes true, half a minute at most: machines are busy.
template <typename Condition>
bool comesTrue(Condition condition)
{
    const QDeadlineTimer deadline(30'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    return condition();
}

} // namespace quindle
