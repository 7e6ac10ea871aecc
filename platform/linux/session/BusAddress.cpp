#include "platform/linux/session/BusAddress.h"

#include "common/Paths.h"

namespace quindle {

namespace {

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

QString busAddress(QDBusConnection::BusType type)
{
    const bool isSystem = type == QDBusConnection::SystemBus;
    const QString told =
        qEnvironmentVariable(isSystem ? "DBUS_SYSTEM_BUS_ADDRESS" : "DBUS_SESSION_BUS_ADDRESS");
    return told.isEmpty() ? usualAddress(type) : told;
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
