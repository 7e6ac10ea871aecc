#pragma once

#include <optional>

#include <QString>

namespace quindle {

class HelperAppDelegate;

/// What a bar shows of the battery.
struct BarState
{
    QString title;   ///< of the status item; empty without a battery
    QString toolTip; ///< state and power, then the remaining time on a line of its own

    /// The picture's name where pictures are wanted, whether the tray shows one or not: the bar decides.
    QString icon;

    QString state;                 ///< "charging", "full", "plugged", "discharging" or "no-battery"
    std::optional<int> percentage; ///< rounded; nothing where there is none

    /// The charge bar's colour: "good" (green), "warning" (yellow), "critical" (red), "unknown" (none), or
    /// "no-battery".
    QString colourClass;

    bool operator==(const BarState&) const = default;
};

/// The present state of a launched helper. `toolTip` is its status item's.
BarState barState(const HelperAppDelegate& delegate, const QString& toolTip);

/// The colour class of a charge in percent.
QString chargeClass(double stateOfCharge);

} // namespace quindle
