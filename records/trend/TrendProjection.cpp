#include "records/trend/TrendProjection.h"

#include <algorithm>

namespace quindle {

namespace {

constexpr double goalPercent = 80;
constexpr double daysAYear = 365.25;
constexpr double leastYears = 0.5;
constexpr double yearsBehindGoal = 1.0 / 6;

double yearsAhead(const TrendEstimate& trend)
{
    const double most = std::max(1.0, static_cast<double>(trend.days) / daysAYear / 2);
    // There is no goal ahead any more.
    if (trend.pace->level <= goalPercent)
        return leastYears;
    return std::clamp(yearsUntil(*trend.pace, goalPercent).latest + yearsBehindGoal, leastYears, most);
}

} // namespace

std::optional<TrendProjection> projectionOf(const TrendEstimate& trend)
{
    if (!trend.pace || !trend.pace->isWear())
        return {};
    const WearPace& pace = *trend.pace;
    const double years = yearsAhead(trend);
    const auto capacity = [&](double perYear, double beside = 0) {
        return std::max(0.0, pace.level + perYear * years + beside) / 100 * trend.reference;
    };
    return TrendProjection{.from = trend.lastMoment,
                           .to = trend.lastMoment + static_cast<qint64>(years * daysAYear * 86400),
                           .start = capacity(0),
                           .end = capacity(pace.perYear),
                           .lowestStart = capacity(0, -pace.scatter),
                           .highestStart = capacity(0, pace.scatter),
                           .lowestEnd = capacity(pace.steepest, -pace.scatter),
                           .highestEnd = capacity(pace.flattest, pace.scatter)};
}

} // namespace quindle
