#pragma once

#include <optional>

#include "charts/ChartContent.h"

/// Which point is read, by pointer and by keys.
namespace quindle {

/// The point nearest in time, of those at most `reach` seconds away; of several at one moment that of the
/// last series. Nothing where there is none.
std::optional<ChartReading> readingNear(const ChartContent& content, double moment, double reach);

/// The next point at least `distance` seconds later, or earlier where it is negative; the last or first of
/// all where there is none so far away. Nothing without points.
std::optional<ChartReading> readingBeside(const ChartContent& content, const ChartReading& from,
                                          double distance);

/// The first point at or after a moment, or the last one at or before it.
std::optional<ChartReading> firstReading(const ChartContent& content, double from);
std::optional<ChartReading> lastReading(const ChartContent& content, double to);

} // namespace quindle
