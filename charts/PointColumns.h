#pragma once

#include <vector>

#include "charts/ChartContent.h"

/// A line that turns so often that it would fill the plot says more as a mean between its extremes.
namespace quindle {

/// The points in a few pixels of the time axis, next to each other.
struct PointColumn
{
    double from = 0; ///< pixels
    double to = 0;
    double low = 0;
    double high = 0;
    double mean = 0;
    std::size_t count = 0;
};

/// The columns that have points, of this width in pixels, from the beginning of the scale.
std::vector<PointColumn> pointColumns(const ChartSeries& series, const LinearScale& time, double width);

/// Whether lines through the points would only fill an area: three points or more in each column, which on
/// the whole go over more than a few pixels, and more than half of it over the same values as the column
/// before.
bool fillsArea(const std::vector<PointColumn>& columns, const LinearScale& value);

} // namespace quindle
