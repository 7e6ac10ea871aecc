#include "platform/linux/session/BusAddress.h"

#include <gtest/gtest.h>

#include "common/Paths.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

TEST(BusAddress, IsTheVariablesElseThatOfTheRuntimeFolder)
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/told");
    qputenv("XDG_RUNTIME_DIR", "/run/user/1000");
    EXPECT_EQ(busAddress(QDBusConnection::SessionBus), QStringLiteral("unix:path=/told"));
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    EXPECT_EQ(busAddress(QDBusConnection::SessionBus), QStringLiteral("unix:path=/run/user/1000/bus"));
    qputenv("XDG_RUNTIME_DIR", "relative");
    EXPECT_EQ(busAddress(QDBusConnection::SessionBus), QString());
}

TEST(BusAddress, OfARuntimeFolderIsEscapedAndLeadsBackToTheSocket)
{
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", "/run/a b,c~\xff");
    const QString address = busAddress(QDBusConnection::SessionBus);
    EXPECT_EQ(address, QStringLiteral("unix:path=/run/a%20b%2Cc%7E%FF/bus"));
    EXPECT_EQ(pathBytes(busSocketFile(address)), "/run/a b,c~\xff/bus");
}

} // namespace
