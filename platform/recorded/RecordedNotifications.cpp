#include "platform/recorded/RecordedNotifications.h"

#include <utility>

namespace quindle {

void RecordedDistributedNotificationCenter::addObserver(const QString& name,
                                                        NotificationCenter::Observer observer)
{
    m_local.addObserver(name, std::move(observer));
}

void RecordedDistributedNotificationCenter::post(const QString& name)
{
    // To this process alone: no other runs on a recorded computer.
    m_local.post(name);
}

void RecordedWorkspaceNotifications::addWillSleepObserver(NotificationCenter::Observer observer)
{
    m_local.addObserver(QStringLiteral("sleep"), std::move(observer));
}

void RecordedWorkspaceNotifications::addDidWakeObserver(NotificationCenter::Observer observer)
{
    m_local.addObserver(QStringLiteral("wake"), std::move(observer));
}

void RecordedWorkspaceNotifications::sleep()
{
    m_local.post(QStringLiteral("sleep"));
}

void RecordedWorkspaceNotifications::wake()
{
    m_local.post(QStringLiteral("wake"));
}

} // namespace quindle
