#pragma once

#include <optional>

#include "charts/ChartContent.h"
#include "charts/ChartLayout.h"
#include "charts/ChartLook.h"

class QPainter;

/// Draws charts on whatever a painter draws on: a window, a picture, a drawing.
namespace quindle {

void paintChart(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                const ChartLook& look);

/// The point that is read, with its date and value on a card.
void paintReading(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                  const ChartLook& look, const ChartReading& reading, const QLocale& locale);

/// The moments that are being chosen.
void paintSelection(QPainter& painter, const ChartLayout& layout, const ChartLook& look, AxisSpan moments);

} // namespace quindle
