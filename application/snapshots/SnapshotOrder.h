#pragma once

#include <vector>

#include <QVariant>

namespace quindle {

/// The columns of the list of snapshots, from left to right.
enum class SnapshotColumn { Date, Health, FullCharge, Cycles, Computer };

inline constexpr int snapshotColumns = 5;

/// The records' indexes in the order of that column; equal ones stay in theirs. A record without a value
/// comes after all others, whichever the direction. Texts without regard to case.
std::vector<int> snapshotOrder(const QVariantList& records, SnapshotColumn column, Qt::SortOrder order);

} // namespace quindle
