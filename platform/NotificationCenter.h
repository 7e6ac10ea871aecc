#pragma once

#include <functional>
#include <list>
#include <utility>

#include <QString>

namespace quindle {

/// Notifications inside the process: a name, and nothing else. Main thread only.
class NotificationCenter
{
public:
    using Observer = std::function<void()>;

    /// How often one observer is called for one post at most, however often it was added.
    static constexpr int mostRegistrations = 32;

    /// Adds an observer for `name`. inherited: duplicates are kept. It cannot be removed, so what it refers
    /// to must outlive this object; one that is added again is called once more for each post. From the 33rd
    /// time on it is not added, and one line is logged: the helper registers again at every refresh once a
    /// day has passed without an upload. Callables of one type count as one observer.
    void addObserver(const QString& name, Observer observer);

    /// Calls every observer of `name`, in the order they were added, before it returns; does nothing when
    /// there is none.
    /// An observer that is added meanwhile is not called for this post.
    void post(const QString& name);

private:
    std::list<std::pair<QString, Observer>> m_observers;
    bool m_hasRefused = false;
};

/// Notifications between processes: a name, and nothing else. There is no answer, and no way to learn who
/// observes. Main thread only.
class DistributedNotificationCenter
{
public:
    virtual ~DistributedNotificationCenter() = default;

    /// Adds an observer for `name`, called on the main thread as soon as the notification arrives, even in
    /// the background. It cannot be removed; one that is added again is called once more. While other
    /// processes cannot be reached, only this process's own posts are heard.
    virtual void addObserver(const QString& name, NotificationCenter::Observer observer) = 0;

    /// Sends `name` to every process that observes it, without waiting for them.
    /// This process's own observers are called before it returns, once for each registration, even where no
    /// other process can be reached; that failure is not reported.
    virtual void post(const QString& name) = 0;
};

/// What the system says about its sleep. Where it says nothing, observers are never called, and what has
/// changed during sleep shows at the next tick of a timer. Main thread only.
class WorkspaceNotifications
{
public:
    virtual ~WorkspaceNotifications() = default;

    /// Adds an observer that is called when the computer is about to sleep, which does not wait for it.
    /// It cannot be removed.
    virtual void addWillSleepObserver(NotificationCenter::Observer observer) = 0;

    /// Adds an observer that is called when the computer has woken.
    /// It cannot be removed.
    virtual void addDidWakeObserver(NotificationCenter::Observer observer) = 0;
};

} // namespace quindle
