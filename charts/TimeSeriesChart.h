#pragma once

#include <optional>

#include <QWidget>

#include "charts/ChartContent.h"
#include "charts/ChartLayout.h"

namespace quindle {

/// Lines over time. The pointer reads values, the wheel and a drag zoom, a double click shows everything
/// again. The keyboard does the same: the arrow keys move the reading (with Control, by a tenth of what is
/// seen), Home and End go to the ends, + and - zoom around it, 0 shows everything, Escape ends the reading.
/// What is seen and read is the accessible description.
class TimeSeriesChart : public QWidget
{
    Q_OBJECT

public:
    /// `name` is the accessible name.
    explicit TimeSeriesChart(const QString& name, QWidget* parent = nullptr);

    const ChartContent& content() const { return m_content; }

    /// A zoom and a reading stay where the content still has their moments.
    void setContent(ChartContent content);

    /// The moments that are seen.
    AxisSpan seen() const { return m_seen; }
    bool isZoomed() const { return m_seen != m_content.moments; }

    /// As far as the content allows.
    void setSeen(AxisSpan moments);
    void showAll();

    const std::optional<ChartReading>& reading() const { return m_reading; }
    void setReading(const std::optional<ChartReading>& reading);

    /// As the chart is laid out at the moment.
    ChartLayout layoutInside(const QRectF& area) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void seenChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    double momentAt(double x) const;
    void readAt(double x);
    void moveReading(double distance);
    void readEnd(const std::optional<ChartReading>& end);
    void zoomAround(double moment, double factor);
    void zoomToSelection();
    void describe();
    void paintFocus(QPainter& painter) const;

    ChartContent m_content;
    AxisSpan m_seen;
    std::optional<ChartReading> m_reading;
    bool m_readsByPointer = false;       ///< then the reading ends when the pointer leaves
    std::optional<AxisSpan> m_selection; ///< from where the button was pressed to where the pointer is
};

} // namespace quindle
