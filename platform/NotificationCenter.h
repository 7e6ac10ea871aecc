#pragma once

#include <functional>
#include <list>
#include <utility>

#include <QString>

namespace quindle {

/// Notifications inside the process. Main thread only.
class NotificationCenter
{
public:
    using Observer = std::function<void()>;

    /// Adds an observer for `name`. Nothing removes it; adding it again makes it be called once more.
    void addObserver(const QString& name, Observer observer);

    /// Calls every observer of `name`, in the order they were added, before it returns. An observer that is
    /// added meanwhile is not called for this post.
    void post(const QString& name);

private:
    std::list<std::pair<QString, Observer>> m_observers;
};

/// Notifications between processes: a name, and nothing else. Main thread only.
class DistributedNotificationCenter
{
public:
    virtual ~DistributedNotificationCenter() = default;

    /// Adds an observer for `name`, called on the main thread as soon as the notification arrives, also while
    /// the process is in the background. Nothing removes it; adding it again makes it be called once more.
    virtual void addObserver(const QString& name, NotificationCenter::Observer observer) = 0;

    /// Sends `name` to every process that observes it, this one included.
    virtual void post(const QString& name) = 0;
};

/// What the system says of its sleep. Main thread only.
class WorkspaceNotifications
{
public:
    virtual ~WorkspaceNotifications() = default;

    /// Calls `observer` when the computer is about to sleep.
    virtual void addWillSleepObserver(NotificationCenter::Observer observer) = 0;

    /// Calls `observer` when the computer has woken.
    virtual void addDidWakeObserver(NotificationCenter::Observer observer) = 0;
};

} // namespace quindle
