#pragma once

#include "charts/ChartContent.h"
#include "charts/ChartLayout.h"
#include "charts/ChartLook.h"

class QPainter;

namespace quindle {

/// A series as lines between its gaps or, where they would fill an area, as the mean on a light band from the
/// lowest to the highest value.
void paintSeries(QPainter& painter, const ChartSeries& series, const ChartLayout& layout,
                 const ChartLook& look);

QColor seriesColour(const ChartSeries& series, const ChartLook& look);

/// Of its line, in pixels.
double seriesWidth(const ChartLayout& layout);

} // namespace quindle
