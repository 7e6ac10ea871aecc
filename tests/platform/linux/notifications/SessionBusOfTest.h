#pragma once

#include <QDBusConnection>
#include <QString>

#include "tests/support/MessageBus.h"

namespace quindle {

/// The process's session bus is the test's own.
class SessionBusOfTest : public MessageBus
{
public:
    SessionBusOfTest()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8());
        start();
    }

    /// Another program on it.
    QDBusConnection program(const char* name) const
    {
        return QDBusConnection::connectToBus(address(), QLatin1String(name));
    }
};

} // namespace quindle
