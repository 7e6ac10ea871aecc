#pragma once

#include <vector>

#include "platform/PowerSources.h"
#include "platform/RateLimit.h"
#include "platform/macos/SystemCalls.h"

namespace quindle {

/// The power-source service of a Mac. It does not report a charge limit, and of other devices' batteries only
/// those that supply this computer.
class MacPowerSources : public PowerSources
{
public:
    explicit MacPowerSources(PowerCalls& calls)
        : m_calls(calls)
    {
    }

    std::optional<QVariantMap> externalAdapterDetails() override;
    std::optional<int> sourceCount() override;
    std::optional<QVariantMap> description(int source) override;
    std::optional<int> chargeLimit() override { return std::nullopt; }
    std::optional<double> voltageOfEnergies() override { return std::nullopt; }
    QList<PeripheralBattery> peripherals() override { return {}; }

private:
    PowerCalls& m_calls;
    std::vector<QVariantMap> m_listed;
};

class MacPowerEvents : public PowerEvents
{
public:
    MacPowerEvents(PowerCalls& calls, RunLoop& runLoop);

    void setObserver(std::function<void()> observer) override;

private:
    PowerCalls& m_calls;
    bool m_isListening = false;
    std::function<void()> m_observer;
    RateLimit m_limit;
};

} // namespace quindle
