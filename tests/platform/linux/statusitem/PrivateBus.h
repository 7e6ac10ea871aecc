#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

namespace quindle {

/// A message bus of the test's own, which ends with it.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();

    /// A new connection of its own.
    QDBusConnection connect();

private:
    QProcess m_daemon;
    QString m_address;
};

} // namespace quindle
