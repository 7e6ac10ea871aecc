#include <memory>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

#include "platform/linux/LinuxNotifications.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

const QString settingsChanged = QStringLiteral("SettingsChangedNotification");

template <typename Condition>
bool runUntil(Condition done, int milliseconds = 5000)
{
    QElapsedTimer watch;
    watch.start();
    while (!done() && watch.elapsed() < milliseconds)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, 20);
    return done();
}

void runFor(int milliseconds)
{
    runUntil([] { return false; }, milliseconds);
}

// A message bus of the test's own, at a fixed address so that it can go and come back.
class PrivateBus
{
public:
    explicit PrivateBus(const QString& type)
        : m_type(type)
    {
        start();
    }
    ~PrivateBus() { stop(); }

    void start()
    {
        QFile configuration(m_folder.filePath(QStringLiteral("bus.conf")));
        ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
        QTextStream(&configuration) << QStringLiteral(
                                           "<busconfig><type>%1</type><listen>%2</listen>"
                                           "<policy context=\"default\"><allow send_destination=\"*\"/>"
                                           "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy>"
                                           "</busconfig>")
                                           .arg(m_type, address());
        configuration.close();
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + configuration.fileName(),
                        QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        ASSERT_TRUE(m_daemon.waitForReadyRead(10'000));
        m_daemon.readAll();
    }

    void stop()
    {
        m_daemon.kill();
        m_daemon.waitForFinished();
        QFile::remove(m_folder.filePath(QStringLiteral("bus")));
    }

    QString address() const
    {
        return QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("bus"));
    }

    // Emits a signal from another process.
    void emitSignal(const QString& path, const QString& member, const QStringList& arguments = {}) const
    {
        QStringList all{QStringLiteral("--bus=") + address(), QStringLiteral("--type=signal"), path, member};
        EXPECT_EQ(QProcess::execute(QStringLiteral("dbus-send"), all + arguments), 0);
    }

    void emitNotification(const QString& name) const
    {
        emitSignal(QStringLiteral("/com/fernhollow/Quindle"),
                   QStringLiteral("com.fernhollow.Quindle.Notifications.") + name);
    }

    void emitPrepareForSleep(bool goingToSleep) const
    {
        emitSignal(QStringLiteral("/org/freedesktop/login1"),
                   QStringLiteral("org.freedesktop.login1.Manager.PrepareForSleep"),
                   {goingToSleep ? QStringLiteral("boolean:true") : QStringLiteral("boolean:false")});
    }

private:
    QString m_type;
    QTemporaryDir m_folder;
    QProcess m_daemon;
};

// Each test runs in a process of its own (CTest), because the process's shared bus connections last as long
// as the process; run all together they share one bus of each type.
class Buses
{
public:
    PrivateBus session{QStringLiteral("session")};
    PrivateBus system{QStringLiteral("system")};

    Buses()
    {
        qputenv("DBUS_SESSION_BUS_ADDRESS", session.address().toLatin1());
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", system.address().toLatin1());
    }
};

class LinuxNotificationsTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { s_buses = std::make_unique<Buses>(); }
    static void TearDownTestSuite() { s_buses.reset(); }

    static inline std::unique_ptr<Buses> s_buses;
};

TEST_F(LinuxNotificationsTest, AnotherProcessesSignalArrivesSoon)
{
    LinuxDistributedNotificationCenter center;
    QElapsedTimer watch;
    watch.start();
    qint64 arrived = -1;
    center.addObserver(settingsChanged, [&] { arrived = watch.elapsed(); });
    s_buses->session.emitNotification(settingsChanged);
    EXPECT_TRUE(runUntil([&] { return arrived >= 0; }));
    arrived = -1;
    // The time that the sender itself takes to start is not counted.
    QProcess sender;
    sender.start(QStringLiteral("dbus-send"),
                 {QStringLiteral("--bus=") + s_buses->session.address(), QStringLiteral("--type=signal"),
                  QStringLiteral("/com/fernhollow/Quindle"),
                  QStringLiteral("com.fernhollow.Quindle.Notifications.") + settingsChanged});
    ASSERT_TRUE(sender.waitForFinished());
    watch.restart();
    EXPECT_TRUE(runUntil([&] { return arrived >= 0; }));
    EXPECT_LT(arrived, 200);
}

TEST_F(LinuxNotificationsTest, OwnPostCallsEachObserverAtOnceAndOnce)
{
    LinuxDistributedNotificationCenter center;
    std::string called;
    center.addObserver(settingsChanged, [&] { called += 'a'; });
    center.addObserver(settingsChanged, [&] { called += 'b'; });
    center.addObserver(QStringLiteral("WillUpdateImmediately"), [&] { called += 'c'; });
    center.post(settingsChanged);
    EXPECT_EQ(called, "ab");
    center.post(QStringLiteral("WillUpdateImmediately"));
    EXPECT_EQ(called, "abc");
    s_buses->session.emitNotification(settingsChanged); // after which all that was sent before is there
    EXPECT_TRUE(runUntil([&] { return called.size() >= 5; }));
    EXPECT_EQ(called, "abcab");
}

TEST_F(LinuxNotificationsTest, OtherNamesPathsAndUnsendableNamesCallNobody)
{
    LinuxDistributedNotificationCenter center;
    std::string called;
    center.addObserver(settingsChanged, [&] { called += 'a'; });
    center.post(QStringLiteral("Other"));
    center.post(QStringLiteral("no member name"));
    center.post(QString());
    s_buses->session.emitSignal(QStringLiteral("/elsewhere"),
                                QStringLiteral("com.fernhollow.Quindle.Notifications.") + settingsChanged);
    s_buses->session.emitNotification(settingsChanged);
    EXPECT_TRUE(runUntil([&] { return !called.empty(); }));
    EXPECT_EQ(called, "a");
}

TEST_F(LinuxNotificationsTest, SleepAndWake)
{
    LinuxWorkspaceNotifications notifications;
    std::string called;
    notifications.addWillSleepObserver([&] { called += 's'; });
    notifications.addDidWakeObserver([&] { called += 'w'; });
    runFor(50); // the bus is connected from the main loop
    s_buses->system.emitPrepareForSleep(true);
    EXPECT_TRUE(runUntil([&] { return called == "s"; }));
    s_buses->system.emitPrepareForSleep(false);
    EXPECT_TRUE(runUntil([&] { return called == "sw"; }));
}

TEST_F(LinuxNotificationsTest, ALoginManagerThatComesLateIsHeard)
{
    LinuxWorkspaceNotifications notifications;
    int woken = 0;
    notifications.addDidWakeObserver([&] { ++woken; });
    runFor(50);
    for (int start = 1; start <= 2; ++start) {
        QProcess manager;
        manager.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        manager.start(QStringLiteral("/usr/bin/python3"),
                      {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--system"),
                       QStringLiteral("--template"), QStringLiteral("logind")});
        ASSERT_TRUE(manager.waitForStarted());
        EXPECT_TRUE(runUntil(
            [&] {
                QProcess::execute(
                    QStringLiteral("gdbus"),
                    {QStringLiteral("call"), QStringLiteral("--address"), s_buses->system.address(),
                     QStringLiteral("--dest"), QStringLiteral("org.freedesktop.login1"),
                     QStringLiteral("--object-path"), QStringLiteral("/org/freedesktop/login1"),
                     QStringLiteral("--method"), QStringLiteral("org.freedesktop.DBus.Mock.EmitSignal"),
                     QStringLiteral("org.freedesktop.login1.Manager"), QStringLiteral("PrepareForSleep"),
                     QStringLiteral("b"), QStringLiteral("[<false>]")});
                runFor(100);
                return woken >= start;
            },
            20'000));
        manager.kill();
        manager.waitForFinished();
    }
}

TEST_F(LinuxNotificationsTest, ALostBusIsTriedAgain)
{
    LinuxDistributedNotificationCenter center(50);
    LinuxWorkspaceNotifications workspace(50);
    int notified = 0;
    int woken = 0;
    center.addObserver(settingsChanged, [&] { ++notified; });
    workspace.addDidWakeObserver([&] { ++woken; });
    runFor(50);
    for (int round = 1; round <= 2; ++round) {
        s_buses->session.stop();
        s_buses->system.stop();
        runFor(120);
        s_buses->session.start();
        s_buses->system.start();
        EXPECT_TRUE(runUntil([&] {
            s_buses->session.emitNotification(settingsChanged);
            s_buses->system.emitPrepareForSleep(false);
            runFor(20);
            return notified >= round && woken >= round;
        }));
        notified = round;
        woken = round;
    }
}

// In a process of its own, in which no bus was ever connected.
TEST(LinuxNotificationsDeathTest, WithoutABusOnlyOwnPostsAreHeard)
{
    EXPECT_EXIT(
        {
            qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
            qputenv("DBUS_SYSTEM_BUS_ADDRESS", "unix:path=/nowhere");
            int called = 0;
            LinuxDistributedNotificationCenter center(5);
            LinuxWorkspaceNotifications workspace(5);
            center.addObserver(settingsChanged, [&] { ++called; });
            workspace.addDidWakeObserver([&] { ++called; });
            center.post(settingsChanged);
            runFor(100);
            std::_Exit(called);
        },
        testing::ExitedWithCode(1), "no session bus: .*\n.*no system bus: [^\n]*\n$");
}

} // namespace
