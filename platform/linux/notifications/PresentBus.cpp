#include "platform/linux/notifications/PresentBus.h"

#include <utility>

#include "platform/linux/session/BusLink.h"

namespace quindle {

PresentBus::PresentBus(QString ownName)
    : m_ownName(std::move(ownName))
    , m_own(QString())
{
}

PresentBus::~PresentBus()
{
    // Not where it was never needed: the library would start its thread for it at the program's end.
    if (m_own.name().isEmpty())
        return;
    m_own = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(m_ownName);
}

QDBusConnection PresentBus::connection()
{
    if (m_own.isConnected())
        return m_own;
    QDBusConnection shared = QDBusConnection::sessionBus();
    if (shared.isConnected())
        return shared;
    QDBusConnection::disconnectFromBus(m_ownName);
    // By address: by type, the library may start a bus of its own where there is none.
    m_own = QDBusConnection::connectToBus(busAddress(QDBusConnection::SessionBus), m_ownName);
    return m_own;
}

} // namespace quindle
