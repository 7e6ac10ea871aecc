#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace quindle {

/// The end of a piece of work on a thread of its own, which may never come. What that thread has written
/// before `reach` can be read after `isReached`.
class EndOfWork
{
public:
    /// Waits for it, at most that long.
    bool isReached(std::chrono::milliseconds patience)
    {
        std::unique_lock lock(m_mutex);
        return m_reached.wait_for(lock, patience, [this] { return m_isReached; });
    }

    void reach()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_isReached = true;
        }
        m_reached.notify_one();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_reached;
    bool m_isReached = false;
};

} // namespace quindle
