// The helper heard its own announcements only as they came back over the session bus: not at all without one,
// so that the item followed a change of the preferences up to ten seconds later.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/LinuxNotifications.h"

using namespace quindle;

namespace {

constexpr int soon = 20; // milliseconds until a lost bus is tried again
const QString settingsChanged = QStringLiteral("SettingsChangedNotification");
const QString marker = QStringLiteral("Marker");

template <typename Condition>
bool comesTrue(Condition condition)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    return condition();
}

class OwnAnnouncementTest : public testing::Test
{
protected:
    OwnAnnouncementTest() { qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8()); }
    ~OwnAnnouncementTest() override { stopBus(); }

    QString socket() const { return m_folder.filePath(QStringLiteral("bus")); }
    QString address() const { return QStringLiteral("unix:path=") + socket(); }

    void startBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--address=") + address(), QStringLiteral("--print-address=1")});
        ASSERT_TRUE(m_daemon.waitForReadyRead(10'000));
    }

    void stopBus()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
        QFile::remove(socket());
    }

    void observe(LinuxDistributedNotificationCenter& center)
    {
        center.addObserver(settingsChanged, [this] { ++m_heard; });
        center.addObserver(marker, [this] { ++m_markers; });
    }

    /// As another process sends it.
    void sendFromElsewhere(const QString& notification) const
    {
        const QString name = QStringLiteral("elsewhere");
        QDBusConnection bus = QDBusConnection::connectToBus(address(), name);
        bus.send(QDBusMessage::createSignal(QStringLiteral("/com/fernhollow/Quindle"),
                                            QStringLiteral("com.fernhollow.Quindle.Notifications"),
                                            notification));
        if (bus.isConnected())
            bus.interface()->isServiceRegistered(name); // answered when the signal is on its way
        bus = QDBusConnection(QString());
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

    int m_heard = 0;

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    int m_markers = 0;
};

TEST_F(OwnAnnouncementTest, IsHeardAtOnceAndOnceWithABus)
{
    startBus();
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
    startBus();
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 1);
    center.post(settingsChanged);
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 2);
}

TEST_F(OwnAnnouncementTest, IsHeardAtOnceAndOnceWhileTheBusIsLost)
{
    startBus();
    LinuxDistributedNotificationCenter center(soon);
    observe(center);
    EXPECT_TRUE(arrives());
    center.post(settingsChanged);
    stopBus(); // perhaps with the signal still on its way
    center.post(settingsChanged);
    EXPECT_EQ(m_heard, 2);
    startBus();
    EXPECT_TRUE(arrives());
    EXPECT_EQ(m_heard, 2);
}

TEST_F(OwnAnnouncementTest, AnotherProcesssIsHeardOncePerRegistration)
{
    startBus();
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
