#pragma once

#include <vector>

#include "platform/PowerSources.h"

namespace quindle {

class BatteryTimes;
class SupplyDirectory;

/// The power sources of a Linux computer: the system's batteries, then its uninterruptible supplies. There is
/// always an answer; without supplies it is an empty list.
class LinuxPowerSources final : public PowerSources
{
public:
    /// `supplies` and `times` are shared with the registry and live longer than this object.
    LinuxPowerSources(SupplyDirectory& supplies, BatteryTimes& times)
        : m_supplies(supplies)
        , m_times(times)
    {
    }

    std::optional<QVariantMap> externalAdapterDetails() override;
    std::optional<int> sourceCount() override;
    std::optional<QVariantMap> description(int source) override;
    std::optional<int> chargeLimit() override { return std::nullopt; }
    QList<PeripheralBattery> peripherals() override { return {}; }

private:
    SupplyDirectory& m_supplies;
    BatteryTimes& m_times;
    std::vector<QVariantMap> m_descriptions; ///< of the last list, all of one moment
};

} // namespace quindle
