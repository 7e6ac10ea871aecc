#include "widgets/controls/LinkButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include "widgets/PaletteMix.h"

namespace quindle {

LinkButton::LinkButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setBackgroundRole(QPalette::NoRole); // the parent's: it is text on the parent's background
    setForegroundRole(QPalette::NoRole);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkButton::sizeHint() const
{
    return fontMetrics().size(Qt::TextShowMnemonic, text()).grownBy({1, 1, 1, 1});
}

void LinkButton::keyPressEvent(QKeyEvent* event)
{
    // It looks like a link, and links open by Enter.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void LinkButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor plain = textOf(*this);
    painter.setPen(underMouse() || isDown() ? plain : quietTextOf(*this));
    QFont underlined = font();
    underlined.setUnderline(true);
    painter.setFont(underlined);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextHideMnemonic, text());
    if (!hasFocus())
        return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = backgroundOf(*this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

} // namespace quindle

#include "moc_LinkButton.cpp"
