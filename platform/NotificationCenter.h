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

    /// How often one observer is called for one post at most, however often it was added.
    static constexpr int mostRegistrations = 16;

    /// Adds an observer for `name`. Nothing removes it; adding it again makes it be called once more. From
    /// the 17th time on it is not added, and one line is logged: the helper registers at every refresh once
    /// a day has passed without an upload. Callables of one type count as one observer.
    void addObserver(const QString& name, Observer observer);

    /// Calls every observer of `name`, in the order they were added, before it returns. An observer that is
    /// added meanwhile is not called for this post.
    void post(const QString& name);

private:
    std::list<std::pair<QString, Observer>> m_observers;
    bool m_hasRefused = false;
};

/// Notifications between processes: a name, and nothing else. Main thread only.
class DistributedNotificationCenter
{
public:
    virtual ~DistributedNotificationCenter() = default;

    /// Adds an observer for `name`, called on the main thread as soon as the notification arrives, also while
    /// the process is in the background. Nothing removes it; adding it again makes it be called once more.
    virtual void addObserver(const QString& name, NotificationCenter::Observer observer) = 0;

    /// Sends `name` to every process that observes it. This process's own observers are called before it
    /// returns, once for each registration, also where no other process can be reached.
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
