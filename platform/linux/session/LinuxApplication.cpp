#include "platform/linux/session/LinuxApplication.h"

#include <QCoreApplication>

namespace quindle {

void LinuxApplication::terminate()
{
    // Queued: the caller, a menu's action, returns into objects that still exist.
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
}

} // namespace quindle
