#include "records/SnapshotIdentity.h"

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

} // namespace quindle
