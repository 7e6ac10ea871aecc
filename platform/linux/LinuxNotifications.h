#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include "platform/NotificationCenter.h"
#include "platform/linux/BusLink.h"

class QDBusMessage;

namespace quindle {

/// Notifications between processes as signals on the session bus, without arguments: object
/// /com/fernhollow/Quindle, interface com.fernhollow.Quindle.Notifications, member = the notification's name.
/// This process's own observers hear a post before it returns, with a bus or without one, and what comes back
/// from the bus not again.
class LinuxDistributedNotificationCenter : public QObject, public DistributedNotificationCenter
{
    Q_OBJECT

public:
    /// `pause` as for BusLink.
    explicit LinuxDistributedNotificationCenter(int pause = BusLink::usualPause)
        : m_link(QDBusConnection::SessionBus, pause)
    {
    }

    void addObserver(const QString& name, NotificationCenter::Observer observer) override;

    /// A name that is no D-Bus member name (letters, digits, underscores) reaches this process only.
    void post(const QString& name) override;

private Q_SLOTS:
    void onNotification(const QDBusMessage& message);

private:
    void openOnce();
    void subscribe(QDBusConnection& connection, const QString& name);

    BusLink m_link;
    bool m_opened = false;
    QSet<QString> m_names;
    NotificationCenter m_observers;
};

/// Sleep and wake as the login manager tells them on the system bus (PrepareForSleep). The bus is connected
/// after start-up, once there is an observer; a login manager that comes late or restarts is heard all the
/// same.
class LinuxWorkspaceNotifications : public QObject, public WorkspaceNotifications
{
    Q_OBJECT

public:
    /// `pause` as for BusLink.
    explicit LinuxWorkspaceNotifications(int pause = BusLink::usualPause)
        : m_link(QDBusConnection::SystemBus, pause)
    {
    }

    void addWillSleepObserver(NotificationCenter::Observer observer) override;
    void addDidWakeObserver(NotificationCenter::Observer observer) override;

private Q_SLOTS:
    void onPrepareForSleep(bool goingToSleep);

private:
    void openLater();
    void open();

    BusLink m_link;
    bool m_opening = false;
    NotificationCenter m_observers;
};

} // namespace quindle
