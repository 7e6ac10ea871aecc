#pragma once

#include <memory>

#include <QObject>
#include <QSet>
#include <QString>

#include "platform/NotificationCenter.h"
#include "platform/RateLimit.h"
#include "platform/linux/session/BacklogGuard.h"
#include "platform/linux/session/BusLink.h"

class QDBusMessage;

namespace quindle {

class NameOwner;

/// Notifications between processes as signals on the session bus, without arguments: object
/// /com/fernhollow/Quindle, interface com.fernhollow.Quindle.Notifications, member = the notification's name.
/// This process's own observers are called before a post returns, with or without a bus, and not again when
/// the signal comes back. While others post faster than observers can be called, none is called.
class LinuxDistributedNotificationCenter : public QObject, public DistributedNotificationCenter
{
    Q_OBJECT

public:
    /// `pause` as for BusLink; also how long nothing is received after a flood.
    explicit LinuxDistributedNotificationCenter(int pause = BusLink::usualPause);

    void addObserver(const QString& name, NotificationCenter::Observer observer) override;

    /// A name that is no D-Bus member name (letters, digits, underscores) reaches this process only.
    void post(const QString& name) override;

private Q_SLOTS:
    void onNotification(const QDBusMessage& message);

private:
    void openOnce();
    void subscribe(QDBusConnection& connection, const QString& name);
    void hearAll(QDBusConnection& connection);
    void pauseHearing();

    int m_pause;
    BusLink m_link;
    BacklogGuard m_guard;
    bool m_opened = false;
    QSet<QString> m_names;
    NotificationCenter m_observers;
};

/// Sleep and wake as the login manager announces them on the system bus (PrepareForSleep); other senders are
/// ignored. The bus is connected after start-up, once there is an observer; a login manager that starts late
/// or restarts is found as well. Observers are called at once when the computer wakes, and at most twice a
/// second.
class LinuxWorkspaceNotifications : public QObject, public WorkspaceNotifications
{
    Q_OBJECT

public:
    /// `pause` as for BusLink. The loop must outlive it.
    explicit LinuxWorkspaceNotifications(RunLoop& runLoop, int pause = BusLink::usualPause);
    ~LinuxWorkspaceNotifications() override;

    void addWillSleepObserver(NotificationCenter::Observer observer) override;
    void addDidWakeObserver(NotificationCenter::Observer observer) override;

private Q_SLOTS:
    void onPrepareForSleep(bool goingToSleep);

private:
    void openLater();
    void open();
    void hearLoginManager(const QString& connectionName);

    BusLink m_link;
    bool m_opening = false;
    NotificationCenter m_observers;
    RateLimit m_wakeRate;
    std::unique_ptr<NameOwner> m_loginManager;
    QString m_heard; ///< the login manager's connection
};

} // namespace quindle
