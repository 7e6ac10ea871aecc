#pragma once

#include <optional>

#include "records/trend/TrendEstimate.h"

namespace quindle {

/// Where the trend leads, in mAh: from the line's last point to one end, and between which values the
/// readings will lie.
struct TrendProjection
{
    qint64 from = 0;
    qint64 to = 0;
    double start = 0;
    double end = 0;
    double lowestStart = 0;
    double highestStart = 0;
    double lowestEnd = 0;
    double highestEnd = 0;
};

/// Until 80 % is reached with some certainty, but for at least half a year, and for no longer than half of
/// the recorded time, or a year where that is more. Nothing where no wear can be seen.
std::optional<TrendProjection> projectionOf(const TrendEstimate& trend);

} // namespace quindle
