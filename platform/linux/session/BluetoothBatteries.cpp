#include "platform/linux/session/BluetoothBatteries.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QMap>

namespace quindle {

namespace {

using Interfaces = QMap<QString, QVariantMap>;
using Objects = QMap<QDBusObjectPath, Interfaces>;

const QString objectsSignature = QStringLiteral("a{oa{sa{sv}}}");

constexpr int longestUse = 20'000; // of an answer; it is asked more often while somebody looks
// Nobody has more; a broken service must not fill the view.
constexpr qsizetype mostBatteries = 32;

QDBusMessage questionForObjects()
{
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.bluez"), QStringLiteral("/"),
        QStringLiteral("org.freedesktop.DBus.ObjectManager"), QStringLiteral("GetManagedObjects"));
    question.setAutoStartService(false);
    return question;
}

std::optional<BluetoothBattery> batteryOf(const Interfaces& object)
{
    const QVariantMap device = object.value(QStringLiteral("org.bluez.Device1"));
    const QVariant percentage =
        object.value(QStringLiteral("org.bluez.Battery1")).value(QStringLiteral("Percentage"));
    bool isNumber = false;
    const uint percent = percentage.toUInt(&isNumber);
    // A device that has gone keeps its object, with its last battery level.
    if (!isNumber || percent > 100 || !device.value(QStringLiteral("Connected"), true).toBool())
        return std::nullopt;
    return BluetoothBattery{device.value(QStringLiteral("Address")).toString(),
                            device.value(QStringLiteral("Alias")).toString(), static_cast<int>(percent)};
}

} // namespace

QList<BluetoothBattery> bluetoothBatteriesFrom(const QDBusMessage& answer)
{
    // The library converts without checking; a message of another form would give nonsense.
    if (answer.type() != QDBusMessage::ReplyMessage || answer.signature() != objectsSignature)
        return {};
    const auto objects = qdbus_cast<Objects>(answer.arguments().constFirst());
    QList<BluetoothBattery> batteries;
    for (const Interfaces& object : objects)
        if (const auto battery = batteryOf(object); battery && batteries.size() < mostBatteries)
            batteries.append(*battery);
    return batteries;
}

BluetoothBatteries::BluetoothBatteries(int patience)
    : m_patience(patience)
    , m_bus(QDBusConnection::SystemBus, QStringLiteral("quindle-bluetooth"))
{
}

QList<BluetoothBattery> BluetoothBatteries::latest()
{
    const bool isOld = !m_asked.isValid() || m_asked.hasExpired(longestUse);
    if (isOld) {
        m_question = ask();
        m_question->waitForFinished();
    }
    if (m_question->isFinished()) {
        m_batteries = bluetoothBatteriesFrom(m_question->reply());
        // The answer to the next question is requested now, so that nobody waits then.
        if (!isOld)
            m_question = ask();
    }
    return m_batteries;
}

QDBusPendingCall BluetoothBatteries::ask()
{
    m_asked.start();
    return m_bus.connection().asyncCall(questionForObjects(), m_patience);
}

} // namespace quindle
