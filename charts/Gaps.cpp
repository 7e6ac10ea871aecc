#include "charts/Gaps.h"

#include <algorithm>

namespace quindle {

namespace {

constexpr qint64 shortestGap = 600;
constexpr double usualDistances = 3.5;
constexpr std::size_t neighbours = 5;

qint64 distanceAfter(const std::vector<ChartPoint>& points, std::size_t index)
{
    return points[index + 1].moment - points[index].moment;
}

/// Of the distances after the points `first` to before `end`; 0 without any.
qint64 medianDistance(const std::vector<ChartPoint>& points, std::size_t first, std::size_t end)
{
    std::vector<qint64> distances;
    for (std::size_t index = first; index < end; ++index)
        distances.push_back(distanceAfter(points, index));
    if (distances.empty())
        return 0;
    const auto middle = distances.begin() + static_cast<std::ptrdiff_t>(distances.size() / 2);
    std::nth_element(distances.begin(), middle, distances.end());
    return *middle;
}

bool isGap(const std::vector<ChartPoint>& points, std::size_t index)
{
    const qint64 pause = distanceAfter(points, index);
    // Before the medians, which take time.
    if (pause <= shortestGap)
        return false;
    const std::size_t last = points.size() - 1;
    // Measured by what is around it: a history has samples by the minute, hour and day.
    const qint64 before = medianDistance(points, index - std::min(index, neighbours), index);
    const qint64 behind = medianDistance(points, index + 1, std::min(last, index + 1 + neighbours));
    return static_cast<double>(pause) > usualDistances * static_cast<double>(std::max(before, behind));
}

} // namespace

std::vector<std::size_t> gapsBetween(const std::vector<ChartPoint>& points)
{
    std::vector<std::size_t> gaps;
    for (std::size_t index = 0; index + 1 < points.size(); ++index) {
        if (isGap(points, index))
            gaps.push_back(index);
    }
    return gaps;
}

} // namespace quindle
