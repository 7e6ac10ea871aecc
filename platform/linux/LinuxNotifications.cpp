#include "platform/linux/LinuxNotifications.h"

#include <QDBusMessage>
#include <QTimer>

namespace quindle {

namespace {

const QString notificationPath = QStringLiteral("/com/fernhollow/Quindle");
const QString notificationInterface = QStringLiteral("com.fernhollow.Quindle.Notifications");
const QString willSleep = QStringLiteral("willSleep");
const QString didWake = QStringLiteral("didWake");

} // namespace

void LinuxDistributedNotificationCenter::addObserver(const QString& name,
                                                     NotificationCenter::Observer observer)
{
    openOnce();
    m_observers.addObserver(name, std::move(observer));
    if (m_names.contains(name))
        return;
    m_names.insert(name);
    QDBusConnection connection = m_link.connection();
    subscribe(connection, name);
}

void LinuxDistributedNotificationCenter::post(const QString& name)
{
    openOnce();
    m_link.connection().send(QDBusMessage::createSignal(notificationPath, notificationInterface, name));
    m_observers.post(name);
}

void LinuxDistributedNotificationCenter::openOnce()
{
    if (m_opened)
        return;
    m_opened = true;
    m_link.open([this](QDBusConnection& connection) {
        for (const QString& name : std::as_const(m_names))
            subscribe(connection, name);
    });
}

void LinuxDistributedNotificationCenter::subscribe(QDBusConnection& connection, const QString& name)
{
    connection.connect(QString(), notificationPath, notificationInterface, name, this,
                       SLOT(onNotification(QDBusMessage)));
}

void LinuxDistributedNotificationCenter::onNotification(const QDBusMessage& message)
{
    if (message.service() != m_link.connection().baseService()) // its own were heard when they were posted
        m_observers.post(message.member());
}

void LinuxWorkspaceNotifications::addWillSleepObserver(NotificationCenter::Observer observer)
{
    m_observers.addObserver(willSleep, std::move(observer));
    openLater();
}

void LinuxWorkspaceNotifications::addDidWakeObserver(NotificationCenter::Observer observer)
{
    m_observers.addObserver(didWake, std::move(observer));
    openLater();
}

void LinuxWorkspaceNotifications::openLater()
{
    if (m_opening)
        return;
    m_opening = true;
    QTimer::singleShot(0, this, &LinuxWorkspaceNotifications::open);
}

void LinuxWorkspaceNotifications::open()
{
    // No service name is asked for: finding out its owner would be a call that waits for the answer.
    m_link.open([this](QDBusConnection& connection) {
        connection.connect(QString(), QStringLiteral("/org/freedesktop/login1"),
                           QStringLiteral("org.freedesktop.login1.Manager"),
                           QStringLiteral("PrepareForSleep"), this, SLOT(onPrepareForSleep(bool)));
    });
}

void LinuxWorkspaceNotifications::onPrepareForSleep(bool goingToSleep)
{
    m_observers.post(goingToSleep ? willSleep : didWake);
}

} // namespace quindle
