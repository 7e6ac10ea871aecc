#include "platform/linux/session/LinuxNotifications.h"

#include <QDBusMessage>
#include <QLoggingCategory>
#include <QTimer>

#include "platform/linux/session/NameOwner.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(notificationLog, "quindle.notifications")

const QString notificationPath = QStringLiteral("/com/fernhollow/Quindle");
const QString notificationInterface = QStringLiteral("com.fernhollow.Quindle.Notifications");
const QString willSleep = QStringLiteral("willSleep");
const QString didWake = QStringLiteral("didWake");

} // namespace

LinuxDistributedNotificationCenter::LinuxDistributedNotificationCenter(int pause)
    : m_pause(pause)
    , m_link(QDBusConnection::SessionBus, pause)
    , m_guard([this] { pauseHearing(); })
{
    m_guard.watch(*this);
}

void LinuxDistributedNotificationCenter::addObserver(const QString& name,
                                                     NotificationCenter::Observer observer)
{
    openOnce();
    m_observers.addObserver(name, std::move(observer));
    // One subscription for a name is enough, however many observers it has.
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
    m_link.open([this](QDBusConnection& connection) { hearAll(connection); });
}

void LinuxDistributedNotificationCenter::hearAll(QDBusConnection& connection)
{
    m_guard.setBus(connection);
    for (const QString& name : std::as_const(m_names))
        subscribe(connection, name);
}

void LinuxDistributedNotificationCenter::pauseHearing()
{
    qCWarning(notificationLog, "too many notifications arrive: none is received for %d s", m_pause / 1000);
    QDBusConnection connection = m_link.connection();
    for (const QString& name : std::as_const(m_names))
        connection.disconnect(QString(), notificationPath, notificationInterface, name, this,
                              SLOT(onNotification(QDBusMessage)));
    QTimer::singleShot(m_pause, this, [this] {
        QDBusConnection present = m_link.connection();
        hearAll(present);
    });
}

void LinuxDistributedNotificationCenter::subscribe(QDBusConnection& connection, const QString& name)
{
    connection.connect(QString(), notificationPath, notificationInterface, name, this,
                       SLOT(onNotification(QDBusMessage)));
}

void LinuxDistributedNotificationCenter::onNotification(const QDBusMessage& message)
{
    if (message.service() !=
        m_link.connection().baseService()) // its own were delivered when they were posted
        m_observers.post(message.member());
}

LinuxWorkspaceNotifications::LinuxWorkspaceNotifications(RunLoop& runLoop, int pause)
    : m_link(QDBusConnection::SystemBus, pause)
    , m_wakeRate(runLoop, 0, [this] { m_observers.post(didWake); })
{
}

LinuxWorkspaceNotifications::~LinuxWorkspaceNotifications() = default;

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
    // After the start: the item is shown while connecting to the system bus takes its time.
    QTimer::singleShot(0, this, &LinuxWorkspaceNotifications::open);
}

void LinuxWorkspaceNotifications::open()
{
    const auto follow = [this](const QDBusConnection& connection) {
        m_heard.clear();
        m_loginManager =
            std::make_unique<NameOwner>(connection, QStringLiteral("org.freedesktop.login1"),
                                        [this](const QString& owner) { hearLoginManager(owner); });
    };
    m_link.open(follow, [this] { m_loginManager.reset(); });
}

/// Everybody may send this signal to everybody on the system bus, so it counts only from the login manager's
/// own connection. With the well-known name the library would wait for the bus to name the owner.
void LinuxWorkspaceNotifications::hearLoginManager(const QString& connectionName)
{
    const QString path = QStringLiteral("/org/freedesktop/login1");
    const QString interface = QStringLiteral("org.freedesktop.login1.Manager");
    const QString signal = QStringLiteral("PrepareForSleep");
    const char* slot = SLOT(onPrepareForSleep(bool));
    QDBusConnection connection = m_link.connection();
    if (!m_heard.isEmpty())
        connection.disconnect(m_heard, path, interface, signal, this, slot);
    m_heard = connectionName;
    if (!m_heard.isEmpty())
        connection.connect(m_heard, path, interface, signal, this, slot);
}

void LinuxWorkspaceNotifications::onPrepareForSleep(bool goingToSleep)
{
    if (goingToSleep)
        m_observers.post(willSleep);
    else
        m_wakeRate.request();
}

} // namespace quindle

#include "moc_LinuxNotifications.cpp"
