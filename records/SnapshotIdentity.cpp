#include "records/SnapshotIdentity.h"

#include <algorithm>
#include <cstdlib>

namespace quindle {

std::optional<QDateTime> snapshotDate(const QVariant& record)
{
    const QVariant date = record.toMap().value(QStringLiteral("Data.SnapshotDate"));
    if (date.typeId() != QMetaType::QDateTime || !date.toDateTime().isValid())
        return std::nullopt;
    return date.toDateTime().toUTC();
}

QString snapshotBattery(const QVariant& record)
{
    return record.toMap().value(QStringLiteral("Battery.BatteryID")).toString();
}

bool isSnapshotDue(const QVariantList& records, const QVariantMap& snapshot)
{
    const auto date = snapshotDate(snapshot);
    if (!date || snapshot.value(QStringLiteral("Battery.FullChargeCapacity")).toDouble() <= 0)
        return false;
    const QDate today = date->toLocalTime().date();
    const QString battery = snapshotBattery(snapshot);
    // Only near today is the day asked for: that is a look at the time zone.
    constexpr qint64 near = 2 * 24 * 60 * 60; // seconds; no day is longer
    // From the end, where one of today would be.
    return std::none_of(records.crbegin(), records.crend(), [&](const QVariant& record) {
        const auto other = snapshotDate(record);
        return other && std::abs(other->secsTo(*date)) < near && snapshotBattery(record) == battery &&
               other->toLocalTime().date() == today;
    });
}

} // namespace quindle
