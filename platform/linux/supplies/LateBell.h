#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include <QObject>

namespace quindle {

/// Calls back on the main loop from any thread. Made, given its call and silenced on the main thread.
class LateBell
{
public:
    void setCall(std::function<void()> call) { m_call = std::move(call); }

    /// Has the call made soon, unless nobody listens any more.
    void ring()
    {
        const std::scoped_lock lock(m_mutex);
        if (m_home && m_call)
            QMetaObject::invokeMethod(m_home.get(), m_call, Qt::QueuedConnection);
    }

    /// No call is made from now on.
    void silence()
    {
        const std::scoped_lock lock(m_mutex);
        m_home.reset();
    }

private:
    std::mutex m_mutex;
    std::function<void()> m_call;
    std::unique_ptr<QObject> m_home = std::make_unique<QObject>();
};

} // namespace quindle
