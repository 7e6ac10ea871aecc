#pragma once

#include <optional>

#include <QString>

namespace quindle {

enum class ChargingState {
    Unknown,
    Charging,
    Discharging,
    NotCharging,
    Full,
};

/// One battery as it was when it was read, in the registry's units and with the nonsense of firmware and
/// drivers put right. What the battery does not report is missing.
struct Battery
{
    std::optional<ChargingState> state; ///< an unknown word is Unknown

    // mAh. Where a battery reports its percentage only, the charge is that number and the full charge 100.
    std::optional<double> charge;       ///< not above the full charge
    std::optional<double> fullCharge;   ///< above 0
    std::optional<double> designCharge; ///< above 0
    bool hasPercentageOnly = false;
    bool isFromEnergies = false; ///< the charges: energies divided by the rated voltage

    double ratedVoltage = 0;       ///< V; without a figure of the battery's own a usual one, never 0
    std::optional<double> voltage; ///< mV, the present one

    // mA, negative while discharging and else positive. Each stands in for the other where it is missing.
    std::optional<double> averageCurrent;
    std::optional<double> presentCurrent;

    /// How fast the charge changes, in mAh an hour, with the sign of the current. It differs from the current
    /// where charges are computed from energies: those are at the rated voltage, the current is at the
    /// present one.
    std::optional<double> chargeRate;

    std::optional<double> temperature; ///< tenths of a kelvin
    std::optional<double> cycleCount;
    std::optional<bool> isFull; ///< full, or held at a full charge; missing when there is no state

    // Whole minutes, as far as the driver's own times are plausible.
    std::optional<int> averageMinutesToEmpty;
    std::optional<int> presentMinutesToEmpty;
    std::optional<int> averageMinutesToFull;
    std::optional<int> presentMinutesToFull;

    std::optional<qint64>
        manufactureDate; ///< packed: day in bits 0 to 4, month 5 to 8, years since 1980 above
    std::optional<QString> manufacturer;
    std::optional<QString> deviceName;
    std::optional<QString> serialNumber;
    std::optional<QString> health;  ///< the driver's word, else "Good", "Fair" or "Poor"
    std::optional<int> chargeLimit; ///< the percentage, 1 to 99, at which charging stops
};

} // namespace quindle
