#pragma once

#include <QVariantMap>

#include "platform/linux/power/BatteryTimes.h"

namespace quindle {

/// The battery's registry properties. A property that no battery tells is the invalid value. Integers are
/// qint64; "Temperature" is a real, since tenths of a degree Celsius are no whole tenths of a kelvin. The
/// times say 65535 while they are not known.
QVariant registryValue(const QString& key, const SystemPower& power, BatteryTimes& times);

/// All properties that have a value.
QVariantMap registryValues(const SystemPower& power, BatteryTimes& times);

} // namespace quindle
