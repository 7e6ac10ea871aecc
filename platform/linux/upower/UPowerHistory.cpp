#include "platform/linux/upower/UPowerHistory.h"

#include <utility>

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>

namespace quindle {

namespace {

const QString& service()
{
    static const QString name = QStringLiteral("org.freedesktop.UPower");
    return name;
}

const QString& deviceInterface()
{
    static const QString name = QStringLiteral("org.freedesktop.UPower.Device");
    return name;
}

/// UPower's numbers for what a battery does.
PowerHistoryPoint::State stateOf(uint number)
{
    using State = PowerHistoryPoint::State;
    switch (number) {
    case 1:
        return State::Charging;
    case 2:
    case 6: // is about to be used
        return State::Discharging;
    case 4:
        return State::Full;
    case 3: // empty
    case 5: // held at a limit
        return State::Idle;
    default:
        return State::Unknown;
    }
}

PowerHistoryPoint pointFrom(const QDBusArgument& argument)
{
    uint moment = 0;
    uint state = 0;
    PowerHistoryPoint point;
    argument.beginStructure();
    argument >> moment >> point.value >> state;
    argument.endStructure();
    point.moment = moment;
    point.state = stateOf(state);
    return point;
}

} // namespace

UPowerHistory::UPowerHistory(QDBusConnection systemBus)
    : m_bus(std::move(systemBus))
{
}

std::optional<RecordedPower> UPowerHistory::lastWeek()
{
    const auto battery = onlyBattery();
    auto charge = battery ? history(*battery, QStringLiteral("charge")) : std::nullopt;
    auto rate = charge ? history(*battery, QStringLiteral("rate")) : std::nullopt;
    if (!rate)
        return std::nullopt;
    return RecordedPower{std::move(*charge), std::move(*rate)};
}

/// Waits for the answer: the program that asks has nothing else to do, and no window.
QDBusMessage UPowerHistory::answer(const QString& path, const QString& interface, const QString& method,
                                   const QVariantList& arguments)
{
    constexpr int patience = 2000; // milliseconds
    QDBusMessage call = QDBusMessage::createMethodCall(service(), path, interface, method);
    call.setArguments(arguments);
    // A service that does not run has recorded nothing.
    call.setAutoStartService(false);
    return m_bus.call(call, QDBus::Block, patience);
}

/// The battery that runs the computer; nothing when there are several, or none, or nobody answers.
std::optional<QString> UPowerHistory::onlyBattery()
{
    const QDBusMessage devices =
        answer(QStringLiteral("/org/freedesktop/UPower"), service(), QStringLiteral("EnumerateDevices"));
    if (devices.signature() != u"ao")
        return std::nullopt;
    QStringList batteries;
    for (const auto& device : qdbus_cast<QList<QDBusObjectPath>>(devices.arguments().constFirst())) {
        const auto isBattery = isSystemBattery(device.path());
        // It must be certain which one it is: another battery's week would look like this one's.
        if (!isBattery)
            return std::nullopt;
        if (*isBattery)
            batteries.append(device.path());
    }
    return batteries.size() == 1 ? std::optional(batteries.constFirst()) : std::nullopt;
}

std::optional<bool> UPowerHistory::isSystemBattery(const QString& device)
{
    constexpr uint battery = 2;
    const QDBusMessage properties = answer(device, QStringLiteral("org.freedesktop.DBus.Properties"),
                                           QStringLiteral("GetAll"), {deviceInterface()});
    if (properties.signature() != u"a{sv}")
        return std::nullopt;
    const auto values = qdbus_cast<QVariantMap>(properties.arguments().constFirst());
    // The batteries of mice and headsets only supply themselves.
    return values.value(QStringLiteral("Type")).toUInt() == battery &&
           values.value(QStringLiteral("PowerSupply")).toBool();
}

std::optional<std::vector<PowerHistoryPoint>> UPowerHistory::history(const QString& device,
                                                                     const QString& type)
{
    constexpr uint week = 7 * 24 * 3600; // seconds
    constexpr uint points = 7 * 24 * 60; // at most one a minute, as samples are
    const QDBusMessage found =
        answer(device, deviceInterface(), QStringLiteral("GetHistory"), {type, week, points});
    // Checked before anything is extracted: the wrong type would give undefined values.
    if (found.signature() != u"a(udu)")
        return std::nullopt;
    const auto list = found.arguments().constFirst().value<QDBusArgument>();
    std::vector<PowerHistoryPoint> read;
    list.beginArray();
    while (!list.atEnd())
        read.push_back(pointFrom(list));
    list.endArray();
    return read;
}

} // namespace quindle
