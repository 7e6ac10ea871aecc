#include <mutex>
#include <optional>

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QThread>
#include <gtest/gtest.h>

#include "platform/linux/session/BluetoothBatteries.h"
#include "tests/support/MessageBus.h"
#include "tests/support/QtPrinters.h"

using namespace quindle;

using BluezObject = QMap<QString, QVariantMap>;
using BluezObjects = QMap<QDBusObjectPath, BluezObject>;
Q_DECLARE_METATYPE(BluezObject)
Q_DECLARE_METATYPE(BluezObjects)

namespace {

BluezObject device(const QString& alias, const QVariant& percentage)
{
    BluezObject object{{QStringLiteral("org.bluez.Device1"),
                        {{QStringLiteral("Address"), QStringLiteral("AA:BB:CC:DD:EE:FF")},
                         {QStringLiteral("Alias"), alias},
                         {QStringLiteral("Connected"), true}}}};
    if (percentage.isValid())
        object.insert(QStringLiteral("org.bluez.Battery1"), {{QStringLiteral("Percentage"), percentage}});
    return object;
}

QVariant percent(uchar number)
{
    return QVariant::fromValue(number);
}

/// The Bluetooth service, on a connection and a thread of its own: the program waits for its answers.
class Bluez : public QDBusVirtualObject
{
public:
    explicit Bluez(const QString& address)
        : m_connection(QDBusConnection::connectToBus(address, QStringLiteral("bluez")))
    {
        qDBusRegisterMetaType<BluezObject>();
        qDBusRegisterMetaType<BluezObjects>();
        EXPECT_TRUE(m_connection.registerVirtualObject(QStringLiteral("/"), this));
        moveToThread(&m_thread);
        m_thread.start();
    }

    ~Bluez() override
    {
        m_thread.quit();
        m_thread.wait();
        QDBusConnection::disconnectFromBus(QStringLiteral("bluez"));
    }

    Bluez(const Bluez&) = delete;
    Bluez& operator=(const Bluez&) = delete;

    void run() { EXPECT_TRUE(m_connection.registerService(QStringLiteral("org.bluez"))); }
    void stop() { EXPECT_TRUE(m_connection.unregisterService(QStringLiteral("org.bluez"))); }

    void show(const QList<BluezObject>& objects)
    {
        const std::scoped_lock lock(m_mutex);
        m_objects.clear();
        for (const BluezObject& object : objects)
            m_objects.insert(
                QDBusObjectPath(
                    QStringLiteral("/org/bluez/hci0/dev_%1").arg(m_objects.size(), 4, 10, QChar(u'0'))),
                object);
    }

    void answer(bool answers)
    {
        const std::scoped_lock lock(m_mutex);
        m_answers = answers;
    }

    QString introspect(const QString& /*path*/) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        const std::scoped_lock lock(m_mutex);
        if (message.member() != QStringLiteral("GetManagedObjects"))
            return false;
        message.setDelayedReply(true);
        if (m_answers)
            connection.send(message.createReply(QVariant::fromValue(m_objects)));
        return true;
    }

private:
    QDBusConnection m_connection;
    QThread m_thread;
    std::mutex m_mutex;
    BluezObjects m_objects;
    bool m_answers = true;
};

QString described(const QList<BluetoothBattery>& batteries)
{
    QStringList all;
    for (const BluetoothBattery& battery : batteries)
        all.append(QStringLiteral("%1 %2 %3").arg(battery.address, battery.name).arg(battery.percent));
    return all.join(QStringLiteral(", "));
}

struct BluetoothBatteriesTest : testing::Test
{
    BluetoothBatteriesTest()
    {
        bus.start();
        qputenv("DBUS_SYSTEM_BUS_ADDRESS", bus.address().toLatin1());
        bluez.emplace(bus.address());
    }

    QString latest() { return described(batteries.latest()); }

    MessageBus bus{QStringLiteral("system")};
    std::optional<Bluez> bluez;
    BluetoothBatteries batteries{60'000};
};

TEST_F(BluetoothBatteriesTest, ConnectedDevicesWithABatteryAreFound)
{
    BluezObject gone = device(QStringLiteral("Gone"), percent(4));
    gone[QStringLiteral("org.bluez.Device1")][QStringLiteral("Connected")] = false;
    bluez->show({device(QStringLiteral("Headset"), percent(70)), device(QStringLiteral("Lamp"), {}), gone,
                 device(QStringLiteral("Mouse"), percent(100)), device(QStringLiteral("Liar"), percent(101)),
                 device(QStringLiteral("Text"), QStringLiteral("much"))});
    bluez->run();
    EXPECT_EQ(latest(), QStringLiteral("AA:BB:CC:DD:EE:FF Headset 70, AA:BB:CC:DD:EE:FF Mouse 100"));
}

TEST_F(BluetoothBatteriesTest, NewsAreSeenByWhoLooksOn)
{
    bluez->show({device(QStringLiteral("Headset"), percent(70))});
    bluez->run();
    ASSERT_EQ(latest(), QStringLiteral("AA:BB:CC:DD:EE:FF Headset 70"));
    bluez->show({device(QStringLiteral("Headset"), percent(69))});
    EXPECT_TRUE(comesTrue([&] { return latest() == QStringLiteral("AA:BB:CC:DD:EE:FF Headset 69"); }));
    bluez->stop();
    EXPECT_TRUE(comesTrue([&] { return latest().isEmpty(); }));
    bluez->run();
    EXPECT_TRUE(comesTrue([&] { return latest() == QStringLiteral("AA:BB:CC:DD:EE:FF Headset 69"); }));
}

TEST_F(BluetoothBatteriesTest, AtMost32AreGiven)
{
    bluez->show(QList<BluezObject>(5000, device(QStringLiteral("Headset"), percent(70))));
    bluez->run();
    EXPECT_EQ(batteries.latest().size(), 32);
}

TEST_F(BluetoothBatteriesTest, AServiceThatDoesNotRunIsNotWaitedFor)
{
    QElapsedTimer watch;
    watch.start();
    EXPECT_EQ(latest(), QString());
    EXPECT_LT(watch.elapsed(), 30'000);
}

TEST_F(BluetoothBatteriesTest, AServiceThatDoesNotAnswerIsWaitedForABriefTime)
{
    bluez->answer(false);
    bluez->run();
    BluetoothBatteries impatient(100);
    QElapsedTimer watch;
    watch.start();
    EXPECT_TRUE(impatient.latest().isEmpty());
    EXPECT_LT(watch.elapsed(), 20'000); // calls over a bus are waited for 25 s unless one says otherwise
    watch.restart();
    for (int looks = 0; looks < 1000; ++looks)
        EXPECT_TRUE(impatient.latest().isEmpty());
    EXPECT_LT(watch.elapsed(), 20'000); // the later ones do not wait: they would take 100 s
}

TEST_F(BluetoothBatteriesTest, WithoutABusThereAreNone)
{
    bluez.reset();
    bus.stop();
    EXPECT_EQ(latest(), QString());
    EXPECT_EQ(latest(), QString());
}

TEST(BluetoothBatteries, OtherMessagesGiveNothing)
{
    QDBusMessage question = QDBusMessage::createMethodCall(QStringLiteral("org.bluez"), QStringLiteral("/"),
                                                           QStringLiteral("a.b"), QStringLiteral("c"));
    EXPECT_TRUE(bluetoothBatteriesFrom(question).isEmpty());
    EXPECT_TRUE(bluetoothBatteriesFrom(question.createReply()).isEmpty());
    EXPECT_TRUE(bluetoothBatteriesFrom(question.createReply(QStringLiteral("text"))).isEmpty());
    EXPECT_TRUE(bluetoothBatteriesFrom(question.createErrorReply(QDBusError::NoReply, {})).isEmpty());
}

} // namespace
