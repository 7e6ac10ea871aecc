#pragma once

#include <optional>

#include <QString>

namespace quindle {

/// The registry keys of the battery that the program knows. Their order is the numbering, 0 to 21.
enum class BatteryRegistryKey {
    ExternalConnected,
    Amperage,
    CurrentCapacity,
    CycleCount,
    DesignCapacity,
    DesignCycleCount9C,
    FullyCharged,
    IsCharging,
    MaxCapacity,
    Temperature,
    TimeRemaining,
    InstantTimeToEmpty,
    AvgTimeToFull,
    AvgTimeToEmpty,
    PermanentFailureStatus,
    Manufacturer,
    PackReserve,
    ManufactureDate,
    BatterySerialNumber,
    InstantAmperage,
    Voltage,
    DeviceName,
};

inline constexpr int batteryRegistryKeyCount = 22;

/// The key's text in the registry, e.g. "MaxCapacity".
const QString& registryKeyText(BatteryRegistryKey key);

/// The key with exactly that text (case-sensitive); nothing for any other text.
std::optional<BatteryRegistryKey> registryKeyFromText(const QString& text);

} // namespace quindle
