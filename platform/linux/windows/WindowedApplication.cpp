#include "platform/linux/windows/WindowedApplication.h"

#include <QGuiApplication>
#include <QWindow>

#include "platform/linux/display/X11Desktop.h"

namespace quindle {

void WindowedApplication::activateIgnoringOtherApplications()
{
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        // Popups and tool tips belong to a window, and hidden ones stay hidden.
        if (!window->isVisible() || window->type() != Qt::Window)
            continue;
        window->raise();
        window->requestActivate();
    }
}

bool WindowedApplication::showsTranslucentWindows() const
{
    return hasCompositor(m_display);
}

} // namespace quindle
