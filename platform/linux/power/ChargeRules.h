#pragma once

#include "platform/linux/power/Battery.h"
#include "platform/linux/power/DriverFigures.h"

/// Charges, voltage and currents of one battery from its driver's figures. Plain functions.
namespace quindle {

/// Sets the three charges, the rated voltage and whether only a percentage is known.
void setCharges(Battery& battery, const DriverFigures& figures);

/// Sets the present voltage, both currents and the charge's rate. Needs state and rated voltage.
void setVoltageAndCurrents(Battery& battery, const DriverFigures& figures);

} // namespace quindle
