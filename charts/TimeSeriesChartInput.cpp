// The chart's mouse, wheel and keyboard.
#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include "charts/ChartReading.h"
#include "charts/ChartZoom.h"
#include "charts/TimeSeriesChart.h"

namespace quindle {

namespace {

constexpr double zoomStep = 0.8;
constexpr double wheelStep = 120; // eighths of a degree

/// How far the pointer may be from a point that it reads, in pixels: less than the gap of a night is wide.
constexpr double reach = 16;

} // namespace

double TimeSeriesChart::momentAt(double x) const
{
    const ChartLayout layout = layoutInside(rect());
    return layout.time.value(std::clamp(x, layout.plot.left(), layout.plot.right()));
}

void TimeSeriesChart::readAt(double x)
{
    const ChartLayout layout = layoutInside(rect());
    const double seconds = layout.time.values().length() / layout.plot.width();
    const auto near = readingNear(m_content, layout.time.value(x), reach * seconds);
    const bool isSeen = near && m_seen.contains(static_cast<double>(pointOf(m_content, *near).moment));
    m_readsByPointer = true;
    setReading(isSeen ? near : std::nullopt);
}

void TimeSeriesChart::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    const double moment = momentAt(event->position().x());
    m_selection = AxisSpan{moment, moment};
    setReading({});
}

void TimeSeriesChart::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_selection)
        return readAt(event->position().x());
    m_selection->to = momentAt(event->position().x());
    update();
}

void TimeSeriesChart::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || !m_selection)
        return QWidget::mouseReleaseEvent(event);
    zoomToSelection();
    readAt(event->position().x());
}

void TimeSeriesChart::zoomToSelection()
{
    const LinearScale time = layoutInside(rect()).time;
    const AxisSpan chosen = *m_selection;
    m_selection.reset();
    update();
    // A click may move the pointer by a pixel or two.
    if (std::abs(time.pixel(chosen.to) - time.pixel(chosen.from)) >= QApplication::startDragDistance())
        setSeen({std::min(chosen.from, chosen.to), std::max(chosen.from, chosen.to)});
}

void TimeSeriesChart::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        showAll();
}

void TimeSeriesChart::wheelEvent(QWheelEvent* event)
{
    const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier) ||
                          std::abs(event->angleDelta().x()) > std::abs(event->angleDelta().y());
    const double steps = (event->angleDelta().x() + event->angleDelta().y()) / wheelStep;
    const AxisSpan before = m_seen;
    if (sideways) {
        const double shift = -steps * m_seen.length() / 10;
        setSeen({m_seen.from + shift, m_seen.to + shift});
    } else {
        zoomAround(momentAt(event->position().x()), std::pow(zoomStep, steps));
    }
    readAt(event->position().x());
    // What the chart does not use scrolls the page.
    event->setAccepted(m_seen != before);
}

void TimeSeriesChart::zoomAround(double moment, double factor)
{
    if (!(m_seen.length() > 0))
        return;
    // Past the end there is no zoom; it would only move.
    const double longest = std::max(m_content.shortest, m_content.moments.length());
    const double length = std::clamp(m_seen.length() * factor, m_content.shortest, longest);
    setSeen(zoomed(m_seen, moment, length / m_seen.length()));
}

void TimeSeriesChart::leaveEvent(QEvent* event)
{
    if (m_readsByPointer)
        setReading({});
    QWidget::leaveEvent(event);
}

void TimeSeriesChart::keyPressEvent(QKeyEvent* event)
{
    const double pixel = m_seen.length() / layoutInside(rect()).plot.width();
    const bool far = event->modifiers().testFlag(Qt::ControlModifier);
    const double step = far ? m_seen.length() / 10 : pixel;
    const double middle = (m_seen.from + m_seen.to) / 2;
    const double centre = m_reading ? static_cast<double>(pointOf(m_content, *m_reading).moment) : middle;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveReading(-step);
    case Qt::Key_Right:
        return moveReading(step);
    case Qt::Key_Home:
        return readEnd(firstReading(m_content, m_content.moments.from));
    case Qt::Key_End:
        return readEnd(lastReading(m_content, m_content.moments.to));
    case Qt::Key_Plus:
    case Qt::Key_Equal: // the same key without Shift on many keyboards
        return zoomAround(centre, zoomStep);
    case Qt::Key_Minus:
        return zoomAround(centre, 1 / zoomStep);
    case Qt::Key_0:
        return showAll();
    case Qt::Key_Escape:
        if (m_reading || m_selection) {
            m_selection.reset();
            setReading({});
            return update();
        }
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void TimeSeriesChart::moveReading(double distance)
{
    readEnd(m_reading ? readingBeside(m_content, *m_reading, distance) : lastReading(m_content, m_seen.to));
}

void TimeSeriesChart::readEnd(const std::optional<ChartReading>& end)
{
    if (!end)
        return;
    m_readsByPointer = false;
    setReading(end);
    setSeen(movedTo(m_seen, static_cast<double>(pointOf(m_content, *end).moment)));
}

void TimeSeriesChart::focusInEvent(QFocusEvent* event)
{
    const bool byKeyboard =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKeyboard && !m_reading)
        readEnd(lastReading(m_content, m_seen.to));
    QWidget::focusInEvent(event);
}

void TimeSeriesChart::focusOutEvent(QFocusEvent* event)
{
    // A menu or another window in front does not end it.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        setReading({});
    QWidget::focusOutEvent(event);
}

} // namespace quindle
