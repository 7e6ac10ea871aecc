#include "application/snapshots/SnapshotOrder.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include <QString>

#include "application/snapshots/SnapshotRows.h"

namespace quindle {

namespace {

/// By a number or by a text; the other one is the same for all.
struct SortKey
{
    double number = 0;
    QString text;

    bool operator<(const SortKey& other) const
    {
        return number != other.number ? number < other.number : text < other.text;
    }
};

std::optional<SortKey> keyOfCount(qint64 count)
{
    return count > 0 ? std::optional(SortKey{static_cast<double>(count), {}}) : std::nullopt;
}

std::optional<SortKey> sortKey(const SnapshotRow& row, SnapshotColumn column)
{
    switch (column) {
    case SnapshotColumn::Date:
        return row.date.isValid()
                   ? std::optional(SortKey{static_cast<double>(row.date.toMSecsSinceEpoch()), {}})
                   : std::nullopt;
    case SnapshotColumn::Health:
        return row.health ? std::optional(SortKey{*row.health, {}}) : std::nullopt;
    case SnapshotColumn::FullCharge:
        return keyOfCount(row.fullCharge);
    case SnapshotColumn::Cycles:
        return keyOfCount(row.cycles);
    case SnapshotColumn::Computer:
        break;
    }
    return row.computer.isEmpty() ? std::nullopt : std::optional(SortKey{0, row.computer.toCaseFolded()});
}

} // namespace

std::vector<int> snapshotOrder(const QVariantList& records, SnapshotColumn column, Qt::SortOrder order)
{
    std::vector<std::optional<SortKey>> keys;
    keys.reserve(static_cast<std::size_t>(records.size()));
    for (const QVariant& record : records)
        keys.push_back(sortKey(snapshotRow(record.toMap()), column));
    std::vector<int> indexes(keys.size());
    std::iota(indexes.begin(), indexes.end(), 0);
    const auto isBefore = [&](int left, int right) {
        const auto& one = keys[static_cast<std::size_t>(left)];
        const auto& other = keys[static_cast<std::size_t>(right)];
        if (!one || !other)
            return one && !other;
        return order == Qt::AscendingOrder ? *one < *other : *other < *one;
    };
    std::stable_sort(indexes.begin(), indexes.end(), isBefore);
    return indexes;
}

} // namespace quindle
