// A session bus that was not there when the helper started was never looked for again, and the status item
// did not return with one that had been restarted.

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QDeadlineTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "platform/linux/BusLink.h"
#include "platform/linux/LinuxRunLoop.h"
#include "platform/linux/statusitem/LinuxStatusBar.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

constexpr int longerThanTheTest = 3'600'000;

template <typename Condition>
bool comesTrue(Condition condition)
{
    const QDeadlineTimer deadline(10'000);
    while (!condition() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 50);
    return condition();
}

class SessionBusComesBackTest : public testing::Test
{
protected:
    SessionBusComesBackTest() { qputenv("DBUS_SESSION_BUS_ADDRESS", address().toUtf8()); }
    ~SessionBusComesBackTest() override { stopBus(); }

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

    /// Whether somebody on the bus offers an item of that title.
    bool hasItem(const QString& title) const
    {
        const QString name = QStringLiteral("asking");
        QDBusConnection bus = QDBusConnection::connectToBus(address(), name);
        bool found = false;
        if (bus.isConnected())
            for (const QString& service : bus.interface()->registeredServiceNames().value())
                found = found || titleOf(bus, service) == title;
        bus = QDBusConnection(QString());
        QDBusConnection::disconnectFromBus(name);
        return found;
    }

    QTemporaryDir m_folder;
    QProcess m_daemon;

private:
    static QString titleOf(const QDBusConnection& bus, const QString& service)
    {
        QDBusMessage call = QDBusMessage::createMethodCall(service, QStringLiteral("/StatusNotifierItem"),
                                                           QStringLiteral("org.freedesktop.DBus.Properties"),
                                                           QStringLiteral("Get"));
        call << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("Title");
        const QDBusMessage answer = bus.call(call, QDBus::BlockWithGui, 2000);
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
        startBus();
        EXPECT_TRUE(comesTrue([&] { return connections == round; }));
        EXPECT_TRUE(link.connection().isConnected());
        stopBus();
        EXPECT_TRUE(comesTrue([&] { return losses == round; }));
    }
}

TEST_F(SessionBusComesBackTest, TheItemIsOfferedAgain)
{
    LinuxRunLoop runLoop;
    LinuxStatusBar bar(runLoop, {});
    const auto item = bar.statusItemWithLength(-1);
    item->setTitle(QStringLiteral("50 %"));
    for (int round = 0; round < 2; ++round) {
        startBus();
        EXPECT_TRUE(comesTrue([&] { return hasItem(QStringLiteral("50 %")); })) << round;
        stopBus();
        QCoreApplication::processEvents();
    }
}

} // namespace
