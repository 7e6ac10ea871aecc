#include "platform/macos/MacPowerManagers.h"

#include <utility>

namespace quindle {

void MacPowerManagers::ask(std::function<void(const QString& desktop)> answered)
{
    QMetaObject::invokeMethod(
        this, [answered = std::move(answered)] { answered(QStringLiteral("macOS")); }, Qt::QueuedConnection);
}

} // namespace quindle
