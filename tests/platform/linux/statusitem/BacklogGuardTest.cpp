#include "platform/linux/session/BacklogGuard.h"

#include <QCoreApplication>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <gtest/gtest.h>

#include "tests/platform/linux/statusitem/PrivateBus.h"
#include "tests/support/ComesTrue.h"

namespace quindle {
namespace {

class Offered final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.example.Offered")

public:
    int calls = 0;

public Q_SLOTS:
    Q_SCRIPTABLE void call() { ++calls; }
};

class BacklogGuardTest : public testing::Test
{
protected:
    BacklogGuardTest()
    {
        guard.watch(offered);
        guard.setBus(connection);
        connection.registerObject(QStringLiteral("/o"), &offered, QDBusConnection::ExportScriptableSlots);
    }

    ~BacklogGuardTest() override
    {
        QDBusConnection::disconnectFromBus(connection.name());
        QDBusConnection::disconnectFromBus(caller.name());
    }

    QDBusMessage callMessage() const
    {
        return QDBusMessage::createMethodCall(connection.baseService(), QStringLiteral("/o"),
                                              QStringLiteral("org.example.Offered"), QStringLiteral("call"));
    }

    /// The bus has taken all of them when this returns; nobody has answered any yet.
    void callWithoutWaiting(int times)
    {
        for (int time = 0; time < times; ++time)
            caller.send(callMessage());
        const QString name = QStringLiteral("org.freedesktop.DBus");
        caller.call(QDBusMessage::createMethodCall(name, QStringLiteral("/"), name, QStringLiteral("GetId")));
    }

    PrivateBus bus;
    QDBusConnection connection = bus.connect();
    QDBusConnection caller = bus.connect();
    Offered offered;
    int overruns = 0;
    BacklogGuard guard{[this] { ++overruns; }};
};

TEST_F(BacklogGuardTest, ReportsACallerWhoDoesNotWaitOnceAndHearsNoMoreOfIt)
{
    callWithoutWaiting(3000);
    EXPECT_TRUE(comesTrue([this] { return overruns > 0; }));
    callWithoutWaiting(1000);
    const QDBusPendingCall last = caller.asyncCall(callMessage());
    EXPECT_TRUE(comesTrue([&] { return last.isFinished(); })); // all before it are over as well
    EXPECT_EQ(overruns, 1);
    EXPECT_LE(offered.calls, 2 * BacklogGuard::mostOnTheWay);
}

TEST_F(BacklogGuardTest, CountsAnewForEachConnection)
{
    callWithoutWaiting(3000);
    EXPECT_TRUE(comesTrue([this] { return overruns == 1; }));
    const QDBusPendingCall last = caller.asyncCall(callMessage());
    EXPECT_TRUE(comesTrue([&] { return last.isFinished(); }));
    guard.setBus(connection);
    const int before = offered.calls;
    callWithoutWaiting(10);
    EXPECT_TRUE(comesTrue([&] { return offered.calls == before + 10; }));
    callWithoutWaiting(3000);
    EXPECT_TRUE(comesTrue([this] { return overruns == 2; }));
}

TEST_F(BacklogGuardTest, CallersWhoWaitMayCallForEver)
{
    for (int time = 1; time <= 4 * BacklogGuard::mostOnTheWay; ++time) {
        const QDBusPendingCall call = caller.asyncCall(callMessage());
        ASSERT_TRUE(comesTrue([&] { return call.isFinished(); }));
    }
    EXPECT_EQ(overruns, 0);
    EXPECT_EQ(offered.calls, 4 * BacklogGuard::mostOnTheWay);
}

TEST_F(BacklogGuardTest, AStartingHostIsNone)
{
    callWithoutWaiting(BacklogGuard::mostOnTheWay);
    EXPECT_TRUE(comesTrue([this] { return offered.calls == BacklogGuard::mostOnTheWay; }));
    EXPECT_EQ(overruns, 0);
}

} // namespace
} // namespace quindle

#include "BacklogGuardTest.moc"
