#pragma once

#include <optional>
#include <vector>

#include "charts/ChartContent.h"
#include "records/trend/CapacityPoints.h"
#include "records/trend/TrendEstimate.h"

namespace quindle {

/// The full charge of each battery over the whole history, a line for each one, with former batteries' lines
/// quiet; what it was made for, 80 % of that, and where the trend leads. `points` by moment.
ChartContent wearChart(const std::vector<CapacityPoint>& points, const std::optional<TrendEstimate>& trend);

} // namespace quindle
