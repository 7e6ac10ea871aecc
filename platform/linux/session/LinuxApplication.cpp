#include "platform/linux/session/LinuxApplication.h"

#include <QGuiApplication>
#include <QWindow>

#include "platform/linux/session/X11Desktop.h"

namespace quindle {

void LinuxApplication::terminate()
{
    // Queued: the caller, a menu's action, returns into objects that still exist.
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

void LinuxApplication::activateIgnoringOtherApplications()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        // Popups and tool tips belong to a window, and hidden ones stay hidden.
        if (!window->isVisible() || window->type() != Qt::Window)
            continue;
        window->raise();
        window->requestActivate();
    }
}

bool LinuxApplication::showsTranslucentWindows() const
{
    return hasCompositor(m_display);
}

} // namespace quindle
