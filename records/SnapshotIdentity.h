#pragma once

#include <optional>

#include <QDateTime>
#include <QString>
#include <QVariant>

/// What tells snapshot records apart. Records may come from other programs, so any value may be missing or of
/// another type.
namespace quindle {

/// When the record was made, UTC; nothing when it does not say.
std::optional<QDateTime> snapshotDate(const QVariant& record);

/// Which battery it is of; empty when it does not say.
QString snapshotBattery(const QVariant& record);

/// Whether today's snapshot is still to be saved: `records` have none of the same battery whose date is of
/// the same day in local time. Never for one that says nothing about the battery's wear: without a date or a
/// full-charge capacity above 0, as of a battery whose driver is not ready.
bool isSnapshotDue(const QVariantList& records, const QVariantMap& snapshot);

} // namespace quindle
