#include "platform/linux/power/LinuxPowerSources.h"

#include "platform/linux/power/PowerSnapshot.h"
#include "platform/linux/power/PowerSourceDescription.h"

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
    const PowerSnapshot snapshot(m_supplies);
    const SystemPower power = snapshot.power();
    const bool externallyPowered = isExternallyPowered(power);
    const SourceTimes times = sourceTimes(power, m_times);
    m_descriptions.clear();
    for (qsizetype source = 0; source < snapshot.sourceCount(); ++source) {
        const SupplyAttributes& attributes = snapshot.source(source);
        m_descriptions.push_back(snapshot.isBattery(source)
                                     ? batteryDescription(attributes, externallyPowered, times)
                                     : uninterruptibleDescription(attributes));
    }
    return static_cast<int>(m_descriptions.size());
}

std::optional<QVariantMap> LinuxPowerSources::description(int source)
{
    if (source < 0 || source >= static_cast<int>(m_descriptions.size()))
        return std::nullopt;
    return m_descriptions[static_cast<std::size_t>(source)];
}

} // namespace quindle
