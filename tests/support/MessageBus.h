#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace quindle {

/// Runs the main loop until the condition comes true, ten seconds at most.
template <typename Condition>
bool comesTrue(Condition condition)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    return condition();
}

/// A message bus of the test's own at a fixed address, which can come and go. Everybody may do everything on
/// it. It ends with this object.
class MessageBus
{
public:
    explicit MessageBus(const QString& type = QStringLiteral("session"));
    ~MessageBus();

    /// Returns when programs can connect to it.
    void start();

    /// It is gone at once, with what it had not yet passed on.
    void stop();

    QString address() const;

private:
    QString socket() const;
    QString configurationFile() const;

    QTemporaryDir m_folder;
    QProcess m_daemon;
};

} // namespace quindle
