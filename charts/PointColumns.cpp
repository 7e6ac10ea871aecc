#include "charts/PointColumns.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

constexpr double leastPoints = 3; // of a column
constexpr double leastRange = 4;  // pixels
constexpr double leastOverlap = 0.5;

void addTo(PointColumn& column, double value)
{
    column.low = std::min(column.low, value);
    column.high = std::max(column.high, value);
    ++column.count;
    column.mean += (value - column.mean) / static_cast<double>(column.count);
}

double rangeOf(const PointColumn& column)
{
    return column.high - column.low;
}

double overlapOf(const PointColumn& one, const PointColumn& other)
{
    return std::max(0.0, std::min(one.high, other.high) - std::max(one.low, other.low));
}

} // namespace

std::vector<PointColumn> pointColumns(const ChartSeries& series, const LinearScale& time, double width)
{
    const double start = time.pixels().from;
    std::vector<PointColumn> columns;
    for (const ChartPoint& point : series.points) {
        const auto moment = static_cast<double>(point.moment);
        if (!time.values().contains(moment))
            continue;
        // From the plot's edge, so that columns stay in place when new points come.
        const double from = start + std::floor((time.pixel(moment) - start) / width) * width;
        if (columns.empty() || columns.back().from != from)
            columns.push_back({from, from + width, point.value, point.value, 0, 0});
        addTo(columns.back(), point.value);
    }
    return columns;
}

bool fillsArea(const std::vector<PointColumn>& columns, const LinearScale& value)
{
    double points = 0;
    double range = 0;
    double overlap = 0;
    for (std::size_t index = 0; index < columns.size(); ++index) {
        points += static_cast<double>(columns[index].count);
        range += rangeOf(columns[index]);
        if (index > 0)
            overlap += overlapOf(columns[index - 1], columns[index]);
    }
    const auto count = static_cast<double>(columns.size());
    const double rangePixels = std::abs(value.pixel(range) - value.pixel(0));
    return points >= leastPoints * count && rangePixels > leastRange * count &&
           overlap > leastOverlap * range;
}

} // namespace quindle
