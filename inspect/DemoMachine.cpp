#include "inspect/DemoMachine.h"

#include <cmath>

#include <QDate>

#include "battery/QDBattery.h"
#include "mac/QDMac.h"

namespace quindle {

namespace {

constexpr int firstPackedYear = 1980;
constexpr qint64 millivolts = 10000; // any would do: the current is chosen to give the power that is shown

qint64 packedDate(const QDate& date)
{
    return (static_cast<qint64>(date.year() - firstPackedYear) << 9) |
           (static_cast<qint64>(date.month()) << 5) | date.day();
}

qint64 minutes(const QString& hoursAndMinutes)
{
    const QStringList parts = hoursAndMinutes.split(u':');
    return parts.size() == 2 ? parts[0].toLongLong() * 60 + parts[1].toLongLong() : 0;
}

double tenthsOfKelvin(const QString& fahrenheitText)
{
    // The demonstration only has its temperature as a text, in this unit.
    const double fahrenheit = fahrenheitText.section(u' ', 0, 0).toDouble();
    return (fahrenheit + 459.67) / 1.8 * 10;
}

QVariantMap batteryEntry(const QDBattery& battery)
{
    // So that the health that is shown comes out of it again.
    const double design = static_cast<double>(battery.FullChargeCapacity()) / battery.StateOfHealth() * 100;
    QVariantMap entry{
        {QStringLiteral("CurrentCapacity"), battery.CurrentCapacity()},
        {QStringLiteral("MaxCapacity"), battery.FullChargeCapacity()},
        {QStringLiteral("DesignCapacity"), static_cast<qint64>(std::llround(design))},
        {QStringLiteral("CycleCount"), battery.CycleCount()},
        {QStringLiteral("Voltage"), millivolts},
        // Negative, because the demonstration discharges.
        {QStringLiteral("Amperage"),
         -static_cast<qint64>(std::llround(battery.WattThroughput() * 1e6 / millivolts))},
        {QStringLiteral("Temperature"), tenthsOfKelvin(battery.Temperature())},
        {QStringLiteral("AvgTimeToEmpty"), minutes(battery.TimeRemaining())},
    };
    if (const auto date = battery.ManufactureDate())
        entry.insert(QStringLiteral("ManufactureDate"), packedDate(date->toLocalTime().date()));
    return entry;
}

} // namespace

QVariantMap keysFromModel(const QDMac& mac)
{
    const QVariantMap computer{
        // With its NUL, as a registry holds it.
        {QStringLiteral("model"), mac.Model().value_or(QString()).toUtf8() + '\0'},
        {QStringLiteral("IOPlatformSerialNumber"), mac.Serial().value_or(QString())},
    };
    QVariantMap keys{{QStringLiteral("HostName"), mac.Name().value_or(QString())}};
    QVariantMap registry{{QStringLiteral("IOPlatformExpertDevice"), computer}};
    if (const QDBattery* battery = mac.Battery()) {
        registry.insert(QStringLiteral("AppleSmartBattery"), batteryEntry(*battery));
        // Without a source a replay would end: beside a battery that is fatal.
        const QVariantMap source{{QStringLiteral("BatteryHealth"), battery->BatteryHealth()}};
        keys.insert(QStringLiteral("PowerSources"), QVariantList{source});
    }
    keys.insert(QStringLiteral("Registry"), registry);
    return keys;
}

} // namespace quindle
