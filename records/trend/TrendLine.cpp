#include "records/trend/TrendLine.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace quindle {

namespace {

constexpr std::size_t mostValues = 400; // 80,000 pairs
constexpr double normalQuantile = 1.96; // of 95 %
constexpr double mostCorrelation = 0.95;

double trendMedian(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    if (values.size() % 2 == 1)
        return *middle;
    return (*middle + *std::max_element(values.begin(), middle)) / 2;
}

TrendValue medianOf(const std::vector<TrendValue>& values, std::size_t first, std::size_t end)
{
    std::vector<double> x;
    std::vector<double> y;
    for (std::size_t index = first; index < end; ++index) {
        x.push_back(values[index].x);
        y.push_back(values[index].y);
    }
    return {trendMedian(x), trendMedian(y)};
}

std::vector<TrendValue> groupMedians(const std::vector<TrendValue>& values)
{
    const std::size_t groups = std::min(values.size(), mostValues);
    std::vector<TrendValue> kept;
    kept.reserve(groups);
    for (std::size_t group = 0; group < groups; ++group) {
        const std::size_t first = group * values.size() / groups;
        kept.push_back(medianOf(values, first, (group + 1) * values.size() / groups));
    }
    return kept;
}

/// Of all pairs whose x differ.
std::vector<double> pairSlopes(const std::vector<TrendValue>& values)
{
    std::vector<double> slopes;
    slopes.reserve(values.size() * values.size() / 2);
    for (std::size_t later = 1; later < values.size(); ++later) {
        for (std::size_t earlier = 0; earlier < later; ++earlier) {
            const double distance = values[later].x - values[earlier].x;
            if (distance > 0)
                slopes.push_back((values[later].y - values[earlier].y) / distance);
        }
    }
    return slopes;
}

double kendallTerm(double count)
{
    return count * (count - 1) * (2 * count + 5);
}

/// The variance of Kendall's statistic, corrected for ties.
double kendallVariance(const std::vector<TrendValue>& values)
{
    std::vector<double> sorted;
    sorted.reserve(values.size());
    for (const TrendValue& value : values)
        sorted.push_back(value.y);
    std::sort(sorted.begin(), sorted.end());
    double sum = kendallTerm(static_cast<double>(values.size()));
    for (auto first = sorted.begin(); first != sorted.end();) {
        const auto end = std::upper_bound(first, sorted.end(), *first);
        sum -= kendallTerm(static_cast<double>(end - first));
        first = end;
    }
    return sum / 18;
}

/// How much more the statistic varies because neighbouring values lie off the line in like ways.
double correlationFactor(const std::vector<TrendValue>& values, const TrendLine& line)
{
    double products = 0;
    double squares = 0;
    double former = 0;
    for (const TrendValue& value : values) {
        const double rest = value.y - line.at(value.x);
        products += former * rest;
        squares += rest * rest;
        former = rest;
    }
    // Values that are all alike would leave no interval at all.
    const double correlation = squares > 0 ? std::clamp(products / squares, 0.0, mostCorrelation) : 0;
    return (1 + correlation) / (1 - correlation);
}

/// The one of that rank, counted from 0; at the ends the outermost.
double ofRank(std::vector<double>& values, double rank)
{
    const auto last = static_cast<double>(values.size() - 1);
    const auto place = values.begin() + static_cast<std::ptrdiff_t>(std::clamp(rank, 0.0, last));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

void setInterval(TrendLine& line, std::vector<double>& slopes, double variance)
{
    const auto count = static_cast<double>(slopes.size());
    const double width = normalQuantile * std::sqrt(variance);
    line.lowestSlope = ofRank(slopes, std::floor((count - width) / 2) - 1);
    line.highestSlope = ofRank(slopes, std::ceil((count + width) / 2));
}

/// From the median distance, which outliers do not move.
double scatterOf(const std::vector<TrendValue>& values, const TrendLine& line)
{
    constexpr double deviations = 1.4826; // a normal deviation by the median distance
    std::vector<double> distances;
    distances.reserve(values.size());
    for (const TrendValue& value : values)
        distances.push_back(std::abs(value.y - line.at(value.x)));
    return normalQuantile * deviations * trendMedian(std::move(distances));
}

} // namespace

std::optional<TrendLine> trendLine(const std::vector<TrendValue>& values)
{
    // Every two values are compared, so there must not be too many.
    const std::vector<TrendValue> used = groupMedians(values);
    std::vector<double> slopes = pairSlopes(used);
    if (slopes.empty())
        return {};
    TrendLine line;
    line.slope = trendMedian(slopes);
    // A median again, so that no outlier shifts the line.
    std::vector<double> intercepts;
    intercepts.reserve(used.size());
    for (const TrendValue& value : used)
        intercepts.push_back(value.y - line.slope * value.x);
    line.intercept = trendMedian(std::move(intercepts));
    setInterval(line, slopes, kendallVariance(used) * correlationFactor(used, line));
    line.scatter = scatterOf(values, line);
    return line;
}

} // namespace quindle
