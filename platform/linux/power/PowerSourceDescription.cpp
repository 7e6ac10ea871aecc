#include "platform/linux/power/PowerSourceDescription.h"

#include <cmath>

namespace quindle {

namespace {

void insertPresent(QVariantMap& description, const QString& key, const std::optional<QString>& text)
{
    if (text)
        description.insert(key, *text);
}

void insertPresent(QVariantMap& description, const QString& key, std::optional<double> number)
{
    constexpr double limit = 9e18; // absurd figures stay within 64 bits
    if (number && std::abs(*number) < limit)
        description.insert(key, QVariant::fromValue<qint64>(std::llround(*number)));
}

std::optional<double> chargePercentage(const Battery& source)
{
    if (!source.charge || !source.fullCharge)
        return std::nullopt;
    return *source.charge / *source.fullCharge * 100;
}

/// What every source has.
QVariantMap sourceDescription(const Battery& source, const QString& type, bool isExternallyPowered,
                              std::optional<int> minutesToEmpty, std::optional<int> minutesToFull)
{
    QVariantMap description;
    description.insert(QStringLiteral("Type"), type);
    description.insert(QStringLiteral("Name"), source.deviceName.value_or(type));
    description.insert(QStringLiteral("Power Source State"),
                       isExternallyPowered ? QStringLiteral("AC Power") : QStringLiteral("Battery Power"));
    description.insert(QStringLiteral("Is Present"), true);
    description.insert(QStringLiteral("Is Charging"), source.state == ChargingState::Charging);
    // The service's capacities are percentages, whatever the battery counts in.
    description.insert(QStringLiteral("Max Capacity"), qint64{100});
    description.insert(QStringLiteral("Time to Empty"), qint64{minutesToEmpty.value_or(-1)});
    description.insert(QStringLiteral("Time to Full Charge"), qint64{minutesToFull.value_or(-1)});
    insertPresent(description, QStringLiteral("Current Capacity"), chargePercentage(source));
    insertPresent(description, QStringLiteral("Hardware Serial Number"), source.serialNumber);
    return description;
}

/// The times are those of all batteries together; with several, their own are not known.
QVariantMap batteryDescription(const Battery& battery, bool isExternallyPowered, const SystemTimes& times)
{
    QVariantMap description =
        sourceDescription(battery, QStringLiteral("InternalBattery"), isExternallyPowered,
                          times.averageToEmpty, times.averageToFull);
    description.insert(QStringLiteral("Transport Type"), QStringLiteral("Internal"));
    insertPresent(description, QStringLiteral("BatteryHealth"), battery.health);
    insertPresent(description, QStringLiteral("Current"), battery.averageCurrent);
    insertPresent(description, QStringLiteral("Voltage"), battery.voltage);
    return description;
}

QVariantMap uninterruptibleDescription(const Battery& supply)
{
    // Only its own state says whether mains feed a UPS; the computer's adapters are behind it.
    return sourceDescription(supply, QStringLiteral("UPS"), supply.state != ChargingState::Discharging,
                             supply.averageMinutesToEmpty, supply.averageMinutesToFull);
}

} // namespace

std::vector<QVariantMap> sourceDescriptions(const SystemPower& power, const SystemTimes& times)
{
    const bool externallyPowered = isExternallyPowered(power);
    const SystemTimes unknown;
    const SystemTimes& own = power.batteries.size() == 1 ? times : unknown;
    std::vector<QVariantMap> descriptions;
    for (const Battery& battery : power.batteries)
        descriptions.push_back(batteryDescription(battery, externallyPowered, own));
    for (const Battery& supply : power.uninterruptibles)
        descriptions.push_back(uninterruptibleDescription(supply));
    return descriptions;
}

} // namespace quindle
