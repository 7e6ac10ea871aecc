#pragma once

#include <vector>

#include <QVariant>

#include "samples/Sample.h"

namespace quindle {

/// The history of an invented laptop, the same one for the same values: used on workdays and some weekends,
/// away for two weeks each summer, its battery swapped after three fifths of the time.
struct InventedTime
{
    qint64 end = 0; ///< seconds since 1970, UTC; the history stops there
    int days = 3 * 365;
};

/// A record for each day on which the laptop was used, sorted, each with a raw registry entry.
QVariantList inventedSnapshots(const InventedTime& time);

/// Charge and power, a sample a minute while it is awake, from one moment on for that many days. It sleeps at
/// noon and at night.
std::vector<Sample> inventedSamples(qint64 from, int days);

/// Writes both into the files that a folder keeps its history in, in steps of ten days after which the
/// samples are thinned, as in life. Gives the line of the first failure; empty when all is well.
QString inventHistory(const InventedTime& time, const QString& folder);

} // namespace quindle
