#include <memory>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <gtest/gtest.h>

#include "platform/linux/session/LinuxNotifications.h"
#include "platform/linux/session/LinuxRunLoop.h"
#include "platform/linux/session/NameOwner.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/MessageBus.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

namespace {

const QString settingsChanged = QStringLiteral("SettingsChangedNotification");

// A main loop that was held up for all that time gets its turns nevertheless.
void runFor(int milliseconds)
{
    constexpr int turn = 20; // milliseconds
    QElapsedTimer watch;
    watch.start();
    for (int turns = 0; turns * turn < milliseconds || watch.elapsed() < milliseconds; ++turns)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents, turn);
}

// A bus that runs, and signals from another process on it.
class RunningBus : public MessageBus
{
public:
    explicit RunningBus(const QString& type)
        : MessageBus(type)
    {
        start();
    }

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
};

// The bus has passed on everything that was sent before, and what it passed on to this connection is here.
void roundTrip(const QDBusConnection& connection)
{
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    connection.call(QDBusMessage::createMethodCall(bus, QStringLiteral("/"), bus, QStringLiteral("GetId")));
}

// The login manager, on a connection of its own.
class LoginManager
{
public:
    explicit LoginManager(const QString& address)
        : m_connection(QDBusConnection::connectToBus(address, QStringLiteral("login-manager")))
    {
        EXPECT_TRUE(m_connection.registerService(QStringLiteral("org.freedesktop.login1")));
    }
    ~LoginManager() { QDBusConnection::disconnectFromBus(QStringLiteral("login-manager")); }

    LoginManager(const LoginManager&) = delete;
    LoginManager& operator=(const LoginManager&) = delete;

    void prepareForSleep(bool goingToSleep) { m_connection.send(prepareForSleepSignal() << goingToSleep); }
    void finish() { roundTrip(m_connection); }

    static QDBusMessage prepareForSleepSignal()
    {
        return QDBusMessage::createSignal(path, interface, QStringLiteral("PrepareForSleep"));
    }

    static inline const QString path = QStringLiteral("/org/freedesktop/login1");
    static inline const QString interface = QStringLiteral("org.freedesktop.login1.Manager");

private:
    QDBusConnection m_connection;
};

// Somebody else on the bus who would like to be taken for the login manager.
class Forger
{
public:
    explicit Forger(const QString& address)
        : m_connection(QDBusConnection::connectToBus(address, QStringLiteral("forger")))
    {
    }
    ~Forger() { QDBusConnection::disconnectFromBus(QStringLiteral("forger")); }

    Forger(const Forger&) = delete;
    Forger& operator=(const Forger&) = delete;

    // To everybody, and to `victim` alone if there is one, which no match rule keeps out.
    void send(const QString& victim, const QString& path, const QString& interface, const QString& member,
              const QVariantList& arguments)
    {
        QDBusMessage toAll = QDBusMessage::createSignal(path, interface, member);
        toAll.setArguments(arguments);
        m_connection.send(toAll);
        if (victim.isEmpty())
            return;
        QDBusMessage toVictim = QDBusMessage::createTargetedSignal(victim, path, interface, member);
        toVictim.setArguments(arguments);
        m_connection.send(toVictim);
    }

    QString name() const { return m_connection.baseService(); }

    void finish() { roundTrip(m_connection); }

private:
    QDBusConnection m_connection;
};

// Each test runs in a process of its own (CTest), because the process's shared bus connections last as long
// as the process; run all together they share one bus of each type.
class Buses
{
public:
    RunningBus session{QStringLiteral("session")};
    RunningBus system{QStringLiteral("system")};

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
    // Each begins when the one before has arrived, so that somebody who only looks now and then would be late
    // each time. A busy machine is late once in a while.
    bool isSoon = false;
    for (int attempt = 0; attempt < 10 && !isSoon; ++attempt) {
        arrived = -1;
        s_buses->session.emitNotification(settingsChanged);
        watch.restart(); // the time that the sender itself takes to start is not counted
        ASSERT_TRUE(comesTrue([&] { return arrived >= 0; }));
        isSoon = attempt > 0 && arrived < 200;
    }
    EXPECT_TRUE(isSoon) << arrived << " ms";
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
    EXPECT_TRUE(comesTrue([&] { return called.size() >= 5; }));
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
    EXPECT_TRUE(comesTrue([&] { return !called.empty(); }));
    EXPECT_EQ(called, "a");
}

TEST_F(LinuxNotificationsTest, AFloodIsNotHeardForAWhile)
{
    LinuxDistributedNotificationCenter center(500);
    int heard = 0;
    center.addObserver(settingsChanged, [&] { ++heard; });
    Forger peer(s_buses->session.address());
    const auto flood = [&] {
        for (int time = 0; time < 3000; ++time)
            peer.send(QString(), QStringLiteral("/com/fernhollow/Quindle"),
                      QStringLiteral("com.fernhollow.Quindle.Notifications"), settingsChanged, {});
        peer.finish();
    };
    flood();
    EXPECT_TRUE(comesTrue([&] { return heard > 0; }));
    runFor(100);
    flood();
    runFor(100);
    EXPECT_LE(heard, 2 * BacklogGuard::mostOnTheWay);
    heard = 0;
    EXPECT_TRUE(comesTrue([&] {
        s_buses->session.emitNotification(settingsChanged);
        runFor(20);
        return heard > 0;
    }));
}

// Observers of sleep and wake on a loop in which time passes by hand.
class SleepAndWakeTest : public LinuxNotificationsTest
{
protected:
    SleepAndWakeTest()
    {
        notifications.addWillSleepObserver([this] { called += 's'; });
        notifications.addDidWakeObserver([this] { called += 'w'; });
        runFor(50); // the bus is connected from the main loop
    }

    // Until the manager is known, what it says is not heard.
    void expectHeard(LoginManager& manager)
    {
        EXPECT_TRUE(comesTrue([&] {
            manager.prepareForSleep(true);
            runFor(10);
            return !called.empty();
        }));
        manager.finish();
        roundTrip(QDBusConnection::systemBus());
        runFor(10);
        called.clear();
    }

    FakeClock clock;
    FakeRunLoop runLoop{clock};
    LinuxWorkspaceNotifications notifications{runLoop};
    std::string called;
};

TEST_F(SleepAndWakeTest, AreHeardAtOnce)
{
    LoginManager manager(s_buses->system.address());
    expectHeard(manager);
    manager.prepareForSleep(true);
    EXPECT_TRUE(comesTrue([&] { return called == "s"; }));
    manager.prepareForSleep(false);
    EXPECT_TRUE(comesTrue([&] { return called == "sw"; }));
}

TEST_F(SleepAndWakeTest, AManagerThatComesLateIsHeard)
{
    for (int start = 0; start < 2; ++start) {
        LoginManager manager(s_buses->system.address());
        expectHeard(manager);
        manager.prepareForSleep(false);
        EXPECT_TRUE(comesTrue([&] { return called == "w"; })) << start;
        called.clear();
        runLoop.advance(1);
    }
}

// Everybody on the system bus could wake the helper, 14,000 times a second.
TEST_F(SleepAndWakeTest, NobodyButTheLoginManagerIsHeard)
{
    LoginManager manager(s_buses->system.address());
    expectHeard(manager);
    Forger forger(s_buses->system.address());
    const QString victim = QDBusConnection::systemBus().baseService();
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    const QString busPath = QStringLiteral("/org/freedesktop/DBus");
    const auto forge = [&] {
        forger.send(victim, LoginManager::path, LoginManager::interface, QStringLiteral("PrepareForSleep"),
                    {true});
        forger.finish();
    };
    forge();
    forger.send(victim, busPath, bus, QStringLiteral("NameOwnerChanged"),
                {QStringLiteral("org.freedesktop.login1"), QString(), forger.name()});
    forger.finish();
    runFor(50);
    forge();
    manager.prepareForSleep(false);
    EXPECT_TRUE(comesTrue([&] { return !called.empty(); }));
    EXPECT_EQ(called, "w");
}

TEST_F(SleepAndWakeTest, NobodyIsHeardWithoutALoginManager)
{
    Forger forger(s_buses->system.address());
    forger.send(QDBusConnection::systemBus().baseService(), LoginManager::path, LoginManager::interface,
                QStringLiteral("PrepareForSleep"), {true});
    forger.finish();
    runFor(100);
    EXPECT_EQ(called, "");
}

TEST_F(SleepAndWakeTest, WakingIsHeardTwiceASecondAtMost)
{
    LoginManager manager(s_buses->system.address());
    expectHeard(manager);
    for (int time = 0; time < 100; ++time)
        manager.prepareForSleep(false);
    manager.prepareForSleep(true);
    EXPECT_TRUE(comesTrue([&] { return called.find('s') != std::string::npos; }));
    EXPECT_EQ(called, "ws");
    runLoop.advance(0.5);
    EXPECT_EQ(called, "wsw");
    runLoop.advance(10);
    EXPECT_EQ(called, "wsw");
}

TEST_F(LinuxNotificationsTest, ALostBusIsTriedAgain)
{
    LinuxDistributedNotificationCenter center(50);
    LinuxRunLoop runLoop;
    LinuxWorkspaceNotifications workspace(runLoop, 50);
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
        LoginManager manager(s_buses->system.address());
        EXPECT_TRUE(comesTrue([&] {
            s_buses->session.emitNotification(settingsChanged);
            manager.prepareForSleep(false);
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
            LinuxRunLoop runLoop;
            LinuxWorkspaceNotifications workspace(runLoop, 5);
            center.addObserver(settingsChanged, [&] { ++called; });
            workspace.addDidWakeObserver([&] { ++called; });
            center.post(settingsChanged);
            runFor(100);
            std::_Exit(called);
        },
        testing::ExitedWithCode(1), "no session bus: .*\n.*no system bus: [^\n]*\n$");
}

} // namespace
