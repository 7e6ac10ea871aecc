// After the session bus had come back, a warning replaced or closed a notification of another program: the
// server had the same unique name as the one before.

#include <memory>

#include <gtest/gtest.h>

#include "platform/linux/notifications/LinuxNotifier.h"
#include "tests/platform/linux/notifications/FakeServer.h"
#include "tests/platform/linux/notifications/SessionBusOfTest.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

struct NotificationOfAnotherBusTest : testing::Test
{
    /// The first program on a bus, so that it has the same name on each.
    void start(const char* program)
    {
        connection = bus.program(program);
        names.append(connection.baseService());
        server = std::make_unique<FakeServer>(connection, latin("org.freedesktop.Notifications"));
    }

    /// The first call that the server gets for it.
    QString callFor(const char* title)
    {
        notifier.show({latin(title), latin("20% left"), latin("battery-low"), Notification::Urgency::Normal});
        EXPECT_TRUE(comesTrue([this] { return !server->calls.isEmpty(); }));
        return server->calls.value(0);
    }

    /// What the bus answers comes after what it had to pass on before.
    void hearAnswer() const
    {
        const QString busName = latin("org.freedesktop.DBus");
        const QDBusMessage question =
            QDBusMessage::createMethodCall(busName, latin("/"), busName, latin("GetId"));
        connection.call(question);
        QDBusConnection::sessionBus().call(question);
        QCoreApplication::processEvents();
    }

    SessionBusOfTest bus;
    QDBusConnection connection{QString()};
    std::unique_ptr<FakeServer> server;
    QStringList names;
    LinuxNotifier notifier;
};

TEST_F(NotificationOfAnotherBusTest, IsNotReplaced)
{
    start("one");
    EXPECT_EQ(callFor("Low"), latin("Notify|Quindle|0|battery-low|Low|20% left|-1"));
    hearAnswer();
    bus.stop();
    EXPECT_TRUE(comesTrue([] { return !QDBusConnection::sessionBus().isConnected(); }));
    server.reset();
    connection = QDBusConnection(QString());
    bus.start();
    start("two");
    EXPECT_EQ(names.value(0), names.value(1));
    EXPECT_EQ(callFor("Lowest"), latin("Notify|Quindle|0|battery-low|Lowest|20% left|-1"));
}

} // namespace
