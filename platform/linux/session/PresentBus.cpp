#include "platform/linux/session/PresentBus.h"

#include <utility>

#include "platform/linux/session/BusLink.h"

namespace quindle {

namespace {

QDBusConnection sharedBus(QDBusConnection::BusType type)
{
    return type == QDBusConnection::SystemBus ? QDBusConnection::systemBus() : QDBusConnection::sessionBus();
}

} // namespace

PresentBus::PresentBus(QDBusConnection::BusType type, QString ownName)
    : m_type(type)
    , m_ownName(std::move(ownName))
    , m_own(QString())
{
}

PresentBus::~PresentBus()
{
    // Not where it was never needed: the library would start its thread for it, which a program that ends at
    // once does not survive every time.
    if (m_own.name().isEmpty())
        return;
    m_own = QDBusConnection(QString());
    QDBusConnection::disconnectFromBus(m_ownName);
}

QDBusConnection PresentBus::connection()
{
    if (m_own.isConnected())
        return m_own;
    QDBusConnection shared = sharedBus(m_type);
    if (shared.isConnected())
        return shared;
    QDBusConnection::disconnectFromBus(m_ownName);
    ++m_number;
    // By address: by type, the library may start a bus of its own where there is none.
    m_own = QDBusConnection::connectToBus(busAddress(m_type), m_ownName);
    return m_own;
}

} // namespace quindle
