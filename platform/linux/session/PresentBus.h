#pragma once

#include <QDBusConnection>
#include <QString>

namespace quindle {

/// A bus for those who need it now and then: they keep nothing of it, and do not wait for one that is gone.
/// Main thread only.
class PresentBus
{
public:
    /// `ownName` names a connection of its own, made once the shared one is gone.
    PresentBus(QDBusConnection::BusType type, QString ownName);
    ~PresentBus();

    PresentBus(const PresentBus&) = delete;
    PresentBus& operator=(const PresentBus&) = delete;

    /// The process's connection, else one of its own: the shared one does not come back once its bus is gone.
    /// Not connected where there is no bus.
    QDBusConnection connection();

    /// Which connection it gives, counted: after a loss, unique names mean something else.
    int number() const { return m_number; }

private:
    QDBusConnection::BusType m_type;
    QString m_ownName;
    QDBusConnection m_own;
    int m_number = 0;
};

} // namespace quindle
