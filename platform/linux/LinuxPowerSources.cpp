#include "platform/linux/LinuxPowerSources.h"

#include "platform/linux/PowerSnapshot.h"
#include "platform/linux/PowerSourceDescription.h"

namespace quindle {

namespace {

/// The times are those of all batteries together; of several, each one's own are not known.
SourceTimes sourceTimes(const SystemPower& power, BatteryTimes& times)
{
    if (power.batteries.size() != 1)
        return {};
    return {times.minutes(BatteryTime::AverageToEmpty, power),
            times.minutes(BatteryTime::AverageToFull, power)};
}

} // namespace

std::optional<QVariantMap> LinuxPowerSources::externalAdapterDetails()
{
    const PowerSnapshot snapshot(m_supplies);
    std::optional<qint64> highest;
    for (const SupplyAttributes* supply : snapshot.power().externals)
        highest = std::max(highest, adapterWatts(*supply));
    if (!highest)
        return std::nullopt;
    return QVariantMap{{QStringLiteral("Watts"), *highest}};
}

std::optional<int> LinuxPowerSources::sourceCount()
{
    return static_cast<int>(PowerSnapshot(m_supplies).sourceCount());
}

std::optional<QVariantMap> LinuxPowerSources::description(int source)
{
    const PowerSnapshot snapshot(m_supplies);
    if (source < 0 || source >= snapshot.sourceCount())
        return std::nullopt;
    const SupplyAttributes& attributes = snapshot.source(source);
    if (!snapshot.isBattery(source))
        return uninterruptibleDescription(attributes);
    const SystemPower power = snapshot.power();
    return batteryDescription(attributes, isExternallyPowered(power), sourceTimes(power, m_times));
}

} // namespace quindle
