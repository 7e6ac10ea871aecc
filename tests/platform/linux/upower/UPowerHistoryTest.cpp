#include "platform/linux/upower/UPowerHistory.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include <QDBusMessage>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include "tests/support/MessageBus.h"

using namespace quindle;

namespace {

/// A system bus with an invented UPower on it, a process of its own as the real one is.
class UPowerHistoryTest : public testing::Test
{
protected:
    UPowerHistoryTest()
    {
        m_bus.start();
        m_connection = QDBusConnection::connectToBus(m_bus.address(), QStringLiteral("upower-test"));
    }
    ~UPowerHistoryTest() override
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("upower-test"));
        m_service.kill();
        m_service.waitForFinished();
    }

    void startService()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), m_bus.address());
        m_service.setProcessEnvironment(environment);
        m_service.start(QStringLiteral("/usr/bin/python3"),
                        {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--template"),
                         QStringLiteral("upower")});
        ASSERT_TRUE(waitsFor([this] {
            return call(QStringLiteral("/org/freedesktop/UPower"), QStringLiteral("org.freedesktop.UPower"),
                        QStringLiteral("EnumerateDevices"), {})
                       .type() == QDBusMessage::ReplyMessage;
        }));
    }

    /// Gives its path.
    QString addBattery(const QString& name)
    {
        const QDBusMessage added = call(QStringLiteral("/org/freedesktop/UPower"), mockInterface(),
                                        QStringLiteral("AddDischargingBattery"),
                                        {name, QStringLiteral("Model"), 50.0, qint64{3600}});
        return added.arguments().constFirst().toString();
    }

    void addHistory(const QString& battery, const QString& code)
    {
        const QDBusMessage added =
            call(battery, mockInterface(), QStringLiteral("AddMethod"),
                 {QStringLiteral("org.freedesktop.UPower.Device"), QStringLiteral("GetHistory"),
                  QStringLiteral("suu"), QStringLiteral("a(udu)"), code});
        ASSERT_EQ(added.type(), QDBusMessage::ReplyMessage) << added.errorMessage().toStdString();
    }

    QDBusMessage call(const QString& path, const QString& interface, const QString& method,
                      const QVariantList& arguments)
    {
        QDBusMessage message =
            QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.UPower"), path, interface, method);
        message.setArguments(arguments);
        return m_connection.call(message);
    }

    static QString mockInterface() { return QStringLiteral("org.freedesktop.DBus.Mock"); }

    static bool waitsFor(const std::function<bool()>& condition)
    {
        QElapsedTimer timer;
        for (timer.start(); timer.elapsed() < 60'000;) {
            if (condition())
                return true;
            QThread::msleep(50);
        }
        return false;
    }

    MessageBus m_bus{QStringLiteral("system")};
    QProcess m_service;
    QDBusConnection m_connection{QString()};
};

TEST_F(UPowerHistoryTest, ReadsTheChargeAndRateOfTheBattery)
{
    ASSERT_NO_FATAL_FAILURE(startService());
    addHistory(addBattery(QStringLiteral("BAT0")),
               QStringLiteral("ret = [(1700000060, 79.5, 2), (1700000000, 80.0, 1), (1699999000, 0.0, 0)] "
                              "if args == ['charge', 604800, 10080] else [(1700000055, 12.5, 2)]"));
    std::optional<RecordedPower> recorded;
    ASSERT_TRUE(waitsFor([&] { // a busy machine may take longer for an answer than the program waits
        recorded = UPowerHistory(m_connection).lastWeek();
        return recorded.has_value();
    }));
    ASSERT_EQ(recorded->charge.size(), 3U);
    EXPECT_EQ(recorded->charge[0].moment, 1700000060);
    EXPECT_EQ(recorded->charge[0].value, 79.5);
    EXPECT_EQ(recorded->charge[0].state, PowerHistoryPoint::State::Discharging);
    EXPECT_EQ(recorded->charge[1].state, PowerHistoryPoint::State::Charging);
    EXPECT_EQ(recorded->charge[2].state, PowerHistoryPoint::State::Unknown);
    ASSERT_EQ(recorded->rate.size(), 1U);
    EXPECT_EQ(recorded->rate[0].value, 12.5);
}

TEST_F(UPowerHistoryTest, WithoutTheServiceThereIsNothing)
{
    EXPECT_FALSE(UPowerHistory(m_connection).lastWeek());
}

TEST_F(UPowerHistoryTest, OfSeveralBatteriesThereIsNothing)
{
    ASSERT_NO_FATAL_FAILURE(startService());
    for (const char* name : {"BAT0", "BAT1"})
        addHistory(addBattery(QLatin1String(name)), QStringLiteral("ret = [(1700000000, 80.0, 1)]"));
    EXPECT_FALSE(UPowerHistory(m_connection).lastWeek());
}

TEST_F(UPowerHistoryTest, ABatteryWithoutAHistoryGivesNone)
{
    ASSERT_NO_FATAL_FAILURE(startService());
    addBattery(QStringLiteral("BAT0"));
    EXPECT_FALSE(UPowerHistory(m_connection).lastWeek());
}

} // namespace
