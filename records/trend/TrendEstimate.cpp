#include "records/trend/TrendEstimate.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>

#include "records/trend/TrendLine.h"

namespace quindle {

namespace {

constexpr qint64 secondsADay = 86400;
constexpr double secondsAYear = 365.25 * secondsADay;
constexpr std::size_t trendNeedsValues = 10;

bool hasFullCharge(const CapacityPoint& point)
{
    return std::isfinite(point.fullChargeCapacity) && point.fullChargeCapacity > 0;
}

/// The design capacity may be unreadable on some days; the newest reading counts for all.
double designCapacity(const std::vector<CapacityPoint>& points)
{
    const auto known = std::find_if(points.rbegin(), points.rend(), [](const CapacityPoint& point) {
        return std::isfinite(point.designCapacity) && point.designCapacity > 0;
    });
    return known == points.rend() ? 0 : known->designCapacity;
}

/// Years since the first point, and percents.
std::vector<TrendValue> dailyValues(const std::vector<CapacityPoint>& points, double reference)
{
    std::vector<TrendValue> values;
    qint64 formerDay = 0;
    for (const CapacityPoint& point : points) {
        const TrendValue value{static_cast<double>(point.moment - points.front().moment) / secondsAYear,
                               point.fullChargeCapacity / reference * 100};
        const qint64 day = point.moment / secondsADay;
        // One a day: a day with many snapshots weighs no more than the others.
        if (!values.empty() && day == formerDay)
            values.back() = value;
        else
            values.push_back(value);
        formerDay = day;
    }
    return values;
}

std::optional<WearPace> paceOf(const std::vector<TrendValue>& values, qint64 days)
{
    if (days < trendNeedsDays || values.size() < trendNeedsValues)
        return {};
    const auto line = trendLine(values);
    if (!line)
        return {};
    return WearPace{.level = line->at(values.back().x),
                    .perYear = line->slope,
                    .steepest = line->lowestSlope,
                    .flattest = line->highestSlope,
                    .scatter = line->scatter};
}

} // namespace

std::vector<CapacityPoint> pointsOfNewestBattery(const std::vector<CapacityPoint>& points)
{
    std::vector<CapacityPoint> own;
    for (const CapacityPoint& point : points) {
        if (point.batteryID == points.back().batteryID)
            own.push_back(point);
    }
    return own;
}

std::optional<TrendEstimate> trendOf(const std::vector<CapacityPoint>& points)
{
    std::vector<CapacityPoint> own = pointsOfNewestBattery(points);
    own.erase(std::remove_if(own.begin(), own.end(), std::not_fn(hasFullCharge)), own.end());
    if (own.empty())
        return {};
    const double design = designCapacity(own);
    TrendEstimate trend;
    trend.firstMoment = own.front().moment;
    trend.lastMoment = own.back().moment;
    trend.days = (trend.lastMoment - trend.firstMoment) / secondsADay;
    trend.cycles = own.back().cycleCount;
    trend.knowsDesign = design > 0;
    trend.reference = trend.knowsDesign ? design : own.front().fullChargeCapacity;
    trend.percent = own.back().fullChargeCapacity / trend.reference * 100;
    const std::vector<TrendValue> values = dailyValues(own, trend.reference);
    trend.daysRecorded = static_cast<qint64>(values.size());
    trend.pace = paceOf(values, trend.days);
    return trend;
}

WearMoment yearsUntil(const WearPace& pace, double percent)
{
    const double left = percent - pace.level;
    // The steepest pace gets there first.
    return {
        .expected = left / pace.perYear, .earliest = left / pace.steepest, .latest = left / pace.flattest};
}

} // namespace quindle
