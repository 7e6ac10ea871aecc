#pragma once

#include <chrono>
#include <functional>

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>

#include "platform/RateLimit.h"
#include "platform/linux/statusitem/HostTraits.h"

class QDBusMessage;

namespace quindle {

/// Whether a watcher's list of items has one of that connection. Watchers write entries in several ways:
/// ":1.8", ":1.8/Path", ":1.8@/Path".
bool listsItemOf(const QString& uniqueName, const QStringList& items);

/// The link to the watcher of status notifier items: notices when it comes, goes or is replaced, and
/// registers the item there. Every call is asynchronous; without a watcher nothing happens until the bus
/// announces one. It reacts to one that keeps coming and going at most twice a second.
class WatcherLink final : public QObject
{
    Q_OBJECT

public:
    /// `checkDelay`: how long after a registration the watcher's list is looked at.
    WatcherLink(QDBusConnection bus, QString itemPath, std::chrono::milliseconds checkDelay, RunLoop& runLoop,
                QObject* parent = nullptr);

    /// Looks for the watcher. One of the signals follows, at once or later; without a bus, watcherLost.
    void start();

    /// Registers the item with the present watcher and checks later that it is listed, three times at most.
    void registerItem();

Q_SIGNALS:
    /// There is a watcher, or a different one.
    void watcherFound(const quindle::HostProcess& process);

    /// There is no watcher.
    void watcherLost();

private:
    using Answered = std::function<void(const QDBusMessage&)>;

    void answerOwner();
    void askProcess();
    void sendRegistration(int attempt);
    void checkRegistration(int attempt);
    void call(const QDBusMessage& message, const Answered& answered);

    QDBusConnection m_bus;
    QString m_itemPath;
    std::chrono::milliseconds m_checkDelay;
    RateLimit m_changes;
    QString m_owner;
    QString m_failure; ///< of the last registration
    int m_round = 0;   ///< counts the owners; answers that belong to an earlier one are ignored
};

} // namespace quindle
