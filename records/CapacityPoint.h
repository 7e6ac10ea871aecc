#pragma once

#include <QString>
#include <QtGlobal>

namespace quindle {

/// What one snapshot says about the wear of one battery.
struct CapacityPoint
{
    qint64 moment = 0;             ///< seconds since the beginning of 1970, UTC
    QString batteryID;             ///< tells the batteries of a computer apart; may be empty
    double fullChargeCapacity = 0; ///< mAh, above 0
    double designCapacity = 0;     ///< mAh; 0 where it is not known
    qint64 cycleCount = 0;         ///< 0 where the driver does not count

    bool operator==(const CapacityPoint& other) const = default;
};

} // namespace quindle
