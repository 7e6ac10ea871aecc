#include "charts/Decimation.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace quindle {

namespace {

using PointIterator = std::vector<ChartPoint>::const_iterator;

/// The lowest and the highest point of a column of pixels, in their order.
class ColumnOfPoints
{
public:
    explicit ColumnOfPoints(PointIterator first)
        : m_lowest(first)
        , m_highest(first)
    {
    }

    void add(PointIterator point)
    {
        if (point->value < m_lowest->value)
            m_lowest = point;
        if (point->value > m_highest->value)
            m_highest = point;
    }

    void appendTo(std::vector<ChartPoint>& points) const
    {
        points.push_back(*std::min(m_lowest, m_highest));
        if (m_lowest != m_highest)
            points.push_back(*std::max(m_lowest, m_highest));
    }

private:
    PointIterator m_lowest;
    PointIterator m_highest;
};

std::vector<ChartPoint> decimatedRun(PointIterator first, PointIterator end, const LinearScale& time)
{
    const auto columnAt = [&time](PointIterator at) {
        return std::floor(time.pixel(static_cast<double>(at->moment)));
    };
    std::vector<ChartPoint> kept{*first};
    for (auto point = std::next(first); point != end;) {
        const double column = columnAt(point);
        ColumnOfPoints points(point);
        for (++point; point != end && columnAt(point) == column; ++point)
            points.add(point);
        points.appendTo(kept);
    }
    // A line ends where it does, and not at the last column's lowest or highest point.
    const ChartPoint last = *std::prev(end);
    if (kept.back() != last)
        kept.push_back(last);
    return kept;
}

bool isBefore(const ChartPoint& point, double moment)
{
    return static_cast<double>(point.moment) < moment;
}

/// The stretch's points inside, and the nearest one on each side.
std::vector<ChartPoint> decimatedStretch(PointIterator first, PointIterator end, const LinearScale& time)
{
    auto from = std::lower_bound(first, end, time.values().from, isBefore);
    auto to = std::lower_bound(from, end, time.values().to, isBefore);
    const bool liesOutside =
        from == end || (to == first && time.values().to < static_cast<double>(to->moment));
    if (liesOutside)
        return {};
    // The neighbours outside, so that lines reach the edges.
    if (from != first)
        --from;
    if (to != end)
        ++to;
    return decimatedRun(from, to, time);
}

} // namespace

std::vector<std::vector<ChartPoint>> decimated(const ChartSeries& series, const LinearScale& time)
{
    std::vector<std::vector<ChartPoint>> stretches;
    const auto append = [&](std::size_t first, std::size_t end) {
        const auto begin = series.points.begin();
        auto points = decimatedStretch(std::next(begin, static_cast<std::ptrdiff_t>(first)),
                                       std::next(begin, static_cast<std::ptrdiff_t>(end)), time);
        if (!points.empty())
            stretches.push_back(std::move(points));
    };
    std::size_t first = 0;
    for (const std::size_t gap : series.gaps) {
        append(first, gap + 1);
        first = gap + 1;
    }
    append(first, series.points.size());
    return stretches;
}

} // namespace quindle
