// The single values of the registry entry, each read when it is asked for, and their forced conversions.

#include "battery/QDBattery.h"
#include "common/FatalError.h"
#include "common/NumberConversion.h"
#include "platform/Platform.h"

namespace quindle {

namespace {

// inherited: fatal; a value of another type is a registry that this program does not know.
[[noreturn]] void failConversion(BatteryRegistryKey key)
{
    fatalError(QString(registryKeyText(key) + QStringLiteral(" has an unexpected type in the registry")));
}

/// Nothing for a missing value, which is not the same as one of another type: some drivers have no such
/// figure.
template <typename Type>
std::optional<Type> converted(BatteryRegistryKey key, const QVariant& value,
                              std::optional<Type> (*convert)(const QVariant&))
{
    if (!value.isValid())
        return std::nullopt;
    std::optional<Type> result = convert(value);
    if (!result)
        failConversion(key);
    return result;
}

} // namespace

QVariantMap QDBattery::getRawData() const
{
    // One read for all of them: a record must not mix properties of two moments.
    return m_platform.registry.properties(m_service);
}

QString QDBattery::serialNumber() const
{
    // Empty, not missing: the battery's identifier is made from it in any case.
    return registryText(BatteryRegistryKey::BatterySerialNumber).value_or(QStringLiteral(""));
}

std::optional<QString> QDBattery::deviceName() const
{
    return registryText(BatteryRegistryKey::DeviceName);
}

std::optional<QString> QDBattery::manufacturer_unsafe() const
{
    return registryText(BatteryRegistryKey::Manufacturer);
}

qint64 QDBattery::manufactureDate() const
{
    return registryInteger(BatteryRegistryKey::ManufactureDate);
}

qint64 QDBattery::currentCapacity() const
{
    return registryInteger(BatteryRegistryKey::CurrentCapacity);
}

qint64 QDBattery::maxCapactiy() const
{
    return registryInteger(BatteryRegistryKey::MaxCapacity);
}

qint64 QDBattery::designCapacity() const
{
    return registryInteger(BatteryRegistryKey::DesignCapacity);
}

qint64 QDBattery::cycleCount() const
{
    return registryInteger(BatteryRegistryKey::CycleCount);
}

qint64 QDBattery::voltage() const
{
    return registryInteger(BatteryRegistryKey::Voltage);
}

qint64 QDBattery::amperage() const
{
    return registryInteger(BatteryRegistryKey::Amperage);
}

qint64 QDBattery::instantAmperage() const
{
    return registryInteger(BatteryRegistryKey::InstantAmperage);
}

qint64 QDBattery::designCycleCount() const
{
    return registryInteger(BatteryRegistryKey::DesignCycleCount9C);
}

bool QDBattery::isACPowered() const
{
    return registryBoolean(BatteryRegistryKey::ExternalConnected);
}

bool QDBattery::isCharging() const
{
    return registryBoolean(BatteryRegistryKey::IsCharging);
}

bool QDBattery::isCharged() const
{
    return registryBoolean(BatteryRegistryKey::FullyCharged);
}

qint64 QDBattery::timeRemaining() const
{
    return registryInteger(BatteryRegistryKey::TimeRemaining);
}

qint64 QDBattery::avgTimeToEmpty() const
{
    return registryInteger(BatteryRegistryKey::AvgTimeToEmpty);
}

qint64 QDBattery::avgTimeToFull() const
{
    return registryInteger(BatteryRegistryKey::AvgTimeToFull);
}

qint64 QDBattery::instantTimeToEmpty() const
{
    return registryInteger(BatteryRegistryKey::InstantTimeToEmpty);
}

qint64 QDBattery::permanentFailure() const
{
    return registryInteger(BatteryRegistryKey::PermanentFailureStatus);
}

QVariant QDBattery::registryValue(BatteryRegistryKey key) const
{
    return m_platform.registry.property(m_service, registryKeyText(key));
}

std::optional<qint64> QDBattery::knownInteger(BatteryRegistryKey key) const
{
    return converted(key, registryValue(key), convertToInteger);
}

qint64 QDBattery::registryInteger(BatteryRegistryKey key) const
{
    return knownInteger(key).value_or(0);
}

std::optional<double> QDBattery::registryDouble(BatteryRegistryKey key) const
{
    // Drivers on Linux give tenths of a degree Celsius, which are not whole tenths of a kelvin.
    return converted(key, registryValue(key), convertToDouble);
}

bool QDBattery::registryBoolean(BatteryRegistryKey key) const
{
    // 0 and 1 count as booleans, because drivers write either; any other number is fatal.
    return converted(key, registryValue(key), convertToBoolean).value_or(false);
}

std::optional<QString> QDBattery::registryText(BatteryRegistryKey key) const
{
    return converted(key, registryValue(key), convertToText);
}

} // namespace quindle
