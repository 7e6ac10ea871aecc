#include "platform/linux/BusLink.h"

#include <algorithm>

#include <QDBusError>
#include <QLoggingCategory>
#include <QTimer>

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(busLog, "quindle.bus")

constexpr int longestPause = 300'000;

QString ownNameOf(QDBusConnection::BusType type)
{
    return type == QDBusConnection::SystemBus ? QStringLiteral("quindle-system")
                                              : QStringLiteral("quindle-session");
}

} // namespace

BusLink::BusLink(QDBusConnection::BusType type, int firstPause)
    : m_type(type)
    , m_connection(QString())
    , m_ownName(ownNameOf(type))
    , m_firstPause(firstPause)
{
}

BusLink::~BusLink()
{
    closeOwn();
}

void BusLink::open(std::function<void(QDBusConnection&)> subscribe)
{
    m_subscribe = std::move(subscribe);
    const bool isSystem = m_type == QDBusConnection::SystemBus;
    const QDBusConnection shared = isSystem ? QDBusConnection::systemBus() : QDBusConnection::sessionBus();
    if (!take(shared))
        qCWarning(busLog).noquote() << QStringLiteral("no %1 bus: %2")
                                           .arg(isSystem ? QStringLiteral("system")
                                                         : QStringLiteral("session"),
                                                shared.lastError().message());
}

bool BusLink::take(const QDBusConnection& connection)
{
    if (!connection.isConnected())
        return false;
    m_connection = connection;
    m_connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                         QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                         SLOT(onDisconnected()));
    m_subscribe(m_connection);
    return true;
}

void BusLink::onDisconnected()
{
    qCWarning(busLog, "a message bus was lost");
    m_pause = m_firstPause;
    QTimer::singleShot(m_pause, this, &BusLink::reconnect);
}

void BusLink::reconnect()
{
    closeOwn();
    m_triedOwn = true;
    if (take(QDBusConnection::connectToBus(m_type, m_ownName)))
        return;
    m_pause = std::min(m_pause * 2, longestPause);
    QTimer::singleShot(m_pause, this, &BusLink::reconnect);
}

void BusLink::closeOwn()
{
    m_connection = QDBusConnection(QString());
    if (m_triedOwn)
        QDBusConnection::disconnectFromBus(m_ownName);
}

} // namespace quindle
