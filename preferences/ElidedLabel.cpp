#include "preferences/ElidedLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "menubar/PaletteMix.h"
#include "menubar/PlainText.h"

namespace quindle {

ElidedLabel::ElidedLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ElidedLabel::setQuiet(bool quiet)
{
    m_quiet = quiet;
    update();
}

QSize ElidedLabel::sizeHint() const
{
    return {plainLineWidth(fontMetrics(), text()), fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip || sizeHint().width() <= width())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), literalToolTip(text()), this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor color = textOf(*this);
    painter.setPen(m_quiet ? quietText(color, backgroundOf(*this)) : color);
    const QString line = fontMetrics().elidedText(text().simplified(), Qt::ElideMiddle, width());
    const int direction = line.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    const Qt::Alignment aligned = QStyle::visualAlignment(layoutDirection(), alignment());
    painter.drawText(rect(), static_cast<int>(aligned | Qt::AlignAbsolute) | Qt::TextSingleLine | direction,
                     line);
}

} // namespace quindle
