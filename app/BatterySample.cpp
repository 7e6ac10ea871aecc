#include "app/BatterySample.h"

#include <algorithm>
#include <cmath>

#include "battery/QDBattery.h"

namespace quindle {

namespace {

constexpr double fullCharge = 100; // percent

} // namespace

// In the order in which the battery's own texts weigh them.
SampleState sampleState(const QDBattery& battery)
{
    if (battery.isCharging())
        return SampleState::Charging;
    if (!battery.isACPowered())
        return SampleState::Discharging;
    return battery.isCharged() ? SampleState::Full : SampleState::Unknown;
}

std::optional<double> batteryPower(const QDBattery& battery)
{
    if (!battery.knowsPower())
        return std::nullopt;
    // The model's figure has no sign. A battery may discharge even while it is plugged in.
    const bool flowsOut = battery.amperage() < 0 || sampleState(battery) == SampleState::Discharging;
    return flowsOut ? -battery.WattThroughput() : battery.WattThroughput();
}

std::optional<Sample> batterySample(const QDBattery& battery, qint64 moment)
{
    const double charge = battery.StateOfCharge();
    // Without a full charge there is no percentage, and nothing to record.
    if (!std::isfinite(charge))
        return std::nullopt;
    return Sample{.moment = moment,
                  .charge = std::clamp(charge, 0.0, fullCharge),
                  .power = batteryPower(battery),
                  .state = sampleState(battery)};
}

} // namespace quindle
