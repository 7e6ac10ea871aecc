// The helper heard its own announcements only as they came back over the session bus: not at all without one,
// so that the item followed a change of the preferences up to ten seconds later.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <gtest/gtest.h>

#include "platform/linux/session/LinuxNotifications.h"
#include "tests/support/MessageBus.h"

using namespace quindle;

namespace {

constexpr int soon = 20; // milliseconds until a lost bus is tried again
const QString settingsChanged = QStringLiteral("SettingsChangedNotification");
const QString marker = QStringLiteral("Marker");

class OwnAnnouncementTest : public testing::Test
{
protected:
    OwnAnnouncementTest() { qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toUtf8()); }

    void observe(LinuxDistributedNotificationCenter& center)
    {
        center.addObserver(settingsChanged, [this] { ++m_heard; });
        center.addObserver(marker, [this] { ++m_markers; });
    }

    /// As another process sends it.
    void sendFromElsewhere(const QString& notification) const
    {
        const QString name = QStringLiteral("elsewhere");
        QDBusConnection elsewhere = QDBusConnection::connectToBus(bus.address(), name);
        elsewhere.send(QDBusMessage::createSignal(QStringLiteral("/com/fernhollow/Quindle"),
                                                  QStringLiteral("com.fernhollow.Quindle.Notifications"),
                                                  notification));
        if (elsewhere.isConnected())
            elsewhere.interface()->isServiceRegistered(name); // answered when the signal is on its way
        elsewhere = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
    }

    /// Lets everything arrive that is on its way: the bus keeps the order of what it gets.
    bool arrives()
    {
        m_markers = 0;
        return comesTrue([this] {
            sendFromElsewhere(marker);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            return m_markers > 0;
        });
    }

    MessageBus bus;
    int m_heard = 0;

private:
    int m_markers = 0;
};

TEST_F(OwnAnnouncementTest, IsHeardAtOnceAndOnceWithABus)
{
    bus.start();
    LinuxDistributedNotificationCenter center(soon);
    observe(center);
    center.post(settingsChanged);
    EXPECT_EQ(m_heard, 1);
    QDBusConnection::sessionBus().interface()->isServiceRegistered(settingsChanged); // it has come back
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 1);
}

TEST_F(OwnAnnouncementTest, IsHeardAtOnceAndOnceWithoutABus)
{
    LinuxDistributedNotificationCenter center(soon);
    observe(center);
    center.post(settingsChanged);
    EXPECT_EQ(m_heard, 1);
    bus.start();
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 1);
    center.post(settingsChanged);
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 2);
}

TEST_F(OwnAnnouncementTest, IsHeardAtOnceAndOnceWhileTheBusIsLost)
{
    bus.start();
    LinuxDistributedNotificationCenter center(soon);
    observe(center);
    EXPECT_TRUE(arrives());
    center.post(settingsChanged);
    bus.stop(); // perhaps with the signal still on its way
    center.post(settingsChanged);
    EXPECT_EQ(m_heard, 2);
    bus.start();
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 2);
}

TEST_F(OwnAnnouncementTest, AnotherProcesssIsHeardOncePerRegistration)
{
    bus.start();
    LinuxDistributedNotificationCenter center(soon);
    observe(center);
    center.addObserver(settingsChanged, [this] { ++m_heard; });
    EXPECT_TRUE(arrives());
    sendFromElsewhere(settingsChanged);
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 2);
    center.post(settingsChanged);
    EXPECT_EQ(m_heard, 4);
}

} // namespace
