#include "battery/BatteryRegistryKey.h"

#include <algorithm>
#include <array>

namespace quindle {

namespace {

using KeyTexts = std::array<QString, batteryRegistryKeyCount>;

/// In the order of the enumeration.
const KeyTexts& keyTexts()
{
    static const KeyTexts texts{
        QStringLiteral("ExternalConnected"),
        QStringLiteral("Amperage"),
        QStringLiteral("CurrentCapacity"),
        QStringLiteral("CycleCount"),
        QStringLiteral("DesignCapacity"),
        QStringLiteral("DesignCycleCount9C"),
        QStringLiteral("FullyCharged"),
        QStringLiteral("IsCharging"),
        QStringLiteral("MaxCapacity"),
        QStringLiteral("Temperature"),
        QStringLiteral("TimeRemaining"),
        QStringLiteral("InstantTimeToEmpty"),
        QStringLiteral("AvgTimeToFull"),
        QStringLiteral("AvgTimeToEmpty"),
        QStringLiteral("PermanentFailureStatus"),
        QStringLiteral("Manufacturer"),
        QStringLiteral("PackReserve"),
        QStringLiteral("ManufactureDate"),
        QStringLiteral("BatterySerialNumber"),
        QStringLiteral("InstantAmperage"),
        QStringLiteral("Voltage"),
        QStringLiteral("DeviceName"),
    };
    return texts;
}

} // namespace

const QString& registryKeyText(BatteryRegistryKey key)
{
    return keyTexts()[static_cast<std::size_t>(key)];
}

std::optional<BatteryRegistryKey> registryKeyFromText(const QString& text)
{
    const KeyTexts& texts = keyTexts();
    const auto found = std::find(texts.cbegin(), texts.cend(), text);
    if (found == texts.cend())
        return std::nullopt;
    return static_cast<BatteryRegistryKey>(found - texts.cbegin());
}

} // namespace quindle
