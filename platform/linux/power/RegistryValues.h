#pragma once

#include <QVariantMap>

#include "platform/linux/power/BatteryTimes.h"

namespace quindle {

/// The battery's registry entry; empty without a battery. A property that no battery reports is left out.
/// Integers are qint64; "Temperature" is a real, since whole tenths of a degree Celsius are not whole tenths
/// of a kelvin. The times are 65535 while they are not known.
QVariantMap registryEntry(const SystemPower& power, const SystemTimes& times);

} // namespace quindle
