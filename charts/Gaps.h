#pragma once

#include <vector>

#include "charts/ChartContent.h"

namespace quindle {

/// The points after which nothing was recorded for so long that no line may bridge it: the computer was
/// asleep or off. Samples come once a minute while anything changes, so a pause is a gap when it is longer
/// than ten minutes and than 3.5 times the usual distance around it. That is the larger of the medians of up
/// to five distances before and after it, so that values thinned to hours or days, and batteries that only
/// count whole percents, keep their line; a weekend between daily values is not a gap, four hours between
/// hourly ones are.
std::vector<std::size_t> gapsBetween(const std::vector<ChartPoint>& points);

} // namespace quindle
