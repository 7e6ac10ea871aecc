#include "widgets/controls/SwitchField.h"

#include <algorithm>

#include <QPainter>
#include <QStyle>

#include "widgets/PaletteMix.h"
#include "widgets/PlainText.h"

namespace quindle {

SwitchField::SwitchField(QWidget* parent)
    : PlainButton(parent)
{
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void SwitchField::setQuiet(bool quiet)
{
    m_quiet = quiet;
    update();
}

QSize SwitchField::sizeHint() const
{
    return {plainLineWidth(fontMetrics(), label()), fontMetrics().height()};
}

QSize SwitchField::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

// The text ends at the row's far edge in both writing directions.
QRect SwitchField::textRect() const
{
    const QSize size(std::min(sizeHint().width(), width()), height());
    return QStyle::alignedRect(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter, size, rect());
}

bool SwitchField::hitButton(const QPoint& position) const
{
    // The row is wide, and a click on its empty part is not meant for the value.
    return textRect().contains(position);
}

void SwitchField::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor quiet = quietTextOf(*this);
    const QColor color = m_quiet ? quiet : textOf(*this);
    const QRect text = textRect();
    painter.setPen(color);
    const auto alignment = QStyle::visualAlignment(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter);
    const QRect line = drawPlainLine(painter, text, alignment, label());

    if (hasFocus()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1.5));
        painter.drawRoundedRect(QRectF(text).adjusted(-1, 0.75, 1, -0.75).intersected(QRectF(rect())), 3, 3);
        return;
    }
    QPen dots(underMouse() ? textOf(*this) : quiet, std::max(1, fontMetrics().lineWidth()));
    dots.setCapStyle(Qt::FlatCap);
    dots.setDashPattern({1, 1.5});
    painter.setPen(dots);
    const int baseline = text.top() + (text.height() - fontMetrics().height()) / 2 + fontMetrics().ascent();
    const int underline = std::min(baseline + std::max(2, fontMetrics().descent() / 2), rect().bottom());
    painter.drawLine(line.left(), underline, line.right(), underline);
}

} // namespace quindle

#include "moc_SwitchField.cpp"
