#include "platform/linux/power/LinuxPowerSources.h"

#include <algorithm>

#include "platform/linux/power/PeripheralBatteries.h"
#include "platform/linux/power/PowerSampler.h"

namespace quindle {

std::optional<QVariantMap> LinuxPowerSources::externalAdapterDetails()
{
    std::optional<qint64> highest;
    for (const ExternalSupply& supply : m_sampler.sample()->power.externals)
        // An optional without a value is less than any number of watts.
        highest = std::max(highest, supply.watts);
    if (!highest)
        return std::nullopt;
    return QVariantMap{{QStringLiteral("Watts"), *highest}};
}

std::optional<int> LinuxPowerSources::sourceCount()
{
    // Kept for the descriptions: a battery that is taken out after it was counted could not be described,
    // which is fatal.
    m_listed = m_sampler.sample();
    return static_cast<int>(m_listed->sources.size());
}

std::optional<QVariantMap> LinuxPowerSources::description(int source)
{
    if (!m_listed || source < 0 || source >= static_cast<int>(m_listed->sources.size()))
        return std::nullopt;
    return m_listed->sources[static_cast<std::size_t>(source)];
}

std::optional<int> LinuxPowerSources::chargeLimit()
{
    return combinedChargeLimit(m_sampler.sample()->power.batteries);
}

std::optional<double> LinuxPowerSources::voltageOfEnergies()
{
    return combinedVoltageOfEnergies(m_sampler.sample()->power.batteries);
}

QList<PeripheralBattery> LinuxPowerSources::peripherals()
{
    return m_peripherals ? m_peripherals->now() : QList<PeripheralBattery>();
}

} // namespace quindle
