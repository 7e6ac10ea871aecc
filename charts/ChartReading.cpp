#include "charts/ChartReading.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quindle {

namespace {

bool liesBefore(const ChartPoint& point, double moment)
{
    return static_cast<double>(point.moment) < moment;
}

bool liesAfter(double moment, const ChartPoint& point)
{
    return moment < static_cast<double>(point.moment);
}

double momentOf(const ChartContent& content, const ChartReading& reading)
{
    return static_cast<double>(pointOf(content, reading).moment);
}

} // namespace

std::optional<ChartReading> firstReading(const ChartContent& content, double from)
{
    std::optional<ChartReading> best;
    for (std::size_t series = 0; series < content.series.size(); ++series) {
        const auto& points = content.series[series].points;
        const auto found = std::lower_bound(points.begin(), points.end(), from, liesBefore);
        if (found == points.end())
            continue;
        const ChartReading reading{series, static_cast<std::size_t>(std::distance(points.begin(), found))};
        if (!best || momentOf(content, reading) <= momentOf(content, *best))
            best = reading;
    }
    return best;
}

std::optional<ChartReading> lastReading(const ChartContent& content, double to)
{
    std::optional<ChartReading> best;
    for (std::size_t series = 0; series < content.series.size(); ++series) {
        const auto& points = content.series[series].points;
        const auto found = std::upper_bound(points.begin(), points.end(), to, liesAfter);
        if (found == points.begin())
            continue;
        const ChartReading reading{series,
                                   static_cast<std::size_t>(std::distance(points.begin(), found)) - 1};
        if (!best || momentOf(content, reading) >= momentOf(content, *best))
            best = reading;
    }
    return best;
}

std::optional<ChartReading> readingNear(const ChartContent& content, double moment, double reach)
{
    const auto distance = [&](const std::optional<ChartReading>& reading) {
        return reading ? std::abs(momentOf(content, *reading) - moment) : INFINITY;
    };
    const auto before = lastReading(content, moment);
    const auto after = firstReading(content, moment);
    const auto& nearest = distance(after) < distance(before) ? after : before;
    return distance(nearest) <= reach ? nearest : std::nullopt;
}

std::optional<ChartReading> readingBeside(const ChartContent& content, const ChartReading& from,
                                          double distance)
{
    const double moment = momentOf(content, from) + distance;
    const auto found = distance < 0 ? lastReading(content, moment) : firstReading(content, moment);
    if (found)
        return found;
    return distance < 0 ? firstReading(content, -INFINITY) : lastReading(content, INFINITY);
}

} // namespace quindle
