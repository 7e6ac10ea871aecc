#pragma once

#include <vector>

#include <QVariantMap>

#include "platform/linux/power/BatteryTimes.h"

namespace quindle {

/// The descriptions of the batteries, then of the uninterruptible supplies, in the power-source service's
/// conventional keys. What a source does not report is left out, except the two times, which are -1 then.
std::vector<QVariantMap> sourceDescriptions(const SystemPower& power, const SystemTimes& times);

} // namespace quindle
