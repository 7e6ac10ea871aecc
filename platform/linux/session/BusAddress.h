#pragma once

#include <QDBusConnection>
#include <QString>

namespace quindle {

/// Where a bus of the type is found, as the environment says it, else at its usual place. Empty for a session
/// bus of which nothing is said.
QString busAddress(QDBusConnection::BusType type);

/// The socket file of an address; empty when it names none (an abstract socket, another transport).
QString busSocketFile(const QString& address);

} // namespace quindle
