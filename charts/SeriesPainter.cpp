#include "charts/SeriesPainter.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPolygonF>

#include "charts/Decimation.h"
#include "charts/PointColumns.h"
#include "widgets/PaletteMix.h"

namespace quindle {

namespace {

constexpr double quietShare = 0.5;
constexpr double lightShare = 0.22;

/// As single lines, which the painter draws at once; taken as an outline, a line costs several times as much.
/// Their square ends fill the joints, which cannot be seen on one so thin.
void paintLine(QPainter& painter, const QPolygonF& line, QPen pen)
{
    pen.setCapStyle(line.size() == 1 ? Qt::RoundCap : Qt::SquareCap);
    painter.setPen(pen);
    if (line.size() == 1)
        return painter.drawPoint(line.first());
    QList<QLineF> pieces;
    pieces.reserve(line.size() - 1);
    for (qsizetype first = 0; first + 1 < line.size(); ++first)
        pieces.append(QLineF(line[first], line[first + 1]));
    painter.drawLines(pieces);
}

void paintStretches(QPainter& painter, const ChartSeries& series, const ChartLayout& layout, const QPen& pen)
{
    for (const auto& stretch : decimated(series, layout.time)) {
        QPolygonF line;
        line.reserve(static_cast<qsizetype>(stretch.size()));
        for (const ChartPoint& point : stretch)
            line.append(layout.at(static_cast<double>(point.moment), point.value));
        paintLine(painter, line, pen);
    }
}

/// The means as a line, on a light band from the lowest to the highest value.
void paintColumns(QPainter& painter, const std::vector<PointColumn>& columns, const ChartLayout& layout,
                  const QPen& pen, const QColor& light)
{
    // Smooth edges would leave seams between the columns.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const PointColumn& column : columns) {
        const double top = layout.value.pixel(column.high);
        painter.fillRect(
            QRectF(column.from, top, column.to - column.from, layout.value.pixel(column.low) - top), light);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    QPolygonF line;
    double end = -INFINITY;
    for (const PointColumn& column : columns) {
        // An empty column is a gap, which no line crosses.
        if (!line.isEmpty() && column.from > end + 1) {
            paintLine(painter, line, pen);
            line.clear();
        }
        line.append(QPointF((column.from + column.to) / 2, layout.value.pixel(column.mean)));
        end = column.to;
    }
    if (!line.isEmpty())
        paintLine(painter, line, pen);
}

} // namespace

QColor seriesColour(const ChartSeries& series, const ChartLook& look)
{
    const QColor ink = inkColour(look, series.ink);
    return series.isQuiet ? mixed(ink, look.background, quietShare) : ink;
}

double seriesWidth(const ChartLayout& layout)
{
    return layout.line * 0.1;
}

void paintSeries(QPainter& painter, const ChartSeries& series, const ChartLayout& layout,
                 const ChartLook& look)
{
    constexpr double columnWidth = 3;
    const QColor ink = seriesColour(series, look);
    const QPen pen(ink, seriesWidth(layout));
    const auto columns = pointColumns(series, layout.time, columnWidth);
    if (fillsArea(columns, layout.value))
        paintColumns(painter, columns, layout, pen, mixed(ink, look.background, lightShare));
    else
        paintStretches(painter, series, layout, pen);
}

} // namespace quindle
