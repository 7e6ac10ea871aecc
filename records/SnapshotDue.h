#pragma once

#include <QVariant>

namespace quindle {

/// Whether today's snapshot is still to be saved: `records` have none of the same battery whose date is of
/// the same day in local time. Never for one that says nothing about the battery's wear: without a date or a
/// full-charge capacity above 0, as of a battery whose driver is not ready.
bool isSnapshotDue(const QVariantList& records, const QVariantMap& snapshot);

} // namespace quindle
