#include "widgets/PlainLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

#include "widgets/PaletteMix.h"
#include "widgets/PlainText.h"

namespace quindle {

PlainLabel::PlainLabel(QWidget* parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void PlainLabel::setQuiet(bool quiet)
{
    m_quiet = quiet;
    update();
}

void PlainLabel::setElideMode(Qt::TextElideMode elideMode)
{
    m_elideMode = elideMode;
    update();
}

QSize PlainLabel::sizeHint() const
{
    const QSize line(plainLineWidth(fontMetrics(), text()), plainLineHeight(font(), text()));
    return line.grownBy(contentsMargins());
}

QSize PlainLabel::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

bool PlainLabel::event(QEvent* event)
{
    const bool showsWhole = event->type() == QEvent::ToolTip && toolTip().isEmpty();
    if (!showsWhole || sizeHint().width() <= width())
        return QLabel::event(event);
    // The whole text can still be read.
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), literalToolTip(text()), this);
    return true;
}

void PlainLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(m_quiet ? quietTextOf(*this) : textOf(*this));
    drawPlainLine(painter, contentsRect(), QStyle::visualAlignment(layoutDirection(), alignment()), text(),
                  m_elideMode);
}

} // namespace quindle

#include "moc_PlainLabel.cpp"
