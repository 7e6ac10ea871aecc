#pragma once

#include <optional>
#include <vector>

namespace quindle {

struct TrendValue
{
    double x = 0;
    double y = 0;
};

/// A straight line through values, the slopes that it lies between with a probability of 95 %, and how far
/// from it 95 % of the values lie if they scatter normally.
struct TrendLine
{
    double slope = 0;
    double intercept = 0; ///< y where x is 0
    double lowestSlope = 0;
    double highestSlope = 0;
    double scatter = 0;

    double at(double x) const { return intercept + slope * x; }
};

/// The line of Theil and Sen: the median of the slopes between all pairs, which up to 29 % of wrong values do
/// not move. The interval is Sen's, from the variance of Kendall's statistic with ties; that takes days for
/// independent, but each day's capacity resembles the previous one's, so the variance grows by the
/// correlation of neighbours. `values` by x; of more than 400 the medians of groups are used. Nothing without
/// two different x.
std::optional<TrendLine> trendLine(const std::vector<TrendValue>& values);

} // namespace quindle
