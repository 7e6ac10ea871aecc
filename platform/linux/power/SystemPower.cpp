#include "platform/linux/power/SystemPower.h"

#include <cmath>

#include "platform/linux/power/BatteryRules.h"

namespace quindle {

namespace {

/// Whether there is a battery in the bay. A driver without the attribute has one.
bool isPresent(const SupplyAttributes& attributes)
{
    return attributes.number(Attribute::Present) != 0.0;
}

/// The port's present mode: the word in brackets, or the only one. Older kernels write it into the type.
bool isPowerDelivery(const SupplyAttributes& attributes)
{
    std::string_view modes = trimmed(attributes.text(Attribute::UsbType).value_or(std::string_view()));
    const std::size_t bracket = modes.find('[');
    if (bracket != std::string_view::npos)
        modes = modes.substr(bracket + 1, modes.find(']', bracket) - bracket - 1);
    else if (modes.find(' ') != std::string_view::npos)
        return false; // several possible modes, and no present one
    if (!modes.empty())
        return modes.starts_with("PD");
    return trimmed(attributes.text(Attribute::Type).value_or(std::string_view())).starts_with("USB_PD");
}

/// Whole watts.
std::optional<qint64> deliveredWatts(const SupplyAttributes& attributes)
{
    constexpr double highestWatts = 10000; // forty times what the standard knows
    const std::optional<double> microvolts = attributes.number(Attribute::VoltageMax);
    const std::optional<double> microamps = attributes.number(Attribute::CurrentMax);
    if (!microvolts || !microamps || !isPowerDelivery(attributes))
        return std::nullopt;
    const double watts = std::round(*microvolts * *microamps / 1e12);
    if (!(watts >= 1 && watts <= highestWatts))
        return std::nullopt;
    return static_cast<qint64>(watts);
}

/// Sums that round to a full charge of nothing would be shown as infinite percentages.
bool haveFullCharge(Batteries batteries)
{
    return combinedFullCharge(batteries).value_or(0) >= 0.5;
}

} // namespace

SystemPower systemPowerFrom(const SupplyReadings& readings)
{
    SystemPower power;
    for (const SupplyReading& reading : readings) {
        if (reading.kind == SupplyKind::External) {
            power.externals.push_back(externalSupplyFrom(reading.attributes));
        } else if (isPresent(reading.attributes)) {
            Battery battery = batteryFrom(reading.attributes);
            if (reading.kind == SupplyKind::UninterruptibleSupply)
                power.uninterruptibles.push_back(std::move(battery));
            else if (reading.kind == SupplyKind::Battery && isReady(battery))
                power.batteries.push_back(std::move(battery));
        }
    }
    if (!haveFullCharge(power.batteries))
        power.batteries.clear();
    return power;
}

ExternalSupply externalSupplyFrom(const SupplyAttributes& attributes)
{
    ExternalSupply supply;
    if (const std::optional<double> online = attributes.number(Attribute::Online))
        supply.isOnline = *online > 0;
    if (supply.isOnline == true)
        supply.watts = deliveredWatts(attributes);
    return supply;
}

bool isExternallyPowered(const SystemPower& power)
{
    // Some chargers claim to be online for ever; a battery that discharges knows better.
    if (anyDischarges(power.batteries))
        return false;
    bool chargerSaysSomething = false;
    for (const ExternalSupply& supply : power.externals) {
        if (supply.isOnline == true)
            return true;
        chargerSaysSomething = chargerSaysSomething || supply.isOnline.has_value();
    }
    // Without an adapter that reports anything, a battery that does not discharge is fed
    // (framework-13-charging-99 lists none while it charges).
    return !chargerSaysSomething;
}

} // namespace quindle
