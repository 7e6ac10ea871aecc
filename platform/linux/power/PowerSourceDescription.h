#pragma once

#include <optional>

#include <QVariantMap>

#include "platform/linux/power/BatteryTimes.h"

namespace quindle {

/// Minutes of one source; nothing while they are not known.
struct SourceTimes
{
    std::optional<int> toEmpty;
    std::optional<int> toFull;
};

/// The description of a battery, in the power-source service's conventional keys. What the battery does not
/// tell is left out, but the two times, which are -1 then.
QVariantMap batteryDescription(const SupplyAttributes& battery, bool isExternallyPowered,
                               const SourceTimes& times);

/// The same of an uninterruptible supply.
QVariantMap uninterruptibleDescription(const SupplyAttributes& supply);

/// The driver's word on the battery's health, else "Good", "Fair" or "Poor" by full ÷ design charge.
std::optional<QString> healthWord(const SupplyAttributes& battery);

/// What an online USB Power Delivery supply can give, in whole watts. Nothing for any other supply.
std::optional<qint64> adapterWatts(const SupplyAttributes& supply);

} // namespace quindle
