#pragma once

#include <optional>
#include <span>

#include "platform/linux/power/Battery.h"

/// All batteries of the system as one, in the units of Battery.h. Capacities and currents add as energy and
/// power, expressed at the first battery's rated voltage, so that percentages are those of the energy.
namespace quindle {

using Batteries = std::span<const Battery>;

std::optional<double> combinedCharge(Batteries batteries);
std::optional<double> combinedFullCharge(Batteries batteries);
std::optional<double> combinedDesignCharge(Batteries batteries);
std::optional<double> combinedAverageCurrent(Batteries batteries);
std::optional<double> combinedPresentCurrent(Batteries batteries);

/// mAh an hour; see Battery::chargeRate.
std::optional<double> combinedChargeRate(Batteries batteries);

/// The first battery's that reports it: a sum or a mean would say nothing.
std::optional<double> combinedVoltage(Batteries batteries);
std::optional<double> combinedTemperature(Batteries batteries);
std::optional<int> combinedChargeLimit(Batteries batteries);

/// At which charges are expressed, where all batteries count energies.
std::optional<double> combinedVoltageOfEnergies(Batteries batteries);

/// The highest.
std::optional<double> combinedCycleCount(Batteries batteries);

/// Whether any charges, and whether all are full. Missing when none has a state.
std::optional<bool> anyCharges(Batteries batteries);
std::optional<bool> allAreFull(Batteries batteries);

bool anyDischarges(Batteries batteries);

} // namespace quindle
