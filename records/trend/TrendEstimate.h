#pragma once

#include <optional>
#include <vector>

#include "records/trend/CapacityPoints.h"

namespace quindle {

/// How fast a battery wears. Points are percents of what it is measured against; a year has 365.25 days.
struct WearPace
{
    double level = 0;    ///< percent that the line has at the last moment
    double perYear = 0;  ///< points a year, negative where the battery wears
    double steepest = 0; ///< with a probability of 95 % it is between this
    double flattest = 0; ///< and this

    double scatter = 0; ///< 95 % of the readings lie at most this many points off the line

    /// Whether it is distinguishable from a battery that does not wear.
    bool isWear() const { return flattest < 0; }
};

struct TrendEstimate
{
    qint64 firstMoment = 0;
    qint64 lastMoment = 0;
    qint64 days = 0;              ///< between them, whole
    qint64 daysRecorded = 0;      ///< those that have a point
    qint64 cycles = 0;            ///< at the last moment; 0 where they are not counted
    double percent = 0;           ///< full charge at the last moment, of `reference`
    double reference = 0;         ///< mAh that are 100 %
    bool knowsDesign = false;     ///< `reference` is the design capacity, else the first full charge
    std::optional<WearPace> pace; ///< nothing while the history is too short
};

constexpr qint64 trendNeedsDays = 60;

/// The points of the battery that was seen last, which starts a line of its own.
std::vector<CapacityPoint> pointsOfNewestBattery(const std::vector<CapacityPoint>& points);

/// What the history of the newest battery says. `points` by moment; those without a full charge are ignored.
/// A pace needs 60 days from the first to the last point and points on ten different days (UTC), of which the
/// day's last one counts. Nothing without a point.
std::optional<TrendEstimate> trendOf(const std::vector<CapacityPoint>& points);

/// When the battery gets to `percent`, from the last moment on, in years; the pace must be wear.
struct WearMoment
{
    double expected = 0;
    double earliest = 0;
    double latest = 0;
};
WearMoment yearsUntil(const WearPace& pace, double percent);

} // namespace quindle
