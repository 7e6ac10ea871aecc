#pragma once

#include <optional>
#include <span>

#include "platform/linux/power/BatteryRules.h"

/// All batteries of the system as one, in the units of BatteryRules.h. Capacities and currents add as energy
/// and power, expressed at the first battery's rated voltage, so that percentages are those of the energy.
namespace quindle {

/// The system's supplies at one moment: the batteries that are present, and what may feed the computer.
struct SystemPower
{
    std::span<const SupplyAttributes* const> batteries;
    std::span<const SupplyAttributes* const> externals;
};

using Batteries = std::span<const SupplyAttributes* const>;

std::optional<double> combinedCharge(Batteries batteries);
std::optional<double> combinedFullCharge(Batteries batteries);
std::optional<double> combinedDesignCharge(Batteries batteries);
std::optional<double> combinedAverageCurrent(Batteries batteries);
std::optional<double> combinedInstantCurrent(Batteries batteries);

/// mAh an hour; see chargeRate.
std::optional<double> combinedChargeRate(Batteries batteries);

/// The first battery's that tells it: a sum or a mean would say nothing.
std::optional<double> combinedVoltage(Batteries batteries);
std::optional<double> combinedTemperature(Batteries batteries);

/// The highest.
std::optional<double> combinedCycleCount(Batteries batteries);

/// Whether any charges, and whether all are full. Missing when none has a status.
std::optional<bool> anyCharges(Batteries batteries);
std::optional<bool> allAreFull(Batteries batteries);

bool anyDischarges(Batteries batteries);

/// Whether the computer is fed from outside.
bool isExternallyPowered(const SystemPower& power);

} // namespace quindle
