#pragma once

#include <functional>
#include <memory>
#include <utility>

#include <QObject>
#include <QThread>

namespace quindle {

/// A thread that does one piece of work after the other, so that a window does not wait for a large file.
/// Work that has begun is finished before it is destroyed; its result is then no longer delivered.
class BackgroundWork
{
public:
    BackgroundWork();
    ~BackgroundWork();
    BackgroundWork(const BackgroundWork&) = delete;
    BackgroundWork& operator=(const BackgroundWork&) = delete;

    /// Calls `work` there, and then `done` with its result in the thread of this object.
    template <typename Work, typename Done>
    void run(Work work, Done done)
    {
        const auto begin = [here = m_here.get(), work = std::move(work), done = std::move(done)] {
            auto result = std::make_shared<decltype(work())>(work());
            QMetaObject::invokeMethod(
                here, [done, result] { done(std::move(*result)); }, Qt::QueuedConnection);
        };
        QMetaObject::invokeMethod(m_there.get(), begin, Qt::QueuedConnection);
    }

    /// From the work: calls `what` in the thread of this object.
    void callBack(const std::function<void()>& what)
    {
        QMetaObject::invokeMethod(m_here.get(), what, Qt::QueuedConnection);
    }

private:
    QThread m_thread;
    std::unique_ptr<QObject> m_here;
    std::unique_ptr<QObject> m_there;
};

} // namespace quindle
