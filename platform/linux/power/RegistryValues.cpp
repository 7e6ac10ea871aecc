#include "platform/linux/power/RegistryValues.h"

#include <algorithm>
#include <cmath>

#include <QLatin1String>

namespace quindle {

namespace {

QVariant wholeNumber(std::optional<double> number)
{
    if (!number)
        return {};
    constexpr double limit = 9e18; // absurd figures stay within 64 bits
    return QVariant::fromValue<qint64>(std::llround(std::clamp(*number, -limit, limit)));
}

/// A design charge of nothing would be shown as infinite health.
QVariant atLeastOne(std::optional<double> number)
{
    return number && *number >= 0.5 ? wholeNumber(number) : QVariant();
}

QVariant minutes(std::optional<int> known)
{
    constexpr qint64 notKnown = 65535; // as in battery/BatteryStateRule, which this layer must not include
    return QVariant::fromValue<qint64>(known ? *known : notKnown);
}

template <typename T>
QVariant valueOf(const std::optional<T>& value)
{
    return value ? QVariant::fromValue(*value) : QVariant();
}

} // namespace

QVariantMap registryEntry(const SystemPower& power, const SystemTimes& times)
{
    const Batteries batteries = power.batteries;
    if (batteries.empty())
        return {};
    const Battery& first = batteries.front(); // texts and date all come from one battery
    QVariantMap entry;
    const auto add = [&entry](QLatin1String key, const QVariant& value) {
        // A key with 0 would be taken for a real figure.
        if (value.isValid())
            entry.insert(key, value);
    };
    add(QLatin1String("Amperage"), wholeNumber(combinedAverageCurrent(batteries)));
    add(QLatin1String("AvgTimeToEmpty"), minutes(times.averageToEmpty));
    add(QLatin1String("AvgTimeToFull"), minutes(times.averageToFull));
    add(QLatin1String("BatterySerialNumber"), valueOf(first.serialNumber));
    add(QLatin1String("CurrentCapacity"), wholeNumber(combinedCharge(batteries)));
    add(QLatin1String("CycleCount"), wholeNumber(combinedCycleCount(batteries)));
    add(QLatin1String("DesignCapacity"), atLeastOne(combinedDesignCharge(batteries)));
    add(QLatin1String("DeviceName"), valueOf(first.deviceName));
    add(QLatin1String("ExternalConnected"), isExternallyPowered(power));
    add(QLatin1String("FullyCharged"), valueOf(allAreFull(batteries)));
    add(QLatin1String("InstantAmperage"), wholeNumber(combinedPresentCurrent(batteries)));
    add(QLatin1String("InstantTimeToEmpty"), minutes(times.presentToEmpty));
    add(QLatin1String("IsCharging"), valueOf(anyCharges(batteries)));
    add(QLatin1String("ManufactureDate"), valueOf(first.manufactureDate));
    add(QLatin1String("Manufacturer"), valueOf(first.manufacturer));
    add(QLatin1String("MaxCapacity"), wholeNumber(combinedFullCharge(batteries)));
    add(QLatin1String("Temperature"), valueOf(combinedTemperature(batteries)));
    add(QLatin1String("TimeRemaining"), minutes(times.remaining));
    add(QLatin1String("Voltage"), wholeNumber(combinedVoltage(batteries)));
    return entry;
}

} // namespace quindle
