#pragma once

#include <optional>

#include "platform/linux/supplies/SupplyAttributes.h"

namespace quindle {

/// One counter of a battery's charge. Drivers have charges (mAh), energies (mWh), or some of each from
/// different counters: a full charge of one must not be compared with a charge of the other.
struct ChargeCounter
{
    std::optional<double> now;
    std::optional<double> full;
    std::optional<double> design;
};

/// The figures that a driver wrote for one battery, in the same units for all drivers and otherwise as
/// written. A figure that the driver does not give, or gives as a negative number where only positive ones
/// make sense, is missing.
struct DriverFigures
{
    ChargeCounter charges;  ///< mAh
    ChargeCounter energies; ///< mWh
    std::optional<double> percent;
    std::optional<double> presentVoltage; ///< V
    std::optional<double> ratedVoltage;   ///< V
    std::optional<double> averageCurrent; ///< mA, of either sign
    std::optional<double> presentCurrent; ///< mA, of either sign
    std::optional<double> power;          ///< mW, of either sign
    std::optional<double> tenthsOfCelsius;
    std::optional<double> cycleCount;
};

/// Where 0 makes no sense, drivers write it for a figure that they do not know.
inline std::optional<double> positive(std::optional<double> number)
{
    return number && *number > 0 ? number : std::nullopt;
}

/// Reads the figures and corrects the units of drivers that count in thousandths.
DriverFigures driverFigures(const SupplyAttributes& battery);

/// V: the rated voltage, else the present one, else a usual one. Never 0.
double voltageOfEnergies(const DriverFigures& figures);

/// Whether the full charge is one of the energies. The charges are asked first.
bool countsEnergies(const DriverFigures& figures);

} // namespace quindle
