// A session bus that was not there when the helper started was never looked for again, and the status item
// did not return with one that had been restarted.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusVariant>
#include <gtest/gtest.h>

#include "platform/linux/session/BusLink.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/statusitem/LinuxStatusItem.h"
#include "tests/support/MessageBus.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

constexpr int longerThanTheTest = 3'600'000;

class SessionBusComesBackTest : public testing::Test
{
protected:
    SessionBusComesBackTest() { qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8()); }

    /// Whether somebody on the bus offers an item of that title.
    bool hasItem(const QString& title) const
    {
        const QString name = QStringLiteral("asking");
        QDBusConnection asking = QDBusConnection::connectToBus(bus.address(), name);
        bool found = false;
        if (asking.isConnected())
            for (const QString& service : asking.interface()->registeredServiceNames().value())
                found = found || titleOf(asking, service) == title;
        asking = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
        return found;
    }

    MessageBus bus;

private:
    static QString titleOf(const QDBusConnection& bus, const QString& service)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/StatusNotifierItem"),
                                                           QStringLiteral("org.freedesktop.DBus.Properties"),
                                                           QStringLiteral("Get"));
        call << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("Title");
        // Not a call that blocks with a loop of its own: the library misses an answer that comes just before
        // it.
        const QDBusPendingCall asked = bus.asyncCall(call, 2000);
        if (!comesTrue([&] { return asked.isFinished(); }))
            return {};
        const QDBusMessage answer = asked.reply();
        return answer.arguments().value(0).value<QDBusVariant>().variant().toString();
    }
};

TEST_F(SessionBusComesBackTest, ANewSocketIsNoticedWithoutWaiting)
{
    BusLink link(QDBusConnection::SessionBus, QStringLiteral("late"), longerThanTheTest);
    int connections = 0;
    int losses = 0;
    link.open([&](const QDBusConnection&) { ++connections; }, [&] { ++losses; });
    EXPECT_EQ(connections, 0);
    for (int round = 1; round <= 2; ++round) {
        bus.start();
        EXPECT_TRUE(comesTrue([&] { return connections == round; }));
        EXPECT_TRUE(link.connection().isConnected());
        bus.stop();
        EXPECT_TRUE(comesTrue([&] { return losses == round; }));
    }
}

// The file of the new socket often gets the number of the old one's, and the loss is heard only afterwards.
TEST_F(SessionBusComesBackTest, ABusThatIsBackBeforeItWasMissedIsNoticed)
{
    BusLink link(QDBusConnection::SessionBus, QStringLiteral("restarted"), longerThanTheTest);
    int connections = 0;
    bus.start();
    link.open([&](const QDBusConnection&) { ++connections; });
    for (int round = 1; round <= 5; ++round) {
        EXPECT_EQ(connections, round);
        bus.stop();
        bus.start();
        EXPECT_TRUE(comesTrue([&] { return connections == round + 1; }));
    }
}

TEST_F(SessionBusComesBackTest, TheItemIsOfferedAgain)
{
    LinuxRunLoop runLoop;
    LinuxStatusBar bar(runLoop, {});
    const auto item = bar.statusItemWithLength(-1);
    item->setTitle(QStringLiteral("50 %"));
    for (int round = 0; round < 2; ++round) {
        bus.start();
        EXPECT_TRUE(comesTrue([&] { return hasItem(QStringLiteral("50 %")); })) << round;
        bus.stop();
        QCoreApplication::processEvents();
    }
}

} // namespace
