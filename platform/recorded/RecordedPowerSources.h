#pragma once

#include "platform/PowerSources.h"

namespace quindle {

class RecordedComputer;

/// The power-source service of a recorded computer; without recorded sources it cannot be asked.
class RecordedPowerSources : public PowerSources
{
public:
    explicit RecordedPowerSources(const RecordedComputer& computer)
        : m_computer(computer)
    {
    }

    std::optional<QVariantMap> externalAdapterDetails() override;
    std::optional<int> sourceCount() override;
    std::optional<QVariantMap> description(int source) override;
    /// Machine files record neither limits nor energies nor devices.
    std::optional<int> chargeLimit() override { return std::nullopt; }
    std::optional<double> voltageOfEnergies() override { return std::nullopt; }
    QList<PeripheralBattery> peripherals() override { return {}; }

private:
    const RecordedComputer& m_computer;
};

/// A recorded computer changes by its steps only, and those refresh by themselves.
class RecordedPowerEvents : public PowerEvents
{
public:
    void setObserver(std::function<void()> /*observer*/) override {}
};

} // namespace quindle
