#include "preferences/HelperPreferencesWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

namespace quindle {

namespace {

bool closesWindow(const QKeyEvent& event)
{
    const bool isControlW = event.key() == Qt::Key_W && event.modifiers() == Qt::ControlModifier;
    return isControlW || event.matches(QKeySequence::Cancel);
}

} // namespace

HelperPreferencesWindow::HelperPreferencesWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
{
}

void HelperPreferencesWindow::keyPressEvent(QKeyEvent* event)
{
    if (closesWindow(*event))
        close();
    else
        QWidget::keyPressEvent(event);
}

// Controls keep their presses; what arrives here is empty background or a label.
void HelperPreferencesWindow::mousePressEvent(QMouseEvent* event)
{
    if (m_movableByBackground && event->button() == Qt::LeftButton)
        windowHandle()->startSystemMove();
    else
        QWidget::mousePressEvent(event);
}

void HelperPreferencesWindow::closeEvent(QCloseEvent* event)
{
    if (QWidget* focused = focusWidget())
        focused->clearFocus();
    QWidget::closeEvent(event);
}

} // namespace quindle
