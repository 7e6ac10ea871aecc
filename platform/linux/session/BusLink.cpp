#include "platform/linux/session/BusLink.h"

#include <algorithm>
#include <sys/stat.h>

#include <QDBusError>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QLoggingCategory>

#include "common/Paths.h"

namespace quindle {

namespace {

Q_LOGGING_CATEGORY(busLog, "quindle.bus")

constexpr int longestPause = 300'000;

/// A socket's file is there a moment before anybody listens on it.
constexpr int pauseForNewSocket = 50;

const QString localPath = QStringLiteral("/org/freedesktop/DBus/Local");
const QString localInterface = QStringLiteral("org.freedesktop.DBus.Local");
const QString disconnected = QStringLiteral("Disconnected");

QString usualName(QDBusConnection::BusType type)
{
    return type == QDBusConnection::SystemBus ? QStringLiteral("quindle-system")
                                              : QStringLiteral("quindle-session");
}

/// File systems reuse the number of a file that was just deleted, so the number alone is not enough.
BusLink::Socket socketAt(const QString& path)
{
    struct stat found = {};
    if (::stat(pathBytes(path).constData(), &found) != 0)
        return {};
    return {found.st_ino, found.st_ctim.tv_sec, found.st_ctim.tv_nsec};
}

const QString unixPath = QStringLiteral("unix:path=");

QString usualAddress(QDBusConnection::BusType type)
{
    if (type == QDBusConnection::SystemBus)
        return unixPath + QStringLiteral("/run/dbus/system_bus_socket");
    const QByteArray runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    if (!runtimeFolder.startsWith('/'))
        return {};
    return unixPath + QString::fromLatin1((runtimeFolder + "/bus").toPercentEncoding("-_/.\\*", "~"));
}

} // namespace

BusLink::BusLink(QDBusConnection::BusType type, int firstPause, QObject* parent)
    : BusLink(type, usualName(type), firstPause, parent)
{
    m_startsShared = true;
}

BusLink::BusLink(QDBusConnection::BusType type, QString ownName, int firstPause, QObject* parent)
    : QObject(parent)
    , m_type(type)
    , m_connection(QString())
    , m_ownName(std::move(ownName))
    , m_startsShared(false)
    , m_firstPause(firstPause)
{
    m_retry.setSingleShot(true);
    m_retry.callOnTimeout(this, &BusLink::reconnect);
}

void BusLink::followShared()
{
    m_startsShared = true;
    m_logs = false;
}

BusLink::~BusLink()
{
    closeOwn();
}

void BusLink::open(std::function<void(QDBusConnection&)> subscribe, std::function<void()> lost)
{
    m_subscribe = std::move(subscribe);
    m_lost = std::move(lost);
    m_socket = busSocketFile(busAddress(m_type));
    m_socketTried = socketAt(m_socket);
    const QDBusConnection first = firstConnection();
    // The shared connection is taken as it is; only one of our own can be made again.
    if (take(first))
        return;
    waitForBus(m_firstPause);
    if (!m_logs)
        return;
    const QString name =
        m_type == QDBusConnection::SystemBus ? QStringLiteral("system") : QStringLiteral("session");
    qCWarning(busLog).noquote() << QStringLiteral("no %1 bus: %2").arg(name, first.lastError().message());
}

QDBusConnection BusLink::firstConnection()
{
    if (m_startsShared)
        return m_type == QDBusConnection::SystemBus ? QDBusConnection::systemBus()
                                                    : QDBusConnection::sessionBus();
    m_triedOwn = true;
    return QDBusConnection::connectToBus(m_type, m_ownName);
}

bool BusLink::take(const QDBusConnection& connection)
{
    if (!connection.isConnected())
        return false;
    m_connection = connection;
    m_connection.connect(QString(), localPath, localInterface, disconnected, this, SLOT(onDisconnected()));
    m_subscribe(m_connection);
    return true;
}

void BusLink::onDisconnected()
{
    if (m_logs)
        qCWarning(busLog, "a message bus was lost");
    if (m_lost)
        m_lost();
    waitForBus(m_firstPause);
}

void BusLink::drop()
{
    qCWarning(busLog, "a peer on a message bus does not wait for answers: the bus is left for %d s",
              m_firstPause / 1000);
    // The loss is reported below; the library's own report would come a second time.
    m_connection.disconnect(QString(), localPath, localInterface, disconnected, this, SLOT(onDisconnected()));
    closeOwn();
    if (m_lost)
        m_lost();
    waitForBus(m_firstPause);
}

void BusLink::waitForBus(int pause)
{
    // Even with a watch: a bus on an abstract socket has no file to watch.
    m_retry.start(pause);
    if (!m_folderWatcher)
        watchSocketFolder();
}

void BusLink::watchSocketFolder()
{
    const QString folder = QFileInfo(m_socket).path();
    if (m_socket.isEmpty() || !QFileInfo::exists(folder))
        return;
    m_folderWatcher = std::make_unique<QFileSystemWatcher>(QStringList{folder});
    connect(m_folderWatcher.get(), &QFileSystemWatcher::directoryChanged, this, &BusLink::lookAtSocket);
    lookAtSocket(); // it may have come between the try and the watch
}

void BusLink::lookAtSocket()
{
    // Other changes in the folder do not matter.
    const Socket present = socketAt(m_socket);
    if (present != Socket() && present != m_socketTried)
        m_retry.start(pauseForNewSocket);
    m_socketTried = present;
}

void BusLink::reconnect()
{
    // A computer without a bus must not keep being woken for it.
    const int next = std::min(m_retry.interval() * 2, longestPause);
    closeOwn();
    m_triedOwn = true;
    // By address: by type, the library may start a bus of its own where there is none.
    if (take(QDBusConnection::connectToBus(busAddress(m_type), m_ownName)))
        m_folderWatcher.reset();
    else
        waitForBus(next);
}

void BusLink::closeOwn()
{
    m_connection = QDBusConnection(QString());
    if (m_triedOwn)
        QDBusConnection::disconnectFromBus(m_ownName);
}

QString busAddress(QDBusConnection::BusType type)
{
    const bool isSystem = type == QDBusConnection::SystemBus;
    const QString named =
        qEnvironmentVariable(isSystem ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    return named.isEmpty() ? usualAddress(type) : named;
}

QString busSocketFile(const QString& address)
{
    for (const QString& one : address.split(u';')) {
        if (!one.startsWith(unixPath))
            continue;
        const QString escaped = one.mid(unixPath.size()).section(u',', 0, 0);
        return pathText(QByteArray::fromPercentEncoding(pathBytes(escaped)));
    }
    return {};
}

} // namespace quindle

#include "moc_BusLink.cpp"
