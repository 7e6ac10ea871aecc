#pragma once

#include <memory>

#include "platform/PowerSources.h"

namespace quindle {

class PeripheralBatteries;
class PowerSampler;
struct PowerSample;

/// The power sources of a Linux computer: the system's batteries, then its uninterruptible supplies. There is
/// always an answer; without supplies it is an empty list.
class LinuxPowerSources final : public PowerSources
{
public:
    /// `sampler` is shared with the registry. Both live longer than this object; without `peripherals` there
    /// are none.
    explicit LinuxPowerSources(PowerSampler& sampler, PeripheralBatteries* peripherals = nullptr)
        : m_sampler(sampler)
        , m_peripherals(peripherals)
    {
    }

    std::optional<QVariantMap> externalAdapterDetails() override;
    std::optional<int> sourceCount() override;
    std::optional<QVariantMap> description(int source) override;
    std::optional<int> chargeLimit() override;
    std::optional<double> voltageOfEnergies() override;
    QList<PeripheralBattery> peripherals() override;

private:
    PowerSampler& m_sampler;
    PeripheralBatteries* m_peripherals;
    std::shared_ptr<const PowerSample> m_listed; ///< what the last list was made from
};

} // namespace quindle
