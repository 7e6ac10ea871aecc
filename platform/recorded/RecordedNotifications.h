#pragma once

#include "platform/NotificationCenter.h"

namespace quindle {

/// Notifications between processes that stay in this one: an observer is called before `post` returns.
class RecordedDistributedNotificationCenter : public DistributedNotificationCenter
{
public:
    void addObserver(const QString& name, NotificationCenter::Observer observer) override;
    void post(const QString& name) override;

private:
    NotificationCenter m_local;
};

/// Sleep and wake as a step's actions post them.
class RecordedWorkspaceNotifications : public WorkspaceNotifications
{
public:
    void addWillSleepObserver(NotificationCenter::Observer observer) override;
    void addDidWakeObserver(NotificationCenter::Observer observer) override;

    void sleep();
    void wake();

private:
    NotificationCenter m_local;
};

} // namespace quindle
