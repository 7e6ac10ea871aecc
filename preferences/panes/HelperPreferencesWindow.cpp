#include "preferences/panes/HelperPreferencesWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

#include "widgets/CloseKey.h"

namespace quindle {

namespace {

bool closesWindow(const QKeyEvent& event)
{
    return isCloseKey(event) || event.matches(QKeySequence::Cancel);
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
        startMove();
    else
        QWidget::mousePressEvent(event);
}

void HelperPreferencesWindow::startMove()
{
    // By the window manager: under Wayland no window moves itself.
    windowHandle()->startSystemMove();
}

void HelperPreferencesWindow::closeEvent(QCloseEvent* event)
{
    // A text that is being typed is committed when its field loses the focus.
    if (QWidget* focused = focusWidget())
        focused->clearFocus();
    QWidget::closeEvent(event);
}

} // namespace quindle

#include "moc_HelperPreferencesWindow.cpp"
