#pragma once

#include <vector>

#include <QFontMetricsF>
#include <QLocale>
#include <QRectF>

#include "charts/ChartContent.h"
#include "charts/LinearScale.h"
#include "charts/TimeTicks.h"
#include "charts/ValueTicks.h"

/// Where the parts of a chart are.
namespace quindle {

struct ChartLayout
{
    QRectF plot; ///< inside of the axes
    double line; ///< the height of a line of text, the measure of everything
    LinearScale time;
    LinearScale value;
    std::vector<TimeTick> timeTicks;
    ValueTicks valueTicks;

    QPointF at(double moment, double value) const;
};

/// Time runs from left to right in every language: scales and figures beside it do, as in charts printed in
/// Arabic.
ChartLayout chartLayout(const ChartContent& content, AxisSpan seen, const QRectF& area,
                        const QFontMetricsF& metrics, const QLocale& locale);

/// What the axis of values must reach over while the moments `seen` are: the content's own span, or that of
/// the points there, the reference lines and the projection, with some room beside. Never without a length.
AxisSpan valuesSeen(const ChartContent& content, AxisSpan seen);

/// How far a chart reaches past the last moment, for dots there, by the height of a line of text in it.
double chartOverhang(double line);

/// Where the card beside a point lies: above it and to its right, or on the other side where it would leave
/// the plot.
QRectF cardBeside(const QPointF& point, const QSizeF& card, double distance, const QRectF& plot);

} // namespace quindle
