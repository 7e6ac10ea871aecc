#include "platform/linux/power/CombinedBattery.h"

#include <algorithm>

namespace quindle {

namespace {

using OptionalNumber = std::optional<double>;

template <typename Figure>
using Member = std::optional<Figure> Battery::*;

template <typename Figure>
std::optional<Figure> firstKnown(Batteries batteries, Member<Figure> figure)
{
    for (const Battery& battery : batteries)
        if (battery.*figure)
            return battery.*figure;
    return std::nullopt;
}

/// A quantity of one battery expressed at the first one's rated voltage.
OptionalNumber atVoltageOf(const Battery& first, const Battery& battery, OptionalNumber quantity)
{
    if (!quantity || &first == &battery)
        return quantity;
    return *quantity * battery.ratedVoltage / first.ratedVoltage;
}

/// Of those that report it.
template <typename QuantityOf>
OptionalNumber sumOf(Batteries batteries, QuantityOf quantityOf)
{
    OptionalNumber sum;
    for (const Battery& battery : batteries)
        if (const OptionalNumber quantity = quantityOf(battery))
            sum = sum.value_or(0) + *quantity;
    return sum;
}

/// Whether a battery's figures may be added to others': percentages are not charges, and a battery that does
/// not report both charge and full charge would falsify the percentage of all.
bool addsUp(const Battery& battery)
{
    return !battery.hasPercentageOnly && battery.charge && battery.fullCharge;
}

OptionalNumber fullCharge(const Battery& battery)
{
    return battery.fullCharge;
}

OptionalNumber presentCharge(const Battery& battery)
{
    return battery.charge;
}

/// A battery that does not report its design charge counts as new beside others that do.
OptionalNumber designOrFullCharge(const Battery& battery)
{
    return battery.designCharge ? battery.designCharge : battery.fullCharge;
}

/// Charges are added instead of averaging percentages: the packs of 25 and 71 Wh of
/// thinkpad-t480-two-batteries-rear-empty, at 94 and 0 %, hold 24 % together and not 47.
OptionalNumber sumOfCharges(Batteries batteries, OptionalNumber (*chargeOf)(const Battery&))
{
    // Percentages, where there is nothing else, are added as they are: that gives their mean.
    if (std::none_of(batteries.begin(), batteries.end(), addsUp))
        return sumOf(batteries, chargeOf);
    return sumOf(batteries, [&](const Battery& battery) {
        return addsUp(battery) ? atVoltageOf(batteries.front(), battery, chargeOf(battery)) : std::nullopt;
    });
}

OptionalNumber sumOfCurrents(Batteries batteries, Member<double> current)
{
    return sumOf(batteries, [&](const Battery& battery) {
        return atVoltageOf(batteries.front(), battery, battery.*current);
    });
}

} // namespace

std::optional<double> combinedCharge(Batteries batteries)
{
    return sumOfCharges(batteries, presentCharge);
}

std::optional<double> combinedFullCharge(Batteries batteries)
{
    return sumOfCharges(batteries, fullCharge);
}

std::optional<double> combinedDesignCharge(Batteries batteries)
{
    // Without any, every battery would count as new, and health would be 100 %.
    if (!firstKnown(batteries, &Battery::designCharge))
        return std::nullopt;
    return sumOfCharges(batteries, designOrFullCharge);
}

std::optional<double> combinedAverageCurrent(Batteries batteries)
{
    return sumOfCurrents(batteries, &Battery::averageCurrent);
}

std::optional<double> combinedPresentCurrent(Batteries batteries)
{
    return sumOfCurrents(batteries, &Battery::presentCurrent);
}

std::optional<double> combinedChargeRate(Batteries batteries)
{
    return sumOfCurrents(batteries, &Battery::chargeRate);
}

std::optional<double> combinedVoltage(Batteries batteries)
{
    return firstKnown(batteries, &Battery::voltage);
}

std::optional<double> combinedTemperature(Batteries batteries)
{
    return firstKnown(batteries, &Battery::temperature);
}

std::optional<int> combinedChargeLimit(Batteries batteries)
{
    return firstKnown(batteries, &Battery::chargeLimit);
}

std::optional<double> combinedVoltageOfEnergies(Batteries batteries)
{
    const bool all = std::all_of(batteries.begin(), batteries.end(),
                                 [](const Battery& battery) { return battery.isFromEnergies; });
    return all && !batteries.empty() ? std::optional(batteries.front().ratedVoltage) : std::nullopt;
}

std::optional<double> combinedCycleCount(Batteries batteries)
{
    OptionalNumber highest;
    for (const Battery& battery : batteries)
        // An optional without a value is less than any count.
        highest = std::max(highest, battery.cycleCount);
    return highest;
}

std::optional<bool> anyCharges(Batteries batteries)
{
    std::optional<bool> charges;
    for (const Battery& battery : batteries)
        if (battery.state)
            charges = charges.value_or(false) || *battery.state == ChargingState::Charging;
    return charges;
}

std::optional<bool> allAreFull(Batteries batteries)
{
    std::optional<bool> full;
    for (const Battery& battery : batteries)
        if (battery.isFull)
            full = full.value_or(true) && *battery.isFull;
    return full;
}

bool anyDischarges(Batteries batteries)
{
    return std::any_of(batteries.begin(), batteries.end(),
                       [](const Battery& battery) { return battery.state == ChargingState::Discharging; });
}

} // namespace quindle
