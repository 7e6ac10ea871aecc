#include "tests/platform/linux/statusitem/PrivateBus.h"

#include <stdexcept>

namespace quindle {

PrivateBus::PrivateBus()
{
    m_daemon.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                   QStringLiteral("--print-address=1")});
    while (!m_daemon.canReadLine() && m_daemon.waitForReadyRead(60'000)) {
    }
    m_address = QString::fromLocal8Bit(m_daemon.readLine()).trimmed();
    if (m_address.isEmpty())
        throw std::runtime_error("no message bus: is dbus-daemon installed?");
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished(5000);
}

QDBusConnection PrivateBus::connect()
{
    static int count = 0;
    return QDBusConnection::connectToBus(m_address, QStringLiteral("test-connection-%1").arg(++count));
}

} // namespace quindle
