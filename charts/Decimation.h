#pragma once

#include <vector>

#include "charts/ChartContent.h"

namespace quindle {

/// The lines of a series as a picture can show them: one list of points for each stretch between two gaps
/// that reaches into the scale's moments, its first and its last point, and between them at most two points
/// for each column of pixels, the lowest and the highest there. The nearest points outside are kept, so that
/// lines run out of the picture on their way to them.
std::vector<std::vector<ChartPoint>> decimated(const ChartSeries& series, const LinearScale& time);

} // namespace quindle
