#include "widgets/WarningImage.h"

#include <QPainter>

#include "widgets/PaletteMix.h"

namespace quindle {

WarningImage::WarningImage(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize WarningImage::sizeHint() const
{
    return {fontMetrics().height(), fontMetrics().height()};
}

void WarningImage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width(), height());
    const QColor color = quietTextOf(*this);
    painter.setPen(QPen(color, 0.07, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolygon(QPolygonF({{0.5, 0.14}, {0.9, 0.84}, {0.1, 0.84}}));
    painter.drawLine(QPointF(0.5, 0.4), QPointF(0.5, 0.6));
    painter.drawPoint(QPointF(0.5, 0.72));
}

} // namespace quindle

#include "moc_WarningImage.cpp"
