#include "charts/ChartLayout.h"

#include <algorithm>
#include <cmath>

namespace quindle {

namespace {

constexpr double roomBeside = 0.06; // of the values' span, above and below
constexpr double linesPerValue = 2.2;
constexpr double linesPerMoment = 5.5;

/// The span of what was added.
class SpanOfValues
{
public:
    void add(double value)
    {
        m_span.from = std::min(m_span.from, value);
        m_span.to = std::max(m_span.to, value);
    }

    AxisSpan withRoom() const
    {
        if (!(m_span.from <= m_span.to))
            return {0, 1};
        const double length = m_span.length();
        // A level line and one of zeros get an axis too.
        const double room =
            length > 0 ? length * roomBeside : std::max(1.0, std::abs(m_span.from) * roomBeside);
        return {m_span.from - room, m_span.to + room};
    }

private:
    AxisSpan m_span{INFINITY, -INFINITY};
};

double gutterFor(const ChartContent& content, const ValueTicks& ticks, const QFontMetricsF& metrics)
{
    // Charts one below the other begin at the same place, unless one has longer numbers.
    double widest = metrics.horizontalAdvance(QStringLiteral("00,000"));
    for (const double value : ticks.values)
        widest = std::max(widest, metrics.horizontalAdvance(tickText(content, value, ticks.decimals)));
    return std::ceil(widest + metrics.height() * 0.5);
}

int fitting(double length, double each)
{
    return static_cast<int>(std::clamp(length / each, 2.0, 100.0));
}

} // namespace

QPointF ChartLayout::at(double moment, double worth) const
{
    return {time.pixel(moment), value.pixel(worth)};
}

ChartLayout chartLayout(const ChartContent& content, AxisSpan seen, const QRectF& area,
                        const QFontMetricsF& metrics, const QLocale& locale)
{
    const double line = metrics.height();
    const double above = line * (content.lines.empty() ? 0.6 : 1.2); // the highest line has its label above
    const double height = std::max(1.0, area.height() - above - line * 1.6);
    const AxisSpan values = valuesSeen(content, seen);
    const ValueTicks ticks = valueTicks(values, fitting(height, line * linesPerValue));
    const double gutter = gutterFor(content, ticks, metrics);
    const double width = std::max(1.0, area.width() - gutter - chartOverhang(line));
    const QRectF plot(area.left() + gutter, area.top() + above, width, height);
    return {.plot = plot,
            .line = line,
            .time = LinearScale(seen, {plot.left(), plot.right()}),
            .value = LinearScale(values, {plot.bottom(), plot.top()}),
            .timeTicks = timeTicks(seen, fitting(width, line * linesPerMoment), locale),
            .valueTicks = ticks};
}

AxisSpan valuesSeen(const ChartContent& content, AxisSpan seen)
{
    if (content.values && content.values->length() > 0)
        return *content.values;
    SpanOfValues span;
    if (content.valuesIncludeZero)
        span.add(0);
    for (const ChartSeries& series : content.series) {
        for (const ChartPoint& point : series.points) {
            // What lies outside must not flatten what is seen.
            if (seen.contains(static_cast<double>(point.moment)))
                span.add(point.value);
        }
    }
    for (const ReferenceLine& line : content.lines)
        span.add(line.value);
    if (content.projection && seen.to > static_cast<double>(content.projection->from.moment)) {
        span.add(content.projection->lowEnd);
        span.add(content.projection->highEnd);
    }
    return span.withRoom();
}

double chartOverhang(double line)
{
    return std::ceil(line * 0.35);
}

QRectF cardBeside(const QPointF& point, const QSizeF& card, double distance, const QRectF& plot)
{
    // To the right of the point and above it, where it hides neither the pointer nor the line to the left.
    const bool fitsBehind = point.x() + distance + card.width() <= plot.right();
    const bool fitsAbove = point.y() - distance - card.height() >= plot.top();
    const double left = fitsBehind ? point.x() + distance : point.x() - distance - card.width();
    const double top = fitsAbove ? point.y() - distance - card.height() : point.y() + distance;
    return {{std::max(left, plot.left()), std::max(plot.top(), std::min(top, plot.bottom() - card.height()))},
            card};
}

} // namespace quindle
