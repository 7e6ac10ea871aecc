#include "widgets/controls/PlainButton.h"

#include <QKeyEvent>

#include "widgets/PlainText.h"

namespace quindle {

PlainButton::PlainButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setBackgroundRole(QPalette::NoRole); // the parent's: it is text on the parent's background
    setForegroundRole(QPalette::NoRole);
}

void PlainButton::setLabel(const QString& label)
{
    if (label == m_label)
        return;
    m_label = label;
    setText(literalLabel(label)); // for assistive programs
    updateGeometry();
    update();
}

void PlainButton::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        // As in a menu; the toolkit's buttons take the space bar only.
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

} // namespace quindle

#include "moc_PlainButton.cpp"
