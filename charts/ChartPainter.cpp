#include "charts/ChartPainter.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPolygonF>

#include "charts/DateTexts.h"
#include "charts/SeriesPainter.h"
#include "widgets/PaletteMix.h"

namespace quindle {

namespace {

constexpr double dotRadius = 0.2;
constexpr double shadeShare = 0.11;
constexpr float selectionAlpha = 0.2F;
constexpr float bandAlpha = 0.15F;

QColor veiled(QColor colour, float alpha)
{
    colour.setAlphaF(alpha);
    return colour;
}

/// A line of one pixel is sharp only between whole pixels.
void fillRow(QPainter& painter, const QRectF& plot, double y, const QColor& colour)
{
    painter.fillRect(QRectF(plot.left(), std::round(y), plot.width(), 1), colour);
}

void fillColumn(QPainter& painter, const QRectF& plot, double x, const QColor& colour)
{
    painter.fillRect(QRectF(std::round(x), plot.top(), 1, plot.height()), colour);
}

void paintShaded(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                 const ChartLook& look)
{
    if (layout.time.values().length() > content.shadedUpTo)
        return;
    // Opaque, since the painter splits blending among threads, which does not pay for many small shades.
    const double share = isDark(look.background) ? shadeShare * 1.7 : shadeShare;
    const QColor shade = mixed(look.charge, look.background, share);
    for (const ShadedSpan& span : content.shaded) {
        const double from = std::max(layout.time.pixel(static_cast<double>(span.from)), layout.plot.left());
        const double to = std::min(layout.time.pixel(static_cast<double>(span.to)), layout.plot.right());
        if (from < to)
            painter.fillRect(QRectF(from, layout.plot.top(), to - from, layout.plot.height()), shade);
    }
}

void paintValueTicks(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                     const ChartLook& look)
{
    painter.setPen(look.quiet);
    const double right = layout.plot.left() - layout.line * 0.5;
    for (const double value : layout.valueTicks.values) {
        const double y = layout.value.pixel(value);
        fillRow(painter, layout.plot, y, look.grid);
        // The box ends at the axis, which is never mirrored, and is as wide as any text may be.
        painter.drawText(QRectF(right - 1000, y - layout.line, 1000, layout.line * 2),
                         Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter,
                         tickText(content, value, layout.valueTicks.decimals));
    }
}

void paintTimeTicks(QPainter& painter, const ChartLayout& layout, const ChartLook& look)
{
    painter.setPen(look.quiet);
    const QFontMetricsF metrics = painter.fontMetrics();
    double free = -INFINITY;
    for (const TimeTick& tick : layout.timeTicks) {
        const double width = metrics.horizontalAdvance(tick.label);
        const double centred = layout.time.pixel(static_cast<double>(tick.moment)) - width / 2;
        const double farthest = layout.plot.right() + chartOverhang(layout.line) - width;
        const double left = std::min(centred, farthest);
        if (left < free)
            continue; // pushed aside by the edge, it would touch its neighbour
        painter.drawText(QPointF(left, layout.plot.bottom() + layout.line * 0.5 + metrics.ascent()),
                         tick.label);
        free = left + width + layout.line * 0.4;
    }
}

void paintReferenceLines(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                         const ChartLook& look)
{
    QPen dotted(look.quiet, 1);
    dotted.setDashPattern({2, 3});
    painter.setPen(dotted);
    for (const ReferenceLine& line : content.lines) {
        // A pen covers half a pixel on each side.
        const double y = std::round(layout.value.pixel(line.value)) + 0.5;
        painter.drawLine(QPointF(layout.plot.left(), y), QPointF(layout.plot.right(), y));
    }
}

/// Instead of the grid, which would run through the letters, but below the lines.
void paintReferenceLabels(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                          const ChartLook& look)
{
    painter.setPen(look.quiet);
    const QFontMetricsF metrics = painter.fontMetrics();
    for (const ReferenceLine& line : content.lines) {
        const double width = metrics.horizontalAdvance(line.label);
        const double y = layout.value.pixel(line.value) - layout.line * 1.15;
        const QRectF place(layout.plot.right() - width, y, width, layout.line);
        painter.fillRect(place.adjusted(-layout.line * 0.3, 0, 0, 0), look.background);
        painter.drawText(place, Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter, line.label);
    }
}

void paintProjection(QPainter& painter, const ChartProjection& projection, const ChartLayout& layout,
                     const ChartLook& look)
{
    const QColor ink = inkColour(look, projection.ink);
    const auto to = static_cast<double>(projection.to.moment);
    painter.setPen(Qt::NoPen);
    painter.setBrush(veiled(ink, bandAlpha));
    const auto start = static_cast<double>(projection.from.moment);
    painter.drawPolygon(
        QPolygonF({layout.at(start, projection.lowStart), layout.at(start, projection.highStart),
                   layout.at(to, projection.highEnd), layout.at(to, projection.lowEnd)}));
    painter.setBrush(Qt::NoBrush);
    QPen dashed(ink, seriesWidth(layout) * 0.7);
    dashed.setDashPattern({4, 3});
    painter.setPen(dashed);
    painter.drawLine(layout.at(start, projection.from.value), layout.at(to, projection.to.value));
}

void paintDot(QPainter& painter, const QPointF& centre, double radius, const QColor& ink,
              const ChartLook& look)
{
    painter.setPen(Qt::NoPen);
    // A rim separates the dot from the line below it.
    painter.setBrush(look.background);
    painter.drawEllipse(centre, radius * 1.5, radius * 1.5);
    painter.setBrush(ink);
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(Qt::NoBrush);
}

void paintEndDot(QPainter& painter, const ChartSeries& series, const ChartLayout& layout,
                 const ChartLook& look)
{
    if (!series.endsWithDot || series.points.empty())
        return;
    const auto moment = static_cast<double>(series.points.back().moment);
    if (layout.time.values().contains(moment))
        paintDot(painter, layout.at(moment, series.points.back().value), layout.line * dotRadius,
                 seriesColour(series, look), look);
}

void paintLines(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                const ChartLook& look)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double overlap = seriesWidth(layout);
    // With room for half a line's width at the edges.
    painter.setClipRect(layout.plot.adjusted(0, -layout.line, overlap, overlap));
    if (content.projection)
        paintProjection(painter, *content.projection, layout, look);
    for (const ChartSeries& series : content.series)
        paintSeries(painter, series, layout, look);
    painter.restore();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const ChartSeries& series : content.series)
        paintEndDot(painter, series, layout, look);
}

/// What the reading says, in two lines.
struct CardTexts
{
    QString date;
    QString value;
};

void paintCard(QPainter& painter, const QPointF& place, const ChartLayout& layout, const ChartLook& look,
               const CardTexts& texts)
{
    constexpr double borderShare = 0.2;
    constexpr double darkShare = 0.04; // on dark backgrounds what is nearer is lighter
    const QFontMetricsF metrics = painter.fontMetrics();
    const double padding = layout.line * 0.55;
    const double radius = layout.line * 0.25;
    const double width =
        std::max(metrics.horizontalAdvance(texts.date), metrics.horizontalAdvance(texts.value)) + padding * 2;
    const QSizeF size(std::ceil(width), std::ceil(layout.line * 2 + padding * 1.5));
    const QRectF card = cardBeside(place, size, layout.line * 0.6, layout.plot).toRect();
    painter.setPen(mixed(look.text, look.background, borderShare));
    painter.setBrush(isDark(look.background) ? mixed(look.text, look.background, darkShare)
                                             : look.background);
    painter.drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.setBrush(Qt::NoBrush);
    const QRectF text = card.adjusted(padding, padding * 0.75, 0, -padding * 0.75);
    painter.setPen(look.quiet);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignTop, texts.date);
    painter.setPen(look.text);
    painter.drawText(text, Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignBottom, texts.value);
}

} // namespace

void paintChart(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                const ChartLook& look)
{
    // Rectangles with smooth edges cost many times as much as those on whole pixels, where these belong
    // anyway.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(look.font);
    painter.setBrush(Qt::NoBrush);
    if (!hasPoints(content)) {
        painter.setPen(look.quiet);
        painter.drawText(layout.plot, Qt::AlignCenter | Qt::TextWordWrap, content.emptyText);
        return;
    }
    paintShaded(painter, content, layout, look);
    paintValueTicks(painter, content, layout, look);
    paintTimeTicks(painter, layout, look);
    paintReferenceLabels(painter, content, layout, look);
    paintReferenceLines(painter, content, layout, look);
    paintLines(painter, content, layout, look);
}

void paintReading(QPainter& painter, const ChartContent& content, const ChartLayout& layout,
                  const ChartLook& look, const ChartReading& reading, const QLocale& locale)
{
    constexpr double lineShare = 0.35;
    const ChartPoint& point = pointOf(content, reading);
    const QPointF place = layout.at(static_cast<double>(point.moment), point.value);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(look.font);
    fillColumn(painter, layout.plot, place.x() - 0.5, mixed(look.text, look.background, lineShare));
    painter.setRenderHint(QPainter::Antialiasing);
    paintDot(painter, place, layout.line * dotRadius, seriesColour(content.series[reading.series], look),
             look);
    paintCard(painter, place, layout, look,
              {momentText(point.moment, content.readsTimes, locale), readingText(content, reading)});
}

void paintSelection(QPainter& painter, const ChartLayout& layout, const ChartLook& look, AxisSpan moments)
{
    const double first = layout.time.pixel(moments.from);
    const double second = layout.time.pixel(moments.to);
    const QRectF chosen(std::min(first, second), layout.plot.top(), std::abs(second - first),
                        layout.plot.height());
    painter.fillRect(chosen & layout.plot, veiled(look.charge, selectionAlpha));
    fillColumn(painter, layout.plot, first - 0.5, look.charge);
    fillColumn(painter, layout.plot, second - 0.5, look.charge);
}

} // namespace quindle
