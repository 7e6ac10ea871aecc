#include "platform/linux/power/CombinedBattery.h"

#include <algorithm>

namespace quindle {

namespace {

using OptionalNumber = std::optional<double>;
using Rule = OptionalNumber (*)(const SupplyAttributes&);

OptionalNumber firstTold(Batteries batteries, Rule rule)
{
    for (const SupplyAttributes* battery : batteries) {
        if (const OptionalNumber number = rule(*battery))
            return number;
    }
    return std::nullopt;
}

/// A quantity of one battery expressed at another's rated voltage.
double atVoltageOf(const SupplyAttributes& first, const SupplyAttributes& battery, double quantity)
{
    return quantity * ratedVoltage(battery) / ratedVoltage(first);
}

/// Whether a battery's figures may be added to others': percentages are no charges, and one that does not
/// tell both charge and full charge would make the percentage of all wrong.
bool addsUp(const SupplyAttributes& battery)
{
    return !tellsPercentageOnly(battery) && charge(battery) && fullCharge(battery);
}

/// A battery that does not tell its design charge counts as new beside others that do.
OptionalNumber designOrFullCharge(const SupplyAttributes& battery)
{
    const OptionalNumber design = designCharge(battery);
    return design ? design : fullCharge(battery);
}

OptionalNumber sumOfCharges(Batteries batteries, Rule rule)
{
    if (batteries.size() == 1)
        return rule(*batteries.front());
    const bool someAddUp = std::any_of(batteries.begin(), batteries.end(),
                                       [](const SupplyAttributes* battery) { return addsUp(*battery); });
    OptionalNumber sum;
    for (const SupplyAttributes* battery : batteries) {
        if (someAddUp && !addsUp(*battery))
            continue;
        // Percentages, where there is nothing else, are added as they are: that gives their mean.
        if (const OptionalNumber number = rule(*battery))
            sum =
                sum.value_or(0) + (someAddUp ? atVoltageOf(*batteries.front(), *battery, *number) : *number);
    }
    return sum;
}

OptionalNumber sumOfCurrents(Batteries batteries, Rule rule)
{
    if (batteries.size() == 1)
        return rule(*batteries.front());
    OptionalNumber sum;
    for (const SupplyAttributes* battery : batteries) {
        if (const OptionalNumber current = rule(*battery))
            sum = sum.value_or(0) + atVoltageOf(*batteries.front(), *battery, *current);
    }
    return sum;
}

} // namespace

std::optional<double> combinedCharge(Batteries batteries)
{
    return sumOfCharges(batteries, charge);
}

std::optional<double> combinedFullCharge(Batteries batteries)
{
    return sumOfCharges(batteries, fullCharge);
}

std::optional<double> combinedDesignCharge(Batteries batteries)
{
    if (!firstTold(batteries, designCharge))
        return std::nullopt;
    return sumOfCharges(batteries, designOrFullCharge);
}

std::optional<double> combinedAverageCurrent(Batteries batteries)
{
    return sumOfCurrents(batteries, averageCurrent);
}

std::optional<double> combinedInstantCurrent(Batteries batteries)
{
    return sumOfCurrents(batteries, instantCurrent);
}

std::optional<double> combinedChargeRate(Batteries batteries)
{
    return sumOfCurrents(batteries, chargeRate);
}

std::optional<double> combinedVoltage(Batteries batteries)
{
    return firstTold(batteries, presentVoltage);
}

std::optional<double> combinedTemperature(Batteries batteries)
{
    return firstTold(batteries, temperature);
}

std::optional<double> combinedCycleCount(Batteries batteries)
{
    OptionalNumber highest;
    for (const SupplyAttributes* battery : batteries)
        highest = std::max(highest, cycleCount(*battery));
    return highest;
}

std::optional<bool> anyCharges(Batteries batteries)
{
    std::optional<bool> charges;
    for (const SupplyAttributes* battery : batteries) {
        if (const std::optional<ChargingState> state = chargingState(*battery))
            charges = charges.value_or(false) || *state == ChargingState::Charging;
    }
    return charges;
}

std::optional<bool> allAreFull(Batteries batteries)
{
    std::optional<bool> full;
    for (const SupplyAttributes* battery : batteries) {
        if (const std::optional<bool> isThisFull = isFull(*battery))
            full = full.value_or(true) && *isThisFull;
    }
    return full;
}

bool anyDischarges(Batteries batteries)
{
    return std::any_of(batteries.begin(), batteries.end(), [](const SupplyAttributes* battery) {
        return chargingState(*battery) == ChargingState::Discharging;
    });
}

bool isExternallyPowered(const SystemPower& power)
{
    // Some chargers say that they are online for ever; a battery that discharges knows better.
    if (anyDischarges(power.batteries))
        return false;
    bool chargerSaysSomething = false;
    for (const SupplyAttributes* supply : power.externals) {
        const OptionalNumber online = supply->number(Attribute::Online);
        if (online && *online > 0)
            return true;
        chargerSaysSomething = chargerSaysSomething || online.has_value();
    }
    return !chargerSaysSomething;
}

} // namespace quindle
