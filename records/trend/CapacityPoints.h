#pragma once

#include <vector>

#include <QString>
#include <QVariant>

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

/// What the snapshot records say about wear, sorted by moment. Records without a date, and those without a
/// full-charge capacity that is a number above 0, say nothing; any type of number will do.
std::vector<CapacityPoint> capacityPoints(const QVariantList& records);

} // namespace quindle
