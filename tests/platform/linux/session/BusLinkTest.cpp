#include "platform/linux/session/BusLink.h"

#include <gtest/gtest.h>

#include "common/Paths.h"
#include "tests/support/MessageBus.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

constexpr int soon = 200; // milliseconds until a connection that was dropped is tried again

class DroppedBusLinkTest : public testing::Test
{
protected:
    DroppedBusLinkTest()
    {
        bus.start();
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8());
        link.open([this](const QDBusConnection& connection) { names.append(connection.baseService()); },
                  [this] { ++losses; });
    }

    MessageBus bus;
    BusLink link{QDBusConnection::SessionBus, QStringLiteral("dropped"), soon};
    QStringList names; ///< that the bus gave the connections
    int losses = 0;
};

TEST_F(DroppedBusLinkTest, IsLostAtOnceAndComesBackUnderAnotherName)
{
    ASSERT_EQ(names.size(), 1);
    link.drop();
    EXPECT_EQ(losses, 1);
    EXPECT_FALSE(link.connection().isConnected());
    EXPECT_EQ(names.size(), 1);
    EXPECT_TRUE(comesTrue([this] { return names.size() == 2; }));
    EXPECT_NE(names[0], names[1]);
    EXPECT_TRUE(link.connection().isConnected());
    EXPECT_EQ(losses, 1); // the end of the connection is not reported a second time
}

TEST_F(DroppedBusLinkTest, HearsOfTheNextLoss)
{
    link.drop();
    EXPECT_TRUE(comesTrue([this] { return names.size() == 2; }));
    bus.stop();
    EXPECT_TRUE(comesTrue([this] { return losses == 2; }));
    bus.start();
    EXPECT_TRUE(comesTrue([this] { return names.size() == 3; }));
}

TEST_F(DroppedBusLinkTest, WaitsForABusThatIsAwayMeanwhile)
{
    bus.stop();
    link.drop();
    EXPECT_EQ(losses, 1);
    EXPECT_FALSE(link.connection().isConnected());
    bus.start();
    EXPECT_TRUE(comesTrue([this] { return names.size() == 2; }));
}

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
