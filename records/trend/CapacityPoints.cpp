#include "records/trend/CapacityPoints.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "common/NumberConversion.h"
#include "records/SnapshotIdentity.h"

namespace quindle {

namespace {

/// 0 for anything but a finite number.
double numberAt(const QVariantMap& record, const char* key)
{
    const double number = convertToDouble(record.value(QLatin1String(key))).value_or(0);
    return std::isfinite(number) ? number : 0;
}

std::optional<CapacityPoint> capacityPoint(const QVariantMap& record)
{
    const auto date = snapshotDate(record);
    const double fullCharge = numberAt(record, "Battery.FullChargeCapacity");
    // Such a record has no place in a chart.
    if (!date || fullCharge <= 0)
        return std::nullopt;
    return CapacityPoint{
        .moment = date->toSecsSinceEpoch(),
        .batteryID = snapshotBattery(record),
        .fullChargeCapacity = fullCharge,
        .designCapacity = std::max(0.0, numberAt(record, "Battery.DesignCapacity")),
        .cycleCount =
            std::max<qint64>(0, integerFromObject(record.value(QStringLiteral("Battery.CycleCount")))),
    };
}

} // namespace

std::vector<CapacityPoint> capacityPoints(const QVariantList& records)
{
    std::vector<CapacityPoint> points;
    points.reserve(static_cast<std::size_t>(records.size()));
    for (const QVariant& record : records)
        if (const auto point = capacityPoint(record.toMap()))
            points.push_back(*point);
    // Archives that were merged are in the order of their files.
    std::stable_sort(points.begin(), points.end(), [](const CapacityPoint& left, const CapacityPoint& right) {
        return left.moment < right.moment;
    });
    return points;
}

} // namespace quindle
