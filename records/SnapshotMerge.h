#pragma once

#include <QVariant>

/// Lists of snapshot records put together and taken apart. A record is known by its battery and moment.
namespace quindle {

struct MergedSnapshots
{
    QVariantList records; ///< sorted by date; those without one stand first, in the order in which they came
    qsizetype added = 0;
};

/// `present` with those of `others` that it does not have. Of two with one battery and moment the present one
/// stays.
MergedSnapshots mergedSnapshots(const QVariantList& present, const QVariantList& others);

/// `present` without the records that are in `removed`, in its order.
QVariantList withoutSnapshots(const QVariantList& present, const QVariantList& removed);

} // namespace quindle
