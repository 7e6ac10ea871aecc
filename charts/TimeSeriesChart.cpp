#include "charts/TimeSeriesChart.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLocale>
#include <QPainter>

#include "charts/ChartLook.h"
#include "charts/ChartPainter.h"
#include "charts/ChartReading.h"
#include "charts/ChartZoom.h"
#include "charts/DateTexts.h"
#include "widgets/QuietLabel.h"

namespace quindle {

namespace {

QAccessibleInterface* accessibleChart(const QString&, QObject* object)
{
    auto* chart = qobject_cast<TimeSeriesChart*>(object);
    return chart ? new QAccessibleWidget(chart, QAccessible::Chart) : nullptr;
}

QString spanText(const ChartContent& content, AxisSpan seen, const QLocale& locale)
{
    const auto text = [&](double moment) {
        return momentText(static_cast<qint64>(moment), content.readsTimes, locale);
    };
    return text(seen.from) + QStringLiteral(u" \u2013 ") + text(seen.to);
}

} // namespace

TimeSeriesChart::TimeSeriesChart(const QString& name, QWidget* parent)
    : QWidget(parent)
{
    QAccessible::installFactory(accessibleChart); // the same one is installed once only
    setAccessibleName(name);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void TimeSeriesChart::setContent(ChartContent content)
{
    // New samples come every minute; a zoom stays.
    const bool keepsZoom =
        isZoomed() && m_seen.from >= content.moments.from && m_seen.to <= content.moments.to;
    const auto readMoment =
        m_reading ? std::optional(static_cast<double>(pointOf(m_content, *m_reading).moment)) : std::nullopt;
    m_content = std::move(content);
    if (!keepsZoom)
        m_seen = m_content.moments;
    // The same point by its moment: its place in the list may be another one.
    m_reading = readMoment ? readingNear(m_content, *readMoment, 0) : std::nullopt;
    describe();
    update();
}

void TimeSeriesChart::setSeen(AxisSpan moments)
{
    const AxisSpan kept = keptInside(moments, m_content.moments, m_content.shortest);
    if (kept == m_seen)
        return;
    m_seen = kept;
    describe();
    update();
    Q_EMIT seenChanged();
}

void TimeSeriesChart::showAll()
{
    setSeen(m_content.moments);
}

void TimeSeriesChart::setReading(const std::optional<ChartReading>& reading)
{
    if (reading == m_reading)
        return;
    m_reading = reading;
    describe();
    update();
}

void TimeSeriesChart::describe()
{
    const QLocale locale;
    QStringList parts;
    if (m_reading) {
        const qint64 moment = pointOf(m_content, *m_reading).moment;
        parts << momentText(moment, m_content.readsTimes, locale) + QStringLiteral(": ") +
                     readingText(m_content, *m_reading);
    }
    parts << (hasPoints(m_content) ? spanText(m_content, m_seen, locale) : m_content.emptyText);
    setAccessibleDescription(parts.join(QStringLiteral("; ")));
}

ChartLayout TimeSeriesChart::layoutInside(const QRectF& area) const
{
    return chartLayout(m_content, m_seen, area, QFontMetricsF(quietFont(font())), QLocale());
}

QSize TimeSeriesChart::sizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 34, line * 10};
}

QSize TimeSeriesChart::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {line * 14, line * 7};
}

void TimeSeriesChart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const ChartLook look = chartLook(*this);
    const ChartLayout layout = layoutInside(rect());
    paintChart(painter, m_content, layout, look);
    if (m_selection)
        paintSelection(painter, layout, look, *m_selection);
    else if (m_reading && m_seen.contains(static_cast<double>(pointOf(m_content, *m_reading).moment)))
        paintReading(painter, m_content, layout, look, *m_reading, QLocale());
    paintFocus(painter);
}

// Only while the keyboard is in use, as the desktop's own controls do.
void TimeSeriesChart::paintFocus(QPainter& painter) const
{
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange))
        return;
    const double radius = fontMetrics().height() * 0.25;
    painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), radius, radius);
}

} // namespace quindle

#include "moc_TimeSeriesChart.cpp"
