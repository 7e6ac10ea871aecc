#pragma once

#include <optional>

#include "platform/linux/power/SupplyAttributes.h"

/// What the attributes of one battery mean, in the registry's units, with the nonsense of firmwares and
/// drivers put right. Plain functions; each asks only for the attributes it needs. A quantity is missing when
/// the battery does not tell it.
namespace quindle {

enum class ChargingState {
    Unknown,
    Charging,
    Discharging,
    NotCharging,
    Full,
};

/// Missing when there is no status; a word that is none of the known ones is Unknown.
std::optional<ChargingState> chargingState(const SupplyAttributes& battery);

/// V. Never 0: without a figure of the battery's own it is a usual one.
double ratedVoltage(const SupplyAttributes& battery);

// mAh. Where a battery tells its percentage only, the charge is that number and the full charge 100.
std::optional<double> charge(const SupplyAttributes& battery);
std::optional<double> fullCharge(const SupplyAttributes& battery);
std::optional<double> designCharge(const SupplyAttributes& battery);

/// Whether charge and full charge are a percentage and 100.
bool tellsPercentageOnly(const SupplyAttributes& battery);

/// mV.
std::optional<double> presentVoltage(const SupplyAttributes& battery);

// mA, negative while discharging and else positive. Each stands in for the other where it is missing.
std::optional<double> averageCurrent(const SupplyAttributes& battery);
std::optional<double> instantCurrent(const SupplyAttributes& battery);

/// How fast the charge changes, in mAh an hour, with the sign of the current. It differs from the current
/// where charges are made from energies: those are at the rated voltage, the current is at the present one.
std::optional<double> chargeRate(const SupplyAttributes& battery);

/// Tenths of a kelvin.
std::optional<double> temperature(const SupplyAttributes& battery);

std::optional<double> cycleCount(const SupplyAttributes& battery);

/// Day in bits 0 to 4, month in bits 5 to 8, years since 1980 above. Missing unless all three are there and
/// could be a date.
std::optional<qint64> packedManufactureDate(const SupplyAttributes& battery);

/// Full, or held at a full charge. Missing when there is no status.
std::optional<bool> isFull(const SupplyAttributes& battery);

std::optional<QString> readableAttribute(const SupplyAttributes& supply, Attribute attribute);

/// Whole minutes of an attribute in seconds; missing when a driver says "not known" with 0, less or a time of
/// 10 days and more (3932100 s is 65535 minutes).
std::optional<int> plausibleMinutes(const SupplyAttributes& battery, Attribute attribute);

} // namespace quindle
