#include "windows/tray/HelperListener.h"

#include <cstddef>
#include <cstdlib>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

#include <QDBusServer>

#include "common/Paths.h"
#include "platform/linux/os/UserFolders.h"

namespace quindle {

namespace {

constexpr auto socketName = "/socket";

/// A path as D-Bus addresses write it.
QString addressOf(const QByteArray& socket)
{
    return QStringLiteral("unix:path=") + QString::fromLatin1(socket.toPercentEncoding("-_/.\\*", "~"));
}

bool hasRoomForSocket(const QByteArray& folder)
{
    return static_cast<std::size_t>((folder + socketName).size()) < sizeof(sockaddr_un::sun_path);
}

} // namespace

HelperListener::HelperListener(std::function<void(const QDBusConnection&)> connected)
    : m_connected(std::move(connected))
{
    // The runtime folder may be read-only, or too long for a socket's path.
    if (const QString runtime = runtimeFolder(); runtime.isEmpty() || !listenBelow(pathBytes(runtime)))
        listenBelow("/tmp");
}

HelperListener::~HelperListener()
{
    removeFiles();
}

bool HelperListener::listenBelow(const QByteArray& folder)
{
    QByteArray made = folder + "/quindle-tray-XXXXXX";
    // A folder for this user alone: the library lets everybody write to the socket itself.
    if (!hasRoomForSocket(made) || !::mkdtemp(made.data()))
        return false;
    m_folder = made;
    // Never destroyed: Qt 6.4 lets another thread free what its destructor still uses.
    m_server = new QDBusServer(addressOf(m_folder + socketName));
    connect(m_server, &QDBusServer::newConnection, this, &HelperListener::accept);
    return m_server->isConnected();
}

void HelperListener::removeFiles()
{
    if (m_folder.isEmpty())
        return;
    ::unlink((m_folder + socketName).constData());
    ::rmdir(m_folder.constData());
    m_folder.clear();
}

void HelperListener::accept(const QDBusConnection& connection)
{
    removeFiles();
    // The first connection is the helper's; nobody else is let in.
    if (const auto connected = std::exchange(m_connected, {}))
        connected(connection);
}

QString HelperListener::address() const
{
    return m_server && m_server->isConnected() ? m_server->address() : QString();
}

} // namespace quindle

#include "moc_HelperListener.cpp"
