#include "platform/linux/statusitem/LinuxStatusBar.h"

#include <utility>

namespace quindle {

LinuxStatusBar::LinuxStatusBar(StatusItemSurroundings surroundings)
    : m_surroundings(std::move(surroundings))
{
}

std::unique_ptr<StatusItem> LinuxStatusBar::statusItemWithLength(double /*length*/)
{
    const QString name = QStringLiteral("quindle-status-item-%1").arg(++m_items);
    return std::make_unique<LinuxStatusItem>(QDBusConnection::connectToBus(QDBusConnection::SessionBus, name),
                                             m_surroundings);
}

} // namespace quindle
