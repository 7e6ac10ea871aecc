#pragma once

#include <QString>

namespace quindle {

/// The asset shown on a computer without a battery.
QString noBatteryIconName();

/// The asset for charging or external power: "#bat44Charge" from 80 %, else "#bat04Charge".
QString chargingIconName(double stateOfCharge);

/// The asset on battery: "#bat44" from 90 %, "#bat34" from 70, "#bat24" from 40, "#bat14" from 20, else
/// "#bat04" (also for a charge that is not a number).
QString batteryIconName(double stateOfCharge);

} // namespace quindle
