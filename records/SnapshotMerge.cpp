#include "records/SnapshotMerge.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QSet>

#include "records/SnapshotIdentity.h"

namespace quindle {

namespace {

using Key = std::pair<qint64, QString>;

/// Records that can be found at once; those without a date, which are few if any, are compared one by one.
class SnapshotSet
{
public:
    explicit SnapshotSet(const QVariantList& records)
    {
        for (const QVariant& record : records)
            add(record);
    }

    bool contains(const QVariant& record) const
    {
        const auto date = snapshotDate(record);
        return date ? m_keys.contains(Key(date->toMSecsSinceEpoch(), snapshotBattery(record)))
                    : m_undated.contains(record);
    }

    void add(const QVariant& record)
    {
        if (const auto date = snapshotDate(record))
            m_keys.insert(Key(date->toMSecsSinceEpoch(), snapshotBattery(record)));
        else
            m_undated.append(record);
    }

private:
    QSet<Key> m_keys;
    QVariantList m_undated;
};

} // namespace

MergedSnapshots mergedSnapshots(const QVariantList& present, const QVariantList& others)
{
    MergedSnapshots merged{present, 0};
    SnapshotSet known(present);
    for (const QVariant& record : others) {
        if (known.contains(record))
            continue;
        known.add(record);
        merged.records.append(record);
        ++merged.added;
    }
    std::stable_sort(
        merged.records.begin(), merged.records.end(),
        [](const QVariant& left, const QVariant& right) { return snapshotDate(left) < snapshotDate(right); });
    return merged;
}

QVariantList withoutSnapshots(const QVariantList& present, const QVariantList& removed)
{
    const SnapshotSet unwanted(removed);
    QVariantList kept;
    std::remove_copy_if(present.cbegin(), present.cend(), std::back_inserter(kept),
                        [&](const QVariant& record) { return unwanted.contains(record); });
    return kept;
}

} // namespace quindle
