#include "preferences/panes/HelperPreferencesWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>

#include "widgets/CloseKey.h"
#include "widgets/ControlColours.h"

namespace quindle {

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
    // By the window manager: on Wayland no window moves itself.
    windowHandle()->startSystemMove();
}

void HelperPreferencesWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange)
        makeBoxesVisible(*this, palette());
    QWidget::changeEvent(event);
}

void HelperPreferencesWindow::showEvent(QShowEvent* event)
{
    makeBoxesVisible(*this, palette());
    QWidget::showEvent(event);
}

void HelperPreferencesWindow::closeEvent(QCloseEvent* event)
{
    finishEditing(*this);
    QWidget::closeEvent(event);
}

} // namespace quindle

#include "moc_HelperPreferencesWindow.cpp"
