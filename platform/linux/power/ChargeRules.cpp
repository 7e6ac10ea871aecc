#include "platform/linux/power/ChargeRules.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

using OptionalNumber = std::optional<double>;

/// Energies as charges, at the rated voltage.
ChargeCounter inMilliampHours(const ChargeCounter& energies, double voltage)
{
    const auto charge = [&](OptionalNumber energy) {
        return energy ? OptionalNumber(*energy / voltage) : std::nullopt;
    };
    return {charge(energies.now), charge(energies.full), charge(energies.design)};
}

/// The counter that has the full charge, and the other one.
struct Counters
{
    ChargeCounter main;
    ChargeCounter other;
};

Counters countersOf(const DriverFigures& figures)
{
    const ChargeCounter energies = inMilliampHours(figures.energies, voltageOfEnergies(figures));
    if (countsEnergies(figures))
        return {energies, figures.charges};
    return {figures.charges, energies};
}

/// Above 100 counts as 100.
OptionalNumber percentage(const DriverFigures& figures)
{
    return figures.percent ? OptionalNumber(std::min(*figures.percent, 100.0)) : std::nullopt;
}

/// The charge as the driver gives it. A percentage of the full charge is nearer to the truth than a charge
/// from the other counter (asahi-macbookpro-m4pro has a full charge beside a present energy).
OptionalNumber givenCharge(const Counters& counters, double full, OptionalNumber percent)
{
    if (counters.main.now)
        return counters.main.now;
    return percent ? OptionalNumber(*percent * full / 100) : counters.other.now;
}

/// Whether a charge above the full one is a broken counter: one read 56,848 mAh of 4,998, the bytes of its
/// number swapped. A battery that has just been charged counts a little above its own full charge
/// (steam-deck-above-full).
bool isBroken(double charge, double full)
{
    constexpr double mostOfFull = 2;
    return charge > mostOfFull * full;
}

/// A counter that has lost track differs widely from the percentage, which the gauge corrects by voltage. The
/// widest difference of a sound one is 3 points, that of the energies of sbs-gehc-32-properties.
bool isLost(double charge, double full, double percent)
{
    constexpr double widestDifference = 20; // percent of the full charge
    return std::abs(charge - percent * full / 100) > widestDifference * full / 100;
}

double believableCharge(double given, double full, OptionalNumber percent)
{
    const double charge = std::min(given, full);
    // Without a percentage there is nothing better than the full charge.
    if (percent && (isBroken(given, full) || isLost(charge, full, *percent)))
        return *percent * full / 100;
    return charge;
}

/// As on pinephone-with-keyboard, whose driver has a design charge beside the percentage but no full charge.
void setPercentageOnly(Battery& battery, double percent)
{
    battery.charge = percent;
    battery.fullCharge = 100;
    battery.hasPercentageOnly = true; // a design charge would stand beside a full charge of 100
}

/// Drivers differ in the sign they give a current: of two that discharge, sbs-gehc-32-properties writes
/// -26000 and dell-inspiron-3521 1177000. The status says which way it flows.
OptionalNumber directed(const Battery& battery, OptionalNumber amount)
{
    if (!amount)
        return std::nullopt;
    return battery.state == ChargingState::Discharging ? -std::abs(*amount) : std::abs(*amount);
}

/// mA: the first of the two that is given, else from the power at the present voltage.
OptionalNumber current(const Battery& battery, const DriverFigures& figures, OptionalNumber first,
                       OptionalNumber second)
{
    if (first || second)
        return directed(battery, first ? first : second);
    if (!figures.power || !positive(battery.voltage))
        return std::nullopt;
    return directed(battery, *figures.power / *battery.voltage * 1000);
}

/// mV. Beside a power and no current the rated voltage stands in for a missing one, in the current as well,
/// so that voltage times current are the driver's own watts (thinkpad-t480-two-batteries-rear-empty).
OptionalNumber presentVoltage(const Battery& battery, const DriverFigures& figures)
{
    const bool hasCurrent = figures.averageCurrent || figures.presentCurrent;
    const bool needsVoltage = figures.power && !hasCurrent;
    if (needsVoltage && !positive(figures.presentVoltage))
        return battery.ratedVoltage * 1000;
    return figures.presentVoltage ? OptionalNumber(*figures.presentVoltage * 1000) : std::nullopt;
}

/// Where charges are energies over the rated voltage, so is the rate: with the present voltage the time left
/// would be wrong by the ratio of the two.
OptionalNumber chargeRate(const Battery& battery, const DriverFigures& figures)
{
    // Its charge is in percent, which milliamperes are no rate of.
    if (battery.hasPercentageOnly)
        return std::nullopt;
    if (!countsEnergies(figures))
        return battery.averageCurrent;
    if (figures.power)
        return directed(battery, *figures.power / battery.ratedVoltage);
    if (!battery.averageCurrent || !battery.voltage)
        return battery.averageCurrent;
    return *battery.averageCurrent * *battery.voltage / 1000 / battery.ratedVoltage;
}

} // namespace

void setCharges(Battery& battery, const DriverFigures& figures)
{
    // Set even without energies: charges of several batteries are added as energy.
    battery.ratedVoltage = voltageOfEnergies(figures);
    const Counters counters = countersOf(figures);
    const OptionalNumber percent = percentage(figures);
    const OptionalNumber full = positive(counters.main.full);
    if (!full) {
        if (percent)
            setPercentageOnly(battery, *percent);
        return;
    }
    battery.fullCharge = full;
    battery.isFromEnergies = countsEnergies(figures);
    if (const OptionalNumber given = givenCharge(counters, *full, percent))
        battery.charge = believableCharge(*given, *full, percent);
    const OptionalNumber design = positive(counters.main.design);
    battery.designCharge = design ? design : positive(counters.other.design);
}

void setVoltageAndCurrents(Battery& battery, const DriverFigures& figures)
{
    battery.voltage = presentVoltage(battery, figures);
    battery.averageCurrent = current(battery, figures, figures.averageCurrent, figures.presentCurrent);
    battery.presentCurrent = current(battery, figures, figures.presentCurrent, figures.averageCurrent);
    battery.chargeRate = chargeRate(battery, figures);
}

} // namespace quindle
